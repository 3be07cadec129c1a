#pragma once

#include <array>
#include <optional>

#include "vexa/support/core/String.h"
#include "vexa/support/drawing/FontService.h"

namespace VEXA {

/// The widths of the last few long texts of a render: a layout measures each of them several times. Font services
/// remember those of short ones, since charts share them.
class LongTextWidths {
public:
    /// In characters.
    static constexpr std::size_t kLong = 4096;

    /// In units of the program, as FontProgram::measureString.
    int measure(const String& text, const SmartPtr<FontProgram>& program);

private:
    struct Entry {
        String text;
        SmartPtr<FontProgram> program;
        int width = 0;
    };

    std::array<Entry, 4> entries_;
    std::size_t next_ = 0;
};

}  // namespace VEXA
