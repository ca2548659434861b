# What every target of this project shares: language level, warnings, visibility, moc and rcc,
# precompiled headers, compiler cache, fast linker, sanitizers, test labels.

option(VELK_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" OFF)
option(VELK_PCH "Use one precompiled header per library" OFF)
set(VELK_SANITIZE "" CACHE STRING "Comma separated list of sanitizers")

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "" FORCE)
endif()

find_program(VELK_CCACHE ccache)
if(VELK_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env
      "CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime"
      "CCACHE_NOHASHDIR=1" "CCACHE_BASEDIR=${CMAKE_SOURCE_DIR}" "${VELK_CCACHE}")
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    add_compile_options("SHELL:-Xclang -fno-pch-timestamp")
  else()
    add_compile_options(-fpch-preprocess)
  endif()
endif()
find_program(VELK_MOLD mold)
if(VELK_MOLD)
  add_link_options(-fuse-ld=mold)
endif()
if(VELK_SANITIZE)
  add_compile_options(-fsanitize=${VELK_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all
                      -O1)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    add_compile_options(-fsanitize-ignorelist=${CMAKE_SOURCE_DIR}/cmake/sanitizers.ignore)
  endif()
  add_link_options(-fsanitize=${VELK_SANITIZE})
endif()

# What all targets have in common; for internal use.
function(velk_defaults target)
  target_compile_definitions(${target} PRIVATE QT_NO_KEYWORDS QT_NO_FOREACH
                             BOOST_BIND_GLOBAL_PLACEHOLDERS)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wshadow -Wnon-virtual-dtor
                         $<$<BOOL:${VELK_WARNINGS_AS_ERRORS}>:-Werror>
                         # g++ 12 reports these wrongly in optimised builds: for "text" +
                         # std::string (GCC bug 105651), variants and designated initialisers;
                         # clang checks the same in the dev build.
                         $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict -Wno-stringop-overflow
                         -Wno-array-bounds -Wno-maybe-uninitialized
                         -Wno-missing-field-initializers>)
  if(VELK_PCH)
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()

# velk_library(NAME MACRO DEPENDS... ) : a shared library of all sources below the folders in SOURCES
# (default: the current folder), or a library of that TYPE. MACRO is the define under which its own
# headers export.
function(velk_library name)
  cmake_parse_arguments(ARG "" "MACRO;PCH;INCLUDE;TYPE" "SOURCES;DEPENDS" ${ARGN})
  if(NOT ARG_TYPE)
    set(ARG_TYPE SHARED)
  endif()
  if(NOT ARG_SOURCES)
    set(ARG_SOURCES "${CMAKE_CURRENT_SOURCE_DIR}")
  endif()
  set(files)
  foreach(dir IN LISTS ARG_SOURCES)
    file(GLOB_RECURSE found CONFIGURE_DEPENDS "${dir}/*.cpp" "${dir}/*.h" "${dir}/*.qrc")
    list(APPEND files ${found})
  endforeach()
  list(FILTER files EXCLUDE REGEX "/pch\\.h$")
  add_library(${name} ${ARG_TYPE} ${files})
  # Makes the moc step notice headers that were added since it last ran.
  set(headers ${files})
  list(FILTER headers INCLUDE REGEX "\\.h$")
  set_property(TARGET ${name} PROPERTY AUTOGEN_TARGET_DEPENDS ${headers})
  target_include_directories(${name} PUBLIC "${ARG_INCLUDE}")
  target_include_directories(${name} SYSTEM PRIVATE ${RAPIDJSON_INCLUDE_DIR})
  target_compile_definitions(${name} PRIVATE ${ARG_MACRO})
  target_link_libraries(${name} PUBLIC ${ARG_DEPENDS})
  # A library with GNU-unique symbols stays loaded, and so does every library that it is bound to:
  # the plug-in could then never be unloaded.
  target_compile_options(${name} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>)
  velk_defaults(${name} ${ARG_PCH})
