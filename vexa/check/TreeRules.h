#pragma once

#include "vexa/check/ProblemList.h"
#include "vexa/engine/VexaRoot.h"

/// What shows in a document's tree of objects alone.
namespace VEXA {

/// Where the last child of an element begins; without children the element itself.
SourcePlace lastChildPlace(const XmlObject& object);

/// Before the tree is painted, which changes it: charts without data, data points without their axis.
void checkTree(VexaRoot& root, ProblemList& problems);

/// When the tree has been painted: captions that hide each other, and grid lines, series and slices that neither the
/// document nor its theme gives a colour.
void checkVisibility(VexaRoot& root, ProblemList& problems);

}  // namespace VEXA
