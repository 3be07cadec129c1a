#include "vexa/util/DateFormat.h"

#include <string_view>

#include "vexa/support/core/Limits.h"
#include "vexa/support/core/Log.h"
#include "vexa/support/core/QuotedText.h"
#include "vexa/util/DateLetters.h"

namespace VEXA {

namespace {

constexpr std::u32string_view kMark = U"date:";
constexpr char32_t kQuote = U'\'';

constexpr int kTooLong = 34062;
constexpr int kUnknownLetter = 34063;
constexpr int kNoField = 34064;

bool isLetter(char32_t c) noexcept { return (c >= U'A' && c <= U'Z') || (c >= U'a' && c <= U'z'); }

/// What there is of a pattern without the mark in front.
std::u32string_view withoutMark(const String& pattern) noexcept {
    return pattern.view().substr(pattern.view().starts_with(kMark) ? kMark.size() : 0);
}

/// Takes a pattern apart, from the front to the limit.
class DatePatternReader {
public:
    struct Piece {
        std::u32string_view text;
        bool isField = false;  ///< a run of one letter; else text to write as it is
    };

    explicit DatePatternReader(const String& pattern) noexcept
        : rest_(withoutMark(pattern).substr(0, Limits::kDatePattern)) {}

    bool isAtEnd() const noexcept { return rest_.empty(); }
    /// REQUIRES: not at the end.
    Piece next() noexcept {
        const char32_t first = rest_.front();
        if (first == kQuote) return {takeQuoted()};
        if (isLetter(first)) return {take(rest_.find_first_not_of(first)), true};
        return {take(1)};
    }

private:
    std::u32string_view take(std::size_t length) noexcept {
        const std::u32string_view taken = rest_.substr(0, length);
        rest_.remove_prefix(taken.size());
        return taken;
    }
    /// The text up to the next quote or the end; where there is none, the quote itself.
    std::u32string_view takeQuoted() noexcept {
        const std::u32string_view opening = take(1);
        const std::u32string_view text = take(rest_.find(kQuote));
        take(1);
        return text.empty() ? opening : text;
    }

    std::u32string_view rest_;
};

struct PatternLetters {
    std::u32string_view firstUnknown;  ///< empty when all mean something
    bool hasField = false;
};

PatternLetters lettersOf(const String& pattern) noexcept {
    PatternLetters result;
    for (DatePatternReader reader(pattern); !reader.isAtEnd();) {
        const DatePatternReader::Piece piece = reader.next();
        if (!piece.isField) continue;
        const std::u32string_view letter = piece.text.substr(0, 1);
        const bool isKnown = isDateLetter(letter.front());
        result.hasField = result.hasField || isKnown;
        if (!isKnown && result.firstUnknown.empty()) result.firstUnknown = letter;
    }
    return result;
}

}  // namespace

void appendDate(const String& pattern, const DateFields& date, std::u32string& out) {
    for (DatePatternReader reader(pattern); !reader.isAtEnd();) {
        const DatePatternReader::Piece piece = reader.next();
        if (piece.isField) {
            appendDateLetters(piece.text.front(), piece.text.size(), date, out);
        } else {
            out += piece.text;
        }
    }
}

void checkDateFormat(const String& pattern, SourcePlace place) {
    if (withoutMark(pattern).size() > Limits::kDatePattern) {
        Log::warning(kTooLong, {static_cast<std::int64_t>(Limits::kDatePattern)}, place);
    }
    const PatternLetters letters = lettersOf(pattern);
    if (!letters.firstUnknown.empty()) {
        Log::warning(kUnknownLetter, {String(letters.firstUnknown), quoteForMessage(pattern)}, place);
    }
    if (!letters.hasField) Log::warning(kNoField, {quoteForMessage(pattern)}, place);
}

}  // namespace VEXA
