# Debian packages, made by "cpack" in the build folder of a release: programs, libraries and what
# developers of plug-ins need. Prefix /usr, since dpkg owns it.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME velkworkbench)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_CONTACT "The developers of VelkLinkDbGui <velk@localhost>")
set(CPACK_PACKAGE_VENDOR "VelkLinkDbGui")
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL programs libraries development)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_COMPONENT_PROGRAMS_GROUP programs)
set(CPACK_COMPONENT_LIBRARIES_GROUP libraries)
set(CPACK_COMPONENT_DEVELOPMENT_GROUP development)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
# Libraries and what is built on them change together.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY "=")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(runtime "libqt6sql6-sqlite, libqt6svg6, subversion")
set(version "(= ${PROJECT_VERSION}-1)")

set(CPACK_DEBIAN_PROGRAMS_PACKAGE_NAME velkworkbench)
set(CPACK_DEBIAN_PROGRAMS_DESCRIPTION
"editor for assignments between two releases of a catalog
Carries the table lines of a catalog release over to the next release: the
editor velkworkbench for the modeller who decides, and velkmap for batch work.")
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_DEPENDS "libvelk0 ${version}, ${runtime}")
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_RECOMMENDS "libqt6sql6-psql, qt6-translations-l10n")

set(CPACK_DEBIAN_LIBRARIES_PACKAGE_NAME libvelk0)
set(CPACK_DEBIAN_LIBRARIES_PACKAGE_SECTION libs)
file(WRITE "${CMAKE_CURRENT_BINARY_DIR}/triggers" "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_LIBRARIES_PACKAGE_CONTROL_EXTRA "${CMAKE_CURRENT_BINARY_DIR}/triggers")
set(CPACK_DEBIAN_LIBRARIES_DESCRIPTION
"libraries of velkworkbench
Tables, expressions, mapping records, assignment of lines, table views and the
editor itself as a plug-in.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libvelk-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION
"libraries of velkworkbench, for developers
Headers and the CMake package for plug-ins and programs over the libraries of
velkworkbench.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "libvelk0 ${version}, qt6-base-dev, libboost-dev")

# What Debian expects of each package.
file(WRITE "${CMAKE_CURRENT_BINARY_DIR}/changelog" "velkworkbench (${PROJECT_VERSION}-1) unstable; urgency=medium

  * See CHANGELOG.md.

 -- ${CPACK_PACKAGE_CONTACT}  ${VELK_RELEASE_MAIL_DATE}
")
execute_process(COMMAND gzip -9nfk "${CMAKE_CURRENT_BINARY_DIR}/changelog")
foreach(package velkworkbench:programs libvelk0:libraries libvelk-dev:development)
  string(REPLACE ":" ";" package "${package}")
  list(GET package 0 name)
  list(GET package 1 component)
  install(FILES "${CMAKE_CURRENT_BINARY_DIR}/changelog.gz" RENAME changelog.Debian.gz
          DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${name}" COMPONENT ${component})
  install(FILES "${CMAKE_CURRENT_SOURCE_DIR}/copyright"
          DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${name}" COMPONENT ${component})
endforeach()
# Every file in a package has the time of the release, so that two builds give the same bytes.
configure_file("${CMAKE_CURRENT_SOURCE_DIR}/PackageTimes.cmake.in"
               "${CMAKE_CURRENT_BINARY_DIR}/PackageTimes.cmake" @ONLY)
set(CPACK_PROJECT_CONFIG_FILE "${CMAKE_CURRENT_BINARY_DIR}/PackageTimes.cmake")
include(CPack)
