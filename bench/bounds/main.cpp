// What documents cost beside what SECURITY.md allows them: memory and processor time, on every surface.
// usage: vexa_bounds [FILE...]   the documents in the files; without any, those that ask for much more than they hold
//
// Exit status 1 when one of them is beyond a bound.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include "fuzz/support/DocumentTree.h"
#include "tests/regressions/budget/Cost.h"
#include "tests/sweeps/Attacks.h"
#include "vexa/surfaces/cairo/CairoSurface.h"

namespace {

using namespace VEXA;
using Testing::Picture;

const struct {
    const char* name;
    Picture picture;
    Fuzz::SurfaceMaker make;
} kSurfaces[] = {
    {"svg", Picture::Vector, &Fuzz::svgSurface},
    {"json", Picture::Vector, &Fuzz::displayListSurface},
    {"pdf", Picture::Pdf, [](SmartPtr<IO::Stream> out, SizeF) { return CairoSurface::pdf(std::move(out)); }},
    {"png", Picture::Png, [](SmartPtr<IO::Stream> out, SizeF) { return CairoSurface::png(std::move(out)); }},
};

/// The part of a bound that is used at most, and on which surface.
struct Share {
    double part = 0;
    const char* surface = "";

    void add(double used, double allowed, const char* name) {
        if (used / allowed > part) *this = {used / allowed, name};
    }
    void add(const Share& other) {
        if (other.part > part) *this = other;
    }
};

struct Shares {
    Share memory, time;
};

/// Prints a line for the document.
Shares measure(const std::string& name, const std::string& document) {
    Shares shares;
    for (const auto& surface : kSurfaces) {
        const Testing::Cost cost = Testing::costOf(document, surface.picture, surface.make);
        shares.memory.add(cost.bytes, cost.bytesAllowed, surface.name);
        shares.time.add(cost.seconds, cost.secondsAllowed, surface.name);
    }
    std::printf("%-72.72s %10zu %7.1f%% %-4s %7.1f%% %-4s\n", name.c_str(), document.size(), 100 * shares.memory.part,
                shares.memory.surface, 100 * shares.time.part, shares.time.surface);
    std::fflush(stdout);
    return shares;
}

/// The document in a file, which for the fuzz target of trees holds the steps that make it.
std::string documentIn(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) throw std::runtime_error(file + " cannot be read");
    std::string content{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    if (file.find("/fuzz_document_tree/") == std::string::npos) return content;
    return Fuzz::documentOf(std::vector<std::uint8_t>(content.begin(), content.end()));
}

int run(int argc, char** argv) {
    Shares most;
    const auto add = [&](const Shares& shares) {
        most.memory.add(shares.memory);
        most.time.add(shares.time);
    };
    std::printf("%-72s %10s %13s %13s\n", "document", "bytes", "memory used", "time used");
    for (int i = 1; i < argc; ++i) add(measure(argv[i], documentIn(argv[i])));
    if (argc == 1) {
        for (const Testing::Attack& attack : Testing::attacks()) add(measure(attack.name, attack.document()));
    }
    std::printf("at most %.1f%% of the memory and %.1f%% of the time that is allowed\n", 100 * most.memory.part,
                100 * most.time.part);
    return most.memory.part < 1 && most.time.part < 1 ? EXIT_SUCCESS : EXIT_FAILURE;
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
