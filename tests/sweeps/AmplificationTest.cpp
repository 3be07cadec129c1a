#include <gtest/gtest.h>

#include "tests/sweeps/Attacks.h"
#include "tests/sweeps/Rendering.h"

namespace VEXA::Testing {
namespace {

class Amplification : public testing::TestWithParam<Attack> {};

TEST_P(Amplification, StaysWithinTheBoundOfMemory) {
    const std::string document = GetParam().document();
    for (const auto& render : {&renderDisplayList, &renderSvg}) {
        const Rendered rendered = render(document);
        EXPECT_LT(rendered.peak, memoryBound(document, rendered)) << rendered.error;
    }
}

INSTANTIATE_TEST_SUITE_P(Documents, Amplification, testing::ValuesIn(attacks()),
                         [](const auto& attack) { return std::string(attack.param.name); });

}  // namespace
}  // namespace VEXA::Testing
