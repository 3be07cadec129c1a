#include "vexa/support/values/TextScanner.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "vexa/support/core/Decimal.h"
#include "vexa/support/core/Format.h"

namespace VEXA {

namespace {

constexpr double kMinPlain = 1e-5;  // from here ...
constexpr double kMaxPlain = 1e15;  // ... to below here numbers are written without an exponent

bool isDigit(char c) noexcept { return c >= '0' && c <= '9'; }
bool isLetter(char c) noexcept { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

template <class T>
std::optional<T> parseWhole(std::string_view text) noexcept {
    if constexpr (sizeof(T) == sizeof(float)) {
        return Format::parseFloat(text);
    } else {
        return Format::parseDouble(text);
    }
}

/// Reads a number at the front of [at, end) and returns where it ends; null when there is none that is finite.
template <class T>
const char* readReal(const char* at, const char* end, T& out) noexcept {
    const char* const begin = at != end && *at == '+' ? at + 1 : at;  // from_chars takes no plus
    const char* const digits = begin != end && begin == at && *begin == '-' ? begin + 1 : begin;
    if (digits == end || !(isDigit(*digits) || *digits == '.')) return nullptr;  // neither inf nor nan
    T value{};
    const auto [stop, error] = std::from_chars(begin, end, value);
    if (error == std::errc::invalid_argument) return nullptr;
    if (error == std::errc::result_out_of_range) {  // too large, or so small that it is 0
        const auto parsed = parseWhole<T>({begin, static_cast<std::size_t>(stop - begin)});
        if (!parsed) return nullptr;
        value = *parsed;
    }
    out = value;
    return stop;
}

}  // namespace

bool TextScanner::skipSpace() noexcept {
    const char* const begin = at_;
    while (at_ != end_ && isSpace(*at_)) ++at_;
    return at_ != begin;
}

bool TextScanner::skip(char c) noexcept {
    if (!isNext(c)) return false;
    ++at_;
    return true;
}

bool TextScanner::skipWord(std::string_view lowerCase) noexcept {
    if (rest() < lowerCase.size()) return false;
    for (std::size_t i = 0; i < lowerCase.size(); ++i) {
        const char c = at_[i];
        if ((c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c) != lowerCase[i]) return false;
    }
    at_ += lowerCase.size();
    return true;
}

bool TextScanner::skipSeparator() noexcept {
    const bool spaced = skipSpace();
    if (!skip(',')) return spaced;
    skipSpace();
    return true;
}

bool TextScanner::readNumber(float& out) noexcept {
    const char* const stop = readReal(at_, end_, out);
    if (stop != nullptr) at_ = stop;
    return stop != nullptr;
}

bool TextScanner::readNumber(double& out) noexcept {
    const char* const stop = readReal(at_, end_, out);
    if (stop != nullptr) at_ = stop;
    return stop != nullptr;
}

std::string_view TextScanner::readLetters() noexcept {
    const char* const begin = at_;
    while (at_ != end_ && isLetter(*at_)) ++at_;
    return {begin, static_cast<std::size_t>(at_ - begin)};
}

std::string_view TextScanner::readUntil(char stop) noexcept {
    const char* const begin = at_;
    while (at_ != end_ && *at_ != stop) ++at_;
    return {begin, static_cast<std::size_t>(at_ - begin)};
}

std::string_view TextScanner::trim(std::string_view text) noexcept {
    while (!text.empty() && isSpace(text.front())) text.remove_prefix(1);
    while (!text.empty() && isSpace(text.back())) text.remove_suffix(1);
    return text;
}

void appendNumber(double value, std::string& out) {
    appendNumber(value, std::numeric_limits<double>::max_digits10, out);
}

void appendNumber(double value, int digits, std::string& out) {
    const double magnitude = std::fabs(value);
    Decimal decimal(value);
    decimal.roundToSignificant(digits);
    if (magnitude == 0 || (magnitude >= kMinPlain && magnitude < kMaxPlain)) {
        decimal.appendFixed(out);
    } else {
        decimal.appendScientific(out);
    }
}

}  // namespace VEXA
