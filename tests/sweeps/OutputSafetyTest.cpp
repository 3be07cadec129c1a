#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

#include "tests/sweeps/Rendering.h"

// Texts, ids, families and colours of a document reach a picture as text alone: what is read from the picture is what
// the document says, and nothing of it is markup, a script, a link or a file elsewhere.

namespace VEXA::Testing {
namespace {

const std::string kHostileTexts[] = {
    "</text><script>alert(1)</script>",
    "\"/><image\u00A0href=\"http://x.example/a.png\"/>",
    "'onload='alert(1)",
    "]]>--><!--<![CDATA[<?php?>",
    "&amp;&lt;&#x3c;&unknown;%s%n{0}{1}",
    "\\\"\\u0041\\",
    "javascript:alert(1)",
    "url(http://x.example/f.svg#a)",
    "@import'http://x.example';*{fill:url(#x)}",
    "a\u2028b\u2029c",
    "\u202Eabc\u202C\u2066d\u2069",
    "\uFFFDx\u00ADy\u200Bz",
    "\xF0\x9F\x98\x80"
    "e\u0301",
};

/// A text as it stands between double quotes in a document.
std::string quoted(const std::string& text) {
    std::string result;
    for (const char c : text) {
        if (c == '&')
            result += "&amp;";
        else if (c == '<')
            result += "&lt;";
        else if (c == '"')
            result += "&quot;";
        else
            result += c;
    }
    return result;
}

std::string documentWith(const std::string& text) {
    const std::string value = quoted(text);
    return "<root xmlns='http://vexa-charts.org/2008/vx' width='3000' height='600' theme='none' font-size='10' id=\"" +
           value + "\" font-family=\"" + value + "\"><title width='3000' height='40' value=\"" + value +
           "\"/><pie y='50' width='3000' height='400' labels-position='overflow'><slice value='1' fill='url(#h)' "
           "caption-placement='outside-end' caption=\"" +
           value + "\"/></pie><legend y='500' width='3000' height='60'><legend-item caption=\"" + value +
           "\"/></legend><defs><linear-gradient id=\"" + value +
           "\"><stop stop-color='red'/><stop offset='1'/>"
           "</linear-gradient><linear-gradient id='h' href=\"#" +
           value + "\"/></defs></root>";
}

/// How often the list holds the text.
std::ptrdiff_t countOf(const std::string& text, const std::vector<std::string>& texts) {
    return std::ranges::count(texts, text);
}

class OutputSafety : public testing::TestWithParam<std::string> {};

TEST_P(OutputSafety, ADisplayListGivesTheTextBack) {
    const Rendered rendered = renderDisplayList(documentWith(GetParam()));
    ASSERT_EQ(rendered.error, "");
    std::vector<std::string> texts;
    std::istringstream lines(rendered.bytes);
    for (std::string line; std::getline(lines, line);) {
        const auto call = nlohmann::json::parse(line);
        if (call.at("op") == "text") texts.push_back(call.at("text"));
    }
    EXPECT_EQ(countOf(GetParam(), texts), 3) << "title, slice and item:\n" << rendered.bytes;
}

TEST_P(OutputSafety, AnSvgGivesTheTextBackAndHoldsNothingButShapesAndText) {
    const Rendered rendered = renderSvg(documentWith(GetParam()));
    const Markup markup = parseMarkup(rendered.bytes);
    ASSERT_EQ(markup.error, "");
    EXPECT_EQ(countOf(GetParam(), markup.texts), 4) << "title of the picture and of the chart, slice and item:\n"
                                                    << rendered.bytes;
    const std::set<std::string> harmless = {"svg",     "title", "desc", "g",    "text",           "path",
                                            "rect",    "line",  "defs", "stop", "linearGradient", "clipPath",
                                            "ellipse", "circle"};
    for (const std::string& element : markup.elements) EXPECT_TRUE(harmless.contains(element)) << element;
    for (const auto& [name, value] : markup.attributes) {
        EXPECT_FALSE(name.starts_with("on") || name == "style" || name.find("href") != name.npos) << name;
        if (name == "font-family") continue;  // a list of quoted names
        EXPECT_EQ(value.find(GetParam()), value.npos) << name << "=" << value;
        EXPECT_TRUE(value.find("url(") == value.npos || value.starts_with("url(#")) << name << "=" << value;
    }
}

TEST_P(OutputSafety, AMessageIsOneLineThatDrivesNoTerminal) {
    const std::string document = "<root xmlns='http://vexa-charts.org/2008/vx'><pie fill=\"url(#" + quoted(GetParam()) +
                                 ")\"/><title fill=\"" + quoted(GetParam()) + "\"/></root>";
    const Rendered refused = renderSvg(document);
    EXPECT_NE(refused.error, "") << "no colour";
    std::vector<std::string> messages = {refused.error};
    for (const LogRecord& record : refused.log) messages.push_back(record.message.toUtf8());
    for (const std::string& message : messages) {
        for (const char* steering : {"\n", "\x1b", "\u2028", "\u2029", "\u202E", "\u2066", "\u00AD", "\u200B"})
            EXPECT_EQ(message.find(steering), message.npos) << message;
    }
}

INSTANTIATE_TEST_SUITE_P(Texts, OutputSafety, testing::ValuesIn(kHostileTexts));

}  // namespace
}  // namespace VEXA::Testing
