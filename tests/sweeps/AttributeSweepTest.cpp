#include <gtest/gtest.h>

#include "tests/sweeps/Rendering.h"
#include "vexa/support/xml/XmlObjectFactory.h"
#include "vexa/support/xml/XmlObjectTypeInfo.h"

// Every attribute of every class, as the classes register them, with texts that are hardly what it is for.

namespace VEXA::Testing {
namespace {

const std::string kNastyTexts[] = {
    "",
    "nan",
    "-1",
    "1e999",
    "1e38 1e38 1e38 1e38",
    "16777217",
    std::string(10'000, '9'),
    "0." + std::string(10'000, '0') + "1",
    "#",
    "url(#g)",
    "url(#",
    "&#x1;&#x1b;&#x9;&#xA;",
    "&#xD800;&#xDFFF;",
    "\xED\xA0\x80",
    "%",
    "2024-02-30",
    "&lt;/text&gt;&lt;script&gt;&quot;']]&gt;--{0}&#xFFFE;&#x202E;",
    std::string(5000, 'k'),
};

std::vector<const XmlObjectTypeInfo*> classes() {
    std::vector<const XmlObjectTypeInfo*> found;
    for (const XmlObjectTypeInfo* const record : XmlObjectFactory::get()->typeInfos())
        if (!record->isAbstract()) found.push_back(record);
    return found;
}

/// The attributes of a class and those that it hands on to what is in it.
std::vector<std::string> attributesOf(const XmlObjectTypeInfo& record) {
    std::vector<std::string> names;
    for (const XmlObjectTypeInfo* info = &record; info != nullptr; info = info->getParentTypeInfo())
        for (const XmlAttributeTypeInfo& attribute : info->attributes()) names.emplace_back(attribute.getName());
    for (const auto& inheritable : XmlObjectFactory::get()->inheritableNames())
        if (record.findAttribute(inheritable.name) == nullptr) names.emplace_back(inheritable.name);
    return names;
}

void expectHarmless(const std::string& document, const std::string& what) {
    const Rendered list = renderDisplayList(document);
    const Rendered svg = renderSvg(document);
    EXPECT_EQ(list.error, svg.error) << what << ": the surface plays no part";
    if (list.isDrawn()) {
        EXPECT_EQ(displayListProblem(list.bytes), "") << what;
        EXPECT_EQ(parseMarkup(svg.bytes).error, "") << what;
    } else {
        EXPECT_TRUE(list.place.isKnown()) << what << ": " << list.error;
    }
    EXPECT_LT(list.peak, memoryBound(document, list)) << what;
    EXPECT_LT(svg.peak, memoryBound(document, svg)) << what;
}

class AttributeSweep : public testing::TestWithParam<const XmlObjectTypeInfo*> {};

TEST_P(AttributeSweep, NastyTextsDrawSomethingOrAreRefusedWithAPlace) {
    const std::string element(GetParam()->getKey().name);
    for (const std::string& attribute : attributesOf(*GetParam())) {
        for (const std::string& text : kNastyTexts) {
            std::string document;
            for (const std::string& host : hostDocuments())
                if (document.empty()) document = withAttribute(host, element, attribute, text);
            ASSERT_NE(document, "") << "no document of the sweep holds a " << element << ": add one";
            expectHarmless(document, element + " " + attribute + "=" + text.substr(0, 30));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Classes, AttributeSweep, testing::ValuesIn(classes()),
                         [](const auto& sweep) { return std::string(sweep.param->getClassName()); });

TEST(HostDocuments, AreDrawnWithoutAWarning) {
    for (const std::string& host : hostDocuments()) {
        const Rendered list = renderDisplayList(host);
        EXPECT_EQ(list.error, "");
        EXPECT_EQ(displayListProblem(list.bytes), "");
        for (const LogRecord& record : list.log) ADD_FAILURE() << record.message.toUtf8();
    }
}

}  // namespace
}  // namespace VEXA::Testing
