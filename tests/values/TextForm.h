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

}  // namespace VEXA::Testing
