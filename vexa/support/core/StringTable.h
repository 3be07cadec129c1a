#pragma once

#include <string_view>

#include "vexa/support/core/Exception.h"

namespace VEXA {

/// The template of a numbered message with fields {0}, {1}, …; empty for an unknown number.
std::string_view findMessage(int number) noexcept;

/// A numbered message with its arguments filled in. An unknown number gives a text that tells the number.
String messageText(int number, const VariantArray& arguments);

}  // namespace VEXA
