# Test programs.

# Qt's test library without the two defines that name the folder of each test: they are for test data
# beside the program, which no test here has, and would make every folder's precompiled header another.
add_library(VelkQtTest INTERFACE)
target_include_directories(VelkQtTest SYSTEM INTERFACE
                           $<TARGET_PROPERTY:Qt6::Test,INTERFACE_INCLUDE_DIRECTORIES>)
target_compile_definitions(VelkQtTest INTERFACE QT_TESTLIB_LIB)
target_link_libraries(VelkQtTest INTERFACE Qt6::Core $<LINK_ONLY:Qt6::Test>)
# TestPaths.h: a define would make every test another text for the compiler cache.
configure_file("${CMAKE_SOURCE_DIR}/cmake/TestPaths.h.in" "${CMAKE_BINARY_DIR}/tests/paths/TestPaths.h" @ONLY)
target_include_directories(VelkQtTest INTERFACE "${CMAKE_BINARY_DIR}/tests/paths")

# velk_tests(LABEL DEPENDS TARGET...): one test program for each tst_*.cpp of the current folder. Files
# named other than tst_*.cpp are helpers: a static library that all of them link.
function(velk_tests label)
  cmake_parse_arguments(ARG "" "" "DEPENDS" ${ARGN})
  file(GLOB tests CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/tst_*.cpp")
  file(GLOB helpers CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp"
       "${CMAKE_CURRENT_SOURCE_DIR}/*.h")
  list(FILTER helpers EXCLUDE REGEX "/tst_[^/]*$")
  set(depends VelkQtTest ${ARG_DEPENDS})
  if(helpers)
    add_library(test_helpers_${label} STATIC ${helpers})
    target_link_libraries(test_helpers_${label} PRIVATE ${depends})
    velk_defaults(test_helpers_${label})
    list(PREPEND depends test_helpers_${label})
  endif()
  foreach(file IN LISTS tests)
    get_filename_component(name "${file}" NAME_WE)
    velk_test(${name} ${label} "${file}" "${depends}")
  endforeach()
endfunction()

# One test program of one file; for internal use. The file includes its own moc output, so one run of
# moc over it does what a step of automoc for each program would, at a tenth of the price.
function(velk_test name label file depends)
  set(moc "${CMAKE_CURRENT_BINARY_DIR}/moc/${name}.moc")
  add_custom_command(OUTPUT "${moc}"
    COMMAND Qt6::moc "-I${CMAKE_SOURCE_DIR}/platform" "-I${CMAKE_SOURCE_DIR}" "${file}" -o "${moc}"
            --output-dep-file --dep-file-path "${moc}.d" --dep-file-rule-name "${moc}"
    DEPENDS "${file}" DEPFILE "${moc}.d" COMMENT "" VERBATIM)
  add_executable(${name} "${file}" "${moc}")
  set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTORCC OFF)
  target_include_directories(${name} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/moc")
  target_link_libraries(${name} PRIVATE ${depends})
  # Some tests are only for what a library does when it is loaded.
  target_link_options(${name} PRIVATE LINKER:--no-as-needed)
  velk_defaults(${name})
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES LABELS ${label}
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_FORCE_STDERR_LOGGING=1")
  if(name IN_LIST VELK_THREAD_TESTS)
    set_property(TEST ${name} APPEND PROPERTY LABELS threads)
    add_dependencies(thread_tests ${name})
  endif()
endfunction()
