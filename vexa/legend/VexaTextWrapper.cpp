#include "vexa/legend/VexaTextWrapper.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "vexa/support/core/Limits.h"
#include "vexa/support/core/Log.h"
#include "vexa/support/values/ParseUtil.h"

namespace VEXA {

namespace {

// A text is at least this part of its characters' single widths: ligatures and joined emoji make it narrower, but not
// more than that.
constexpr double kNarrowestSetting = 1.0 / 8.0;
// Characters from which on a text is looked at by single widths before it is shaped, which takes much longer.
constexpr std::size_t kLongText = 500;

}  // namespace

VexaTextWrapper::VexaTextWrapper(String text, WrapMode mode, VexaRenderContext& context, float maxWidth,
                                 SourcePlace place)
    : text_(std::move(text)), mode_(mode), context_(context), maxWidth_(maxWidth), place_(place) {}

const Vector<String>& VexaTextWrapper::wrap() {
    lines_.clear();
    lineSizes_.clear();
    isCut_ = !(maxWidth_ > 0) && !text_.trim().isEmpty();
    if (!(maxWidth_ > 0)) return lines_;
    const bool isWide = isSurelyWide({0, text_.length()});
    const SizeF size = isWide ? SizeF() : context_.measureText(text_);
    if (isWide || !(size.width <= maxWidth_)) {
        wrapWords();
    } else {
        lines_.push_back(text_);
        lineSizes_.push_back(size);
    }
    return lines_;
}

void VexaTextWrapper::wrapWords() {
    position_ = 0;
    word_ = {};
    while (position_ < text_.length()) {
        isCut_ = !buildLine();
        if (isCut_ || !finishLine()) return;
    }
}

// False when a character has no room on any line.
bool VexaTextWrapper::buildLine() {
    line_.clear();
    remaining_ = maxWidth_;
    while (position_ < text_.length()) {
        readWord();
        if (word_.length() == 0) continue;
        if (!(widthOf(text_[word_.begin]) <= maxWidth_)) return false;
        if (!addWord()) break;
    }
    return true;
}

// False when the line is full.
bool VexaTextWrapper::addWord() {
    if (word_.width <= remaining_) {
        append(word_);
        remaining_ -= word_.width;
        return addSpace();
    }
    if (remaining_ != maxWidth_) {
        position_ = word_.begin;
    } else if (mode_ == WrapMode::SplitWords) {
        splitWord();
    } else {
        append(word_);
    }
    return false;
}

bool VexaTextWrapper::addSpace() {
    if (position_ == text_.length()) return true;
    const float width = widthOf(text_[position_]);
    if (!(width <= remaining_)) return false;
    append({position_, position_ + 1});
    remaining_ -= width;
    return true;
}

void VexaTextWrapper::splitWord() {
    if (word_.charactersWidth < 0) {
        word_.charactersWidth = 0;
        for (std::size_t i = word_.begin; i < word_.end; ++i) word_.charactersWidth += widthOf(text_[i]);
    }
    const std::size_t begin = word_.begin;
    for (; word_.begin < word_.end; ++word_.begin) {
        const float width = widthOf(text_[word_.begin]);
        if (!(width <= remaining_)) break;
        remaining_ -= width;
        word_.charactersWidth -= width;
    }
    append({begin, word_.begin});
    word_.isSplit = true;
    position_ = word_.begin;
}

// Goes on with a postponed word, or with what is left of a split one.
void VexaTextWrapper::readWord() {
    const float aLineAndMore = std::nextafter(maxWidth_, std::numeric_limits<float>::infinity());
    if (word_.length() == 0 || position_ != word_.begin) {
        const auto length = ParseUtil::extractWord(text_, position_).length();
        word_ = {{position_ - length, position_}};
        if (length > 0) word_.width = isSurelyWide(word_) ? aLineAndMore : measure(word_).width;
    } else if (word_.isSplit) {
        measureRest();
    }
    position_ = word_.end;
}

// What a cut takes from the width of the whole word is the line before it. It may take a little more, where letters no
// longer lie beside each other; so the rest is measured again when it may fit, and splitting stays linear.
void VexaTextWrapper::measureRest() {
    const SizeF cut = lineSizes_.back();
    word_.isSplit = false;
    word_.width -= cut.width + cut.height;
    const double characters = word_.charactersWidth * kNarrowestSetting;
    if (!(word_.width > maxWidth_ || characters > maxWidth_)) word_.width = measure(word_).width;
    if (characters > maxWidth_) word_.width = std::max(word_.width, static_cast<float>(characters));
}

// False when there are more lines than anybody reads.
bool VexaTextWrapper::finishLine() {
    if (lines_.size() == Limits::kCaptionLines) {
        Log::warning(34014, {static_cast<std::int64_t>(Limits::kCaptionLines)}, place_);
        return false;
    }
    lines_.emplace_back(line_);
    lineSizes_.push_back(context_.measureText(lines_.back()));
    return true;
}

// Whether a long text is wider than a line, as far as single widths tell.
bool VexaTextWrapper::isSurelyWide(Range range) {
    double width = 0;
    if (range.length() < kLongText) return false;
    for (; range.begin < range.end && !(width * kNarrowestSetting > maxWidth_); ++range.begin)
        width += widthOf(text_[range.begin]);
    return width * kNarrowestSetting > maxWidth_;
}

SizeF VexaTextWrapper::measure(Range range) const {
    return context_.measureText(text_.subString(range.begin, range.length()));
}

float VexaTextWrapper::widthOf(char32_t character) {
    CharacterWidth& entry = characterWidths_[character % characterWidths_.size()];
    if (!entry.known || entry.character != character) {
        entry = {character, true, context_.measureText(String(std::u32string_view(&character, 1))).width};
    }
    return entry.width;
}

void VexaTextWrapper::append(Range range) { line_.append(text_.view().substr(range.begin, range.length())); }

}  // namespace VEXA
