#include <cmath>
#include <regex>

#include "tests/cairo/CairoTesting.h"
#include "vexa/support/core/Exception.h"
#include "vexa/surfaces/cairo/PageRecord.h"
#include "vexa/surfaces/cairo/PdfCatalog.h"

namespace VEXA {
namespace {

using namespace CairoTesting;

const Drawing kSquare = painted(solid(0xFF8000), nullptr, [](auto& c) { c.drawRectangle(20, 10, 40, 30, 0, 0); });

std::string infoOf(const std::string& pdf) { return outputOf("pdfinfo INPUT", pdf); }

/// The value behind "Title:" and the like.
std::string fact(const std::string& info, const std::string& name) {
    std::smatch found;
    return std::regex_search(info, found, std::regex("(^|\n)" + name + ": +([^\n]*)")) ? found[2].str() : "none";
}

TEST(Pdf, WithoutAnObjectOfItsTableIsNotWhole) {
    const std::string objects = "%PDF-1.5\n1 0 obj\n<< >>\nendobj\n";  // the object stands at byte 9
    const auto withEntries = [&](const std::string& second, const std::string& size) {
        return objects + "xref\n0 3\n0000000000 65535 f \n0000000009 00000 n \n" + second +
               " 00000 n \ntrailer\n<< /Size " + size + "\n>>\nstartxref\n" + std::to_string(objects.size()) +
               "\n%%EOF\n";
    };
    EXPECT_FALSE(hasLostObjects(withEntries("0000000009", "2"))) << "object 1 alone, where it belongs";
    EXPECT_TRUE(hasLostObjects(withEntries("0000000009", "3"))) << "object 1 in the place of object 2";
    EXPECT_TRUE(hasLostObjects(withEntries("9999999999", "3"))) << "behind the end";
    EXPECT_FALSE(hasLostObjects(objects + "startxref\n9\n/Size 3\n")) << "no table that can be read";
    EXPECT_FALSE(hasLostObjects(pdfOf(kSquare, {}, {400, 300})));
}

TEST(Pdf, APxIsThreeQuartersOfAPoint) {
    const std::string pdf = pdfOf(kSquare, {}, {400, 300});
    expectSound(pdf);
    EXPECT_EQ(fact(infoOf(pdf), "Page size"), "300 x 225 pts");
    EXPECT_EQ(fact(infoOf(pdf), "Pages"), "1");
    const Picture picture = renderedPdf(pdf);
    expectPixel(picture, 20, 10, 0xFFFF8000, "the upper left corner");
    expectPixel(picture, 59, 39, 0xFFFF8000, "the lower right one");
    expectPixel(picture, 60, 40, 0xFFFFFFFF, "paper");
    const Picture onBlue = renderedPdf(pdfOf(kSquare, {}, {400, 300}, {.background = colorOf(0x0000FF)}));
    expectPixel(onBlue, 5, 5, 0xFF0000FF, "the background");
    expectPixel(onBlue, 30, 30, 0xFFFF8000, "lies below");
}

TEST(Pdf, ReadersAreToldOfTheDocument) {
    const std::string pdf = pdfOf(kSquare, {"Umsätze (2024) \\ ☂", "Two bars\nand a line", "de-CH"});
    expectSound(pdf);
    const std::string info = infoOf(pdf);
    EXPECT_EQ(fact(info, "Title"), "Umsätze (2024) \\ ☂");
    EXPECT_EQ(fact(info, "Subject").substr(0, 8), "Two bars");
    EXPECT_EQ(fact(info, "CreationDate"), "none") << "the same bytes at all times";
    const std::string asRead = outputOf("qpdf --qdf --object-streams=disable INPUT - | strings", pdf);
    EXPECT_NE(asRead.find("/Lang (de-CH)"), std::string::npos);
    EXPECT_NE(asRead.find("/DisplayDocTitle true"), std::string::npos);
    const std::string noLanguage = pdfOf(kSquare, {"", "", "de) /OpenAction 5 0 R (x"});
    expectSound(noLanguage);
    EXPECT_EQ(noLanguage.find("OpenAction"), std::string::npos);
    EXPECT_EQ(noLanguage.find("/Lang"), std::string::npos);
}

TEST(PdfJoined, DocumentsBecomePages) {
    const auto stream = make<IO::MemoryStream>();
    const auto surface = CairoSurface::pdf(stream, {.background = {}, .joinsDocuments = true});
    surface->setDocumentInfo({"", "", ""});
    drawPage(*surface, written("first"), {400, 300});
    surface->setDocumentInfo({"Second title", "", "fr"});
    drawPage(*surface, written("broken"), {100, 100}, true);
    drawPage(*surface, written("second"), {200, 100});
    surface->setDocumentInfo({"Third title", "", "it"});
    drawPage(*surface, written("third"), {300, 300});
    drawPage(*surface, written("broken"), {100, 100}, true);
    EXPECT_EQ(stream->bytes(), "") << "nothing before the end";
    surface->finish();
    const std::string pdf = stream->bytes();
    expectSound(pdf);
    const std::string info = outputOf("pdfinfo -f 1 -l 9 INPUT", pdf);
    EXPECT_EQ(fact(info, "Pages"), "3");
    EXPECT_EQ(fact(info, "Page +2 size"), "150 x 75 pts");
    EXPECT_EQ(fact(info, "Title"), "Second title") << "of the first document that has one";
    EXPECT_NE(pdf.find("/Lang (fr)"), std::string::npos);
    EXPECT_EQ(plainTextOf(pdf), "first second third");
}

TEST(PdfJoined, ASecondFileStartsEmpty) {
    const auto stream = make<IO::MemoryStream>();
    const auto surface = CairoSurface::pdf(stream, {.background = {}, .joinsDocuments = true});
    surface->finish();
    EXPECT_EQ(stream->bytes(), "") << "without a page there is no file";
    drawPage(*surface, written("one"), {400, 300});
    surface->finish();
    const std::size_t first = stream->bytes().size();
    drawPage(*surface, written("one"), {400, 300});
    surface->finish();
    EXPECT_EQ(stream->bytes().substr(first), stream->bytes().substr(0, first));
}

TEST(PdfLimits, APageThatIsTooFull) {
    constexpr double kCornersAtMost = (Limits::kPdfBytes - PageRecord::kOperation) / PageRecord::kCorner;
    const auto stream = make<IO::MemoryStream>();
    const auto surface = CairoSurface::pdf(stream);
    const auto tooMany = PathCommand::polygon(Vector<PointF>(static_cast<std::size_t>(kCornersAtMost) + 1), true);
    const auto draw = [&](auto& c) { c.drawPath(tooMany); };
    EXPECT_EQ(codeOf([&] { drawPage(*surface, painted(solid(0xFF0000), nullptr, draw), {100, 100}); }), 35007);
    drawPage(*surface, painted(nullptr, nullptr, draw), {100, 100});
    EXPECT_GT(stream->bytes().size(), 0U) << "nothing that is painted is nothing that is kept";
}

TEST(PdfLimits, WhatAPageIsMadeOfCounts) {
    const auto polygon = PathCommand::polygon(Vector<PointF>(8), true);
    const SmartPtr<Brush> gradient = redToBlue();
    const struct {
        void (*add)(PageRecord&, const Path&, const Paint& gradient);
        double bytes;
        const char* why;
    } cases[] = {
        {[](auto& r, auto& p, auto&) { r.addShape(p, {.opacity = 1}); }, 1200 + 8 * 100, "corners of an area"},
        {[](auto& r, auto& p, auto& g) { r.addShape(p, g); }, 1200 + 8 * 100 + 2 * 200, "stops of its gradient"},
        {[](auto& r, auto&, auto&) { r.addGlyphs(28); }, 1200 + 28 * 100, "glyphs of a text"},
        {[](auto& r, auto&, auto&) { r.addPicture(); }, 4 * 1200, "an emoji"},
    };
    for (const auto& c : cases) {
        PageRecord record;
        const Paint paint = resolvePaint(gradient.get());
        const double fits = std::floor(Limits::kPdfBytes / c.bytes);
        for (double i = 0; i < fits; ++i) c.add(record, *polygon, paint);
        EXPECT_THROW(c.add(record, *polygon, paint), Exception) << c.why;
        record.renew();
        EXPECT_NO_THROW(c.add(record, *polygon, paint)) << c.why;
    }
}

/// Takes no bytes.
class FullStream final : public IO::Stream {
public:
    std::size_t read(void*, std::size_t) override { return 0; }
    void write(const void*, std::size_t) override { throw Exception(1004, {String("full"), String("no room")}); }
    using Stream::write;
};

TEST(CairoSurface, AStreamThatFailsIsTold) {
    for (const auto& surface : {CairoSurface::png(make<FullStream>()), CairoSurface::pdf(make<FullStream>())}) {
        for (int attempt = 0; attempt < 2; ++attempt) {
            EXPECT_THROW(drawPage(*surface, kSquare, {100, 100}), Exception);
        }
    }
}

TEST(CairoSurface, ARenderThatBreaksOffWritesNothing) {
    const auto stream = make<IO::MemoryStream>();
    for (const auto& surface : {CairoSurface::png(stream), CairoSurface::pdf(stream)}) {
        drawPage(*surface, written("broken"), {100, 100}, true);
        EXPECT_EQ(stream->bytes(), "");
    }
    const auto png = CairoSurface::png(stream);
    drawPage(*png, painted(solid(0xFF0000), nullptr, [](auto& c) { c.drawRectangle(0, 0, 90, 90, 0, 0); }), {50, 50},
             true);
    drawPage(*png, kSquare, {100, 100});
    const Picture picture = readPng(stream->bytes());
    EXPECT_EQ(picture.width, 100) << "the next document starts anew";
    expectPixel(picture, 5, 5, 0, "without what was drawn before");
}

}  // namespace
}  // namespace VEXA
