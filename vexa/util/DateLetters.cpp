#include "vexa/util/DateLetters.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <string_view>

namespace VEXA {

namespace {

constexpr std::size_t kFullName = 4;   // letters in a row that ask for a name in full
constexpr std::size_t kShortName = 3;  // characters of a short one

constexpr std::u32string_view kMonths[] = {U"January", U"February", U"March",     U"April",   U"May",      U"June",
                                           U"July",    U"August",   U"September", U"October", U"November", U"December"};
constexpr std::u32string_view kWeekdays[] = {U"Sunday",   U"Monday", U"Tuesday", U"Wednesday",
                                             U"Thursday", U"Friday", U"Saturday"};

std::u32string_view ordinalSuffix(std::int32_t number) noexcept {
    constexpr std::u32string_view kSuffixes[] = {U"th", U"st", U"nd", U"rd"};
    const std::int32_t last = number >= 11 && number <= 13 ? 0 : number % 10;
    return kSuffixes[last <= 3 ? last : 0];
}

/// What the letters of one run write.
struct FieldWriter {
    const DateFields& date;
    std::size_t count;
    std::u32string& out;

    /// Decimal digits, with zeros in front up to `digits` of them.
    void number(std::int64_t value, std::size_t digits) const {
        char text[24];
        const char* begin = text;
        const char* const end = std::to_chars(text, text + sizeof text, value).ptr;
        if (value < 0) out += static_cast<char32_t>(*begin++);
        const auto length = static_cast<std::size_t>(end - begin);
        out.append(digits > length ? digits - length : 0, U'0').append(begin, end);
    }
    void numberIf(bool isKnown, std::int64_t value) const {
        if (isKnown) number(value, count);
    }
    void plainIf(bool isKnown, std::int64_t value) const {
        if (isKnown) number(value, 1);
    }
    void textIf(bool isKnown, std::u32string_view text) const {
        if (isKnown) out += text;
    }
    void nameOf(std::u32string_view full) const { out += count >= kFullName ? full : full.substr(0, kShortName); }

    void year() const {
        if (date.year < 1 || (count <= 2 && date.year < 100)) return;
        number(count <= 2 ? date.year % 100 : date.year, count);
    }
    void month() const {
        const bool isName = count >= kShortName;
        if (!isName) return numberIf(date.month != 0, date.month);
        if (date.month >= 1 && date.month <= 12) nameOf(kMonths[date.month - 1]);
    }
    void weekday() const {
        if (date.year >= 1 && date.month >= 1 && date.day >= 1) nameOf(kWeekdays[date.weekday() - 1]);
    }
    void ordinal() const {
        if (date.day < 1) return;
        number(date.day, 1);
        out += ordinalSuffix(date.day);
    }
};

struct Letter {
    char32_t letter;
    void (*write)(const FieldWriter& to);
};

constexpr Letter kLetters[] = {
    {U'G', [](const FieldWriter& to) { to.textIf(to.date.year != -1, to.date.year >= 1 ? U"AD" : U"BC"); }},
    {U'y', [](const FieldWriter& to) { to.year(); }},
    {U'M', [](const FieldWriter& to) { to.month(); }},
    {U'd', [](const FieldWriter& to) { to.numberIf(to.date.day >= 1, to.date.day); }},
    {U'O', [](const FieldWriter& to) { to.ordinal(); }},
    {U'E', [](const FieldWriter& to) { to.weekday(); }},
    {U'D', [](const FieldWriter& to) { to.number(to.date.dayOfYear(), to.count); }},
    {U'F', [](const FieldWriter& to) { to.plainIf(to.date.day >= 0, to.date.day / 7); }},
    {U'w', [](const FieldWriter& to) { to.number(to.date.weekOfYear(), 1); }},
    {U'W', [](const FieldWriter& to) { to.number(to.date.weekOfMonth(), 1); }},
    {U'a', [](const FieldWriter& to) { to.textIf(to.date.hour != -1, to.date.hour < 12 ? U"AM" : U"PM"); }},
    {U'h', [](const FieldWriter& to) { to.numberIf(to.date.hour >= 0, (to.date.hour % 12 + 11) % 12 + 1); }},
    {U'K', [](const FieldWriter& to) { to.numberIf(to.date.hour >= 0, to.date.hour % 12); }},
    {U'H', [](const FieldWriter& to) { to.numberIf(to.date.hour >= 0, to.date.hour); }},
    {U'k', [](const FieldWriter& to) { to.numberIf(to.date.hour != -1, to.date.hour == 0 ? 24 : to.date.hour); }},
    {U'm', [](const FieldWriter& to) { to.numberIf(to.date.minute >= 0, to.date.minute); }},
    {U's', [](const FieldWriter& to) { to.numberIf(to.date.second >= 0, to.date.second); }},
    {U'S', [](const FieldWriter&) {}},  // dates count whole seconds
    {U'z', [](const FieldWriter& to) { to.out += U"UTC"; }},
};

const Letter* findLetter(char32_t letter) noexcept {
    const auto* const found = std::ranges::find(kLetters, letter, &Letter::letter);
    return found == std::end(kLetters) ? nullptr : found;
}

}  // namespace

bool isDateLetter(char32_t letter) noexcept { return findLetter(letter) != nullptr; }

void appendDateLetters(char32_t letter, std::size_t count, const DateFields& date, std::u32string& out) {
    if (const Letter* const found = findLetter(letter)) found->write({date, count, out});
}

}  // namespace VEXA
