# SPDX-FileCopyrightText: Vesk developers
# SPDX-License-Identifier: MIT
# The one place the version of Vesk comes from is project(Vesk VERSION ...) in
# the top CMakeLists.txt. This makes it a header, vesk_version.h, for every
# target that links vesk_version: the splash and About (gui/workbench) and
# vesk-calc. The packages take PROJECT_VERSION directly (packaging/).

configure_file(${CMAKE_CURRENT_LIST_DIR}/vesk_version.h.in ${CMAKE_BINARY_DIR}/generated/vesk_version.h @ONLY)
add_library(vesk_version INTERFACE)
target_include_directories(vesk_version INTERFACE ${CMAKE_BINARY_DIR}/generated)
