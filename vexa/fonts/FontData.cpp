#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>

#include <optional>

#include "vexa/fonts/FontFace.h"
#include "vexa/support/core/FileDescriptor.h"

namespace VEXA {

namespace {

constexpr off_t kLargestFile = off_t{1} << 30;  // the largest fonts have 50 MB

/// Bytes of a regular file; 0 for anything else, and for one that is too large to be a font.
std::size_t sizeOf(const IO::FileDescriptor& file) noexcept {
    struct stat status {};
    if (!file.isOpen() || ::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) return 0;
    return status.st_size > kLargestFile ? 0 : static_cast<std::size_t>(status.st_size);
}

std::optional<std::string> readWhole(const IO::FileDescriptor& file, std::size_t size) {
    std::string bytes(size, '\0');
    std::size_t done = 0;
    while (done < size) {
        const std::ptrdiff_t count = IO::readSome(file.get(), bytes.data() + done, size - done);
        if (count <= 0) return std::nullopt;
        done += static_cast<std::size_t>(count);
    }
    return bytes;
}

std::span<const std::byte> asBytes(const void* begin, std::size_t size) noexcept {
    return {static_cast<const std::byte*>(begin), size};
}

}  // namespace

FontData::FontData(std::span<const std::byte> compiledIn) noexcept : bytes_(compiledIn) {}

FontData::FontData(std::string file, std::span<const std::byte> mapped) noexcept
    : file_(std::move(file)), bytes_(mapped), isMapped_(true) {}

FontData::FontData(std::string file, std::string copy) noexcept
    : file_(std::move(file)), copy_(std::move(copy)), bytes_(asBytes(copy_.data(), copy_.size())) {}

FontData::~FontData() {
    if (isMapped_) ::munmap(const_cast<std::byte*>(bytes_.data()), bytes_.size());
}

SmartPtr<FontData> FontData::open(const std::string& file, FileAccess access) {
    const auto descriptor = IO::FileDescriptor::open(file, O_RDONLY | O_NONBLOCK);
    const std::size_t size = sizeOf(descriptor);
    if (size == 0) return nullptr;
    if (access == FileAccess::Read) {
        auto copy = readWhole(descriptor, size);
        return copy ? SmartPtr<FontData>(new FontData(file, std::move(*copy))) : nullptr;
    }
    const void* const mapped = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, descriptor.get(), 0);
    return mapped == MAP_FAILED ? nullptr : SmartPtr<FontData>(new FontData(file, asBytes(mapped, size)));
}

}  // namespace VEXA
