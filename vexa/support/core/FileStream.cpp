#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "vexa/support/core/FileDescriptor.h"
#include "vexa/support/core/Stream.h"

namespace VEXA::IO {

namespace {

constexpr int kCannotOpenForReading = 1001;
constexpr int kCannotOpenForWriting = 1002;
constexpr int kReadFailed = 1003;
constexpr int kWriteFailed = 1004;

constexpr unsigned kNewFileMode = 0666;  // the process's umask takes its part from it

}  // namespace

FileStream::FileStream(const std::string& path, Mode mode) : name_(path) {
    const bool reading = mode == Mode::Read;
    const int flags = reading ? O_RDONLY : O_WRONLY | O_CREAT | O_TRUNC;
    descriptor_ = FileDescriptor::open(path, flags, kNewFileMode).detach();
    if (descriptor_ >= 0) return;
    raiseFileError(reading ? kCannotOpenForReading : kCannotOpenForWriting, path, errno, "FileStream", __LINE__);
}

FileStream::~FileStream() {
    if (owned_) FileDescriptor(descriptor_).close();
}

SmartPtr<FileStream> FileStream::standardInput() {
    return SmartPtr<FileStream>(new FileStream(STDIN_FILENO, "standard input"));
}

SmartPtr<FileStream> FileStream::standardOutput() {
    return SmartPtr<FileStream>(new FileStream(STDOUT_FILENO, "standard output"));
}

std::size_t FileStream::read(void* buffer, std::size_t size) {
    const std::ptrdiff_t count = readSome(descriptor_, buffer, size);
    if (count < 0) raiseFileError(kReadFailed, name_, errno, "FileStream", __LINE__);
    return static_cast<std::size_t>(count);
}

void FileStream::write(const void* data, std::size_t size) {
    if (!writeAll(descriptor_, data, size)) raiseFileError(kWriteFailed, name_, errno, "FileStream", __LINE__);
}

}  // namespace VEXA::IO
