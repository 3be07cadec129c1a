#include "tests/load/MixedDocuments.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "vexa/engine/VexaEngine.h"
#include "vexa/support/core/Log.h"
#include "vexa/surfaces/DisplayListSurface.h"
#include "vexa/surfaces/SvgSurface.h"
#include "vexa/surfaces/cairo/CairoSurface.h"

namespace VEXA::Testing {
namespace {

namespace fs = std::filesystem;

/// PNG and PDF take ten times as long as the others.
enum class Format { Svg, DisplayList, Pdf, Png };
constexpr Format kFormats[] = {Format::Svg, Format::DisplayList, Format::Pdf, Format::Svg, Format::Png};

std::string contentOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void addExamples(std::vector<std::string>& documents) {
    std::vector<fs::path> paths;
    for (const auto& entry : fs::directory_iterator(VEXA_SOURCE_DIR "/examples")) {
        if (entry.path().extension() == ".xml") paths.push_back(entry.path());
    }
    if (paths.empty()) throw std::runtime_error("no examples in " VEXA_SOURCE_DIR "/examples");
    std::ranges::sort(paths);
    for (const fs::path& path : paths) documents.push_back(contentOf(path));
}

std::string root(const std::string& content) {
    return "<root xmlns=\"http://vexa-charts.org/2008/vx\" width=\"300\" height=\"200\">" + content + "</root>";
}

void addWrongOnes(std::vector<std::string>& documents) {
    documents.insert(
        documents.end(),
        {
            "",
            "no XML",
            "<root/>",
            root("<pie><slice value=\"3\"></pie>"),
            root("<pie><slice value=\"three\"/></pie>"),
            root("<pie fill=\"url(#nothing)\"><slize value=\"3\"/></pie>"),
            root("<plot-area><bar-chart><serie/></bar-chart></plot-area>"),
            root("<plot-area><category-axis/><value-axis unit=\"-1\"/></plot-area>"),
            root("<spider><spider-axis id=\"a\" min=\"0\" max=\"1\"/><spider-serie><spider-data-point value=\"1\"/>"
                 "</spider-serie></spider>"),
            root("<spider draw-web=\"true\" unit-frequency=\"1e-9\"><spider-axis id=\"a\" min=\"0\" "
                 "max=\"1e9\"/></spider>"),
            root(std::string(300, '<') + "a>"),
            root("<title value=\"" + std::string(5000, 'w') + "\"/>"),
            root(
                "<defs><linear-gradient id=\"a\" href=\"#a\"/></defs><pie><slice value=\"1\" fill=\"url(#a)\"/></pie>"),
        });
}

void addTexts(std::vector<std::string>& documents) {
    const char* const texts[] = {"Отчёт за год", "تقرير السنة (2024)",
                                 "דוח שנתי",     "年度报告 合計",
                                 "रिपोर्ट वर्ष",   "Laporan \xF0\x9F\x98\x80 tahun",
                                 "AVATAR Tokyo", "ﬁnal e\xCC\x81te\xCC\x81"};
    const char* const families[] = {"sans-serif", "Noto Sans Arabic, serif", "Noto Sans CJK JP", "No Such Family"};
    for (std::size_t i = 0; i < std::size(texts) * std::size(families); ++i) {
        const std::string text = texts[i / std::size(families)];
        const std::string weight = i % 3 == 0 ? "bold" : "normal";
        documents.push_back(root("<title value=\"" + text + "\" font-family=\"" + families[i % std::size(families)] +
                                 "\" font-size=\"" + std::to_string(8 + i) + "\" font-weight=\"" + weight + "\"/>"));
    }
}

SmartPtr<RenderContext> surfaceFor(Format format, SmartPtr<IO::Stream> out) {
    switch (format) {
        case Format::Svg:
            return make<SvgSurface>(std::move(out));
        case Format::DisplayList:
            return make<DisplayListSurface>(std::move(out));
        case Format::Pdf:
            return CairoSurface::pdf(std::move(out));
        case Format::Png:
            break;
    }
    return CairoSurface::png(std::move(out));
}

struct Messages final : LogSink {
    explicit Messages(std::string& all) noexcept : text(all) {}
    void write(const LogRecord& record) override { text += record.message.toUtf8() + '\n'; }
    std::string& text;
};

}  // namespace

MixedDocuments::MixedDocuments() {
    addExamples(documents_);
    addWrongOnes(documents_);
    addTexts(documents_);
}

std::size_t MixedDocuments::cycle() const noexcept { return documents_.size() * std::size(kFormats); }

std::string MixedDocuments::render(std::size_t i) const {
    const std::string& document = documents_[i % documents_.size()];
    std::string result;
    Messages messages(result);
    const LogScope scope(messages);
    const auto out = make<IO::MemoryStream>();
    try {
        const Format format = kFormats[(i + i / documents_.size()) % std::size(kFormats)];
        VexaEngine::renderPage(make<IO::ViewStream>(document), surfaceFor(format, out));
        result += out->bytes();
    } catch (const Exception& error) {
        result += error.what();
    }
    return result;
}

}  // namespace VEXA::Testing
