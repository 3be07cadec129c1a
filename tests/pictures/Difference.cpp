#include "tests/pictures/Difference.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace VEXA::Testing {

namespace {

/// Differences of the components, and how many pixels show something; of one pixel or of a square of them.
struct Sums {
    int red = 0;
    int green = 0;
    int blue = 0;
    int painted = 0;

    Sums& operator+=(const Sums& other) noexcept {
        red += other.red;
        green += other.green;
        blue += other.blue;
        painted += other.painted;
        return *this;
    }
    float worst() const noexcept {
        return static_cast<float>(std::max({std::abs(red), std::abs(green), std::abs(blue)})) / 9;
    }
};

Sums sumsOf(const Pixel& a, const Pixel& b) noexcept {
    return {a.red - b.red, a.green - b.green, a.blue - b.blue, a != Pixel() || b != Pixel() ? 1 : 0};
}

/// The pixels of both pictures, with a margin of one.
class Squares {
public:
    Squares(const Picture& a, const Picture& b) : stride_(static_cast<std::size_t>(a.width()) + 2) {
        pixels_.reserve(stride_ * (static_cast<std::size_t>(a.height()) + 2));
        for (int y = -1; y <= a.height(); ++y) {
            for (int x = -1; x <= a.width(); ++x) pixels_.push_back(sumsOf(a.at(x, y), b.at(x, y)));
        }
    }

    Sums about(int x, int y) const noexcept {
        const Sums* row = &pixels_[static_cast<std::size_t>(y) * stride_ + static_cast<std::size_t>(x)];
        Sums sums;
        for (int i = 0; i < 3; ++i, row += stride_) {
            for (int k = 0; k < 3; ++k) sums += row[k];
        }
        return sums;
    }

private:
    std::size_t stride_;
    std::vector<Sums> pixels_;
};

Picture distance(const Picture& a, const Picture& b) {
    Picture picture(a.width(), a.height());
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const auto [red, green, blue, painted] = sumsOf(a.at(x, y), b.at(x, y));
            const auto shown = [](int component) { return static_cast<std::uint8_t>(std::abs(component)); };
            picture.set(x, y, {shown(red), shown(green), shown(blue)});
        }
    }
    return picture;
}

}  // namespace

Difference differenceOf(const Picture& a, const Picture& b) {
    if (a.width() != b.width() || a.height() != b.height()) return {.worst = 255, .mean = 255};
    const Squares squares(a, b);
    Difference difference;
    double sum = 0;
    int painted = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const Sums square = squares.about(x, y);
            if (square.painted == 0) continue;
            const float worst = square.worst();
            if (worst > difference.worst) difference = {worst, x, y, 0};
            sum += worst;
            ++painted;
        }
    }
    difference.mean = static_cast<float>(sum / std::max(painted, 1));
    return difference;
}

void writeComparison(const Picture& expected, const Picture& actual, const std::string& path) {
    constexpr int kGap = 8;
    const int width = expected.width() + kGap;
    Picture sheet(2 * width + actual.width(), std::max(expected.height(), actual.height()));
    sheet.paste(expected, 0, 0);
    sheet.paste(distance(expected, actual), width, 0);
    sheet.paste(actual, 2 * width, 0);
    sheet.writePng(path);
}

}  // namespace VEXA::Testing
