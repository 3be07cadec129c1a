// Draws many charts on eight threads, DIRECTORY/NAME.svg for each NAME.xml.
// usage: draw_many DIRECTORY CHART...
#include <atomic>
#include <cstdio>
#include <filesystem>
#include <thread>
#include <vector>

#include "vexa/engine/VexaEngine.h"
#include "vexa/surfaces/SvgSurface.h"
using namespace VEXA;

void draw(const std::filesystem::path& chart, const std::filesystem::path& directory) {
    const auto picture = make<IO::MemoryStream>();
    const auto document = make<IO::FileStream>(chart.string(), IO::FileStream::Mode::Read);
    VexaEngine::renderPage(document, make<SvgSurface>(picture));
    const std::filesystem::path name = chart.stem().string() + ".svg";
    IO::writeWholeFile((directory / name).string(), picture->bytes());
}

int main(int count, char** arguments) {
    std::atomic<int> next = 2;
    std::atomic<int> failures = 0;
    const auto work = [&] {
        for (int i = next++; i < count; i = next++) try {
                draw(arguments[i], arguments[1]);
            } catch (const Exception& error) {
                std::fprintf(stderr, "%s:%u: %s\n", arguments[i], error.getPlace().line, error.what());
                ++failures;
            }
    };
    {
        std::vector<std::jthread> threads;
        for (int i = 0; i < 8; ++i) threads.emplace_back(work);
    }  // waits for them
    return failures > 0 ? 1 : 0;
}
