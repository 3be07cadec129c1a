#include "vexa/surfaces/cairo/PdfPages.h"

#include <new>

#include "vexa/support/core/Exception.h"
#include "vexa/support/core/Limits.h"
#include "vexa/surfaces/cairo/CairoText.h"
#include "vexa/surfaces/cairo/PdfCatalog.h"

namespace VEXA {

namespace {

constexpr double kPointsPerPixel = 0.75;  // 96 px and 72 pt to the inch

}  // namespace

cairo_status_t PdfPages::File::append(void* file, const unsigned char* data, unsigned size) noexcept {
    try {
        static_cast<File*>(file)->bytes.append(reinterpret_cast<const char*>(data), size);
        return CAIRO_STATUS_SUCCESS;
    } catch (...) {
        return CAIRO_STATUS_NO_MEMORY;
    }
}

void PdfPages::beginDocument() {
    if (context_ != nullptr) dropPage();
    if (!options_.joinsDocuments) clear();
}

CairoCanvas PdfPages::beginPage(const SizeF& size) {
    requireExtent(size);
    if (size.width > Limits::kPdfSide || size.height > Limits::kPdfSide) {
        raise(Exception(35005, {double{size.width}, double{size.height}, double{Limits::kPdfSide}}), "CairoSurface",
              __LINE__);
    }
    if (context_ != nullptr) {
        raise(UnreacheableCodeException("a page was begun before the last one ended"), "CairoSurface", __LINE__);
    }
    record_.renew();
    startPage(size.width * kPointsPerPixel, size.height * kPointsPerPixel);
    if (options_.background) paintBackground(context_.get(), *options_.background);
    return {context_.get(), kPointsPerPixel, &glyphs_, &record_, nullptr};
}

void PdfPages::startPage(double width, double height) {
    if (surface_ == nullptr) {
        surface_.reset(cairo().pdf_surface_create_for_stream(File::append, &file_, width, height));
    } else {
        cairo().pdf_surface_set_size(surface_.get(), width, height);
    }
    context_.reset(cairo().create(surface_.get()));
    requireSuccess(cairo().status(context_.get()));
}

void PdfPages::endPage() {
    const CairoPtr<cairo_t> ending = std::move(context_);
    cairo().show_page(ending.get());
    requireSuccess(cairo().status(ending.get()));
    hasPages_ = true;
}

/// Cairo keeps the operations of a page until it ends; clearing the whole page makes it forget them.
void PdfPages::dropPage() {
    context_.reset(cairo().create(surface_.get()));
    cairo().set_operator(context_.get(), CAIRO_OPERATOR_CLEAR);
    cairo().paint(context_.get());
    context_.reset();
}

void PdfPages::endDocument(const DocumentInfo& info, IO::Stream& stream) {
    addInfo(info);
    if (options_.joinsDocuments) return;
    if (!hasPages_) raise(UnreacheableCodeException("a PDF needs a page; none was begun"), "CairoSurface", __LINE__);
    write(stream);
}

void PdfPages::finish(IO::Stream& stream) {
    if (context_ != nullptr) dropPage();
    if (hasPages_) write(stream);
}

/// A file that several documents are joined to is told as the first one that tells of itself.
void PdfPages::addInfo(const DocumentInfo& info) {
    if (info_.title.isEmpty() && info_.description.isEmpty()) {
        info_.title = info.title;
        info_.description = info.description;
    }
    if (info_.language.isEmpty()) info_.language = info.language;
}

void PdfPages::tell(cairo_pdf_metadata_t what, const String& text) {
    std::string utf8;
    for (const char32_t c : text.view()) appendUtf8(cairoCharacter(c), utf8);
    if (!utf8.empty()) cairo().pdf_surface_set_metadata(surface_.get(), what, utf8.c_str());
}

void PdfPages::write(IO::Stream& stream) {
    tell(CAIRO_PDF_METADATA_TITLE, info_.title);
    tell(CAIRO_PDF_METADATA_SUBJECT, info_.description);
    // Cairo writes the present time where it is given none.
    cairo().pdf_surface_set_metadata(surface_.get(), CAIRO_PDF_METADATA_CREATE_DATE, "");
    cairo().surface_finish(surface_.get());
    requireSuccess(cairo().surface_status(surface_.get()));
    if (hasLostObjects(file_.bytes)) throw std::bad_alloc();
    addToCatalog(file_.bytes, catalogEntries(info_));
    stream.write(file_.bytes);
    stream.flush();
    clear();
}

void PdfPages::clear() {
    context_.reset();
    surface_.reset();
    file_.bytes.clear();
    info_ = {};
    hasPages_ = false;
}

}  // namespace VEXA
