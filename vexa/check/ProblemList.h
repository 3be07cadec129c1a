#pragma once

#include <algorithm>
#include <cstddef>
#include <initializer_list>

#include "vexa/support/core/Log.h"
#include "vexa/support/xml/SaxParserImpl.h"

namespace VEXA {

/// Gathers what is wrong with one document, from its parser, from the log and from the rules of a check. Of each
/// severity it keeps the first Limits::kCheckedProblems and counts the others.
class ProblemList final : public ISAXParserMonitor, public LogSink {
public:
    void add(Severity severity, int code, const VariantArray& arguments, SourcePlace place);
    void add(const Exception& error);
    /// Of the parser.
    void report(const LogRecord& problem) override { add(problem); }
    std::size_t getLimit() const noexcept override { return Limits::kCheckedProblems; }
    void leaveOut(Severity) override { ++leftOut_; }
    /// Of the log. Errors are thrown as well, and whoever catches them adds them.
    void write(const LogRecord& record) override;
    bool wantsWarning(int code) const override { return std::ranges::find(known_, code) == known_.end(); }

    bool hasErrors() const noexcept { return counts_[static_cast<std::size_t>(Severity::Error)] > 0; }
    /// Problems that are added from now on do not count at this place and behind it: what stands there is not whole.
    void ignoreFrom(SourcePlace place) noexcept { end_ = place; }
    /// Warnings of these numbers from now on were told before, of the elements that cause them.
    void ignoreWarnings(std::initializer_list<int> codes) { known_.insert(known_.end(), codes); }
    /// So many that others did not tell.
    void addLeftOut(std::size_t count) noexcept { leftOut_ += count; }
    std::size_t leftOut() const noexcept { return leftOut_; }

    /// By place, those without one at the end; each once, and no hints about an element of which an
    /// error is told, or a reference that leads nowhere.
    Vector<LogRecord> takeSorted();

private:
    void add(const LogRecord& problem);

    Vector<LogRecord> problems_;
    std::size_t counts_[3] = {};
    std::size_t leftOut_ = 0;
    SourcePlace end_;
    Vector<int> known_;
};

}  // namespace VEXA
