#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <iterator>
#include <string>

#include "tests/faults/FailingAllocator.h"
#include "vexa/engine/VexaEngine.h"
#include "vexa/support/core/Log.h"
#include "vexa/surfaces/DisplayListSurface.h"
#include "vexa/surfaces/SvgSurface.h"

// Whatever allocation fails: std::bad_alloc or an error of the library comes out, nothing is lost, and the next render
// draws the same picture as ever.

namespace VEXA::Testing {
namespace {

std::string example(const std::string& name) {
    std::ifstream file(VEXA_SOURCE_DIR "/examples/" + name + ".xml", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

struct SilentSink final : LogSink {
    void write(const LogRecord&) override {}
};

template <class Surface>
std::string render(const std::string& document) {
    const auto out = make<IO::MemoryStream>();
    VexaEngine::renderPage(make<IO::ViewStream>(document), make<Surface>(out));
    return std::string(out->bytes());
}

enum class Outcome { Rendered, Failed };

/// Renders while the k-th allocation fails.
template <class Surface>
Outcome renderWithout(std::int64_t k, const std::string& document) {
    const FailAllocation failure(k);
    try {
        render<Surface>(document);
    } catch (const std::bad_alloc&) {
        EXPECT_TRUE(failure.hasFailed());
    } catch (const Exception& error) {
        EXPECT_TRUE(failure.hasFailed()) << error.what();
    }
    return failure.hasFailed() ? Outcome::Failed : Outcome::Rendered;
}

template <class Surface>
void failEveryAllocation(const std::string& document) {
    const std::string expected = render<Surface>(document);
    std::int64_t k = 1;
    for (; renderWithout<Surface>(k, document) == Outcome::Failed; ++k) {
        const std::int64_t before = liveBlocks();
        if (renderWithout<Surface>(k, document) == Outcome::Rendered) break;
        ASSERT_EQ(liveBlocks(), before) << "allocation " << k << " leaves something behind";
        ASSERT_EQ(render<Surface>(document), expected) << "after allocation " << k;
    }
    EXPECT_GT(k, 100) << "the chart is small, but not that small";
}

class AllocationFailure : public testing::TestWithParam<const char*> {
    SilentSink sink_;
    const LogScope quiet_{sink_};
};

TEST_P(AllocationFailure, LosesNothing) {
    failEveryAllocation<SvgSurface>(example(GetParam()));
    failEveryAllocation<DisplayListSurface>(example(GetParam()));
}

/// The picture that a fresh process makes after a render in which the k-th allocation failed; none failed for 0.
std::string pictureAfterFailure(std::int64_t k, const std::string& document) {
    int ends[2];
    if (pipe(ends) != 0) return "no pipe";
    const pid_t child = fork();
    if (child == 0) {
        close(ends[0]);
        renderWithout<SvgSurface>(k, document);
        const std::string picture = render<SvgSurface>(document);
        const bool isWritten = write(ends[1], picture.data(), picture.size()) == static_cast<ssize_t>(picture.size());
        _exit(isWritten && !testing::Test::HasFailure() ? 0 : 1);
    }
    close(ends[1]);
    std::string picture;
    char block[4096];
    for (ssize_t size = 0; (size = read(ends[0], block, sizeof(block))) > 0;)
        picture.append(block, static_cast<std::size_t>(size));
    close(ends[0]);
    int status = 1;
    waitpid(child, &status, 0);
    return status == 0 ? picture : "the process failed with status " + std::to_string(status);
}

/// What a process sets up at its first render, fonts of the machine included, is not set up yet. About eighty of all
/// allocations, early ones above all.
TEST_P(AllocationFailure, AtTheFirstRenderOfAProcessIsClean) {
    const std::string document = example(GetParam());
    const std::string expected = pictureAfterFailure(0, document);
    ASSERT_TRUE(expected.ends_with("</svg>\n")) << expected;
    for (std::int64_t k = 1; k < 20'000; k += 1 + k / 10) {
        ASSERT_EQ(pictureAfterFailure(k, document), expected) << "after allocation " << k;
    }
}

INSTANTIATE_TEST_SUITE_P(Chart, AllocationFailure,
                         testing::Values("axis-months", "bars-clustered", "bars-cylinders-3d", "line-markers",
                                         "area-3d", "pie-electricity", "doughnut-water", "team-skills",
                                         "pie-ellipse-gradients", "wrapped-title", "hotel-reviews"),
                         [](const auto& chart) {
                             std::string name = chart.param;
                             std::erase(name, '-');
                             return name;
                         });

}  // namespace
}  // namespace VEXA::Testing
