#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace VEXA::Testing {

struct Pixel {
    std::uint8_t red = 255;
    std::uint8_t green = 255;
    std::uint8_t blue = 255;
    friend bool operator==(const Pixel&, const Pixel&) = default;
};

/// A part of a picture, in pixels.
struct Area {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

/// Pixels on white paper.
class Picture {
public:
    Picture() = default;
    Picture(int width, int height);
    /// Of a PNG; what is transparent shows the paper. Empty when the bytes are no PNG.
    static Picture ofPng(std::string_view bytes);
    /// The next picture of a file of binary PPMs, one behind another. Empty when there is none.
    static Picture readPpm(std::FILE* file);

    int width() const noexcept { return width_; }
    int height() const noexcept { return height_; }
    /// White outside of the picture.
    Pixel at(int x, int y) const noexcept;
    void set(int x, int y, Pixel pixel) noexcept;
    /// Whether nothing was drawn.
    bool isBlank() const noexcept;

    /// A part of it; white where that reaches beyond.
    Picture cut(const Area& area) const;
    /// A picture in which each pixel is the mean of a square of `factor` by `factor` pixels.
    Picture shrunk(int factor) const;
    void paste(const Picture& other, int x, int y);
    void writePng(const std::string& path) const;

private:
    int width_ = 0;
    int height_ = 0;
    std::vector<Pixel> pixels_;
};

}  // namespace VEXA::Testing
