#include "cli/OutputFormat.h"

#include <algorithm>
#include <array>

#include "cli/FormatTable.h"
#include "vexa/surfaces/DisplayListSurface.h"
#include "vexa/surfaces/SvgSurface.h"

namespace VEXA::Cli {
namespace {

template <class Surface>
SmartPtr<RenderContext> makeSurfaceOf(SmartPtr<IO::Stream> stream, const PictureOptions&) {
    return make<Surface>(std::move(stream));
}

const auto& formats() {
    static const std::array rows = {
        FormatRow{OutputFormat::Svg, "svg", false, &makeSurfaceOf<SvgSurface>, nullptr},
        FormatRow{OutputFormat::Json, "json", false, &makeSurfaceOf<DisplayListSurface>, nullptr},
        pngFormat(),
        pdfFormat(),
    };
    return rows;
}

const FormatRow& rowOf(OutputFormat format) {
    return *std::find_if(formats().begin(), formats().end(),
                         [&](const FormatRow& row) { return row.format == format; });
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
    for (const FormatRow& row : formats()) {
        if (equalIgnoringCase(row.name, name)) return row.format;
    }
    return std::nullopt;
}

bool isBuiltIn(OutputFormat format) { return rowOf(format).make != nullptr; }

std::string_view extensionOf(OutputFormat format) { return rowOf(format).name; }

std::string formatNames(const char* separator) {
    std::string names;
    for (const FormatRow& row : formats()) {
        if (row.make == nullptr) continue;
        if (!names.empty()) names += separator;
        names += row.name;
    }
    return names;
}

SmartPtr<RenderContext> makeSurface(OutputFormat format, SmartPtr<IO::Stream> stream, const PictureOptions& options) {
    return rowOf(format).make(std::move(stream), options);
}

bool joinsDocuments(OutputFormat format) { return rowOf(format).joinsDocuments; }

JoinedPages joinPages(OutputFormat format, SmartPtr<IO::Stream> stream, const PictureOptions& options) {
    return rowOf(format).join(std::move(stream), options);
}

}  // namespace VEXA::Cli
