#include <cstdlib>
#include <limits>
#include <new>

#include "tests/cairo/CairoTesting.h"
#include "vexa/support/core/Exception.h"
#include "vexa/surfaces/cairo/PngFile.h"

namespace {

thread_local std::size_t largestAllocation = std::numeric_limits<std::size_t>::max();

void* allocated(std::size_t size) {
    void* const memory = size > largestAllocation ? nullptr : std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
}

}  // namespace

// This test program's own allocation, so that memory can run out where a test wants it to.
void* operator new(std::size_t size) { return allocated(size); }
void* operator new[](std::size_t size) { return allocated(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }

namespace VEXA {
namespace {

using namespace CairoTesting;

/// While it lives, an allocation of more than so many bytes fails.
struct ScarceMemory {
    explicit ScarceMemory(std::size_t largest) { largestAllocation = largest; }
    ~ScarceMemory() { largestAllocation = std::numeric_limits<std::size_t>::max(); }
};

/// Opaque, and no pixel like another one, so that the file is as large as the pixels: 3 bytes each.
std::vector<std::uint32_t> noise(int count) {
    std::vector<std::uint32_t> pixels;
    std::uint32_t state = 1;
    for (int i = 0; i < count; ++i) pixels.push_back((state = state * 1664525U + 1013904223U) >> 8U | 0xFF000000U);
    return pixels;
}

TEST(PngMemory, AFileThatDoesNotFitIsAnError) {
    const std::vector<std::uint32_t> pixels = noise(300 * 300);
    const PixelImage image{pixels.data(), 300, 300, 300};
    const std::string whole = encodePng(image, 96);
    ASSERT_GT(whole.size(), 250'000U);
    // The start of the file, its middle and its last part are the ones that no longer fit.
    for (const std::size_t largest : {2000U, 20'000U, 100'000U, 200'000U}) {
        try {
            const ScarceMemory scarce(largest);
            encodePng(image, 96);
            ADD_FAILURE() << "written with " << largest;
        } catch (const Exception& error) {
            EXPECT_EQ(error.getCode(), 35006) << largest;
            EXPECT_NE(std::string(error.what()).find("there is not enough memory"), std::string::npos) << error.what();
        }
        EXPECT_EQ(encodePng(image, 96), whole) << "nothing is left behind";
    }
}

TEST(PngMemory, NoneAtAllIsToldByTheLanguage) {
    const std::vector<std::uint32_t> pixels = noise(300);
    const ScarceMemory scarce(100);
    EXPECT_THROW(encodePng({pixels.data(), 300, 1, 300}, 0), std::bad_alloc) << "not even a row";
}

}  // namespace
}  // namespace VEXA
