#pragma once

#include "vexa/support/core/Log.h"
#include "vexa/support/core/Stream.h"

namespace VEXA {

/// What a check finds.
struct CheckReport {
    Vector<LogRecord> problems;  ///< in the order of their places, those without one at the end
    std::size_t leftOut = 0;     ///< how many more there are, beyond Limits::kCheckedProblems of each severity

    /// How many of the problems are of that severity.
    std::size_t count(Severity severity) const noexcept;
};

/// Finds all that is wrong with a chart document in one run, and what will hardly look as it was meant.
///
/// It reads the document, lays it out and paints it where nobody sees it. Where a render would end with an error, the
/// check goes on: with the default for a value that cannot be read, and with the other parts of the page when one of
/// them fails. After malformed XML it judges what stands before the element that is not whole.
class DocumentCheck {
public:
    DocumentCheck() = delete;

    /// Throws nothing for what a document holds, nor when the stream cannot be read: that is a problem without a place.
    static CheckReport run(const SmartPtr<IO::Stream>& stream);
};

}  // namespace VEXA
