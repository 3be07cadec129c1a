#include <gtest/gtest.h>

#include "tests/sweeps/Attacks.h"
#include "tests/sweeps/Rendering.h"

namespace VEXA::Testing {
namespace {

class Amplification : public testing::TestWithParam<Attack> {};

TEST_P(Amplification, StaysWithinTheBoundsOfMemoryAndTime) {
    const std::string document = GetParam().document();
    for (const auto& render : {&renderDisplayList, &renderSvg}) {
        const Rendered rendered = render(document);
        EXPECT_LT(rendered.peak, memoryBound(document, rendered)) << rendered.error;
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) && defined(NDEBUG)
        EXPECT_LT(rendered.seconds, timeBound(document)) << rendered.bytes.size() << " bytes";
#endif
    }
}

INSTANTIATE_TEST_SUITE_P(Documents, Amplification, testing::ValuesIn(attacks().begin(), attacks().end()),
                         [](const auto& attack) { return std::string(attack.param.name); });

}  // namespace
}  // namespace VEXA::Testing
