#pragma once

#include <string>

#include "vexa/surfaces/cairo/CairoPages.h"
#include "vexa/surfaces/cairo/CairoSurface.h"
#include "vexa/surfaces/cairo/PageRecord.h"
#include "vexa/surfaces/cairo/PdfGlyphs.h"

namespace VEXA {

/// The pages of a PDF, of one document or of several.
class PdfPages final : public CairoPages {
public:
    explicit PdfPages(PdfOptions options) : options_(std::move(options)) {}

    void beginDocument() override;
    CairoCanvas beginPage(const SizeF& size) override;
    void endPage() override;
    void endDocument(const DocumentInfo& info, IO::Stream& stream) override;
    void finish(IO::Stream& stream) override;

private:
    /// The file so far. Cairo writes through C, so nothing may be thrown there.
    struct File {
        std::string bytes;
        static cairo_status_t append(void* file, const unsigned char* data, unsigned size) noexcept;
    };

    void startPage(double width, double height);
    void dropPage();
    void addInfo(const DocumentInfo& info);
    void tell(cairo_pdf_metadata_t what, const String& text);
    void write(IO::Stream& stream);
    void clear();

    PdfOptions options_;
    File file_;
    CairoPtr<cairo_surface_t> surface_;
    CairoPtr<cairo_t> context_;  ///< of the page that is open
    PageRecord record_;
    PdfGlyphs glyphs_{record_};
    DocumentInfo info_;
    bool hasPages_ = false;
};

}  // namespace VEXA
