#include "tests/sweeps/Rendering.h"

#include <expat.h>

#include <algorithm>
#include <deque>
#include <fstream>
#include <iterator>
#include <memory>
#include <new>
#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/faults/FailingAllocator.h"
#include "vexa/engine/VexaEngine.h"
#include "vexa/surfaces/DisplayListSurface.h"
#include "vexa/surfaces/SvgSurface.h"

namespace VEXA::Testing {
namespace {

struct Records final : LogSink {
    explicit Records(std::vector<LogRecord>& all) noexcept : records(all) {}
    void write(const LogRecord& record) override { records.push_back(record); }
    std::vector<LogRecord>& records;
};

/// Keeps each block as it comes, so that the output is in memory once, however long it grows.
struct Blocks final : IO::Stream {
    std::size_t read(void*, std::size_t) override { return 0; }
    void write(const void* data, std::size_t size) override {
        blocks.emplace_back(static_cast<const char*>(data), size);
    }
    std::deque<std::string> blocks;
};

template <class Surface>
Rendered render(const std::string& document) {
    Rendered rendered;
    Records records(rendered.log);
    const LogScope scope(records);
    const PeakMemory peak;
    const auto out = make<Blocks>();
    try {
        VexaEngine::renderPage(make<IO::ViewStream>(document), make<Surface>(out));
    } catch (const Exception& error) {
        rendered.error = error.what();
        rendered.place = error.getPlace();
    }
    rendered.peak = peak.bytes();
    for (const std::string& block : out->blocks) rendered.bytes += block;
    return rendered;
}

void XMLCALL onStart(void* user, const XML_Char* name, const XML_Char** attributes) {
    Markup& markup = *static_cast<Markup*>(user);
    markup.elements.emplace_back(name);
    markup.texts.emplace_back();
    for (; *attributes != nullptr; attributes += 2) markup.attributes.push_back({attributes[0], attributes[1]});
}

/// What follows is no text of an element that has one alone.
void XMLCALL onEnd(void* user, const XML_Char*) { static_cast<Markup*>(user)->texts.emplace_back(); }

void XMLCALL onText(void* user, const XML_Char* text, int length) {
    Markup& markup = *static_cast<Markup*>(user);
    markup.texts.back().append(text, static_cast<std::size_t>(length));
}

}  // namespace

Rendered renderSvg(const std::string& document) { return render<SvgSurface>(document); }
Rendered renderDisplayList(const std::string& document) { return render<DisplayListSurface>(document); }

Markup parseMarkup(const std::string& svg) {
    Markup markup;
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(XML_ParserCreate("UTF-8"),
                                                                              &XML_ParserFree);
    XML_SetUserData(parser.get(), &markup);
    XML_SetElementHandler(parser.get(), &onStart, &onEnd);
    XML_SetCharacterDataHandler(parser.get(), &onText);
    if (XML_Parse(parser.get(), svg.data(), static_cast<int>(svg.size()), XML_TRUE) != XML_STATUS_OK)
        markup.error = XML_ErrorString(XML_GetErrorCode(parser.get()));
    std::erase_if(markup.texts, [](const std::string& text) { return text.find_first_not_of('\n') == text.npos; });
    return markup;
}

std::string displayListProblem(const std::string& list) {
    if (!list.ends_with("{\"op\":\"endDocument\"}\n")) return "the document does not end";
    std::istringstream lines(list);
    for (std::string line; std::getline(lines, line);) {
        if (!nlohmann::json::accept(line)) return line;
    }
    return {};
}

std::size_t memoryBound(const std::string& document, const Rendered& rendered) {
    std::size_t elements = 0;
    for (std::size_t at = document.find('<'); at < document.size(); at = document.find('<', at + 1))
        if (document[at + 1] != '/') ++elements;
    return (std::size_t{64} << 20U) + 600 * elements + 40 * document.size() + rendered.bytes.size();
}

std::string hostDocument(const std::string& name) {
    std::ifstream file(VEXA_SOURCE_DIR "/tests/sweeps/" + name + ".xml", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

const std::vector<std::string>& hostDocuments() {
    static const std::vector<std::string> documents = {hostDocument("plot"), hostDocument("round")};
    return documents;
}

std::string withAttribute(const std::string& document, const std::string& element, const std::string& attribute,
                          const std::string& value) {
    std::size_t at = 0;
    do {
        at = document.find("<" + element, at + (at > 0 ? 1 : 0));
        if (at == document.npos) return {};
        at += 1;
    } while (document.find_first_of(" />", at) != at + element.size());
    std::string changed = document;
    const std::size_t end = document.find('>', at);
    const std::size_t present = document.find(" " + attribute + "=\"", at);
    if (present < end) changed.erase(present, document.find('"', present + attribute.size() + 3) + 1 - present);
    return changed.insert(at + element.size(), " " + attribute + "=\"" + value + "\"");
}

}  // namespace VEXA::Testing
