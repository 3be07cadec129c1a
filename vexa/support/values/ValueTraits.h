#pragma once

#include <string>
#include <string_view>

#include "vexa/support/core/SmartPtr.h"
#include "vexa/support/core/String.h"
#include "vexa/support/core/Vector.h"
#include "vexa/support/drawing/Color.h"

namespace VEXA {

/// Text form of a value type. Each type has:
///   static bool parse(std::string_view text, T& out)   the whole text, white space at both ends allowed; false when it
///   is none static std::string print(const T& value)           text that parses to an equal value static
///   std::string_view expectation()              for messages, "a length (write a number with px, pt, …)" static
///   std::string_view name()                     the type's name, "Length"
template <class T>
struct ValueTraits;

#define VEXA_VALUE_TRAITS(T)                              \
    template <>                                           \
    struct ValueTraits<T> {                               \
        static bool parse(std::string_view text, T& out); \
        static std::string print(const T& value);         \
        static std::string_view expectation() noexcept;   \
        static std::string_view name() noexcept;          \
    }

VEXA_VALUE_TRAITS(bool);
VEXA_VALUE_TRAITS(float);
VEXA_VALUE_TRAITS(String);
VEXA_VALUE_TRAITS(SmartPtr<Color>);

/// Whether two attribute values are the same value; colours are compared by what they show, not by their object.
template <class T>
bool equalValues(const T& a, const T& b) noexcept {
    return a == b;
}
inline bool equalValues(const SmartPtr<Color>& a, const SmartPtr<Color>& b) noexcept {
    return a.get() == b.get() || (a && b && a->rgb() == b->rgb());
}

}  // namespace VEXA
