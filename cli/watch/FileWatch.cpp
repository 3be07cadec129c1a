#include "cli/watch/FileWatch.h"

#include <poll.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace VEXA::Cli {
namespace {

namespace fs = std::filesystem;

constexpr int kLookEvery = 500;   // ms, where nobody tells
constexpr int kRest = 20;         // ms without an event: the file has come to rest
constexpr int kLongestRest = 25;  // times kRest; a file that is always being written is drawn now and then

volatile sig_atomic_t isEnding = 0;
void noteEnd(int) { isEnding = 1; }

/// File systems on which another machine may change a file, or a program that tells nobody.
bool tellsNobody(const char* folder) noexcept {
    constexpr unsigned kFarSystems[] = {0x6969, 0x517B, 0xFE534D42, 0xFF534D42, 0x65735546};  // NFS, SMB, FUSE
    struct statfs system = {};
    if (::statfs(folder, &system) != 0) return true;
    for (const unsigned type : kFarSystems) {
        if (static_cast<unsigned>(system.f_type) == type) return true;
    }
    return false;
}

std::string folderOf(const fs::path& file) {
    const fs::path folder = file.parent_path();
    return folder.empty() ? "." : folder.string();
}

}  // namespace

FileWatch::FileWatch(std::vector<std::string> files)
    : files_(std::move(files)), events_(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)), mustLook_(!events_.isOpen()) {
    for (const std::string& file : files_) {
        stamps_.push_back(stampOf(file));
        watchFolderOf(file);
        std::error_code error;
        const fs::path target = fs::canonical(file, error);
        if (!error) watchFolderOf(target.string());  // of what a link leads to
    }
}

void FileWatch::watchFolderOf(const std::string& file) {
    const std::string folder = folderOf(file);
    if (mustLook_ || tellsNobody(folder.c_str()) ||
        ::inotify_add_watch(events_.get(), folder.c_str(), IN_CLOSE_WRITE | IN_MOVED_TO | IN_CREATE) < 0)
        mustLook_ = true;
}

FileWatch::Stamp FileWatch::stampOf(const std::string& file) noexcept {
    struct stat status = {};
    if (::stat(file.c_str(), &status) != 0) return {};
    return {std::int64_t{status.st_mtim.tv_sec} * 1'000'000'000 + status.st_mtim.tv_nsec, status.st_size,
            status.st_ino};
}

/// False when nothing happened for so long; a negative time is for ever.
bool FileWatch::waitForEvent(const sigset_t& mask, int milliseconds) {
    pollfd wanted = {events_.get(), POLLIN, 0};
    const timespec time = {milliseconds / 1000, (milliseconds % 1000) * 1'000'000L};
    const int found = ::ppoll(&wanted, events_.isOpen() ? 1 : 0, milliseconds < 0 ? nullptr : &time, &mask);
    if (found <= 0) return false;
    char events[4096];
    while (::read(events_.get(), events, sizeof(events)) > 0) {
    }
    return true;
}

std::vector<std::size_t> FileWatch::takeChanged() {
    std::vector<std::size_t> changed;
    for (std::size_t i = 0; i < files_.size(); ++i) {
        const Stamp stamp = stampOf(files_[i]);
        if (stamp == stamps_[i] || stamp.size < 0) continue;
        stamps_[i] = stamp;
        changed.push_back(i);
    }
    return changed;
}

std::vector<std::size_t> FileWatch::wait(const sigset_t& mask) {
    while (isEnding == 0) {
        std::vector<std::size_t> changed = takeChanged();
        if (!changed.empty()) return changed;
        if (!waitForEvent(mask, mustLook_ ? kLookEvery : -1)) continue;
        for (int times = 0; times < kLongestRest && isEnding == 0 && waitForEvent(mask, kRest); ++times) {
        }
    }
    return {};
}

EndingSignals::EndingSignals() {
    isEnding = 0;
    sigset_t ending;
    sigemptyset(&ending);
    sigaddset(&ending, SIGINT);
    sigaddset(&ending, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &ending, &before_);
    struct sigaction note = {};
    note.sa_handler = &noteEnd;
    sigaction(SIGINT, &note, &oldInterrupt_);
    sigaction(SIGTERM, &note, &oldTerminate_);
}

EndingSignals::~EndingSignals() {
    sigaction(SIGINT, &oldInterrupt_, nullptr);
    sigaction(SIGTERM, &oldTerminate_, nullptr);
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

}  // namespace VEXA::Cli
