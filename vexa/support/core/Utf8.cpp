#include "vexa/support/core/Utf8.h"

#include <cstdint>
#include <cstring>

namespace VEXA {

namespace {

/// What a lead byte announces: how many bytes follow, and where the first of them must lie. The narrowed ranges of
/// E0, ED, F0 and F4 are what keeps out overlong forms, surrogates and values above 10FFFF (Unicode, table 3-7).
struct Lead {
    std::uint8_t following;
    std::uint8_t low;
    std::uint8_t high;
};

constexpr Lead kIllFormed{0, 0, 0};

constexpr Lead leadOf(std::uint8_t byte) noexcept {
    if (byte < 0xC2 || byte > 0xF4) return kIllFormed;
    if (byte < 0xE0) return {1, 0x80, 0xBF};
    if (byte < 0xF0) {
        return {2, static_cast<std::uint8_t>(byte == 0xE0 ? 0xA0 : 0x80),
                static_cast<std::uint8_t>(byte == 0xED ? 0x9F : 0xBF)};
    }
    return {3, static_cast<std::uint8_t>(byte == 0xF0 ? 0x90 : 0x80),
            static_cast<std::uint8_t>(byte == 0xF4 ? 0x8F : 0xBF)};
}

/// Reads a sequence that begins with a byte above 7F. REQUIRES: at < end.
char32_t decodeSequence(const char*& at, const char* end) noexcept {
    const auto first = static_cast<std::uint8_t>(*at++);
    Lead lead = leadOf(first);
    if (lead.following == 0) return Utf8::kReplacement;
    char32_t result = first & (0x3FU >> lead.following);
    for (; lead.following > 0; --lead.following) {
        const auto next = static_cast<std::uint8_t>(at == end ? 0 : *at);
        if (next < lead.low || next > lead.high) return Utf8::kReplacement;
        result = result << 6 | (next & 0x3FU);
        lead.low = 0x80;
        lead.high = 0xBF;
        ++at;
    }
    return result;
}

bool isAsciiByte(char byte) noexcept { return static_cast<std::uint8_t>(byte) < 0x80; }

}  // namespace

bool Utf8::isAscii(std::string_view bytes) noexcept {
    constexpr std::uint64_t kHighBits = 0x8080808080808080U;
    const char* at = bytes.data();
    std::size_t left = bytes.size();
    for (; left >= sizeof(std::uint64_t); left -= sizeof(std::uint64_t), at += sizeof(std::uint64_t)) {
        std::uint64_t word = 0;
        std::memcpy(&word, at, sizeof word);
        if ((word & kHighBits) != 0) return false;
    }
    for (; left > 0; --left, ++at) {
        if (!isAsciiByte(*at)) return false;
    }
    return true;
}

std::size_t Utf8::count(std::string_view bytes) noexcept {
    std::size_t result = 0;
    const char* const end = bytes.data() + bytes.size();
    for (const char* at = bytes.data(); at != end; ++result) {
        if (isAsciiByte(*at)) {
            ++at;
        } else {
            decodeSequence(at, end);
        }
    }
    return result;
}

void Utf8::decode(std::string_view bytes, char32_t* out) noexcept {
    const char* const end = bytes.data() + bytes.size();
    for (const char* at = bytes.data(); at != end;) {
        *out++ = isAsciiByte(*at) ? static_cast<char32_t>(*at++) : decodeSequence(at, end);
    }
}

std::size_t Utf8::encodedSize(std::u32string_view characters) noexcept {
    std::size_t result = 0;
    for (const char32_t c : characters) {
        result += 1 + (c >= 0x80 ? 1 : 0) + (c >= 0x800 ? 1 : 0) + (c >= 0x10000 ? 1 : 0);
    }
    return result;
}

char* Utf8::encode(char32_t character, char* out) noexcept {
    const char32_t c = isCharacter(character) ? character : kReplacement;
    const auto put = [&out](char32_t byte) { *out++ = static_cast<char>(byte); };
    const auto putContinuation = [&put, c](int shift) { put(0x80U | (c >> shift & 0x3FU)); };
    if (c < 0x80) {
        put(c);
        return out;
    }
    if (c < 0x800) {
        put(0xC0U | c >> 6);
    } else if (c < 0x10000) {
        put(0xE0U | c >> 12);
        putContinuation(6);
    } else {
        put(0xF0U | c >> 18);
        putContinuation(12);
        putContinuation(6);
    }
    putContinuation(0);
    return out;
}

}  // namespace VEXA
