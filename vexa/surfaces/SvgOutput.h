#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "vexa/support/drawing/Matrix.h"
#include "vexa/surfaces/PathData.h"

namespace VEXA {

/// The growing text of an SVG document, and how its attributes are written. An attribute is given with the text that
/// opens its value (` x="`); the value and the closing mark follow.
class SvgOutput {
public:
    void raw(std::string_view text) { text_ += text; }
    void number(std::string_view start, float value, NumberWriter numbers);
    void word(std::string_view start, std::string_view value);
    void color(std::string_view start, std::uint32_t rgb);
    /// A text of the document, escaped.
    void quoted(std::string_view start, std::u32string_view value);
    void path(std::string_view start, const Path& path, NumberWriter numbers);
    /// `translate(x y)` or `matrix(a b c d e f)`; the numbers are those for x, y, e and f.
    void transform(std::string_view start, const Matrix& matrix, NumberWriter numbers);
    /// `vx-` and 13 letters or digits, then `end`.
    void id(std::string_view start, std::uint64_t id, std::string_view end = "\"");

    std::string& text() noexcept { return text_; }
    const std::string& text() const noexcept { return text_; }
    void clear() noexcept { text_.clear(); }

    /// The numbers for coordinates under a transform: a hundredth of a px is enough on the page, but where the
    /// transform enlarges them they need all their digits. Cut to Limits::kCoordinate.
    static NumberWriter numbersUnder(const Matrix& transform) noexcept;
    /// A difference between coordinates that may not show in these numbers.
    static float toleranceOf(NumberWriter numbers) noexcept;
    /// For thicknesses and sizes: a small one keeps its digits, since 0 would mean none at all; a hundred thousand thin
    /// bars beside each other still make an area.
    static NumberWriter numbersForSize(float size, NumberWriter numbers) noexcept;

private:
    std::string text_;
};

}  // namespace VEXA
