#include "tests/pictures/Renderers.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>

#include "vexa/surfaces/cairo/CairoSurface.h"

namespace VEXA::Testing {

namespace {

/// Runs a command of the shell, gives what it writes to `read`, and fails the test when the command fails.
void run(const std::string& command, const std::string& package, const std::function<void(std::FILE*)>& read) {
    constexpr int kNotFound = 127;
    std::FILE* const output = ::popen(command.c_str(), "r");
    read(output);
    const int status = ::pclose(output);
    if (WEXITSTATUS(status) == kNotFound) {
        ADD_FAILURE() << command << ": the program is missing; install the package " << package;
    } else if (status != 0) {
        ADD_FAILURE() << command << " ends with status " << status;
    }
}

std::string allOf(std::FILE* file) {
    std::string bytes;
    std::vector<char> buffer(1 << 16);
    for (std::size_t n = buffer.size(); n > 0; bytes.append(buffer.data(), n)) {
        n = std::fread(buffer.data(), 1, buffer.size(), file);
    }
    return bytes;
}

/// A length of the document's start tag, 0 when it is not there.
int pixels(const std::string& svg, const std::string& attribute) {
    const std::size_t at = svg.find(' ' + attribute + "=\"");
    if (at >= svg.find('>')) return 0;
    return static_cast<int>(std::ceil(std::stod(svg.substr(at + attribute.size() + 3))));
}

/// Documents side by side, in rows; each is an `svg` element of its own within the sheet.
class SvgSheet {
public:
    void add(const std::string& document) {
        constexpr int kWidth = 6000;  // rsvg-convert draws up to 32767 pixels a side
        Area place{x_, y_, pixels(document, "width"), pixels(document, "height")};
        if (place.x + place.width > kWidth) place.x = 0, place.y = y_ = height_;
        x_ = place.x + place.width;
        width_ = std::max(width_, x_);
        height_ = std::max(height_, place.y + place.height);
        places_.push_back(place);
        const std::string where = " x=\"" + std::to_string(place.x) + "\" y=\"" + std::to_string(place.y) + "\"";
        content_ += std::string(document).insert(document.find("<svg") + 4, where);
    }

    std::string text() const {
        return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + std::to_string(width_) + "\" height=\"" +
               std::to_string(height_) + "\">\n" + content_ + "</svg>\n";
    }
    const std::vector<Area>& places() const noexcept { return places_; }

private:
    std::string content_;
    std::vector<Area> places_;
    int x_ = 0;
    int y_ = 0;
    int width_ = 0;
    int height_ = 0;
};

}  // namespace

std::string outputFile(const std::string& name) {
    const std::filesystem::path directory = VEXA_TEST_OUTPUT;
    std::filesystem::create_directories(directory);
    return (directory / name).string();
}

Document documentOf(const Drawing& draw, SizeF page) {
    return [=](const SmartPtr<RenderContext>& surface) {
        surface->restoreState({});
        surface->beginDocument();
        surface->beginPage(page);
        draw(*surface);
        surface->endPage();
        surface->endDocument();
    };
}

std::vector<Picture> drawnAsPng(const std::vector<Document>& documents) {
    std::vector<Picture> pictures;
    for (const Document& document : documents) {
        const auto stream = make<IO::MemoryStream>();
        document(CairoSurface::png(stream));
        pictures.push_back(Picture::ofPng(stream->bytes()));
    }
    return pictures;
}

std::vector<Picture> drawnAsSvg(const std::string& name, const std::vector<Document>& documents, int fineness) {
    SvgSheet sheet;
    for (const Document& document : documents) {
        const auto stream = make<IO::MemoryStream>();
        document(make<SvgSurface>(stream));
        sheet.add(stream->bytes());
    }
    const std::string file = outputFile(name + ".svg");
    std::ofstream(file, std::ios::binary) << sheet.text();
    Picture picture;
    run("rsvg-convert --unlimited --zoom " + std::to_string(fineness) + " '" + file + "'", "librsvg2-bin",
        [&](std::FILE* output) { picture = Picture::ofPng(allOf(output)).shrunk(fineness); });
    std::vector<Picture> pictures;
    for (const Area& place : sheet.places()) pictures.push_back(picture.cut(place));
    return pictures;
}

std::vector<Picture> drawnAsPdf(const std::string& name, const std::vector<Document>& documents, int fineness) {
    constexpr int kPixelsPerInch = 96;
    const auto stream = make<IO::MemoryStream>();
    const SmartPtr<CairoSurface> surface = CairoSurface::pdf(stream, {.background = nullptr, .joinsDocuments = true});
    for (const Document& document : documents) document(surface);
    surface->finish();
    const std::string file = outputFile(name + ".pdf");
    std::ofstream(file, std::ios::binary) << stream->bytes();
    std::vector<Picture> pictures(documents.size());
    run("pdftoppm -r " + std::to_string(fineness * kPixelsPerInch) + " '" + file + "'", "poppler-utils",
        [&](std::FILE* output) {
            for (Picture& picture : pictures) picture = Picture::readPpm(output).shrunk(fineness);
        });
    return pictures;
}

}  // namespace VEXA::Testing
