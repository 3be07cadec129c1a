#include "vexa/support/core/FileDescriptor.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

#include "vexa/support/core/Exception.h"
#include "vexa/support/core/QuotedText.h"

namespace VEXA::IO {

namespace {

constexpr std::size_t kMaxTransfer = std::size_t{1} << 30;  // below what every system takes in one call

/// Whether a call that failed should be made again.
bool isWorthRepeating(int descriptor, short event) noexcept {
    if (errno == EINTR) return true;
    if (errno != EAGAIN && errno != EWOULDBLOCK) return false;
    pollfd waiting{descriptor, event, 0};
    return ::poll(&waiting, 1, -1) >= 0 || errno == EINTR;
}

}  // namespace

FileDescriptor FileDescriptor::open(const std::string& path, int flags, unsigned mode) noexcept {
    if (path.find('\0') != path.npos) {  // the system would open another file, whose name ends there
        errno = EINVAL;
        return {};
    }
    int descriptor = -1;
    do {
        descriptor = ::open(path.c_str(), flags | O_CLOEXEC, static_cast<mode_t>(mode));
    } while (descriptor < 0 && errno == EINTR);
    return FileDescriptor(descriptor);
}

int FileDescriptor::detach() noexcept { return std::exchange(descriptor_, -1); }

bool FileDescriptor::close() noexcept {
    const int descriptor = detach();
    return descriptor < 0 || ::close(descriptor) == 0 || errno == EINTR;  // Linux has closed it in that case
}

std::ptrdiff_t readSome(int descriptor, void* buffer, std::size_t size) noexcept {
    ssize_t count = 0;
    do {
        count = ::read(descriptor, buffer, std::min(size, kMaxTransfer));
    } while (count < 0 && isWorthRepeating(descriptor, POLLIN));
    return count;
}

bool writeAll(int descriptor, const void* data, std::size_t size) noexcept {
    const char* at = static_cast<const char*>(data);
    while (size > 0) {
        const ssize_t count = ::write(descriptor, at, std::min(size, kMaxTransfer));
        if (count < 0) {
            if (!isWorthRepeating(descriptor, POLLOUT)) return false;
            continue;
        }
        at += count;
        size -= static_cast<std::size_t>(count);
    }
    return true;
}

void raiseFileError(int code, const std::string& name, int error, const char* source, int line) {
    const std::string reason = std::generic_category().message(error);
    raise(Exception(code, {escapeForMessage(name), String(reason)}), source, line);
}

}  // namespace VEXA::IO
