#include "cli/Interruption.h"

#include <pthread.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <ctime>

namespace VEXA::Cli {
namespace {

constexpr int kInterruptions[] = {SIGINT, SIGTERM, SIGHUP};

// Each side writes its own variable before it reads the other's: either the handler sees the writer, or the writer sees
// that the program is ending.
std::atomic<int> writers{0};
std::atomic<bool> isEnding{false};
static_assert(std::atomic<int>::is_always_lock_free && std::atomic<bool>::is_always_lock_free);

sigset_t interruptions() noexcept {
    sigset_t set;
    sigemptyset(&set);
    for (const int signal : kInterruptions) sigaddset(&set, signal);
    return set;
}

/// Runs on a thread that does not write, since writers block the signals. Calls what a handler may call alone.
extern "C" void endWhenFilesAreWhole(int signal) {
    constexpr int kMostWaits = 500;  // five seconds: a disk that hangs must not keep the program
    constexpr timespec kWait = {0, 10'000'000};
    const int error = errno;
    isEnding = true;
    for (int i = 0; i < kMostWaits && writers > 0; ++i) ::nanosleep(&kWait, nullptr);
    std::signal(signal, SIG_DFL);
    std::raise(signal);  // ends the program as this handler returns
    errno = error;
}

}  // namespace

void handleSignals() noexcept {
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    struct sigaction ending = {};
    ending.sa_handler = &endWhenFilesAreWhole;
    ending.sa_mask = interruptions();
    for (const int signal : kInterruptions) {
        struct sigaction before = {};
        if (::sigaction(signal, &ending, &before) == 0 && before.sa_handler == SIG_IGN)
            ::sigaction(signal, &before, nullptr);
    }
}

UninterruptedScope::UninterruptedScope() noexcept {
    const sigset_t set = interruptions();
    ::pthread_sigmask(SIG_BLOCK, &set, nullptr);
    ++writers;
    if (!isEnding) return;
    --writers;
    while (true) ::pause();  // the program ends
}

UninterruptedScope::~UninterruptedScope() {
    --writers;
    const sigset_t set = interruptions();
    ::pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
}

}  // namespace VEXA::Cli
