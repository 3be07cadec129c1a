#include "cli/FormatTable.h"

// In place of the formats of the folder above, in a program built with VEXA_CAIRO=OFF.

namespace VEXA::Cli {

FormatRow pngFormat() { return {OutputFormat::Png, "png", false, nullptr, nullptr}; }

FormatRow pdfFormat() { return {OutputFormat::Pdf, "pdf", true, nullptr, nullptr}; }

}  // namespace VEXA::Cli
