#include "vexa/support/values/LocalForms.h"

#include <algorithm>
#include <array>
#include <optional>

#include "vexa/support/core/DateTimeEx.h"
#include "vexa/support/core/Format.h"
#include "vexa/support/values/TextScanner.h"

namespace VEXA {

namespace {

constexpr std::size_t kLongestText = 64;  // no number that can be guessed comes near
constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kMinus = "\u2212";
constexpr std::string_view kSigns[] = {"%", "$", "\u20AC", "\u00A3", "\u00A5"};

using ThreeNumbers = std::array<int, 3>;

bool isDigit(char c) noexcept { return c >= '0' && c <= '9'; }

/// Three numbers with the same mark between them.
struct DateParts {
    ThreeNumbers numbers{};
    std::array<std::size_t, 3> digits{};

    bool read(std::string_view text, char mark) {
        std::size_t at = 0;
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            if (i > 0 && (at == text.size() || text[at++] != mark)) return false;
            for (; at < text.size() && isDigit(text[at]) && digits[i] < 4; ++at, ++digits[i])
                numbers[i] = numbers[i] * 10 + (text[at] - '0');
            if (digits[i] == 0) return false;
        }
        return at == text.size();
    }
};

/// Year, month and day, when there is such a day.
std::optional<ThreeNumbers> validDay(int year, int month, int day) {
    if (!DateTimeEx::isValid(year, month, day)) return {};
    return ThreeNumbers{year, month, day};
}

std::optional<ThreeNumbers> readDay(std::string_view text) {
    for (const char mark : {'.', '/', '-'}) {
        DateParts parts;
        if (!parts.read(text, mark)) continue;
        const auto [first, second, third] = parts.numbers;
        if (parts.digits[0] == 4) return validDay(first, second, third);
        if (parts.digits[2] != 4) return {};
        const auto dayFirst = validDay(third, second, first);
        return dayFirst ? dayFirst : validDay(third, first, second);
    }
    return {};
}

/// `9:30`, `09:30:15`, `09:30:15.250Z` or `09:30+01:00`.
std::optional<ThreeNumbers> readTime(std::string_view text) {
    const std::size_t end = std::min(text.find_first_not_of("0123456789:"), text.size());
    if (text.find_first_not_of("0123456789:.Z+-", end) != std::string_view::npos) return {};
    const std::string clock(text.substr(0, end));
    for (const std::string& full : {clock, clock + ":00"}) {
        DateParts parts;
        const auto& [hour, minute, second] = parts.numbers;
        if (parts.read(full, ':') && hour < 24 && minute < 60 && second < 60) return parts.numbers;
    }
    return {};
}

/// Without the first of the signs at this end of the text.
std::string_view withoutSign(std::string_view text, bool atEnd) {
    for (const std::string_view sign : kSigns) {
        if (atEnd && text.ends_with(sign)) return text.substr(0, text.size() - sign.size());
        if (!atEnd && text.starts_with(sign)) return text.substr(sign.size());
    }
    return text;
}

/// Without the word behind the last digit and a blank.
std::string_view withoutUnit(std::string_view text) {
    const std::size_t behind = text.find_last_of(kDigits) + 1;
    return behind > 0 && behind < text.size() && TextScanner::isSpace(text[behind]) ? text.substr(0, behind) : text;
}

}  // namespace

std::string withDecimalPoint(std::string text) {
    const std::size_t comma = text.rfind(',');
    const std::size_t point = text.rfind('.');
    const auto commas = std::ranges::count(text, ',');
    const auto points = std::ranges::count(text, '.');
    const bool isCommaLast = commas > 0 && (points == 0 || comma > point);
    const bool hasDecimalPoint = points == 1 && !isCommaLast;
    bool hasDecimalComma = commas == 1 && isCommaLast;
    if (hasDecimalComma && points == 0)
        hasDecimalComma = std::min(text.find_first_not_of(kDigits, comma + 1), text.size()) != comma + 4;
    if (hasDecimalComma) text[comma] = ';';
    std::erase_if(text, [&](char c) { return c == ',' || (c == '.' && !hasDecimalPoint); });
    if (hasDecimalComma) text[text.find(';')] = '.';
    return text;
}

std::string suggestDate(std::string_view text) {
    const std::string_view word = TextScanner::trim(text);
    const std::size_t gap = word.find_first_of("T ");
    const auto day = readDay(word.substr(0, gap));
    const auto time = gap == std::string_view::npos ? ThreeNumbers{} : readTime(word.substr(gap + 1));
    if (!day || !time) return {};
    const auto [year, month, date] = *day;
    const auto [hour, minute, second] = *time;
    return DateTimeEx(year, month, date, hour, minute, second).toString();
}

std::string suggestNumber(std::string_view text) {
    if (text.size() > kLongestText) return {};
    std::string number(withoutUnit(withoutSign(withoutSign(TextScanner::trim(text), false), true)));
    if (number.starts_with(kMinus)) number.replace(0, kMinus.size(), "-");
    std::erase_if(number, &TextScanner::isSpace);
    number = withDecimalPoint(std::move(number));
    return Format::parseDouble(number) ? number : std::string();
}

}  // namespace VEXA
