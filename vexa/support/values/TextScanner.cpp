#include "vexa/support/values/TextScanner.h"

#include <limits>

#include "vexa/support/core/Decimal.h"
#include "vexa/support/core/Format.h"

namespace VEXA {

namespace {

bool isLetter(char c) noexcept { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

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
    const char* const stop = Format::readNumber(at_, end_, out);
    if (stop != nullptr) at_ = stop;
    return stop != nullptr;
}

bool TextScanner::readNumber(double& out) noexcept {
    const char* const stop = Format::readNumber(at_, end_, out);
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
    Decimal decimal(value);
    decimal.roundToSignificant(digits);
    if (Format::isPlain(value)) {
        decimal.appendFixed(out);
    } else {
        decimal.appendScientific(out);
    }
}

}  // namespace VEXA
