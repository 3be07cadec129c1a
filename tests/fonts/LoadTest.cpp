#include <cmath>
#include <thread>

#include "tests/fonts/FontTestTools.h"

namespace VEXA::Testing {
namespace {

TEST(Threads, MakeADrawingFaceOnce) {
    int made = 0;
    const auto face = compiledFace({});
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i) {
        threads.emplace_back(
            [&] { face->drawingFace([&]() -> std::shared_ptr<void> { return std::make_shared<int>(++made); }); });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(made, 1);
}

std::u32string repeated(std::u32string_view piece, std::size_t length) {
    std::u32string text;
    while (text.size() < length) text += piece;
    return text;
}

// Each of these would take minutes, and the test be stopped, if its time grew with the square of its length.
TEST(LongTexts, AreMeasuredAsTheyAreShaped) {
    constexpr std::size_t kLength = 100'000;
    const std::u32string texts[] = {
        repeated(U"a\u4E2D", kLength),
        repeated(U"\u0645\u0628 ", kLength),
        U"a" + repeated(U"\u0301", kLength),
        U"\u0645" + repeated(U"\u064B", kLength),
        U"\u0F40" + repeated(U"\u0F90", kLength),
        repeated(U"\u200D", kLength),
        repeated(U"\U0001F469\u200D", kLength),
        repeated(U"\u0915\u094D", kLength),
        repeated(U"a\u05D0", kLength),
        U"\u05D0" + repeated(U"(", kLength) + repeated(U")", kLength),
        repeated(U"\u202Ea", kLength),
        repeated(U"\u2067a", kLength),
        repeated(U" ", kLength) + U"\u4E2D",
        repeated(U"\uE000\u0301", kLength),
    };
    const auto program = systemFontService()->getFont(fontOf("sans-serif"));
    for (const std::u32string& text : texts) {
        EXPECT_GE(program->measureString(String(text)), 0);
        EXPECT_EQ(std::llround(shaped(String(text)).advance), program->measureString(String(text)));
    }
    FontManager::takeMissing();
}

}  // namespace
}  // namespace VEXA::Testing
