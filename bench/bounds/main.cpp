// What documents cost beside what SECURITY.md allows them: memory and processor time, on every surface.
// usage: vexa_bounds [FILE...]   the documents in the files; without any, those that ask for much more than they hold
//
// Exit status 1 when one of them is beyond a bound.

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include "tests/sweeps/AmplifyingDocuments.h"
#include "vexa/engine/VexaEngine.h"
#include "vexa/support/core/Log.h"
#include "vexa/surfaces/DisplayListSurface.h"
#include "vexa/surfaces/SvgSurface.h"
#include "vexa/surfaces/cairo/CairoSurface.h"

namespace {

using namespace VEXA;

using Output = SmartPtr<IO::MemoryStream>;

struct SilentSink final : LogSink {
    void write(const LogRecord&) override {}
};

/// Of one document on one surface.
struct Cost {
    double bytes = 0;  ///< resident, above those of before
    double seconds = 0;
    std::uint64_t output = 0;
    std::uint64_t pixels = 0;
};

struct Surface {
    const char* name;
    SmartPtr<RenderContext> (*make)(const Output& out);
};

const Surface kSurfaces[] = {
    {"svg", [](const Output& out) -> SmartPtr<RenderContext> { return VEXA::make<SvgSurface>(out); }},
    {"json", [](const Output& out) -> SmartPtr<RenderContext> { return VEXA::make<DisplayListSurface>(out); }},
    {"pdf", [](const Output& out) -> SmartPtr<RenderContext> { return CairoSurface::pdf(out); }},
    {"png",
     [](const Output& out) -> SmartPtr<RenderContext> {
         return CairoSurface::png(out, {1, 0, {}});
     }},
};

double residentBytes() {
    double total = 0;
    double resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    return resident * static_cast<double>(sysconf(_SC_PAGESIZE));
}

/// The picture's width times its height, which stand at the start of a PNG; 0 for other pictures.
std::uint64_t pixelsOf(std::string_view picture) {
    if (!picture.starts_with("\x89PNG") || picture.size() < 24) return 0;
    const auto numberAt = [picture](std::size_t at) {
        std::uint64_t number = 0;
        for (std::size_t i = at; i < at + 4; ++i) number = number * 256 + static_cast<unsigned char>(picture[i]);
        return number;
    };
    return numberAt(16) * numberAt(20);
}

/// In a child, which tells the sizes of its picture; a document that is refused has none.
void render(const std::string& document, const Surface& surface, int told) {
    SilentSink silent;
    const LogScope scope(silent);
    const auto out = make<IO::MemoryStream>();
    try {
        VexaEngine::renderPage(make<IO::ViewStream>(document), surface.make(out));
    } catch (const Exception&) {
    }
    const std::uint64_t sizes[2] = {out->bytes().size(), pixelsOf(out->bytes())};
    _exit(write(told, sizes, sizeof sizes) == sizeof sizes ? 0 : 1);
}

Cost costOf(const std::string& document, const Surface& surface) {
    int ends[2] = {};
    if (pipe(ends) != 0) throw std::runtime_error("no pipe");
    const double before = residentBytes();
    const pid_t child = fork();
    if (child == 0) render(document, surface, ends[1]);
    close(ends[1]);
    std::uint64_t sizes[2] = {};
    const bool isTold = read(ends[0], sizes, sizeof sizes) == sizeof sizes;
    close(ends[0]);
    rusage usage{};
    int status = 1;
    wait4(child, &status, 0, &usage);
    if (!isTold || status != 0) throw std::runtime_error("a render ended early");
    Cost cost{static_cast<double>(usage.ru_maxrss) * 1024 - before, 0, sizes[0], sizes[1]};
    for (const timeval& time : {usage.ru_utime, usage.ru_stime})
        cost.seconds += static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    return cost;
}

/// Every attribute's bytes are bytes of the document. A stream in memory needs three times its output while it grows.
double bytesAllowed(const std::string& document, const Cost& cost) {
    const auto elements = static_cast<double>(std::ranges::count(document, '<'));
    return 64.0 * 1024 * 1024 + 600 * elements + 40 * static_cast<double>(document.size()) +
           3 * static_cast<double>(cost.output) + 4 * static_cast<double>(cost.pixels);
}

double secondsAllowed(const std::string& document, const Cost& cost) {
    constexpr std::size_t kMegabyte = 1'000'000;
    const std::size_t started = std::max<std::size_t>(1, (document.size() + kMegabyte - 1) / kMegabyte);
    return 2 * static_cast<double>(started) + 1e-7 * static_cast<double>(cost.pixels);
}

/// The largest shares of what is allowed, over all documents.
struct Worst {
    double memory = 0, time = 0;
};

/// Prints a line for the document; its numbers are those of the surface that comes nearest to its bound.
void measure(const std::string& name, const std::string& document, Worst& worst) {
    Worst own;
    const char* ofMemory = "";
    const char* ofTime = "";
    for (const Surface& surface : kSurfaces) {
        const Cost cost = costOf(document, surface);
        const double memory = cost.bytes / bytesAllowed(document, cost);
        const double time = cost.seconds / secondsAllowed(document, cost);
        if (memory > own.memory) own.memory = memory, ofMemory = surface.name;
        if (time > own.time) own.time = time, ofTime = surface.name;
    }
    std::printf("%-44.44s %10zu %7.1f%% %-4s %7.1f%% %-4s\n", name.c_str(), document.size(), 100 * own.memory, ofMemory,
                100 * own.time, ofTime);
    std::fflush(stdout);
    worst = {std::max(worst.memory, own.memory), std::max(worst.time, own.time)};
}

std::string contentOf(const char* file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) throw std::runtime_error(std::string(file) + " cannot be read");
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

int run(int argc, char** argv) {
    Worst worst;
    std::printf("%-44s %10s %12s %12s\n", "document", "bytes", "memory used", "time used");
    for (int i = 1; i < argc; ++i) measure(argv[i], contentOf(argv[i]), worst);
    if (argc == 1) {
        for (const auto& document : Testing::amplifyingDocuments()) measure(document.name, document.make(), worst);
    }
    std::printf("at most %.1f%% of the memory and %.1f%% of the time that is allowed\n", 100 * worst.memory,
                100 * worst.time);
    return worst.memory < 1 && worst.time < 1 ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return run(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "vexa_bounds: %s\n", error.what());
        return EXIT_FAILURE;
    }
}
