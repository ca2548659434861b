# Where things go when they are installed. Everything is found from the program's or library's own
# place, so that an installed tree may be moved.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(VELK_INCLUDEDIR "${CMAKE_INSTALL_INCLUDEDIR}/velk")
set(VELK_CMAKEDIR "${CMAKE_INSTALL_LIBDIR}/cmake/Velk")
set(VELK_DOCDIR "${CMAKE_INSTALL_DATADIR}/doc/velkworkbench")
set(VELK_EXAMPLESDIR "${CMAKE_INSTALL_DATADIR}/velkworkbench/examples")

# Whatever the umask of whoever builds.
set(VELK_FOLDER_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
    WORLD_READ WORLD_EXECUTE)
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${VELK_FOLDER_PERMISSIONS})
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${VELK_FOLDER_PERMISSIONS})

# Libraries that programs load while they run.
set(VELK_MODULEDIR "${CMAKE_INSTALL_LIBDIR}/velkworkbench")
# VELK_LIBRARY_FOLDER, VELK_MODULE_FOLDER: from the programs' folder to those of the libraries.
cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_LIBDIR BASE_DIRECTORY "${CMAKE_INSTALL_FULL_BINDIR}"
           OUTPUT_VARIABLE VELK_LIBRARY_FOLDER)
set(VELK_MODULE_FOLDER "${VELK_LIBRARY_FOLDER}/velkworkbench")

# velk_install_library(TARGET [EXPORT NAME HEADERS FOLDER]): installs what programs load; with EXPORT for others too,
# as Velk::NAME with the headers below FOLDER. The folder's own name stands in front of them.
function(velk_install_library target)
  cmake_parse_arguments(ARG "" "EXPORT;HEADERS" "" ${ARGN})
  get_target_property(type ${target} TYPE)
  if(NOT ARG_EXPORT)
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN;$ORIGIN/..")
    install(TARGETS ${target} LIBRARY DESTINATION "${VELK_MODULEDIR}" COMPONENT libraries)
    return()
  endif()
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${ARG_EXPORT} VERSION ${PROJECT_VERSION}
                        SOVERSION ${PROJECT_VERSION_MAJOR} INSTALL_RPATH "$ORIGIN")
  add_library(Velk::${ARG_EXPORT} ALIAS ${target})
  install(TARGETS ${target} EXPORT VelkTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT libraries
            NAMELINK_COMPONENT development
    INCLUDES DESTINATION "${VELK_INCLUDEDIR}")
  install(DIRECTORY "${ARG_HEADERS}" DESTINATION "${VELK_INCLUDEDIR}" COMPONENT development
          FILES_MATCHING PATTERN "*.h")
endfunction()

# velk_install_program(TARGET)
function(velk_install_program target)
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/${VELK_LIBRARY_FOLDER}")
  install(TARGETS ${target} RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT programs)
endfunction()

# velk_install_package(): what find_package(Velk) reads.
function(velk_install_package)
  install(EXPORT VelkTargets NAMESPACE Velk:: DESTINATION "${VELK_CMAKEDIR}" COMPONENT development)
  configure_package_config_file("${CMAKE_SOURCE_DIR}/cmake/VelkConfig.cmake.in"
    "${CMAKE_BINARY_DIR}/VelkConfig.cmake" INSTALL_DESTINATION "${VELK_CMAKEDIR}")
  write_basic_package_version_file("${CMAKE_BINARY_DIR}/VelkConfigVersion.cmake"
    COMPATIBILITY SameMinorVersion)
  install(FILES "${CMAKE_BINARY_DIR}/VelkConfig.cmake" "${CMAKE_BINARY_DIR}/VelkConfigVersion.cmake"
          DESTINATION "${VELK_CMAKEDIR}" COMPONENT development)
endfunction()
