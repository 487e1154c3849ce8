# Debian packages of what is installed (`cpack -G DEB`), and the source archive (`cpack --config CPackSourceConfig.cmake`).
set(CPACK_PACKAGE_NAME amortix2)
set(CPACK_PACKAGE_VENDOR "The Amortix2 authors")
set(CPACK_PACKAGE_CONTACT "The Amortix2 authors <authors@amortix2.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_DESCRIPTION
  "Loans, leases, mortgages, refinancing, savings and retirement plans, right\n to the cent, and the charts to show them.")
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_COMPONENTS_ALL program library development)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_BINARY_DIR})
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME amortix2)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION misc)
set(CPACK_COMPONENT_PROGRAM_DESCRIPTION "${CPACK_PACKAGE_DESCRIPTION}\n This package holds the command line.")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME libamortix2-${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/triggers "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_BINARY_DIR}/triggers)
set(CPACK_COMPONENT_LIBRARY_DESCRIPTION "${CPACK_PACKAGE_DESCRIPTION}\n This package holds the shared library.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libamortix2-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "libamortix2-${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION})")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
  "${CPACK_PACKAGE_DESCRIPTION}\n This package holds headers and the static library.")

set(CPACK_SOURCE_GENERATOR TXZ)
set(CPACK_SOURCE_PACKAGE_FILE_NAME amortix2-${PROJECT_VERSION})
set(CPACK_SOURCE_IGNORE_FILES "/build/" "/\\.git/" "/node_modules/")
include(CPack)

# Each package tells its license and its changes, as Debian wants them.
file(CONFIGURE OUTPUT copyright @ONLY CONTENT
"Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/
Upstream-Name: @PROJECT_NAME@

Files: *
Copyright: 2026 The Amortix2 authors
License: Apache-2.0
 On Debian systems, the full text of the license stands in
 /usr/share/common-licenses/Apache-2.0.
")
string(TIMESTAMP date "%a, %d %b %Y 00:00:00 +0000" UTC)
file(CONFIGURE OUTPUT changelog @ONLY CONTENT
"amortix2 (@PROJECT_VERSION@) unstable; urgency=low

  * See CHANGELOG.md of the sources.

 -- @CPACK_PACKAGE_CONTACT@  @date@
")
file(ARCHIVE_CREATE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz PATHS ${CMAKE_CURRENT_BINARY_DIR}/changelog
  FORMAT raw COMPRESSION GZip COMPRESSION_LEVEL 9)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER ${component} upper)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/copyright ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME} COMPONENT ${component})
endforeach()
