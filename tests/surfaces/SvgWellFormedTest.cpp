#include <expat.h>
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <set>

#include "tests/surfaces/SurfaceTesting.h"

namespace VEXA {
namespace {

/// What an XML parser finds in a document: how often each element, the ids, the references to ids.
struct Found {
    std::string error;
    std::map<std::string, int> elements;
    std::set<std::string> ids;
    std::set<std::string> references;
    std::string attributes;  ///< all values, one after another
};

void XMLCALL onStart(void* user, const XML_Char* name, const XML_Char** attributes) {
    Found& found = *static_cast<Found*>(user);
    ++found.elements[name];
    for (; *attributes != nullptr; attributes += 2) {
        const std::string key = attributes[0];
        const std::string value = attributes[1];
        found.attributes += value + "\n";
        if (key == "id" && !found.ids.insert(value).second) found.error = "id twice: " + value;
        if (value.starts_with("url(#")) found.references.insert(value.substr(5, value.size() - 6));
    }
}

Found parsed(const std::string& document) {
    Found found;
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(XML_ParserCreate("UTF-8"),
                                                                              &XML_ParserFree);
    XML_SetUserData(parser.get(), &found);
    XML_SetElementHandler(parser.get(), onStart, nullptr);
    if (XML_Parse(parser.get(), document.data(), static_cast<int>(document.size()), XML_TRUE) != XML_STATUS_OK) {
        found.error = XML_ErrorString(XML_GetErrorCode(parser.get()));
    }
    return found;
}

TEST(SvgWellFormed, WhateverTheNumbers) {
    for (const float number : kHostileNumbers) {
        const Found found =
            parsed(documentOf<SvgSurface>([number](RenderContext& c) { drawEverything(c, number, "sans-serif"); }));
        EXPECT_EQ(found.error, "") << number;
        EXPECT_EQ(found.ids, found.references) << "all that is used is defined, and nothing in vain";
        for (const char* word : {"nan", "NaN", "inf", "Inf"}) {
            EXPECT_EQ(found.attributes.find(word), std::string::npos) << number << " is written as " << word;
        }
    }
}

TEST(SvgWellFormed, NoTextBecomesMarkup) {
    const Found usual =
        parsed(documentOf<SvgSurface>([](RenderContext& c) { drawEverything(c, 1, "x"); }, {"x", "x", "x"}));
    ASSERT_EQ(usual.error, "");
    for (const std::string text :
         {"</text><script>alert(1)</script>", "\"/><image href=\"http://x\"/>", "' onload='x", "<![CDATA[", "]]>",
          "<!--", "-->", "<?php ?>", "&amp;&lt;&#x3c;&unknown;", "\x01\x08\x0b\x1f\x7f", "\xff\xfe", "\xed\xa0\x80",
          "\ufffe\uffff", "url(#x)", "\\", "\u2028\u202e"}) {
        const Found found =
            parsed(documentOf<SvgSurface>([&](RenderContext& c) { drawEverything(c, 1, text); }, {text, text, text}));
        EXPECT_EQ(found.error, "") << text;
        EXPECT_EQ(found.elements, usual.elements) << text;
    }
}

}  // namespace
}  // namespace VEXA