endfunction()

# velk_program(NAME DEPENDS ...) : a program of all sources below the current folder.
function(velk_program name)
  cmake_parse_arguments(ARG "" "PCH" "SOURCES;DEPENDS" ${ARGN})
  if(NOT ARG_SOURCES)
    file(GLOB_RECURSE ARG_SOURCES CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp"
         "${CMAKE_CURRENT_SOURCE_DIR}/*.h" "${CMAKE_CURRENT_SOURCE_DIR}/*.qrc")
    list(FILTER ARG_SOURCES EXCLUDE REGEX "/pch\\.h$")
  endif()
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_DEPENDS})
  target_include_directories(${name} SYSTEM PRIVATE ${RAPIDJSON_INCLUDE_DIR})
  velk_defaults(${name} ${ARG_PCH})
endfunction()

# velk_tests(LABEL DEPENDS ...) : one test program for each tst_*.cpp of the current folder. Files
# named other than tst_*.cpp are helpers: a static library that all of them link.
function(velk_tests label)
  cmake_parse_arguments(ARG "" "" "DEPENDS" ${ARGN})
  file(GLOB tests CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/tst_*.cpp")
  file(GLOB helpers CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp"
       "${CMAKE_CURRENT_SOURCE_DIR}/*.h")
  list(FILTER helpers EXCLUDE REGEX "/tst_[^/]*$")
  if(NOT tests)
    return()
  endif()
  set(pch ${CMAKE_SOURCE_DIR}/tests/pch.h)
  set(pch_target test_pch_${label})
  if(VELK_PCH)
    file(WRITE "${CMAKE_CURRENT_BINARY_DIR}/pch_${label}.cpp" "")
    add_library(${pch_target} OBJECT "${CMAKE_CURRENT_BINARY_DIR}/pch_${label}.cpp")
    target_link_libraries(${pch_target} PRIVATE Qt6::Test ${ARG_DEPENDS})
    target_include_directories(${pch_target} SYSTEM PRIVATE ${RAPIDJSON_INCLUDE_DIR})
    velk_defaults(${pch_target} ${pch})
  endif()
  set(helper_target)
  if(helpers)
    set(helper_target test_helpers_${label})
    add_library(${helper_target} STATIC ${helpers})
    target_link_libraries(${helper_target} PRIVATE Qt6::Test ${ARG_DEPENDS})
    target_include_directories(${helper_target} SYSTEM PRIVATE ${RAPIDJSON_INCLUDE_DIR})
    target_include_directories(${helper_target} PRIVATE "${CMAKE_BINARY_DIR}/tests/paths")
    velk_defaults(${helper_target})
    if(VELK_PCH)
      target_precompile_headers(${helper_target} REUSE_FROM ${pch_target})
    endif()
  endif()
  foreach(file IN LISTS tests)
    get_filename_component(name "${file}" NAME_WE)
    add_executable(${name} "${file}")
    target_link_libraries(${name} PRIVATE ${helper_target} Qt6::Test ${ARG_DEPENDS})
    # Some tests are only for what a library does when it is loaded.
    target_link_options(${name} PRIVATE LINKER:--no-as-needed)
    target_include_directories(${name} SYSTEM PRIVATE ${RAPIDJSON_INCLUDE_DIR})
    # TestPaths.h: a define would make every test another text for the compiler cache.
    target_include_directories(${name} PRIVATE "${CMAKE_BINARY_DIR}/tests/paths")
    velk_defaults(${name})
    if(VELK_PCH)
      target_precompile_headers(${name} REUSE_FROM ${pch_target})
    endif()
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES LABELS ${label}
      ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_FORCE_STDERR_LOGGING=1")
    if(name IN_LIST VELK_THREAD_TESTS)
      set_property(TEST ${name} APPEND PROPERTY LABELS threads)
      add_dependencies(thread_tests ${name})
    endif()
  endforeach()
endfunction()
