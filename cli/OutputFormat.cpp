#include "cli/OutputFormat.h"

#include <algorithm>
#include <array>

#include "vexa/surfaces/DisplayListSurface.h"
#include "vexa/surfaces/SvgSurface.h"

namespace VEXA::Cli {
namespace {

template <class Surface>
SmartPtr<RenderContext> makeSurfaceOf(SmartPtr<IO::Stream> stream) {
    return make<Surface>(std::move(stream));
}

struct FormatRow {
    OutputFormat format;
    std::string_view name;
    SmartPtr<RenderContext> (*make)(SmartPtr<IO::Stream>);
};

constexpr std::array kFormats = {
    FormatRow{OutputFormat::Svg, "svg", &makeSurfaceOf<SvgSurface>},
    FormatRow{OutputFormat::Json, "json", &makeSurfaceOf<DisplayListSurface>},
};

const FormatRow& rowOf(OutputFormat format) {
    return *std::find_if(kFormats.begin(), kFormats.end(), [&](const FormatRow& row) { return row.format == format; });
}

char lowerCase(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + ('a' - 'A')) : letter;
}

bool equalIgnoringCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return lowerCase(x) == lowerCase(y); });
}

}  // namespace

std::optional<OutputFormat> formatNamed(std::string_view name) {
    for (const FormatRow& row : kFormats) {
        if (equalIgnoringCase(row.name, name)) return row.format;
    }
    return std::nullopt;
}

std::string_view extensionOf(OutputFormat format) { return rowOf(format).name; }

std::string formatNames() {
    std::string names;
    for (const FormatRow& row : kFormats) {
        if (!names.empty()) names += ", ";
        names += row.name;
    }
    return names;
}

SmartPtr<RenderContext> makeSurface(OutputFormat format, SmartPtr<IO::Stream> stream) {
    return rowOf(format).make(std::move(stream));
}

}  // namespace VEXA::Cli
