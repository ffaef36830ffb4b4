# SPDX-FileCopyrightText: Vesk developers
# SPDX-License-Identifier: MIT
# Fails when the help sources differ from those that data/VeskHelpFile.chm was compiled from.

# Run as: cmake -DHELP_DIR=<path to help> -P help/check_sources.cmake
#
# The digest is the one that scripts/build-help records: the SHA-256 of a listing of every file
# under HELP_DIR but the record itself, sorted by its path relative to HELP_DIR in byte order, one
# line per file, "<SHA-256 of the file>  <relative path>" and a line feed, as sha256sum prints it.

cmake_minimum_required(VERSION 3.20)

set(record_name "VeskHelpFile.sources.sha256")

if(NOT DEFINED HELP_DIR OR HELP_DIR STREQUAL "")
  message(FATAL_ERROR "check_sources.cmake: give the help folder, as -DHELP_DIR=<path to help>")
endif()
get_filename_component(help_dir "${HELP_DIR}" ABSOLUTE)
if(NOT IS_DIRECTORY "${help_dir}")
  message(FATAL_ERROR "check_sources.cmake: ${help_dir} is not a folder")
endif()

set(record "${help_dir}/${record_name}")
if(NOT EXISTS "${record}")
  message(FATAL_ERROR "the help file has no record of its sources (${record} is missing): run scripts/build-help")
endif()
file(READ "${record}" recorded)
string(STRIP "${recorded}" recorded)

file(GLOB_RECURSE sources LIST_DIRECTORIES false RELATIVE "${help_dir}" "${help_dir}/*")
list(REMOVE_ITEM sources "${record_name}")
list(SORT sources COMPARE STRING CASE SENSITIVE ORDER ASCENDING)

set(listing "")
foreach(source IN LISTS sources)
  file(SHA256 "${help_dir}/${source}" source_digest)
  string(APPEND listing "${source_digest}  ${source}\n")
endforeach()
string(SHA256 digest "${listing}")

if(NOT digest STREQUAL recorded)
  message(FATAL_ERROR
    "the help file is older than its sources: run scripts/build-help\n"
    "  recorded: ${recorded}\n"
    "  sources:  ${digest}")
endif()
list(LENGTH sources source_count)
message(STATUS "The help file is up to date with its ${source_count} sources (${digest}).")
