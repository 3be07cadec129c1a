#pragma once

#include <cstddef>
#include <cstdint>

namespace VEXA {

/// A picture of cairo: pixels 0xAARRGGBB whose colours are multiplied with their alpha, rows from the top.
struct PixelImage {
    const std::uint32_t* pixels = nullptr;
    int width = 0;
    int height = 0;
    std::ptrdiff_t stride = 0;  ///< pixels from one row to the next

    const std::uint32_t* row(int y) const noexcept { return pixels + y * stride; }
    bool isOpaque() const noexcept;
};

/// The pixel with colours that are not multiplied; 0 where nothing shows.
std::uint32_t unmultiplied(std::uint32_t pixel) noexcept;

}  // namespace VEXA
