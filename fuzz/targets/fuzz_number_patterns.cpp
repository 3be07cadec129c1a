// Numbers as text: any number by any pattern and settings.

#include <fuzzer/FuzzedDataProvider.h>

#include "fuzz/support/Fault.h"
#include "vexa/support/core/Limits.h"
#include "vexa/support/xml/XmlDecimalNumberFormatter.h"
#include "vexa/util/NumberFormat.h"
#include "vexa/util/Util.h"

using namespace VEXA;

namespace {

/// A pattern with all its zeros as digits, each with a separator, and the digits of the largest float.
constexpr std::size_t kMostCharacters = (Limits::kNumberPattern + 50) * (1 + Limits::kNumberSeparator);

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    const auto value = input.ConsumeBool() ? input.ConsumeFloatingPoint<float>()
                                           : static_cast<float>(input.ConsumeIntegral<std::int16_t>()) / 100;
    const String decimal(input.ConsumeRandomLengthString(20));
    const String grouping(input.ConsumeRandomLengthString(20));
    const String minus(input.ConsumeRandomLengthString(20));
    const String pattern(input.ConsumeRemainingBytesAsString());
    const String text = XmlDecimalNumberFormatter::get().formatFloat(value, pattern, decimal, grouping, minus);
    Fuzz::expect(text.length() <= kMostCharacters, "an endless number");

    const String spec = Util::decimalFormat(value, pattern);
    std::u32string once;
    readNumberFormat(pattern).append(value, once);
    Fuzz::expect(spec == String(once), "a format read once writes another number: " + spec.toUtf8());
    return 0;
}
