#include "vexa/support/core/Format.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "vexa/support/core/Decimal.h"
#include "vexa/support/core/Limits.h"

namespace VEXA {

namespace {

constexpr double kMinPlain = 1e-5;  // from here ...
constexpr double kMaxPlain = 1e15;  // ... to below here numbers are written without an exponent

bool isDigit(char c) noexcept { return c >= '0' && c <= '9'; }

/// `text` without a leading plus, which from_chars does not take; a sign may not follow it.
std::string_view withoutPlus(std::string_view text) noexcept {
    if (text.empty() || text.front() != '+') return text;
    text.remove_prefix(1);
    return !text.empty() && text.front() == '-' ? std::string_view() : text;
}

/// Keeps out `inf` and `nan`, which from_chars would read.
bool startsAsNumber(std::string_view text) noexcept {
    if (!text.empty() && text.front() == '-') text.remove_prefix(1);
    return !text.empty() && (isDigit(text.front()) || text.front() == '.');
}

/// Whether a well-formed number that from_chars finds out of range is too small for it, not too large.
bool isTiny(std::string_view text) noexcept {
    const std::size_t e = text.find_first_of("eE");
    const std::string_view mantissa = text.substr(0, e);
    const std::size_t leading = mantissa.find_first_of("123456789");
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    if (leading == mantissa.npos) return true;
    const std::int64_t scale = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(leading);
    if (e == text.npos) return scale <= 0;
    const std::string_view digits = withoutPlus(text.substr(e + 1));
    std::int64_t exponent = 0;
    const bool huge = std::from_chars(digits.data(), digits.data() + digits.size(), exponent).ec != std::errc();
    return huge ? digits.front() == '-' : exponent < -scale;
}

template <class T>
const char* readReal(const char* at, const char* end, T& out) noexcept {
    const std::string_view text = withoutPlus({at, static_cast<std::size_t>(end - at)});
    if (!startsAsNumber(text)) return nullptr;
    T value = 0;
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error == std::errc::result_out_of_range) {
        if (!isTiny({text.data(), stop})) return nullptr;
        value = 0;
    } else if (error != std::errc() || !std::isfinite(value)) {
        return nullptr;
    }
    out = value;
    return stop;
}

template <class T>
std::optional<T> parseReal(std::string_view whole) noexcept {
    T value = 0;
    const char* const end = whole.data() + whole.size();
    return readReal(whole.data(), end, value) == end && !whole.empty() ? std::optional<T>(value) : std::nullopt;
}

template <class T>
bool isPlainNumber(T value) noexcept {
    const T magnitude = std::fabs(value);
    return magnitude == 0 || (magnitude >= static_cast<T>(kMinPlain) && magnitude < static_cast<T>(kMaxPlain));
}

}  // namespace

std::optional<std::int32_t> Format::parseInt(std::string_view whole) noexcept {
    const std::string_view text = withoutPlus(whole);
    std::int32_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

std::optional<double> Format::parseDouble(std::string_view text) noexcept { return parseReal<double>(text); }

std::optional<float> Format::parseFloat(std::string_view text) noexcept { return parseReal<float>(text); }

const char* Format::readNumber(const char* begin, const char* end, double& out) noexcept {
    return readReal(begin, end, out);
}
const char* Format::readNumber(const char* begin, const char* end, float& out) noexcept {
    return readReal(begin, end, out);
}

bool Format::isPlain(double value) noexcept { return isPlainNumber(value); }
bool Format::isPlain(float value) noexcept { return isPlainNumber(value); }

void Format::appendShortest(float value, std::string& out) {
    if (value == 0 || !std::isfinite(value)) {
        out += '0';
        return;
    }
    char text[32];
    const auto format = isPlain(value) ? std::chars_format::fixed : std::chars_format::scientific;
    out.append(text, std::to_chars(text, text + sizeof text, value, format).ptr);
}

void Format::appendHundredths(float value, std::string& out) {
    if (std::isnan(value)) value = 0;
    // 24 bits times 100 is exact in double precision, so halves are seen as halves.
    const double scaled = static_cast<double>(std::fmin(std::fabs(value), Limits::kCoordinate)) * 100.0;
    const auto hundredths = static_cast<std::uint64_t>(scaled + 0.5);
    if (hundredths == 0) {
        out += '0';
        return;
    }
    char text[24];
    char* at = text;
    if (value < 0) *at++ = '-';
    at = std::to_chars(at, text + sizeof text, hundredths / 100).ptr;
    if (const auto fraction = static_cast<unsigned>(hundredths % 100); fraction != 0) {
        *at++ = '.';
        *at++ = static_cast<char>('0' + fraction / 10);
        if (fraction % 10 != 0) *at++ = static_cast<char>('0' + fraction % 10);
    }
    out.append(text, at);
}

std::string Format::number(double value) {
    constexpr int kSignificant = 6;
    constexpr double kExact = 9007199254740992.0;  // 2^53: integers up to here are exact in double precision
    if (std::isnan(value)) return "NaN";
    if (std::isinf(value)) return value < 0 ? "-Infinity" : "Infinity";
    const double magnitude = std::fabs(value);
    Decimal decimal(value);
    if (magnitude > kExact || magnitude != std::floor(magnitude)) decimal.roundToSignificant(kSignificant);
    std::string result;
    if (isPlain(value)) {
        decimal.appendFixed(result);
    } else {
        decimal.appendScientific(result);
    }
    return result;
}

}  // namespace VEXA
