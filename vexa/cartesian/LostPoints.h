#pragma once

#include "vexa/cartesian/VexaDataPoint.h"
#include "vexa/support/core/Log.h"

namespace VEXA {

/// Counts the data points of a series that are left out for one reason, to tell it once, at the place of the first.
class LostPoints {
public:
    void add(const VexaDataPoint& point) noexcept {
        if (count_++ == 0) first_ = point.getPlace();
    }
    bool isEmpty() const noexcept { return count_ == 0; }
    /// Nothing when no point was lost. The count goes in front of the arguments.
    void tell(int message, VariantArray arguments = {}) const {
        if (count_ == 0) return;
        arguments.insert(arguments.begin(), count_);
        Log::warning(message, arguments, first_);
    }

private:
    std::int64_t count_ = 0;
    SourcePlace first_;
};

}  // namespace VEXA
