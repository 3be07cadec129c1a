#pragma once

#include "tests/regressions/RegressionDocuments.h"

/// What a document may cost, on any surface, and what it does.
namespace VEXA::Testing {

/// The pictures that have bounds of their own.
enum class Picture { Vector, Png, Pdf };

/// Paints the document in a process of its own, whose peak the system knows, and expects it within the bounds.
void expectWithinBudget(const RegressionDocument& document, Picture picture, const Fuzz::SurfaceMaker& makeSurface);

}  // namespace VEXA::Testing
