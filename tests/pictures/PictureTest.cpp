#include <gtest/gtest.h>

#include "tests/pictures/Difference.h"

namespace VEXA::Testing {
namespace {

constexpr Pixel kBlack{0, 0, 0};

/// 9 by 9 pixels, a column of them (or two) in grey.
Picture column(int x, std::uint8_t grey, std::uint8_t next = 255) {
    Picture picture(9, 9);
    for (int y = 0; y < 9; ++y) {
        picture.set(x, y, {grey, grey, grey});
        picture.set(x + 1, y, {next, next, next});
    }
    return picture;
}

Picture dot(Pixel pixel) {
    Picture picture(9, 9);
    picture.set(4, 4, pixel);
    return picture;
}

TEST(Difference, IsThatOfMeansOverSquares) {
    constexpr float kRows = (7 + 2 * 2.0F / 3) / 9;  // a third of the squares at both ends lies on no pixel
    struct Case {
        Picture a, b;
        float worst, mean;
        const char* why;
    };
    const Case cases[] = {
        {column(4, 0), column(4, 0), 0, 0, "the same"},
        {Picture(9, 9), Picture(9, 9), 0, 0, "two empty pages"},
        {Picture(9, 9), Picture(9, 8), 255, 255, "pages of two sizes"},
        {column(4, 0), column(5, 0), 85, 42.5F * kRows,
         "a line moved by a pixel is seen on both sides, not in the middle"},
        {column(4, 0), column(4, 96, 159), 32, 16 * kRows, "half smeared over the next pixel, less so"},
        {column(4, 100, 155), column(4, 112, 143), 4, 2 * kRows, "the same edge, smoothed otherwise, hardly"},
        {dot(kBlack), Picture(9, 9), 255.0F / 9, 255.0F / 9, "a lone pixel is in nine squares"},
        {dot({0, 255, 255}), dot({255, 0, 255}), 255.0F / 9, 255.0F / 9, "each colour component counts"},
    };
    for (const Case& c : cases) {
        EXPECT_NEAR(differenceOf(c.a, c.b).worst, c.worst, 0.01F) << c.why;
        EXPECT_NEAR(differenceOf(c.a, c.b).mean, c.mean, 0.01F) << c.why;
    }
    EXPECT_EQ(differenceOf(dot(kBlack), Picture(9, 9)).x, 3) << "the first of the worst squares is told";
}

TEST(Picture, ReadsPpmsOneBehindAnother) {
    char bytes[] = "P6\n1 2\n255\n\x01\x02\x03\x04\x05\x06P6 1 1 255\n\x07\x08\x09P6 2 2 255 abc";
    std::FILE* const file = ::fmemopen(bytes, sizeof bytes, "rb");
    const Picture first = Picture::readPpm(file);
    EXPECT_EQ(first.height(), 2);
    EXPECT_EQ(first.at(0, 1), (Pixel{4, 5, 6}));
    EXPECT_EQ(first.at(1, 1), Pixel()) << "paper beside it";
    EXPECT_EQ(Picture::readPpm(file).at(0, 0), (Pixel{7, 8, 9}));
    EXPECT_EQ(Picture::readPpm(file).width(), 0) << "a picture cut short";
    EXPECT_EQ(Picture::readPpm(file).width(), 0) << "the end";
    std::fclose(file);
}

TEST(Picture, ShrinksToMeans) {
    Picture picture(5, 2);
    picture.set(0, 0, kBlack);
    picture.set(1, 1, {0, 255, 255});
    picture.set(2, 0, kBlack);
    const Picture small = picture.shrunk(2);
    EXPECT_EQ(small.width(), 2);
    EXPECT_EQ(small.at(0, 0), (Pixel{128, 191, 191}));
    EXPECT_EQ(small.at(1, 0), (Pixel{191, 191, 191}));
}

}  // namespace
}  // namespace VEXA::Testing
