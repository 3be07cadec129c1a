// Dates as text, and texts as dates: any date by any pattern.

#include <fuzzer/FuzzedDataProvider.h>

#include "fuzz/support/Fault.h"
#include "vexa/support/core/Limits.h"
#include "vexa/util/Util.h"

using namespace VEXA;

namespace {

/// A letter gives a digit, or the longest name, "September".
constexpr std::size_t kMostCharacters = Limits::kDatePattern * 9;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    const DateTimeEx date = DateTimeEx::fromTotalSeconds(input.ConsumeIntegral<std::int64_t>());
    const auto again = DateTimeEx::parse(date.toString());
    Fuzz::expect(again == date, "a date is not read as it is written: " + date.toString());
    const auto days = input.ConsumeIntegral<std::int64_t>();
    const auto later = date.plusDays(days);
    Fuzz::expect(!later || days < 0 || DateTimeEx::dayDiff(date, *later) == days, "days are miscounted");

    const std::string pattern = input.ConsumeRemainingBytesAsString();
    const String text = Util::dateFormat(pattern, date);
    Fuzz::expect(text.length() <= kMostCharacters, "an endless date");
    if (const auto read = DateTimeEx::parse(pattern)) {
        Fuzz::expect(DateTimeEx::parse(read->toString()) == read, "a date is another one when read again: " + pattern);
    }
    return 0;
}
