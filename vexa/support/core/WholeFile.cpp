#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <filesystem>

#include "vexa/support/core/FileDescriptor.h"
#include "vexa/support/core/Stream.h"

namespace VEXA::IO {

namespace {

namespace fs = std::filesystem;

constexpr int kCannotOpen = 1002;
constexpr int kWriteFailed = 1004;
constexpr int kCannotPlace = 1005;

constexpr mode_t kNewFileMode = 0666;  // the process's umask takes its part from it
constexpr mode_t kPermissions = 0777;

/// What a chain of links ends at, whether it exists or not, so that a link stays and its target is replaced.
fs::path followLinks(fs::path path) {
    constexpr int kMaxLinks = 40;  // as many as Linux follows
    std::error_code error;
    for (int i = 0; i < kMaxLinks && fs::is_symlink(path, error); ++i) {
        const fs::path target = fs::read_symlink(path, error);
        if (error) break;
        path = path.parent_path() / target;
    }
    return path;
}

/// Creates a file of a name that no other one has in the directory of `target`; `path` gets its name. The name is short
/// whatever that of the target is, since the system limits the length of names.
FileDescriptor createBeside(const fs::path& target, mode_t mode, fs::path& path) {
    constexpr int kAttempts = 1000;
    static std::atomic<unsigned> serial{0};
    for (int attempt = 1;; ++attempt) {
        path = target.parent_path() / (".vexa-" + std::to_string(::getpid()) + "-" + std::to_string(++serial) + ".tmp");
        FileDescriptor file = FileDescriptor::open(path, O_WRONLY | O_CREAT | O_EXCL, mode);
        if (file.isOpen() || errno != EEXIST || attempt == kAttempts) return file;
    }
}

/// A new file in the directory of another one. It vanishes with this object unless it took that one's place.
class TemporaryFile {
public:
    TemporaryFile(const fs::path& target, mode_t mode)
        : file_(createBeside(target, mode, path_)), exists_(file_.isOpen()) {}
    ~TemporaryFile() {
        if (exists_) ::unlink(path_.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    bool isOpen() const noexcept { return file_.isOpen(); }
    /// Gives back what the umask took. Where a file system has no modes, the file stays readable to fewer people.
    void setPermissions(mode_t mode) noexcept { static_cast<void>(::fchmod(file_.get(), mode)); }
    bool write(std::string_view bytes) noexcept {
        return writeAll(file_.get(), bytes.data(), bytes.size()) && file_.close();
    }
    bool moveTo(const fs::path& target) noexcept {
        exists_ = std::rename(path_.c_str(), target.c_str()) != 0;
        return !exists_;
    }

private:
    fs::path path_;
    FileDescriptor file_;
    bool exists_;
};

/// One call of writeWholeFile.
class WholeFile {
public:
    explicit WholeFile(const std::string& name) : name_(name) {
        if (name.find('\0') != name.npos) fail(kCannotOpen, EINVAL, __LINE__);
        present_ = ::stat(name.c_str(), &status_) == 0;
        if (!present_ && errno != ENOENT) fail(kCannotOpen, errno, __LINE__);
    }

    /// A pipe or a device has a reader at its end: there is nothing to put in its place.
    bool isSpecial() const noexcept { return present_ && !S_ISREG(status_.st_mode); }

    void write(std::string_view bytes) const {
        if (present_ && ::faccessat(AT_FDCWD, name_.c_str(), W_OK, AT_EACCESS) != 0) fail(kCannotOpen, errno, __LINE__);
        const fs::path target = followLinks(name_);
        const mode_t mode = present_ ? status_.st_mode & kPermissions : kNewFileMode;
        TemporaryFile file(target, mode);
        if (!file.isOpen()) fail(kCannotOpen, errno, __LINE__);
        if (present_) file.setPermissions(mode);
        if (!file.write(bytes)) fail(kWriteFailed, errno, __LINE__);
        if (!file.moveTo(target)) fail(kCannotPlace, errno, __LINE__);
    }

private:
    [[noreturn]] void fail(int code, int error, int line) const {
        raiseFileError(code, name_, error, "WholeFile", line);
    }

    const std::string& name_;
    struct stat status_ {};
    bool present_ = false;
};

}  // namespace

void writeWholeFile(const std::string& path, std::string_view bytes) {
    const WholeFile file(path);
    if (file.isSpecial()) {
        FileStream(path, FileStream::Mode::Write).write(bytes);
    } else {
        file.write(bytes);
    }
}

}  // namespace VEXA::IO
