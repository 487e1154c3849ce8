# What `cmake --install` puts where, and the packages that CPack makes of it.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/Amortix2)
install(TARGETS amortix2_shared EXPORT Amortix2Targets
  LIBRARY COMPONENT library NAMELINK_COMPONENT development
  FILE_SET HEADERS COMPONENT development)
install(TARGETS amortix2_static EXPORT Amortix2Targets
  ARCHIVE COMPONENT development
  FILE_SET HEADERS COMPONENT development)
install(EXPORT Amortix2Targets NAMESPACE Amortix2:: DESTINATION ${package_dir} COMPONENT development)
configure_package_config_file(cmake/Amortix2Config.cmake.in ${CMAKE_CURRENT_BINARY_DIR}/Amortix2Config.cmake
  INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/Amortix2ConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/Amortix2Config.cmake ${CMAKE_CURRENT_BINARY_DIR}/Amortix2ConfigVersion.cmake
  DESTINATION ${package_dir} COMPONENT development)
file(RELATIVE_PATH AMORTIX2_PC_TO_PREFIX /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(cmake/amortix2.pc.in amortix2.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/amortix2.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)

if(TARGET amortix2)
  install(TARGETS amortix2 RUNTIME COMPONENT program)
  install(DIRECTORY docs/ DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/amortix2 COMPONENT program FILES_MATCHING PATTERN "*.md")
  install(FILES README.md CHANGELOG.md LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/amortix2 COMPONENT program)
  install(FILES packaging/amortix2.service DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/amortix2/examples COMPONENT program)
  file(ARCHIVE_CREATE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/amortix2.1.gz PATHS ${PROJECT_SOURCE_DIR}/packaging/amortix2.1
    FORMAT raw COMPRESSION GZip COMPRESSION_LEVEL 9)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/amortix2.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT program)
  set(completions ${PROJECT_SOURCE_DIR}/packaging/completions)
  install(FILES ${completions}/amortix2.bash RENAME amortix2 COMPONENT program
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
  install(FILES ${completions}/_amortix2 DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions COMPONENT program)
  install(FILES ${completions}/amortix2.fish COMPONENT program
    DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
endif()
