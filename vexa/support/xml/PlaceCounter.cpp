#include "vexa/support/xml/PlaceCounter.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace VEXA {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::uint32_t saturate(std::uint64_t value) noexcept {
    return static_cast<std::uint32_t>(std::min<std::uint64_t>(value, std::numeric_limits<std::uint32_t>::max()));
}

bool isAscii(std::string_view bytes) noexcept {
    unsigned char all = 0;
    for (const char c : bytes) all = static_cast<unsigned char>(all | static_cast<unsigned char>(c));
    return all < 0x80;
}

bool isContinuation(char c) noexcept { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80; }

/// Position of the next `wanted` at or after `from`; the end when there is none.
std::size_t findByte(std::string_view bytes, char wanted, std::size_t from) noexcept {
    const void* const found = std::memchr(bytes.data() + from, wanted, bytes.size() - from);
    return found == nullptr ? bytes.size() : static_cast<std::size_t>(static_cast<const char*>(found) - bytes.data());
}

}  // namespace

void PlaceCounter::Offsets::prune() {
    if (passed == all.size()) {
        all.clear();
    } else {
        all.erase(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(passed));
    }
    passed = 0;
}

void PlaceCounter::feed(std::string_view bytes) {
    if (bytes.empty()) return;
    lineEnds_.prune();
    continuations_.prune();
    if (fed_ == 0) checkStart(bytes);
    checkCarriageReturns(bytes);
    if (isUsable_) {
        feedLineEnds(bytes);
        feedContinuations(bytes);
    }
    fed_ += bytes.size();
}

void PlaceCounter::checkStart(std::string_view bytes) {
    // UTF-16 starts with its byte order mark, or with a zero byte beside the first "<".
    const auto isOneOf = [&](char c) { return c == '\0' || c == '\xFE' || c == '\xFF'; };
    if (isOneOf(bytes[0]) || (bytes.size() > 1 && isOneOf(bytes[1]))) isUsable_ = false;
    if (bytes.substr(0, kByteOrderMark.size()) == kByteOrderMark) continuations_.all = {0};  // the mark is no column
}

void PlaceCounter::checkCarriageReturns(std::string_view bytes) noexcept {
    if (endsInCarriageReturn_ && bytes.front() != '\n') isUsable_ = false;
    for (std::size_t at = findByte(bytes, '\r', 0); isUsable_ && at < bytes.size();
         at = findByte(bytes, '\r', at + 1)) {
        if (at + 1 < bytes.size() && bytes[at + 1] != '\n') isUsable_ = false;
    }
    endsInCarriageReturn_ = bytes.back() == '\r';
}

void PlaceCounter::feedLineEnds(std::string_view bytes) {
    for (std::size_t at = findByte(bytes, '\n', 0); at < bytes.size(); at = findByte(bytes, '\n', at + 1)) {
        lineEnds_.all.push_back(fed_ + at);
    }
}

void PlaceCounter::feedContinuations(std::string_view bytes) {
    if (isAscii(bytes)) return;
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        if (isContinuation(bytes[at])) continuations_.all.push_back(fed_ + at);
    }
}

SourcePlace PlaceCounter::at(std::uint64_t index) noexcept {
    for (auto& [all, passed] = lineEnds_; passed < all.size() && all[passed] < index; ++passed) {
        lineStart_ = all[passed] + 1;
        continuationsInLine_ = 0;
        if (line_ < std::numeric_limits<std::uint32_t>::max()) ++line_;
    }
    for (auto& [all, passed] = continuations_; passed < all.size() && all[passed] < index; ++passed) {
        if (all[passed] >= lineStart_) ++continuationsInLine_;
    }
    return {line_, saturate(index - lineStart_ - continuationsInLine_ + 1)};
}

}  // namespace VEXA
