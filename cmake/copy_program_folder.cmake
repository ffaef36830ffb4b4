# SPDX-FileCopyrightText: Vesk developers
# SPDX-License-Identifier: MIT
# Copies the shipped program folder next to the executables, and removes from
# there what an earlier copy put there and the source no longer holds.
#
#   cmake -DSOURCE=<data folder> -DTARGET=<folder of the executables> -P copy_program_folder.cmake
#
# The files copied are listed in <TARGET>/.program-folder-files, so that a file
# removed from the source folder leaves the build's copy too, while the
# executables beside it are never touched.

cmake_minimum_required(VERSION 3.25)

set(manifest "${TARGET}/.program-folder-files")
file(GLOB_RECURSE files RELATIVE "${SOURCE}" "${SOURCE}/*")
list(SORT files)

if(EXISTS "${manifest}")
  file(STRINGS "${manifest}" previous)
  foreach(file IN LISTS previous)
    if(NOT file IN_LIST files)
      file(REMOVE "${TARGET}/${file}")
      message(STATUS "Removed ${file}, no longer in the program folder")
    endif()
  endforeach()
endif()

foreach(file IN LISTS files)
  get_filename_component(folder "${TARGET}/${file}" DIRECTORY)
  file(COPY "${SOURCE}/${file}" DESTINATION "${folder}")
endforeach()

list(JOIN files "\n" listing)
file(WRITE "${manifest}" "${listing}\n")
