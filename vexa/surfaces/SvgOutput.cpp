#include "vexa/surfaces/SvgOutput.h"

#include <algorithm>
#include <cmath>

#include "vexa/support/core/Format.h"
#include "vexa/support/core/Limits.h"
#include "vexa/surfaces/Keywords.h"
#include "vexa/surfaces/XmlText.h"

namespace VEXA {

namespace {

void appendPrecise(float value, std::string& out) {
    Format::appendShortest(std::clamp(value, -Limits::kCoordinate, Limits::kCoordinate), out);
}

bool isTranslation(const Matrix& matrix) noexcept {
    const auto& m = matrix.getElements();
    return matrix.isScaleAndTranslate() && m[0] == 1 && m[3] == 1;
}

}  // namespace

void SvgOutput::number(std::string_view start, float value, NumberWriter numbers) {
    text_ += start;
    numbers(value, text_);
    text_.push_back('"');
}

void SvgOutput::word(std::string_view start, std::string_view value) {
    text_ += start;
    text_ += value;
    text_.push_back('"');
}

void SvgOutput::color(std::string_view start, std::uint32_t rgb) {
    text_ += start;
    Color::appendHex(rgb, text_);
    text_.push_back('"');
}

void SvgOutput::quoted(std::string_view start, std::u32string_view value) {
    text_ += start;
    appendXmlText(value, text_);
    text_.push_back('"');
}

void SvgOutput::path(std::string_view start, const Path& path, NumberWriter numbers) {
    text_ += start;
    appendPathData(path, numbers, text_);
    text_.push_back('"');
}

void SvgOutput::transform(std::string_view start, const Matrix& matrix, NumberWriter numbers) {
    text_ += start;
    const bool translates = isTranslation(matrix);
    text_ += translates ? "translate(" : "matrix(";
    for (std::size_t i = translates ? 4 : 0; i < 6; ++i) {
        (i < 4 ? Format::appendShortest : numbers)(matrix.getElements()[i], text_);
        text_.push_back(i < 5 ? ' ' : ')');
    }
    text_.push_back('"');
}

void SvgOutput::id(std::string_view start, std::uint64_t id, std::string_view end) {
    static constexpr char kDigits[] = "abcdefghijklmnopqrstuvwxyz234567";
    text_ += start;
    text_ += "vx-";
    for (int shift = 60; shift >= 0; shift -= 5) text_.push_back(kDigits[(id >> shift) & 31U]);
    text_ += end;
}

NumberWriter SvgOutput::numbersUnder(const Matrix& transform) noexcept {
    constexpr float kLargestScaleForHundredths = 2;
    const auto& m = transform.getElements();
    const bool enlarges = std::any_of(m.begin(), m.begin() + 4,
                                      [](float element) { return std::abs(element) > kLargestScaleForHundredths; });
    return enlarges ? appendPrecise : Format::appendHundredths;
}

float SvgOutput::toleranceOf(NumberWriter numbers) noexcept { return numbers == appendPrecise ? 0.0F : 0.01F; }

NumberWriter SvgOutput::numbersForSize(float size, NumberWriter numbers) noexcept {
    constexpr float kSmall = 0.1F;
    return std::abs(size) < kSmall ? appendPrecise : numbers;
}

}  // namespace VEXA
