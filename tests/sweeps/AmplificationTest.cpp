#include <gtest/gtest.h>

#include "tests/sweeps/AmplifyingDocuments.h"
#include "tests/sweeps/Rendering.h"

namespace VEXA::Testing {
namespace {

class Amplification : public testing::TestWithParam<AmplifyingDocument> {};

TEST_P(Amplification, StaysWithinTheBoundOfMemory) {
    const std::string document = GetParam().make();
    for (const auto& render : {&renderDisplayList, &renderSvg}) {
        const Rendered rendered = render(document);
        EXPECT_LT(rendered.peak, memoryBound(document, rendered)) << rendered.error;
    }
}

INSTANTIATE_TEST_SUITE_P(Documents, Amplification, testing::ValuesIn(amplifyingDocuments()),
                         [](const auto& document) { return std::string(document.param.name); });

}  // namespace
}  // namespace VEXA::Testing
