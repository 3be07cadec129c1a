#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "vexa/support/core/Stream.h"
#include "vexa/support/drawing/RenderContext.h"

namespace VEXA::Cli {

/// What the program can write.
enum class OutputFormat : std::uint8_t { Svg, Json };

/// The format of that name, in any case; none when it cannot be written.
std::optional<OutputFormat> formatNamed(std::string_view name);

/// The extension of its files, without the dot; also its name.
std::string_view extensionOf(OutputFormat format);

/// All names, for messages: "svg, json".
std::string formatNames();

/// A surface that writes this format to `stream`.
SmartPtr<RenderContext> makeSurface(OutputFormat format, SmartPtr<IO::Stream> stream);

}  // namespace VEXA::Cli
