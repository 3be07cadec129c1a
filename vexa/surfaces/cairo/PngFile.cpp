#include "vexa/surfaces/cairo/PngFile.h"

#include <cmath>
#include <csetjmp>
#include <new>

#include "vexa/support/core/Exception.h"
#include "vexa/support/core/Vector.h"
#include "vexa/surfaces/cairo/PngLibrary.h"

namespace VEXA {

namespace {

/// Charts are areas of one colour and letters that come again, which filters only break up, and the fastest level finds
/// nearly all of it: six times as fast as libpng's defaults, in a file as small.
constexpr int kFastestLevel = 1;

/// What libpng's callbacks work on. libpng leaves them by longjmp, so nothing here is theirs to destroy.
struct Sink {
    std::string& out;
    std::string message;
};

void appendToSink(png_structp png, png_bytep data, std::size_t size) {
    auto& sink = *static_cast<Sink*>(pngLibrary().get_io_ptr(png));
    bool appended = true;
    try {
        sink.out.append(reinterpret_cast<const char*>(data), size);
    } catch (const std::bad_alloc&) {
        appended = false;
    }
    if (!appended) pngLibrary().error(png, "there is not enough memory");
}

void fail(png_structp png, const char* message) {
    try {
        static_cast<Sink*>(pngLibrary().get_error_ptr(png))->message = message;
    } catch (const std::bad_alloc&) {  // the failure itself is told all the same
    }
    pngLibrary().longjmp(png, 1);
}

void ignoreWarning(png_structp, const char*) {}

/// The structures of libpng while a file is written.
class PngWriter {
public:
    explicit PngWriter(Sink& sink) : png_(pngLibrary()) {
        file_ = png_.create_write_struct(PNG_LIBPNG_VER_STRING, &sink, &fail, &ignoreWarning);
        if (file_ != nullptr) info_ = png_.create_info_struct(file_);
        if (info_ == nullptr) {
            png_.destroy_write_struct(&file_, nullptr);
            throw std::bad_alloc();
        }
        png_.set_write_fn(file_, &sink, &appendToSink, nullptr);
    }
    ~PngWriter() { png_.destroy_write_struct(&file_, &info_); }
    PngWriter(const PngWriter&) = delete;
    PngWriter& operator=(const PngWriter&) = delete;

    /// False when libpng gave up; the sink has its words. No object in here may need destroying: see Sink.
    bool write(const PixelImage& image, bool withAlpha, std::uint32_t pixelsPerMetre, std::uint8_t* row) {
        if (setjmp(*png_.set_longjmp_fn(file_, &std::longjmp, sizeof(std::jmp_buf))) != 0) return false;
        png_.set_IHDR(file_, info_, static_cast<png_uint_32>(image.width), static_cast<png_uint_32>(image.height), 8,
                      withAlpha ? PNG_COLOR_TYPE_RGB_ALPHA : PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                      PNG_COMPRESSION_TYPE_BASE, PNG_FILTER_TYPE_BASE);
        if (pixelsPerMetre > 0) png_.set_pHYs(file_, info_, pixelsPerMetre, pixelsPerMetre, PNG_RESOLUTION_METER);
        png_.set_compression_level(file_, kFastestLevel);
        png_.set_filter(file_, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
        png_.write_info(file_, info_);
        for (int y = 0; y < image.height; ++y) {
            fillRow(image, y, withAlpha, row);
            png_.write_row(file_, row);
        }
        png_.write_end(file_, nullptr);
        return true;
    }

private:
    static void fillRow(const PixelImage& image, int y, bool withAlpha, std::uint8_t* out) noexcept {
        const std::uint32_t* pixel = image.row(y);
        for (const std::uint32_t* end = pixel + image.width; pixel != end; ++pixel) {
            const std::uint32_t plain = withAlpha ? unmultiplied(*pixel) : *pixel;
            *out++ = static_cast<std::uint8_t>(plain >> 16U);
            *out++ = static_cast<std::uint8_t>(plain >> 8U);
            *out++ = static_cast<std::uint8_t>(plain);
            if (withAlpha) *out++ = static_cast<std::uint8_t>(plain >> 24U);
        }
    }

    const PngLibrary& png_;
    png_structp file_ = nullptr;
    png_infop info_ = nullptr;
};

/// 0 where there is nothing to write.
std::uint32_t pixelsPerMetre(float dpi) noexcept {
    constexpr double kInch = 0.0254;  // m
    constexpr double kMost = PNG_UINT_31_MAX;
    const double density = std::round(dpi / kInch);
    return density >= 1 && density <= kMost ? static_cast<std::uint32_t>(density) : 0;
}

}  // namespace

std::string encodePng(const PixelImage& image, float dpi) {
    const bool withAlpha = !image.isOpaque();
    std::string out;
    Sink sink{out, {}};
    Vector<std::uint8_t> row(static_cast<std::size_t>(image.width) * (withAlpha ? 4 : 3));
    if (!PngWriter(sink).write(image, withAlpha, pixelsPerMetre(dpi), row.data())) {
        raise(Exception(35006, {String(sink.message)}), "PngFile", __LINE__);
    }
    return out;
}

}  // namespace VEXA
