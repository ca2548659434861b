# What every target of this project shares: language level, warnings, visibility, moc and rcc,
# compiler cache, fast linker, sanitizers, test labels. Precompiled headers: VelkPrecompile.cmake.

option(VELK_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" OFF)
option(VELK_CCACHE "Compile through ccache where it is installed" OFF)
option(VELK_MOLD "Link with mold where it is installed" OFF)
option(VELK_UNITY "Compile the sources of each folder of a library or program as one" OFF)
set(VELK_SANITIZE "" CACHE STRING "Comma separated list of sanitizers")

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release)
endif()

find_program(CCACHE_PROGRAM ccache)
if(VELK_CCACHE AND CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env
      "CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime"
      "CCACHE_NOHASHDIR=1" "CCACHE_BASEDIR=${CMAKE_SOURCE_DIR}" "${CCACHE_PROGRAM}")
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    add_compile_options("SHELL:-Xclang -fno-pch-timestamp")
  else()
    add_compile_options(-fpch-preprocess)
  endif()
endif()
find_program(MOLD_PROGRAM mold)
if(VELK_MOLD AND MOLD_PROGRAM)
  add_link_options(-fuse-ld=mold)
endif()
# A library with GNU-unique symbols stays loaded, and so does every library that it is bound to: the
# plug-in could then never be unloaded.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  add_compile_options(-fno-gnu-unique)
endif()
# What is given away names no folder of the machine that made it, and is the same wherever it is made.
add_compile_options("$<$<CONFIG:Release>:-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.>")
if(VELK_SANITIZE)
  add_compile_options(-fsanitize=${VELK_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all
                      -O1)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    add_compile_options(-fsanitize-ignorelist=${CMAKE_SOURCE_DIR}/cmake/sanitizers.ignore)
  endif()
  add_link_options(-fsanitize=${VELK_SANITIZE})
endif()

include(VelkPrecompile)

# What all targets have in common; for internal use, after the target was linked.
function(velk_defaults target)
  target_include_directories(${target} SYSTEM PRIVATE ${RAPIDJSON_INCLUDE_DIR})
  target_compile_definitions(${target} PRIVATE ${VELK_DEFINITIONS})
  target_compile_options(${target} PRIVATE ${VELK_WARNINGS})
  velk_precompile(${target})
endfunction()

set(VELK_DEFINITIONS QT_NO_KEYWORDS QT_NO_FOREACH BOOST_BIND_GLOBAL_PLACEHOLDERS)
set(VELK_WARNINGS
    -Wall -Wextra -Wnon-virtual-dtor $<$<NOT:$<BOOL:${VELK_UNITY}>>:-Wshadow>
    $<$<BOOL:${VELK_WARNINGS_AS_ERRORS}>:-Werror>
    # g++ 12 reports these wrongly in optimised builds: for "text" + std::string (GCC bug 105651),
    # variants and designated initialisers; clang checks the same in the dev build.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict -Wno-stringop-overflow -Wno-array-bounds
    -Wno-maybe-uninitialized -Wno-missing-field-initializers>
    # Sources taken together are no main file in its eyes, and classes of one file then seem shared.
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<BOOL:${VELK_UNITY}>>:-Wno-subobject-linkage>)

# With VELK_UNITY: names of one file's own may not be the same in two files of a folder.
function(velk_unity target)
  if(NOT VELK_UNITY)
    return()
  endif()
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
  foreach(file IN LISTS ARGN)
    get_filename_component(folder "${file}" ABSOLUTE)
    get_filename_component(folder "${folder}" DIRECTORY)
    file(RELATIVE_PATH group "${CMAKE_SOURCE_DIR}" "${folder}")
    string(MAKE_C_IDENTIFIER "${group}" group)
    set_source_files_properties("${file}" PROPERTIES UNITY_GROUP ${group})
  endforeach()
endfunction()

# velk_sources(VAR FOLDER... [EXCEPT FILE...]): all sources below the folders but those files.
function(velk_sources var)
  cmake_parse_arguments(ARG "" "" "EXCEPT" ${ARGN})
  set(files)
  foreach(dir IN LISTS ARG_UNPARSED_ARGUMENTS)
    file(GLOB_RECURSE found CONFIGURE_DEPENDS "${dir}/*.cpp" "${dir}/*.h" "${dir}/*.qrc")
    list(APPEND files ${found})
  endforeach()
  list(TRANSFORM ARG_EXCEPT PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
  list(REMOVE_ITEM files ${ARG_EXCEPT})
  set(${var} ${files} PARENT_SCOPE)
endfunction()

# velk_library(NAME [TYPE TYPE] [MACRO DEFINE] DEPENDS TARGET... [INCLUDE FOLDER] [SOURCES FOLDER...]
#              [EXCEPT FILE...] [APART]): a library of all sources below the folders SOURCES (default: the
# current folder). MACRO is the define under which its own headers export; with one it is shared,
# without static, if there is no TYPE. INCLUDE is the folder that its headers are named from
# (default: the top). APART keeps its sources from being compiled together.
function(velk_library name)
  cmake_parse_arguments(ARG "APART" "TYPE;MACRO;INCLUDE" "SOURCES;EXCEPT;DEPENDS" ${ARGN})
  if(NOT ARG_SOURCES)
    set(ARG_SOURCES "${CMAKE_CURRENT_SOURCE_DIR}")
  endif()
  if(NOT ARG_INCLUDE)
    set(ARG_INCLUDE "${CMAKE_SOURCE_DIR}")
  endif()
  velk_sources(files ${ARG_SOURCES} EXCEPT ${ARG_EXCEPT})
  if(NOT ARG_TYPE AND ARG_MACRO)
    set(ARG_TYPE SHARED)
  elseif(NOT ARG_TYPE)
    set(ARG_TYPE STATIC)
  endif()
  add_library(${name} ${ARG_TYPE} ${files})
  target_compile_definitions(${name} PRIVATE ${ARG_MACRO})
  velk_moc_headers(${name} ${files})
  target_include_directories(${name} PUBLIC "$<BUILD_INTERFACE:${ARG_INCLUDE}>")
  target_link_libraries(${name} PUBLIC ${ARG_DEPENDS})
  if(NOT ARG_APART)
    velk_unity(${name} ${files})
  endif()
  velk_defaults(${name})
endfunction()

# velk_moc_headers(TARGET FILE...): the moc step knows the headers of its last run only. If others came
# or went since, it runs again.
function(velk_moc_headers target)
  set(headers ${ARGN})
  list(FILTER headers INCLUDE REGEX "\\.h$")
  set(noted "${CMAKE_CURRENT_BINARY_DIR}/${target}_headers.txt")
  set(before "")
  if(EXISTS "${noted}")
    file(READ "${noted}" before)
  endif()
  if(NOT "${before}" STREQUAL "${headers}")
    file(REMOVE "${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/timestamp")
    file(WRITE "${noted}" "${headers}")
  endif()
endfunction()

# velk_program(NAME [SOURCES FILE...] DEPENDS TARGET...): a program of those files, or of all sources
# below the current folder.
function(velk_program name)
  cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
  if(NOT ARG_SOURCES)
    velk_sources(ARG_SOURCES "${CMAKE_CURRENT_SOURCE_DIR}")
  endif()
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_DEPENDS})
  velk_unity(${name} ${ARG_SOURCES})
  velk_defaults(${name})
endfunction()
