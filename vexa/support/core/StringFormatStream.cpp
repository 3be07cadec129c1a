#include "vexa/support/core/StringFormatStream.h"

#include "vexa/support/core/Format.h"

namespace VEXA {

namespace {

void append(const Variant& argument, std::u32string& out) {
    const auto appendAscii = [&out](const std::string& text) { out.append(text.begin(), text.end()); };
    if (const auto* text = std::get_if<String>(&argument)) {
        out.append(text->view());
    } else if (const auto* integer = std::get_if<std::int64_t>(&argument)) {
        appendAscii(std::to_string(*integer));
    } else {
        appendAscii(Format::number(std::get<double>(argument)));
    }
}

struct Field {
    std::size_t argument = 0;
    std::size_t length = 0;  ///< in characters, both braces included; 0 when there is none
};

bool isDigit(char32_t c) noexcept { return c >= U'0' && c <= U'9'; }

/// The field at the start of `text`. REQUIRES: text starts with a brace.
Field readField(std::u32string_view text) noexcept {
    constexpr std::size_t kMaxDigits = 4;  // far more arguments than any message has
    Field result;
    std::size_t at = 1;
    for (; at < text.size() && at <= kMaxDigits && isDigit(text[at]); ++at) {
        result.argument = result.argument * 10 + (text[at] - U'0');
    }
    const bool closed = at > 1 && at < text.size() && text[at] == U'}';
    result.length = closed ? at + 1 : 0;
    return result;
}

}  // namespace

String StringFormatStream::format(const String& messageTemplate, const VariantArray& arguments) {
    std::u32string result;
    std::u32string_view rest = messageTemplate.view();
    for (std::size_t brace = rest.find(U'{'); brace != rest.npos; brace = rest.find(U'{')) {
        const Field field = readField(rest.substr(brace));
        const bool filled = field.length != 0 && field.argument < arguments.size();
        result.append(rest.substr(0, filled ? brace : brace + 1));
        if (filled) append(arguments[field.argument], result);
        rest.remove_prefix(brace + (filled ? field.length : 1));
    }
    return String(result.append(rest));
}

}  // namespace VEXA
