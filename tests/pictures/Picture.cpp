#include "tests/pictures/Picture.h"

#include <png.h>

#include <algorithm>

namespace VEXA::Testing {

namespace {

constexpr std::uint32_t kWhite = 255;

std::uint8_t onPaper(std::uint8_t value, std::uint8_t alpha) noexcept {
    return static_cast<std::uint8_t>((value * alpha + kWhite * (kWhite - alpha) + kWhite / 2) / kWhite);
}

}  // namespace

Picture::Picture(int width, int height) : width_(width), height_(height) {
    pixels_.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
}

Picture Picture::ofPng(std::string_view bytes) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_memory(&image, bytes.data(), bytes.size()) == 0) return {};
    image.format = PNG_FORMAT_RGBA;
    std::vector<std::uint8_t> read(PNG_IMAGE_SIZE(image));
    if (png_image_finish_read(&image, nullptr, read.data(), 0, nullptr) == 0) return {};
    Picture picture(static_cast<int>(image.width), static_cast<int>(image.height));
    const std::uint8_t* from = read.data();
    for (Pixel& pixel : picture.pixels_) {
        pixel = {onPaper(from[0], from[3]), onPaper(from[1], from[3]), onPaper(from[2], from[3])};
        from += 4;
    }
    return picture;
}

Picture Picture::readPpm(std::FILE* file) {
    int width = 0;
    int height = 0;
    int largest = 0;
    if (std::fscanf(file, "P6 %d %d %d", &width, &height, &largest) != 3 || largest != 255) return {};
    std::fgetc(file);  // the blank before the pixels
    Picture picture(width, height);
    static_assert(sizeof(Pixel) == 3);
    const std::size_t count = std::fread(picture.pixels_.data(), sizeof(Pixel), picture.pixels_.size(), file);
    return count == picture.pixels_.size() ? picture : Picture();
}

Pixel Picture::at(int x, int y) const noexcept {
    if (x < 0 || y < 0 || x >= width_ || y >= height_) return {};
    return pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x)];
}

void Picture::set(int x, int y, Pixel pixel) noexcept {
    if (x < 0 || y < 0 || x >= width_ || y >= height_) return;
    pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x)] = pixel;
}

bool Picture::isBlank() const noexcept {
    return std::all_of(pixels_.begin(), pixels_.end(), [](const Pixel& pixel) { return pixel == Pixel(); });
}

Picture Picture::cut(const Area& area) const {
    Picture part(area.width, area.height);
    for (int y = 0; y < area.height; ++y) {
        for (int x = 0; x < area.width; ++x) part.set(x, y, at(area.x + x, area.y + y));
    }
    return part;
}

Picture Picture::shrunk(int factor) const {
    Picture small(width_ / factor, height_ / factor);
    const int area = factor * factor;
    for (int y = 0; y < small.height_; ++y) {
        for (int x = 0; x < small.width_; ++x) {
            int sum[3] = {area / 2, area / 2, area / 2};
            for (int i = 0; i < area; ++i) {
                const Pixel pixel = at(x * factor + i % factor, y * factor + i / factor);
                sum[0] += pixel.red;
                sum[1] += pixel.green;
                sum[2] += pixel.blue;
            }
            const auto mean = [area](int total) { return static_cast<std::uint8_t>(total / area); };
            small.set(x, y, {mean(sum[0]), mean(sum[1]), mean(sum[2])});
        }
    }
    return small;
}

void Picture::paste(const Picture& other, int x, int y) {
    for (int row = 0; row < other.height_; ++row) {
        for (int column = 0; column < other.width_; ++column) set(x + column, y + row, other.at(column, row));
    }
}

void Picture::writePng(const std::string& path) const {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(width_);
    image.height = static_cast<png_uint_32>(height_);
    image.format = PNG_FORMAT_RGB;
    png_image_write_to_file(&image, path.c_str(), 0, pixels_.data(), 0, nullptr);
}

}  // namespace VEXA::Testing
