#pragma once

#include <string>
#include <string_view>

#include "vexa/support/drawing/RenderContext.h"

namespace VEXA {

/// Entries for the catalog of a PDF that tell of the document what its list of facts cannot: the language, and that
/// viewers show the title and not the name of the file. Empty when there is nothing to tell.
std::string catalogEntries(const DocumentInfo& info);

/// Whether a finished PDF with a plain cross-reference table lacks objects that the table names. Cairo forgets that it
/// had no memory for a font, and reports success. A file of another shape is not looked at.
bool hasLostObjects(std::string_view pdf);

/// Adds entries to the catalog of a finished PDF with a plain cross-reference table: appends the catalog again, as an
/// incremental update (ISO 32000-1, 7.5.6). A file of another shape is left as it is.
void addToCatalog(std::string& pdf, std::string_view entries);

}  // namespace VEXA
