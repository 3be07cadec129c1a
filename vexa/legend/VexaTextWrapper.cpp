#include "vexa/legend/VexaTextWrapper.h"

#include "vexa/support/core/Limits.h"
#include "vexa/support/core/Log.h"
#include "vexa/support/values/ParseUtil.h"

namespace VEXA {

namespace {

// A word is at least this part of its characters' single widths: ligatures and joined emoji make it narrower, but not
// more than that. What is left of a long word is measured only when it may fit, so that splitting stays linear.
constexpr double kNarrowestSetting = 1.0 / 8.0;

}  // namespace

VexaTextWrapper::VexaTextWrapper(String text, WrapMode mode, VexaRenderContext& context, float maxWidth,
                                 SourcePlace place)
    : text_(std::move(text)), mode_(mode), context_(context), maxWidth_(maxWidth), place_(place) {}

const Vector<String>& VexaTextWrapper::wrap() {
    lines_.clear();
    lineSizes_.clear();
    isCut_ = !(maxWidth_ > 0) && !text_.trim().isEmpty();
    if (!(maxWidth_ > 0)) return lines_;
    const SizeF size = context_.measureText(text_);
    if (size.width <= maxWidth_) {
        lines_.push_back(text_);
        lineSizes_.push_back(size);
    } else {
        wrapWords();
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
        if (word_.isEmpty()) continue;
        if (!(widthOf(text_[word_.begin]) <= maxWidth_)) return false;
        if (!addWord()) break;
    }
    return true;
}

// False when the line is full.
bool VexaTextWrapper::addWord() {
    if (word_.width <= remaining_) {
        append(word_.begin, word_.end);
        remaining_ -= word_.width;
        return addSpace();
    }
    if (remaining_ != maxWidth_) {
        position_ = word_.begin;
    } else if (mode_ == WrapMode::SplitWords) {
        splitWord();
    } else {
        append(word_.begin, word_.end);
    }
    return false;
}

bool VexaTextWrapper::addSpace() {
    if (position_ == text_.length()) return true;
    const float width = widthOf(text_[position_]);
    if (!(width <= remaining_)) return false;
    append(position_, position_ + 1);
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
    append(begin, word_.begin);
    word_.width = remainderWidth();
    position_ = word_.begin;
}

// Goes on with what is left of a split or postponed word, which is measured already.
void VexaTextWrapper::readWord() {
    if (word_.isEmpty() || position_ != word_.begin) {
        const auto length = ParseUtil::extractWord(text_, position_).length();
        word_ = {position_ - length, position_};
        if (length > 0) word_.width = context_.measureText(text_.subString(word_.begin, length)).width;
    }
    position_ = word_.end;
}

float VexaTextWrapper::remainderWidth() {
    if (word_.charactersWidth * kNarrowestSetting > maxWidth_) return static_cast<float>(word_.charactersWidth);
    return context_.measureText(text_.subString(word_.begin, word_.end - word_.begin)).width;
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

float VexaTextWrapper::widthOf(char32_t character) {
    CharacterWidth& entry = characterWidths_[character % characterWidths_.size()];
    if (!entry.known || entry.character != character) {
        entry = {character, true, context_.measureText(String(std::u32string_view(&character, 1))).width};
    }
    return entry.width;
}

void VexaTextWrapper::append(std::size_t begin, std::size_t end) {
    line_.append(text_.view().substr(begin, end - begin));
}

}  // namespace VEXA
