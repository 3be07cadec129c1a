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
    # The program writes its manual page and completions itself.
    set(shell "${PROJECT_BINARY_DIR}/shell")
    add_custom_command(OUTPUT "${shell}/vexa.1" "${shell}/vexa" "${shell}/_vexa" "${shell}/vexa.fish"
                       COMMAND "${CMAKE_COMMAND}" -E make_directory "${shell}"
                       COMMAND vexa_cli man > "${shell}/vexa.1"
                       COMMAND vexa_cli completion bash > "${shell}/vexa"
                       COMMAND vexa_cli completion zsh > "${shell}/_vexa"
                       COMMAND vexa_cli completion fish > "${shell}/vexa.fish"
                       DEPENDS vexa_cli VERBATIM)
    add_custom_target(vexa_shell ALL DEPENDS "${shell}/vexa.1")
    install(FILES "${shell}/vexa.1" DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
    install(FILES "${shell}/vexa" DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
    install(FILES "${shell}/_vexa" DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions)
    install(FILES "${shell}/vexa.fish" DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
endif()

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/vexa)
install(EXPORT vexa-targets NAMESPACE vexa:: DESTINATION ${package_dir})
configure_package_config_file("${CMAKE_CURRENT_LIST_DIR}/vexa-config.cmake.in" "${PROJECT_BINARY_DIR}/vexa-config.cmake"
                              INSTALL_DESTINATION ${package_dir})
# Until 1.0 a minor version may change the interface.
write_basic_package_version_file("${PROJECT_BINARY_DIR}/vexa-config-version.cmake" COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/vexa-config.cmake" "${PROJECT_BINARY_DIR}/vexa-config-version.cmake"
        DESTINATION ${package_dir})
