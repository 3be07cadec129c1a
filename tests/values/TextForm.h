#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "vexa/support/values/ValueTraits.h"

namespace VEXA::Testing {

/// A text of a document and how the value read from it is written; `kRefused` when it is none.
struct TextCase {
    std::string_view text;
    std::string_view written;
    const char* why;
};

inline constexpr std::string_view kRefused = "(refused)";

template <class T>
std::string rewritten(std::string_view text) {
    T value{};
    return ValueTraits<T>::parse(text, value) ? ValueTraits<T>::print(value) : std::string(kRefused);
}

/// A value of the type in its text form.
template <class T>
T parsed(std::string_view text) {
    T value{};
    EXPECT_TRUE(ValueTraits<T>::parse(text, value)) << text;
    return value;
}

/// Checks every case, and that what is written is read as an equal value.
template <class T, std::size_t N>
void checkTexts(const TextCase (&cases)[N]) {
    for (const TextCase& c : cases) {
        SCOPED_TRACE("\"" + std::string(c.text) + "\": " + c.why);
        EXPECT_EQ(rewritten<T>(c.text), c.written);
        if (T value{}; ValueTraits<T>::parse(c.text, value)) {
            EXPECT_TRUE(equalValues(parsed<T>(ValueTraits<T>::print(value)), value));
        }
    }
}

/// Texts that only a text takes.
inline constexpr std::string_view kNastyTexts[] = {
    "nan",  "inf",   "-inf",     "1e999", "0x10", "1;5",   "1 5 x", "--1",
    "+-1",  "1e",    "e5",       "e",     ".",    "-",     "+",     "1. 2.3.4.",
    "1 px", "12em",  "px",       "%",     "5%%",  "\xC3",  "(",     "rgb(",
    "url(", "url()", "url('#a)", "#",     "#12",  "1_000", "\"1\"", "\xEF\xBC\x91" /* full-width 1 */,
};
/// Texts without anything in them, which only lists, values and texts take.
inline constexpr std::string_view kBlankTexts[] = {"", " ", "\t\r\n"};

}  // namespace VEXA::Testing
