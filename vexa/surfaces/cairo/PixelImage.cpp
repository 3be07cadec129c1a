#include "vexa/surfaces/cairo/PixelImage.h"

#include <algorithm>

namespace VEXA {

bool PixelImage::isOpaque() const noexcept {
    constexpr std::uint64_t kTwoAlphas = 0xFF000000'FF000000U;
    for (int y = 0; y < height; ++y) {
        const std::uint32_t* pixel = row(y);
        const std::uint32_t* const end = pixel + width;
        std::uint64_t alphas = kTwoAlphas;
        for (; end - pixel >= 2; pixel += 2) alphas &= pixel[0] | std::uint64_t{pixel[1]} << 32U;  // one load
        if (pixel != end) alphas &= *pixel | 0xFF000000'00000000U;
        if (alphas != kTwoAlphas) return false;
    }
    return true;
}

std::uint32_t unmultiplied(std::uint32_t pixel) noexcept {
    const std::uint32_t alpha = pixel >> 24U;
    if (alpha == 255) return pixel;
    if (alpha == 0) return 0;
    std::uint32_t result = alpha << 24U;
    for (const unsigned shift : {0U, 8U, 16U}) {
        const std::uint32_t multiplied = (pixel >> shift) & 0xFFU;
        result |= std::min((multiplied * 255 + alpha / 2) / alpha, 255U) << shift;
    }
    return result;
}

}  // namespace VEXA
