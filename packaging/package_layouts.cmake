# SPDX-FileCopyrightText: Vesk developers
# SPDX-License-Identifier: MIT
# Read by cpack for each package it makes: the .deb holds the system layout
# from its root, the .tar.gz the portable folder inside one folder of its own
# name (see packaging/CMakeLists.txt).
if(CPACK_GENERATOR STREQUAL "DEB")
  set(CPACK_COMPONENTS_ALL system)
  set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY OFF)
else()
  set(CPACK_COMPONENTS_ALL portable)
  set(CPACK_PACKAGE_FILE_NAME "${CPACK_VESK_PORTABLE_NAME}")
  set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY ON)
  set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
endif()
