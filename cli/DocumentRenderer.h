#pragma once

#include "cli/DocumentPainter.h"
#include "cli/RenderPlan.h"

namespace VEXA::Cli {

/// Draws one document and writes its picture, whole or not at all. Whatever goes wrong is told in the result.
/// Safe from several threads at once.
RenderResult renderDocument(const RenderJob& job, const Painter& paint);

}  // namespace VEXA::Cli
