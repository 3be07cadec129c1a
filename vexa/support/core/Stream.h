#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "vexa/support/core/SmartPtr.h"
#include "vexa/support/core/String.h"

namespace VEXA::IO {

/// A stream of bytes. Failures of the operating system are Exceptions that name the file.
class Stream : public Object {
public:
    /// Reads up to `size` bytes; 0 only at the end.
    virtual std::size_t read(void* buffer, std::size_t size) = 0;
    virtual void write(const void* data, std::size_t size) = 0;
    /// Writes bytes that the caller has no more use for: a stream in memory keeps a large picture without a copy.
    virtual void give(std::string bytes) { write(bytes.data(), bytes.size()); }
    virtual void flush() {}

    /// What is left to read, when all of it lies in memory: lets a reader do without copies. The bytes stay valid as
    /// long as the stream; they count as read.
    virtual std::optional<std::string_view> takeRest() { return std::nullopt; }

    void write(std::string_view text) { write(text.data(), text.size()); }
};

/// Reads what it was made with, then what was written to it; keeps all that is written.
class MemoryStream final : public Stream {
public:
    MemoryStream() = default;
    explicit MemoryStream(std::string bytes) : bytes_(std::move(bytes)) {}

    std::size_t read(void* buffer, std::size_t size) override;
    void write(const void* data, std::size_t size) override;
    using Stream::write;
    void give(std::string bytes) override;
    std::optional<std::string_view> takeRest() override;

    const std::string& bytes() const noexcept { return bytes_; }
    std::string takeBytes() noexcept;

private:
    std::string bytes_;
    std::size_t position_ = 0;
};

/// Reads from memory that the caller keeps alive.
class ViewStream final : public Stream {
public:
    explicit ViewStream(std::string_view bytes) : bytes_(bytes) {}

    std::size_t read(void* buffer, std::size_t size) override;
    void write(const void* data, std::size_t size) override;  ///< throws: the memory is the caller's
    using Stream::write;
    std::optional<std::string_view> takeRest() override;

private:
    std::string_view bytes_;
    std::size_t position_ = 0;
};

/// A file, or one of the process's standard streams.
class FileStream final : public Stream {
public:
    enum class Mode { Read, Write };

    /// `path` in the file system's own encoding. Throws when the file cannot be opened.
    FileStream(const std::string& path, Mode mode);
    ~FileStream() override;
    FileStream(const FileStream&) = delete;
    FileStream& operator=(const FileStream&) = delete;
    static SmartPtr<FileStream> standardInput();
    static SmartPtr<FileStream> standardOutput();

    std::size_t read(void* buffer, std::size_t size) override;
    void write(const void* data, std::size_t size) override;
    using Stream::write;

private:
    FileStream(int descriptor, std::string name) : descriptor_(descriptor), name_(std::move(name)), owned_(false) {}

    int descriptor_ = -1;
    std::string name_;
    bool owned_ = true;
};

/// Writes a whole file or none: the bytes go to a temporary file beside `path`, which then takes its name.
/// On failure nothing is left behind and an Exception says why. A file that exists keeps its permissions, and is not
/// replaced when it is write-protected; links are followed; a pipe or a device is written to directly.
void writeWholeFile(const std::string& path, std::string_view bytes);

}  // namespace VEXA::IO
