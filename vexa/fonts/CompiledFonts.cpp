#include "vexa/fonts/CompiledFonts.h"

// The assembler copies the files into read-only data; a C++ array of 1.6 MB would take the compiler half a minute. Each
// file has a section of its own. Hidden symbols are reached relative to the code, in shared libraries as well.
#define VEXA_INCLUDE_FONT(symbol, style)                            \
    asm(".pushsection .rodata." #symbol                             \
        ",\"a\",%progbits\n"                                        \
        ".balign 16\n"                                              \
        ".globl " #symbol "\n.hidden " #symbol "\n" #symbol         \
        ":\n"                                                       \
        ".incbin \"" VEXA_DEFAULT_FONT_DIR "/LiberationSans-" style \
        ".ttf\"\n"                                                  \
        ".globl " #symbol "_end\n.hidden " #symbol "_end\n" #symbol \
        "_end:\n"                                                   \
        ".byte 0\n"                                                 \
        ".popsection\n");                                           \
    extern "C" __attribute__((visibility("hidden"))) const std::byte symbol[], symbol##_end[]

VEXA_INCLUDE_FONT(vexa_font_regular, "Regular");
VEXA_INCLUDE_FONT(vexa_font_bold, "Bold");
VEXA_INCLUDE_FONT(vexa_font_italic, "Italic");
VEXA_INCLUDE_FONT(vexa_font_bold_italic, "BoldItalic");

namespace VEXA {

std::span<const std::byte> compiledFont(bool bold, bool italic) noexcept {
    if (bold) {
        return italic ? std::span(vexa_font_bold_italic, vexa_font_bold_italic_end)
                      : std::span(vexa_font_bold, vexa_font_bold_end);
    }
    return italic ? std::span(vexa_font_italic, vexa_font_italic_end)
                  : std::span(vexa_font_regular, vexa_font_regular_end);
}

}  // namespace VEXA
