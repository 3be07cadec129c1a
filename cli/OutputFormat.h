#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "cli/PictureOptions.h"
#include "vexa/support/core/Stream.h"
#include "vexa/support/drawing/RenderContext.h"

namespace VEXA::Cli {

/// What the program can write, PNG and PDF where it was built with them.
enum class OutputFormat : std::uint8_t { Svg, Json, Png, Pdf };

/// The format of that name, in any case, whether it is built in or not.
std::optional<OutputFormat> formatNamed(std::string_view name);

bool isBuiltIn(OutputFormat format);

/// The extension of its files, without the dot; also its name.
std::string_view extensionOf(OutputFormat format);

/// The names of those that are built in: "svg, json".
std::string formatNames(const char* separator = ", ");

/// A surface that writes this format to `stream`. REQUIRES: the format is built in.
SmartPtr<RenderContext> makeSurface(OutputFormat format, SmartPtr<IO::Stream> stream, const PictureOptions& options);

/// Documents that are drawn one after the other on one surface and become pages of one file.
struct JoinedPages {
    SmartPtr<RenderContext> surface;
    std::function<void()> finish;  ///< writes the file to the stream
};

/// Whether a file of this format has pages for several documents.
bool joinsDocuments(OutputFormat format);

/// REQUIRES: joinsDocuments(format), and the format is built in.
JoinedPages joinPages(OutputFormat format, SmartPtr<IO::Stream> stream, const PictureOptions& options);

}  // namespace VEXA::Cli
