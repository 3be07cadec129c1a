#include "vexa/fonts/FontTables.h"

#include <algorithm>
#include <cstdint>

namespace VEXA {

namespace {

// The OpenType specification, "Organization of an OpenType font": sizes and places in bytes.
constexpr std::size_t kHeaderSize = 12;
constexpr std::size_t kRecordSize = 16;
constexpr std::uint32_t kMostFaces = 1024;  // of a collection; those there are have some dozens

constexpr std::uint32_t tag(const char (&name)[5]) noexcept {
    std::uint32_t result = 0;
    for (int i = 0; i < 4; ++i) result = result << 8U | static_cast<unsigned char>(name[i]);
    return result;
}

/// A number in the byte order of fonts. REQUIRES: at + count <= file.size().
std::uint32_t numberAt(std::span<const std::byte> file, std::size_t at, int count) noexcept {
    std::uint32_t number = 0;
    for (; count > 0; --count) number = number << 8U | std::to_integer<std::uint32_t>(file[at++]);
    return number;
}

bool isFace(std::uint32_t version) noexcept {
    return version == 0x00010000 || version == tag("OTTO") || version == tag("true");
}

bool isFaceCutOff(std::span<const std::byte> file, std::size_t start) noexcept {
    if (start + kHeaderSize > file.size()) return true;
    if (!isFace(numberAt(file, start, 4))) return false;
    const std::size_t end = start + kHeaderSize + numberAt(file, start + 4, 2) * kRecordSize;
    if (end > file.size()) return true;
    for (std::size_t record = start + kHeaderSize; record < end; record += kRecordSize) {
        const std::size_t length = numberAt(file, record + 12, 4);
        if (length > 0 && numberAt(file, record + 8, 4) + length > file.size()) return true;
    }
    return false;
}

}  // namespace

bool isCutOff(std::span<const std::byte> file) noexcept {
    if (file.size() < kHeaderSize) return false;
    if (numberAt(file, 0, 4) != tag("ttcf")) return isFaceCutOff(file, 0);
    const std::size_t faces = std::min(numberAt(file, 8, 4), kMostFaces);
    if (kHeaderSize + faces * 4 > file.size()) return true;
    for (std::size_t i = 0; i < faces; ++i) {
        if (isFaceCutOff(file, numberAt(file, kHeaderSize + i * 4, 4))) return true;
    }
    return false;
}

}  // namespace VEXA
