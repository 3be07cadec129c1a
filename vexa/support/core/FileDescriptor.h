#pragma once

#include <cstddef>
#include <string>

namespace VEXA::IO {

/// Owner of a POSIX file descriptor. Interrupted calls are repeated; a descriptor that would block is waited for.
class FileDescriptor {
public:
    FileDescriptor() noexcept = default;
    explicit FileDescriptor(int descriptor) noexcept : descriptor_(descriptor) {}
    ~FileDescriptor() { close(); }
    FileDescriptor(FileDescriptor&& other) noexcept : descriptor_(other.detach()) {}
    FileDescriptor& operator=(FileDescriptor&&) = delete;

    /// Opens with the flags and the mode of open(2); errno tells why when nothing was opened.
    static FileDescriptor open(const std::string& path, int flags, unsigned mode = 0) noexcept;

    bool isOpen() const noexcept { return descriptor_ >= 0; }
    int get() const noexcept { return descriptor_; }
    int detach() noexcept;
    /// False with errno set when what was written may be lost.
    bool close() noexcept;

private:
    int descriptor_ = -1;
};

/// Bytes read, 0 at the end, -1 on failure with errno set.
std::ptrdiff_t readSome(int descriptor, void* buffer, std::size_t size) noexcept;

/// Writes all bytes; false with errno set on failure.
bool writeAll(int descriptor, const void* data, std::size_t size) noexcept;

/// Throws message `code` with the file's name and the system's reason `error`.
[[noreturn]] void raiseFileError(int code, const std::string& name, int error, const char* source, int line);

}  // namespace VEXA::IO
