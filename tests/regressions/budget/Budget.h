#pragma once

#include "tests/regressions/RegressionDocuments.h"
#include "tests/regressions/budget/Cost.h"

namespace VEXA::Testing {

inline void expectWithinBudget(const RegressionDocument& document, Picture picture,
                               const Fuzz::SurfaceMaker& makeSurface) {
    const Cost cost = costOf(document.text, picture, makeSurface);
    EXPECT_LT(cost.bytes, cost.bytesAllowed) << document.name;
}

}  // namespace VEXA::Testing
