#include "vexa/support/xml/DecimalPattern.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace VEXA {

namespace {

constexpr char32_t kQuote = U'\'';
constexpr char32_t kSubpatternSeparator = U';';

bool isDigitPlace(char32_t c) noexcept { return c == U'0' || c == U'#'; }
bool isNumberPart(char32_t c) noexcept { return isDigitPlace(c) || c == U',' || c == U'.'; }

int count(std::u32string_view text, char32_t c) noexcept { return static_cast<int>(std::ranges::count(text, c)); }

/// Reads one sub-pattern after the other from the front of a pattern.
class PatternReader {
public:
    PatternReader(std::u32string_view pattern, std::u32string_view minus) noexcept : rest_(pattern), minus_(minus) {}

    bool skipSeparator() noexcept { return skip(kSubpatternSeparator); }
    /// A sub-pattern's places for digits, and what stands around them; `isLast` when no other one may follow.
    std::u32string_view readSubpattern(DecimalPattern::Affixes& out, bool isLast) {
        readAffix(out.prefix, isLast, true);
        const std::u32string_view number = take(numberRun().length);
        readAffix(out.suffix, isLast, false);
        return number;
    }
    /// From the first unquoted % or ‰ so far.
    int percentShift() const noexcept { return percentShift_; }

private:
    struct Run {
        std::size_t length = 0;
        bool hasDigits = false;
    };
    /// What at the front may be places for digits: it is when it has any. At most one decimal point.
    Run numberRun() const noexcept {
        Run run;
        bool point = false;
        for (; run.length < rest_.size() && isNumberPart(rest_[run.length]); ++run.length) {
            const char32_t c = rest_[run.length];
            if (c == U'.' && std::exchange(point, true)) break;
            run.hasDigits = run.hasDigits || isDigitPlace(c);
        }
        return run;
    }

    std::u32string_view take(std::size_t length) noexcept {
        const std::u32string_view taken = rest_.substr(0, length);
        rest_.remove_prefix(taken.size());
        return taken;
    }

    void readAffix(std::u32string& out, bool isLast, bool stopAtNumber) {
        while (!rest_.empty() && (isLast || rest_.front() != kSubpatternSeparator)) {
            const Run run = stopAtNumber ? numberRun() : Run();
            if (run.hasDigits) return;
            if (run.length > 0) {
                out += take(run.length);
            } else if (const char32_t c = take(1).front(); c == kQuote) {
                readQuoted(out);
            } else {
                appendSymbol(c, out);
            }
        }
    }

    /// What follows an opening quote, up to the closing one or the end. Two quotes in a row are one, quoted or not.
    void readQuoted(std::u32string& out) {
        if (skip(kQuote)) {
            out += kQuote;
            return;
        }
        while (!rest_.empty()) {
            out += take(rest_.find(kQuote));
            if (!skip(kQuote) || !skip(kQuote)) return;
            out += kQuote;
        }
    }

    bool skip(char32_t c) noexcept {
        if (rest_.empty() || rest_.front() != c) return false;
        rest_.remove_prefix(1);
        return true;
    }

    void appendSymbol(char32_t c, std::u32string& out) {
        if (percentShift_ == 0 && c == U'%') percentShift_ = 2;
        if (percentShift_ == 0 && c == U'‰') percentShift_ = 3;
        if (c == U'-') {
            out += minus_;
        } else {
            out += c;
        }
    }

    std::u32string_view rest_;
    std::u32string_view minus_;
    int percentShift_ = 0;
};

/// Digits of the places from the first 0 on; all of them show a digit.
int minIntegerDigits(std::u32string_view places) noexcept {
    const std::size_t zero = std::min(places.find(U'0'), places.size());
    return static_cast<int>(places.size() - zero) - count(places.substr(zero), U',');
}

/// Behind the point the digits up to the last 0 show.
void readFraction(std::u32string_view places, DecimalPattern& out) {
    const std::u32string_view shown = places.substr(0, places.rfind(U'0') + 1);
    out.maxFractionDigits = static_cast<int>(places.size()) - count(places, U',');
    out.minFractionDigits = static_cast<int>(shown.size()) - count(shown, U',');
}

/// `number` is a sub-pattern's places for digits; none means those that the number itself needs.
void readPlaces(std::u32string_view number, DecimalPattern& out) {
    const std::size_t point = std::min(number.find(U'.'), number.size());
    const std::u32string_view whole = number.substr(0, point);
    out.hasDigits = !number.empty();
    out.minIntegerDigits = minIntegerDigits(whole);
    if (const std::size_t comma = whole.rfind(U','); comma != whole.npos) {
        out.groupSize = static_cast<int>(whole.size() - comma - 1);
    }
    if (point < number.size()) readFraction(number.substr(point + 1), out);
    out.endsInPoint = point < number.size() && out.maxFractionDigits == 0;
    if (count(number, U'0') > 0) return;
    // Without any 0 the number shows a digit all the same: 0.5 by `#.##` is 0.5, by `.##` it is .5 and zero is .0.
    const bool startsWithPoint = out.hasDigits && count(whole, U'#') == 0;
    (startsWithPoint ? out.minFractionDigits : out.minIntegerDigits) = 1;
}

}  // namespace

DecimalPattern DecimalPattern::parse(std::u32string_view pattern, std::u32string_view minus) {
    DecimalPattern result;
    PatternReader reader(pattern, minus);
    readPlaces(reader.readSubpattern(result.positive, false), result);
    result.percentShift = reader.percentShift();
    if (reader.skipSeparator()) reader.readSubpattern(result.negative, true);
    // A negative number must not look like a positive one.
    if (result.negative == Affixes() || result.negative == result.positive) {
        result.negative = {std::u32string(minus) + result.positive.prefix, result.positive.suffix};
    }
    return result;
}

}  // namespace VEXA
