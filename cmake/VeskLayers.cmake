# SPDX-FileCopyrightText: Vesk developers
# SPDX-License-Identifier: MIT
# One static library per source folder, linked in one direction, with a check
# that the direction holds.
#
# vesk_layer(FOLDER DEPENDS lower folders...) makes the library of a folder
# (engine -> vesk_engine, gui/common -> vesk_gui_common) from the sources its
# CMakeLists.txt lists, and links it to the libraries of the folders below it.
# Two checks follow from it:
# - a link check: a small program links the whole library (every object, not
#   only those something asks for) and nothing but the folders below it, so a
#   call that runs back up fails to link;
# - the file layers.txt in the build tree: each folder with the folders it may
#   include, and whether it may see Qt; scripts/check-layers reads it.

define_property(GLOBAL PROPERTY VESK_LAYERS BRIEF_DOCS "folders with a library" FULL_DOCS "see VeskLayers.cmake")

function(vesk_library_of folder out)
  string(REPLACE "/" "_" name "${folder}")
  set(${out} "vesk_${name}" PARENT_SCOPE)
endfunction()

# vesk_layer(<folder> [QT] [DEPENDS <folder>...] SOURCES <file>...)
function(vesk_layer folder)
  cmake_parse_arguments(LAYER "QT" "" "DEPENDS;SOURCES" ${ARGN})
  vesk_library_of("${folder}" library)
  add_library(${library} STATIC ${LAYER_SOURCES})
  target_include_directories(${library} PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(${library} PUBLIC vesk_options)
  foreach(lower IN LISTS LAYER_DEPENDS)
    vesk_library_of("${lower}" lowerLibrary)
    target_link_libraries(${library} PUBLIC ${lowerLibrary})
  endforeach()
  if(LAYER_QT)
    set_target_properties(${library} PROPERTIES AUTOMOC ON)
    target_link_libraries(${library} PUBLIC Qt6::Widgets Qt6::Charts Qt6::PrintSupport)
  endif()

  # The folders this one may include: itself and, through its libraries, every
  # folder below it.
  set(allowed "${folder}")
  foreach(lower IN LISTS LAYER_DEPENDS)
    get_property(lowerAllowed GLOBAL PROPERTY VESK_LAYER_ALLOWED_${lower})
    list(APPEND allowed ${lowerAllowed})
  endforeach()
  list(REMOVE_DUPLICATES allowed)
  set_property(GLOBAL PROPERTY VESK_LAYER_ALLOWED_${folder} "${allowed}")
  set_property(GLOBAL PROPERTY VESK_LAYER_QT_${folder} ${LAYER_QT})
  set_property(GLOBAL APPEND PROPERTY VESK_LAYERS "${folder}")

  add_executable(${library}_link_check ${PROJECT_SOURCE_DIR}/cmake/link_check.cpp)
  target_link_libraries(${library}_link_check PRIVATE "$<LINK_LIBRARY:WHOLE_ARCHIVE,${library}>")
endfunction()

# Writes layers.txt: one line per folder, "folder qt|core allowed-folder...".
function(vesk_write_layers)
  get_property(folders GLOBAL PROPERTY VESK_LAYERS)
  set(text "")
  foreach(folder IN LISTS folders)
    get_property(allowed GLOBAL PROPERTY VESK_LAYER_ALLOWED_${folder})
    get_property(qt GLOBAL PROPERTY VESK_LAYER_QT_${folder})
    if(qt)
      set(kind qt)
    else()
      set(kind core)
    endif()
    list(JOIN allowed " " allowedText)
    string(APPEND text "${folder} ${kind} ${allowedText}\n")
  endforeach()
  file(WRITE ${CMAKE_BINARY_DIR}/layers.txt "${text}")
endfunction()
