#include "cli/Progress.h"

#include <string>

namespace VEXA::Cli {
namespace {

constexpr std::string_view kClearLine = "\r\x1b[K";  // to the first column, then erase to the end (ECMA-48)

}  // namespace

Progress::Progress(Console& console, std::size_t total, Clock::duration interval)
    : console_(console), total_(total), interval_(interval), isEnabled_(total > 1 && console.isTerminal()) {}

void Progress::show(std::size_t done, std::size_t failed) {
    if (!isEnabled_) return;
    const Clock::time_point now = Clock::now();
    if (isVisible_ && now - shownAt_ < interval_) return;
    std::string line(kClearLine);
    line += "drawn " + std::to_string(done) + " of " + std::to_string(total_);
    if (failed > 0) line += ", " + std::to_string(failed) + " failed";
    console_.write(line);
    shownAt_ = now;
    isVisible_ = true;
}

void Progress::clear() {
    if (!isVisible_) return;
    console_.write(kClearLine);
    isVisible_ = false;
}

}  // namespace VEXA::Cli
