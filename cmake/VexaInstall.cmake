# Install rules: the archive, its headers, the program, and a package for find_package(vexa).

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

install(TARGETS vexa EXPORT vexa-targets ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY "${PROJECT_SOURCE_DIR}/vexa" DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h")
if(VEXA_CLI)
    install(TARGETS vexa_cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/vexa)
install(EXPORT vexa-targets NAMESPACE vexa:: DESTINATION ${package_dir})
configure_package_config_file("${CMAKE_CURRENT_LIST_DIR}/vexa-config.cmake.in" "${PROJECT_BINARY_DIR}/vexa-config.cmake"
                              INSTALL_DESTINATION ${package_dir})
# Until 1.0 a minor version may change the interface.
write_basic_package_version_file("${PROJECT_BINARY_DIR}/vexa-config-version.cmake" COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/vexa-config.cmake" "${PROJECT_BINARY_DIR}/vexa-config-version.cmake"
        DESTINATION ${package_dir})
