// Renders mixed documents for a long time in one process, and looks whether memory or descriptors are lost.
// usage: vexa_soak [RENDERS]     100,000 when not given
// Exit status 1 when resident memory grows by 1% or more after the first 1,000 renders, or a descriptor stays open.

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "tests/load/MixedDocuments.h"

namespace {

constexpr std::size_t kWarmUp = 1000;
constexpr double kGrowth = 0.01;

/// KiB of this process that are in memory.
long residentMemory() {
    std::ifstream file("/proc/self/statm");
    long total = 0;
    long resident = 0;
    file >> total >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

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
    long memory = 0;
    long descriptors = 0;
    std::size_t bytes = 0;
    for (std::size_t i = 0; i < renders; ++i) {
        bytes += documents.render(i).size();
        if (i + 1 == warmUp) {
            memory = residentMemory();
            descriptors = openDescriptors();
        }
        if ((i + 1) % 1000 == 0 && isatty(STDERR_FILENO) != 0)
            std::fprintf(stderr, "\r%zu of %zu renders, %ld KiB", i + 1, renders, residentMemory());
    }
    const long memoryAtEnd = residentMemory();
    const long descriptorsAtEnd = openDescriptors();
    const double growth = static_cast<double>(memoryAtEnd - memory) / static_cast<double>(memory);
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    std::printf(
        "%zu renders in %.0f s, %.1f MB written: %ld KiB resident after %zu renders, %ld at the end (%+.2f%%); "
        "%ld descriptors, %ld at the end\n",
        renders, seconds, static_cast<double>(bytes) / 1e6, memory, warmUp, memoryAtEnd, 100 * growth, descriptors,
        descriptorsAtEnd);
    return renders > warmUp && growth < kGrowth && descriptorsAtEnd <= descriptors ? 0 : 1;
}
