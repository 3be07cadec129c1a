#pragma once

#include <string>
#include <string_view>

#include "vexa/support/drawing/RenderContext.h"

namespace VEXA {

/// Puts the lines of a display list together: begin, then keys in the order of the calls, then end. Numbers are the
/// shortest decimals that read back as the same float, 0 for what is not finite.
class DisplayListWriter {
public:
    void begin(std::string_view operation);
    void end();

    void number(std::string_view key, float value);
    void string(std::string_view key, std::u32string_view value);
    void path(std::string_view key, const Path& path);
    /// The transform and the clips in force, where there are any.
    void placement(const DrawingState& state);
    void font(const Font& font);
    /// Nothing for a fill or a stroke that leaves no mark.
    void fill(const DrawingState& state);
    void stroke(const DrawingState& state);

    /// The lines so far; who has written them away clears it.
    std::string& text() noexcept { return text_; }

private:
    void key(std::string_view name);
    /// REQUIRES: a word without anything to escape.
    void word(std::string_view name, std::string_view value);
    void color(const Color& color);
    void matrix(std::string_view name, const Matrix& matrix);
    void clip(const ClipNode* innermost);
    void brush(std::string_view name, const Brush& brush);
    void gradient(const GradientBrush& gradient);
    void stop(const StopPoint& stop);
    void dash(const Stroke& stroke);
    void openObject();
    void openList();
    void separate();

    std::string text_;
    SmartPtr<ClipNode> lastClip_;
    std::string lastClipText_;  ///< of lastClip_: the same clip is in force for many operations
};

}  // namespace VEXA
