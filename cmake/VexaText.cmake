# Text and pixels: what VEXA_FONTS and VEXA_CAIRO switch.
#
# Only headers of these libraries are needed here. The libraries themselves are loaded when a picture first needs them
# (vexa/support/core/DynamicLibrary.h), so that drawing Latin text as SVG starts without them.

if(VEXA_CAIRO AND NOT VEXA_FONTS)
    message(FATAL_ERROR "VEXA_CAIRO draws the glyphs that VEXA_FONTS measures: switch both on, or VEXA_CAIRO off")
endif()

if(VEXA_FONTS)
    find_package(PkgConfig REQUIRED)
    pkg_check_modules(VEXA_TEXT REQUIRED harfbuzz fribidi fontconfig)
    find_path(VEXA_DEFAULT_FONT_DIR LiberationSans-Regular.ttf
              PATHS /usr/share/fonts/truetype/liberation2 /usr/share/fonts/truetype/liberation
                    /usr/share/fonts/liberation-sans /usr/share/fonts/liberation /usr/share/fonts/TTF
              NO_DEFAULT_PATH DOC "Directory of the fonts to compile in: LiberationSans-{Regular,Bold,Italic,BoldItalic}.ttf")
    if(NOT VEXA_DEFAULT_FONT_DIR)
        message(FATAL_ERROR "Liberation Sans is missing: install fonts-liberation2, or set VEXA_DEFAULT_FONT_DIR")
    endif()
endif()
if(VEXA_CAIRO)
    pkg_check_modules(VEXA_PIXELS REQUIRED cairo cairo-pdf cairo-ft freetype2 libpng)
endif()

# The layer that settles the default font service.
function(vexa_fonts_layer)
    if(NOT VEXA_FONTS)
        vexa_layer(fonts SOURCES vexa/fonts/none USES core drawing)
        return()
    endif()
    vexa_layer(fonts SOURCES vexa/fonts USES core drawing LINKS ${CMAKE_DL_LIBS})
    target_include_directories(vexa_fonts SYSTEM PRIVATE ${VEXA_TEXT_INCLUDE_DIRS})
    set(files "")
    foreach(style Regular Bold Italic BoldItalic)
        list(APPEND files "${VEXA_DEFAULT_FONT_DIR}/LiberationSans-${style}.ttf")
    endforeach()
    set_source_files_properties("${PROJECT_SOURCE_DIR}/vexa/fonts/CompiledFonts.cpp" PROPERTIES
        COMPILE_DEFINITIONS "VEXA_DEFAULT_FONT_DIR=\"${VEXA_DEFAULT_FONT_DIR}\"" OBJECT_DEPENDS "${files}")
endfunction()

# vexa_cairo: a library of its own, so that who writes no pixels links none of it.
function(vexa_cairo_library)
    if(NOT VEXA_CAIRO)
        return()
    endif()
    vexa_layer(cairo SOURCES vexa/surfaces/cairo USES core drawing fonts surfaces APART)
    target_include_directories(vexa_cairo SYSTEM PRIVATE ${VEXA_PIXELS_INCLUDE_DIRS})
    add_library(vexa_cairo_archive STATIC $<TARGET_OBJECTS:vexa_cairo>)
    add_library(vexa::cairo ALIAS vexa_cairo_archive)
    set_target_properties(vexa_cairo_archive PROPERTIES OUTPUT_NAME vexa-cairo EXPORT_NAME cairo)
    target_link_libraries(vexa_cairo_archive PUBLIC vexa)
endfunction()
