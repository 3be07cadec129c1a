#pragma once

#include "cli/OutputFormat.h"

namespace VEXA::Cli {

/// What is known of a format.
struct FormatRow {
    OutputFormat format;
    std::string_view name;
    bool joinsDocuments;
    /// Empty in a program that was built without the format.
    SmartPtr<RenderContext> (*make)(SmartPtr<IO::Stream>, const PictureOptions&);
    /// Empty also where a file holds one document.
    JoinedPages (*join)(SmartPtr<IO::Stream>, const PictureOptions&);
};

/// PNG and PDF stand in files of their own (cli/cairo): which ones, is settled when the program is built.
FormatRow pngFormat();
FormatRow pdfFormat();

}  // namespace VEXA::Cli
