#include "vexa/check/ProblemList.h"

#include <algorithm>
#include <limits>
#include <set>
#include <tuple>

namespace VEXA {

namespace {

constexpr int kNotFound = 34001;  // a paint that is a reference
constexpr int kNearlyFound = 34102;
constexpr int kTooManyWarnings = 3014;  // the list says itself how many there are

auto orderOf(SourcePlace place) noexcept {
    const std::uint32_t line = place.isKnown() ? place.line : std::numeric_limits<std::uint32_t>::max();
    return std::pair(line, place.column);
}

}  // namespace

void ProblemList::add(Severity severity, int code, const VariantArray& arguments, SourcePlace place) {
    add({severity, code, Exception(code, arguments).getMessage(), place});
}

void ProblemList::add(const Exception& error) {
    add({Severity::Error, error.getCode(), error.getMessage(), error.getPlace()});
}

void ProblemList::write(const LogRecord& record) {
    if (record.severity != Severity::Error) add(record);
}

void ProblemList::add(const LogRecord& problem) {
    if (problem.code == kTooManyWarnings) return;
    if (end_.isKnown() && problem.place.isKnown() && orderOf(problem.place) >= orderOf(end_)) return;
    if (++counts_[static_cast<std::size_t>(problem.severity)] > getLimit()) {
        ++leftOut_;
    } else {
        problems_.push_back(problem);
    }
}

Vector<LogRecord> ProblemList::takeSorted() {
    // Where a rule and a render tell the same, the more severe one counts.
    std::ranges::stable_sort(problems_, [](const LogRecord& a, const LogRecord& b) {
        return std::pair(orderOf(a.place), b.severity) < std::pair(orderOf(b.place), a.severity);
    });
    std::set<std::tuple<std::uint32_t, std::uint32_t, int, std::string>> told;
    SourcePlace explained;  // the last place of what may be the reason for a hint
    std::erase_if(problems_, [&](const LogRecord& p) {
        if (p.severity == Severity::Error || p.code == kNotFound || p.code == kNearlyFound) explained = p.place;
        if (p.severity == Severity::Hint && p.place.isKnown() && p.place == explained) return true;
        return !told.emplace(p.place.line, p.place.column, p.code, p.message.toUtf8()).second;
    });
    return std::move(problems_);
}

}  // namespace VEXA
