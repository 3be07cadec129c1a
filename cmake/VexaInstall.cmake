# Install rules: the archives, their headers, the program, and a package for find_package(vexa), with the component
# `cairo` where that is built.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(headers ${CMAKE_INSTALL_INCLUDEDIR}/vexa)
install(TARGETS vexa EXPORT vexa-targets ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY "${PROJECT_SOURCE_DIR}/vexa/" DESTINATION ${headers} FILES_MATCHING PATTERN "*.h"
        PATTERN "fonts" EXCLUDE PATTERN "cairo" EXCLUDE)
# Of these folders only what is for users: the others tell of libraries that a user need not have headers of.
if(VEXA_FONTS)
    foreach(header FontFace FontReport ShapedText SystemFontService)
        install(FILES "${PROJECT_SOURCE_DIR}/vexa/fonts/${header}.h" DESTINATION ${headers}/fonts)
    endforeach()
endif()
if(VEXA_CAIRO)
    install(TARGETS vexa_cairo_archive EXPORT vexa-targets ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
    install(FILES "${PROJECT_SOURCE_DIR}/vexa/surfaces/cairo/CairoSurface.h" DESTINATION ${headers}/surfaces/cairo)
endif()
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
