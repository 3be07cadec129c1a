#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace VEXA::Fuzz {

/// A chart document as a row of steps of a few bytes each, such that any bytes whatsoever are a well-formed document of
/// registered elements, and a step taken out or put in leaves the others what they are:
///
///   open       an element that the open one takes, now and then any other
///   attribute  of the element just opened, with a value of its type: a sample, a number with a unit, or any text
///   close      the open element; the last one stays open until the end
///
/// The first byte of a step tells which it is, the second the element or attribute, by its number in the record of the
/// class; then comes the value.
using Bytes = std::span<const std::uint8_t>;

enum class StepKind : std::uint8_t { Close, Open, Attribute };

struct Step {
    StepKind kind;
    std::size_t begin;  ///< in the bytes
    std::size_t end;
};

/// The first byte of a value: below these a sample of the type, a number in so many bytes, or, above, a text whose
/// length is the next byte.
inline constexpr std::uint8_t kFirstNumber = 0x60;
inline constexpr std::uint8_t kFirstText = 0xC0;
inline constexpr std::size_t kNumberBytes = 3;

std::vector<Step> stepsOf(Bytes bytes);
/// The number of the step behind the one that closes what step `open` opens; that of the last one and one more when
/// it stays open.
std::size_t endOfElement(std::span<const Step> steps, std::size_t open);

/// The XML that the steps stand for.
std::string documentOf(Bytes bytes);

/// Steps that stand for a document; what no class knows, and what is longer than a step, is left out or cut.
/// REQUIRES: well-formed XML.
std::vector<std::uint8_t> stepsOfDocument(std::string_view document);

}  // namespace VEXA::Fuzz
