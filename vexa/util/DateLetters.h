#pragma once

#include <cstddef>
#include <string>

#include "vexa/util/DateFields.h"

namespace VEXA {

/// Whether the letter means something in a date pattern.
bool isDateLetter(char32_t letter) noexcept;

/// Writes what `count` of a letter in a row stand for behind what `out` has. Nothing for a letter without a meaning,
/// and for a field that the date lacks.
void appendDateLetters(char32_t letter, std::size_t count, const DateFields& date, std::u32string& out);

}  // namespace VEXA
