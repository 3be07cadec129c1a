#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "vexa/style/VexaRenderContext.h"
#include "vexa/support/core/Exception.h"
#include "vexa/support/core/String.h"
#include "vexa/support/core/Vector.h"

namespace VEXA {

/// What happens to a word that is wider than a whole line.
enum class WrapMode : std::int32_t {
    KeepWords = 0,   ///< it stands on a line of its own and overflows it
    SplitWords = 1,  ///< it is split between characters
};

/// Breaks one text into lines of a width, measured in the font that is current on the surface. Made for one text and
/// dropped after use; takes linear time.
class VexaTextWrapper {
public:
    /// `maxWidth` in px. `place` is the element that a warning about too many lines (Limits::kCaptionLines) names.
    VexaTextWrapper(String text, WrapMode mode, VexaRenderContext& context, float maxWidth, SourcePlace place = {});

    /// The lines from top to bottom; a space at which a line was broken stays at its end where there is room for it.
    /// Wrapping ends before a word whose first character is wider than the line. No lines without width.
    /// Throws UnreacheableCodeException when the surface has no font.
    const Vector<String>& wrap();
    /// The measured size of each line.
    const Vector<SizeF>& getLineSizes() const noexcept { return lineSizes_; }
    /// Whether wrapping left characters out, white space aside, because they are wider than a line.
    bool isCut() const noexcept { return isCut_; }

private:
    struct Range {
        std::size_t begin = 0;
        std::size_t end = 0;
        std::size_t length() const noexcept { return end - begin; }
        bool operator==(const Range&) const = default;
    };
    struct Word : Range {
        float width = 0;              // where this is more than a line, it may be wider still
        double charactersWidth = -1;  // the sum of its characters' widths; below 0 while not needed
        bool isSplit = false;         // it is what the line before has left of a word
    };
    struct CharacterWidth {
        char32_t character = 0;
        bool known = false;
        float width = 0;
    };

    void wrapWords();
    bool buildLine();
    bool addWord();
    bool addSpace();
    void splitWord();
    void readWord();
    void measureRest();
    bool finishLine();
    bool isSurelyWide(Range range);
    SizeF measure(Range range) const;
    float widthOf(char32_t character);
    void append(Range range);

    String text_;
    WrapMode mode_;
    VexaRenderContext& context_;
    float maxWidth_;
    SourcePlace place_;
    Vector<String> lines_;
    Vector<SizeF> lineSizes_;
    bool isCut_ = false;

    std::size_t position_ = 0;
    float remaining_ = 0;
    std::u32string line_;
    Word word_;
    std::array<CharacterWidth, 64> characterWidths_{};  // the last ones measured, by their low bits
};

}  // namespace VEXA
