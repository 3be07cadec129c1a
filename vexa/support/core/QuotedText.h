#pragma once

#include "vexa/support/core/String.h"

namespace VEXA {

/// Text of a document as a message may show it, without quotation marks: at most Limits::kQuotedCharacters characters
/// of it (an ellipsis stands for the rest), invisible characters as escapes like `\n` and `\u202e`.
String quoteForMessage(const String& text);

/// The same without the cut, for texts that must be told in full, such as file names.
String escapeForMessage(const String& text);

}  // namespace VEXA
