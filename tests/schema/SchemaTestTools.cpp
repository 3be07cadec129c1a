#include "tests/schema/SchemaTestTools.h"

#include <cstdio>

#include "vexa/engine/VexaEngine.h"
#include "vexa/schema/MarkupText.h"
#include "vexa/schema/XmlSchema.h"
#include "vexa/support/core/Log.h"
#include "vexa/surfaces/NullSurface.h"

namespace VEXA::Testing {
namespace {

class LineLog final : public LogSink {
public:
    void write(const LogRecord& record) override { lines += record.message.toUtf8() + "\n"; }
    std::string lines;
};

std::string outputOf(const std::string& command) {
    std::FILE* const pipe = ::popen(command.c_str(), "r");
    std::string text;
    char buffer[4096];
    for (std::size_t n = 1; n > 0; text.append(buffer, n)) n = std::fread(buffer, 1, sizeof buffer, pipe);
    ::pclose(pipe);
    return text;
}

}  // namespace

void expectVerdicts(const std::vector<Judged>& cases) {
    const TestDirectory directory;
    const auto nameOf = [](std::size_t i) { return std::to_string(i) + ".xml"; };
    std::string command = "xmllint --noout --schema " + directory.write("vexa.xsd", makeXmlSchema());
    for (std::size_t i = 0; i < cases.size(); ++i) command += " " + directory.write(nameOf(i), cases[i].document);
    const std::string told = outputOf(command + " 2>&1");
    std::size_t at = 0;
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const std::string file = directory.path(nameOf(i));
        const std::size_t end = std::min(told.find(file + " validates\n", at), told.find(file + " fails to", at));
        ASSERT_NE(end, std::string::npos) << "xmllint (package libxml2-utils) said nothing of " << file << '\n' << told;
        const bool isValid = told.compare(end + file.size(), 10, " validates") == 0;
        EXPECT_EQ(isValid, cases[i].isValid) << cases[i].why << '\n' << cases[i].document << told.substr(at, end - at);
        at = told.find('\n', end) + 1;
    }
}

std::string complaints(const std::string& document) {
    LineLog log;
    const LogScope scope(log);
    try {
        VexaEngine::renderPage(make<IO::MemoryStream>(document), make<NullSurface>());
    } catch (const Exception& error) {
        log.lines += error.what() + std::string("\n");
    }
    return log.lines;
}

std::string quotedAttribute(const std::string& text) {
    std::string quoted = "\"";
    for (const char c : escapedMarkup(text)) {
        if (c == '\t' || c == '\n' || c == '\r') {
            quoted += "&#" + std::to_string(c) + ";";
        } else {
            quoted += c;
        }
    }
    return quoted + '"';
}

std::string documentAround(const Vocabulary& vocabulary, std::string_view name, const std::string& element) {
    std::string document = element;
    for (const ElementEntry* at = vocabulary.findElement(name); !at->parents.empty();) {
        const ElementEntry* const parent = vocabulary.findElement(at->parents.front());
        for (const ChildEntry& child : parent->children) {
            if (child.isRequired && child.name != at->name) document += "<" + std::string(child.name) + "/>";
        }
        // Data points of a radar chart need the axis that they name.
        if (at->name == "spider-serie") document += "<spider-axis id='body'/>";
        const std::string tag(parent->name);
        const std::string space = parent->parents.empty() ? " xmlns='http://vexa-charts.org/2008/vx'" : "";
        document = "<" + tag + space + ">" + document + "</" + tag + ">";
        at = parent;
    }
    return document;
}

}  // namespace VEXA::Testing
