#include <expat.h>
#include <gtest/gtest.h>

#include <cctype>
#include <limits>
#include <map>
#include <memory>
#include <set>

#include "tests/surfaces/SurfaceTesting.h"

namespace VEXA {
namespace {

/// What an XML parser finds in a document: how often each element, the ids, the references to ids, the text.
struct Found {
    std::string error;
    std::map<std::string, int> elements;
    std::set<std::string> ids;
    std::set<std::string> references;
    std::string attributes;  ///< all values, one after another
    std::string text;
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

void XMLCALL onText(void* user, const XML_Char* text, int length) {
    static_cast<Found*>(user)->text.append(text, static_cast<std::size_t>(length));
}

Found parsed(const std::string& document) {
    Found found;
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(XML_ParserCreate("UTF-8"),
                                                                              &XML_ParserFree);
    XML_SetUserData(parser.get(), &found);
    XML_SetElementHandler(parser.get(), onStart, nullptr);
    XML_SetCharacterDataHandler(parser.get(), onText);
    if (XML_Parse(parser.get(), document.data(), static_cast<int>(document.size()), XML_TRUE) != XML_STATUS_OK) {
        found.error = XML_ErrorString(XML_GetErrorCode(parser.get()));
    }
    return found;
}

/// Every operation with `number` in each place that takes one, and `text` in each place that takes a text.
void drawEverything(RenderContext& c, float number, const String& text) {
    const SmartPtr<RenderContext> surface(&c);
    for (int place = 0; place < 12; ++place) {
        const auto at = [&](int i, float usual) { return i == place ? number : usual; };
        const RenderContextScope scope(surface);
        if (place == 1) c.setClip(PathCommand::ellipse(number, 0, 1, number));
        if (place == 2) c.setClip(PathCommand::rectangle(number, 0, 1, number, 0, 0));
        if (place == 3) c.addTranslateTransform(number, 1);
        if (place == 4) c.addRotateTransform(number);
        if (place == 5) c.addScaleTransform(1, number);
        if (place >= 3 && place <= 5) c.setClip(PathCommand::rectangle(0, 0, 1, 1, 0, 0));
        const SmartPtr<GradientBrush> gradient = redToBlue(GradientUnits(place % 2));
        gradient->addStop(at(6, 1), colorOf(0), at(7, 1));
        gradient->setOpacity(at(8, 1));
        gradient->addMatrixTransform(at(9, 1), 0, 0, 1, 0, 0);
        const SmartPtr<GradientBrush> radial =
            make<RadialGradientBrush>(at(6, 5), at(7, 5), at(8, 5), at(9, 6), GradientUnits(), GradientSpreadMethod());
        radial->setStops(gradient->getStops());
        const SmartPtr<Stroke> stroke = make<Stroke>(radial, at(10, 2));
        stroke->setDashArray({at(6, 1), 2});
        stroke->setDashOffset(at(7, 1));
        stroke->setMiterLimit(at(8, 3));
        c.setFill(gradient);
        c.setStroke(stroke);
        c.setFont(fontOf(text, at(11, 12)));
        c.drawLine(at(6, 0), at(7, 0), at(8, 1), at(9, 1));
        c.drawRectangle(at(6, 0), at(7, 0), at(8, 1), at(9, 1), at(10, 0), at(11, 1));
        c.drawEllipse(at(6, 0), at(7, 0), at(8, 1), at(9, 1));
        c.drawPolygon({{at(6, 0), at(7, 0)}, {at(8, 1), at(9, 1)}, {5, 5}}, place % 2 == 0);
        c.drawText(text, 1000, at(6, 0), at(7, 0), at(8, 0), 0);
    }
}

void expectNoWordForANumber(const std::string& attributes) {
    for (const char* word : {"nan", "NaN", "inf", "Inf"}) EXPECT_EQ(attributes.find(word), std::string::npos) << word;
}

TEST(SvgWellFormed, WhateverTheNumbers) {
    const float numbers[] = {0.0F,
                             -0.0F,
                             1.0F,
                             -1.0F,
                             1e9F,
                             1e20F,
                             std::numeric_limits<float>::max(),
                             std::numeric_limits<float>::lowest(),
                             std::numeric_limits<float>::denorm_min(),
                             std::numeric_limits<float>::infinity(),
                             -std::numeric_limits<float>::infinity(),
                             std::numeric_limits<float>::quiet_NaN()};
    for (const float number : numbers) {
        const Found found =
            parsed(documentOf<SvgSurface>([number](RenderContext& c) { drawEverything(c, number, "sans-serif"); }));
        EXPECT_EQ(found.error, "") << number;
        for (const std::string& id : found.references) EXPECT_TRUE(found.ids.contains(id)) << "no definition of " << id;
        EXPECT_EQ(found.ids, found.references) << "nothing is defined in vain";
        expectNoWordForANumber(found.attributes);
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
        const String title(text);
        const Found found = parsed(
            documentOf<SvgSurface>([&](RenderContext& c) { drawEverything(c, 1, title); }, {title, title, title}));
        EXPECT_EQ(found.error, "") << text;
        EXPECT_EQ(found.elements, usual.elements) << text;
    }
}

TEST(SvgWellFormed, TextsReadBackAsTheyWere) {
    const std::string text = "<b> & \"q\" 'a' ]]> \u00e9\u4e2d\U0001f44d";
    const Found found = parsed(documentOf<SvgSurface>([&](RenderContext& c) {
        c.setFill(solid(0));
        c.setFont(fontOf("serif", 12));
        c.drawText(text, 1000, 0, 0, 0, 0);
    }));
    EXPECT_EQ(found.text, "\n" + text + "\n");
}

}  // namespace
}  // namespace VEXA
