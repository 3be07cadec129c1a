#include "vexa/surfaces/JsonText.h"

#include "vexa/support/core/String.h"

namespace VEXA {

namespace {

void appendControl(char32_t character, std::string& out) {
    static constexpr char kDigits[] = "0123456789abcdef";
    switch (character) {
        case U'\n':
            out += "\\n";
            return;
        case U'\t':
            out += "\\t";
            return;
        case U'\r':
            out += "\\r";
            return;
        default:
            out += "\\u00";
            out.push_back(kDigits[character >> 4U]);
            out.push_back(kDigits[character & 15U]);
    }
}

}  // namespace

void appendJsonString(std::u32string_view text, std::string& out) {
    out.push_back('"');
    for (const char32_t character : text) {
        if (character < 0x20 || (character >= 0x7F && character < 0xA0)) {
            appendControl(character, out);
        } else if (character == U'"' || character == U'\\') {
            out.push_back('\\');
            out.push_back(static_cast<char>(character));
        } else if (character < 0x80) {
            out.push_back(static_cast<char>(character));
        } else {
            appendUtf8(character, out);
        }
    }
    out.push_back('"');
}

}  // namespace VEXA
