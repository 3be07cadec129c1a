#include "vexa/support/core/Stream.h"

#include <algorithm>
#include <cstring>

#include "vexa/support/core/Exception.h"

namespace VEXA::IO {

namespace {

constexpr int kNotWritable = 1006;

/// Copies what is left behind `position`, at most `size` bytes, and moves the position.
std::size_t readFrom(std::string_view bytes, std::size_t& position, void* buffer, std::size_t size) noexcept {
    const std::size_t count = std::min(size, bytes.size() - position);
    if (count != 0) std::memcpy(buffer, bytes.data() + position, count);
    position += count;
    return count;
}

std::string_view restOf(std::string_view bytes, std::size_t& position) noexcept {
    return bytes.substr(std::exchange(position, bytes.size()));
}

}  // namespace

std::size_t MemoryStream::read(void* buffer, std::size_t size) { return readFrom(bytes_, position_, buffer, size); }

void MemoryStream::write(const void* data, std::size_t size) {
    if (size != 0) bytes_.append(static_cast<const char*>(data), size);
}

void MemoryStream::give(std::string bytes) {
    if (bytes_.empty()) {
        bytes_ = std::move(bytes);
    } else {
        bytes_ += bytes;
    }
}

std::optional<std::string_view> MemoryStream::takeRest() { return restOf(bytes_, position_); }

std::string MemoryStream::takeBytes() noexcept {
    position_ = 0;
    return std::exchange(bytes_, {});
}

std::size_t ViewStream::read(void* buffer, std::size_t size) { return readFrom(bytes_, position_, buffer, size); }

void ViewStream::write(const void*, std::size_t) { raise(Exception(kNotWritable), "ViewStream", __LINE__); }

std::optional<std::string_view> ViewStream::takeRest() { return restOf(bytes_, position_); }

}  // namespace VEXA::IO
