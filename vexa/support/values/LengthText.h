#pragma once

#include <string>
#include <string_view>

#include "vexa/support/values/Length.h"
#include "vexa/support/values/TextScanner.h"

/// The text form of lengths and percentages, as entries of longer texts too.
namespace VEXA {

inline constexpr std::string_view kLengthExpectation = "a length (write a number with px, pt, pc, mm, cm or in)";
inline constexpr std::string_view kLengthOrPercentExpectation =
    "a length or a percentage (write a number with px, pt, pc, mm, cm, in or %)";

/// A length at the front: a number and, right behind it, its unit; a number alone is in px.
bool readLength(TextScanner& scanner, Length& out) noexcept;
/// The fraction of a percentage at the front: 0.125 for `12.5%`.
bool readPercent(TextScanner& scanner, float& out) noexcept;
bool readLengthOrPercent(TextScanner& scanner, LengthOrPercent& out) noexcept;

void appendLength(const Length& length, std::string& out);
/// The fewest digits that are read as the same fraction.
void appendPercent(float fraction, std::string& out);
void appendLengthOrPercent(const LengthOrPercent& value, std::string& out);

}  // namespace VEXA
