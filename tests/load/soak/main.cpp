// Renders mixed documents for a long time in one process, and looks whether memory or descriptors are lost.
// usage: vexa_soak [RENDERS]     100,000 when not given
// Exit status 1 when resident memory or the address space grows by 1% or more after the first 1,000 renders, or a
// descriptor stays open.

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <limits>
#include <string>

#include "tests/load/MixedDocuments.h"

namespace {

constexpr std::size_t kWarmUp = 1000;
constexpr double kGrowth = 0.01;

/// In KiB.
struct Memory {
    long resident = 0;  ///< without the pages of files, such as fonts: those come and go with the system's cache
    long mapped = 0;    ///< the address space, such files included
};

Memory memoryInUse() {
    std::ifstream file("/proc/self/status");
    Memory memory;
    for (std::string name; file >> name; file.ignore(std::numeric_limits<std::streamsize>::max(), '\n')) {
        if (name == "RssAnon:") file >> memory.resident;
        if (name == "VmSize:") file >> memory.mapped;
    }
    return memory;
}

double growth(long before, long after) { return static_cast<double>(after - before) / static_cast<double>(before); }

long openDescriptors() {
    const std::filesystem::directory_iterator open("/proc/self/fd");
    return static_cast<long>(std::distance(begin(open), end(open)));
}

}  // namespace

int main(int argc, char** argv) {
    const std::size_t renders = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 100'000;
    const VEXA::Testing::MixedDocuments documents;
    const auto start = std::chrono::steady_clock::now();
    const std::size_t warmUp = std::max(kWarmUp, documents.cycle());
    Memory memory;
    long descriptors = 0;
    std::size_t bytes = 0;
    for (std::size_t i = 0; i < renders; ++i) {
        bytes += documents.render(i).size();
        if (i + 1 == warmUp) {
            memory = memoryInUse();
            descriptors = openDescriptors();
        }
        if ((i + 1) % 1000 == 0 && isatty(STDERR_FILENO) != 0)
            std::fprintf(stderr, "\r%zu of %zu renders, %ld KiB", i + 1, renders, memoryInUse().resident);
    }
    const Memory memoryAtEnd = memoryInUse();
    const long descriptorsAtEnd = openDescriptors();
    const double resident = growth(memory.resident, memoryAtEnd.resident);
    const double mapped = growth(memory.mapped, memoryAtEnd.mapped);
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    std::printf(
        "%zu renders in %.0f s, %.1f MB written\n"
        "%ld KiB resident after %zu renders, %ld at the end (%+.2f%%)\n"
        "%ld KiB of addresses, %ld at the end (%+.2f%%)\n"
        "%ld descriptors, %ld at the end\n",
        renders, seconds, static_cast<double>(bytes) / 1e6, memory.resident, warmUp, memoryAtEnd.resident,
        100 * resident, memory.mapped, memoryAtEnd.mapped, 100 * mapped, descriptors, descriptorsAtEnd);
    const bool isSteady = resident < kGrowth && mapped < kGrowth && descriptorsAtEnd <= descriptors;
    return renders > warmUp && isSteady ? 0 : 1;
}
