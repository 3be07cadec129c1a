#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "tests/sweeps/Rendering.h"
#include "vexa/support/xml/XmlObjectFactory.h"
#include "vexa/support/xml/XmlObjectTypeInfo.h"

// Documents that end too early, and elements where they do not belong.

namespace VEXA::Testing {
namespace {

/// Whether a place is one of the text or directly behind it. Columns count characters; these documents are of ASCII.
bool liesIn(SourcePlace place, const std::string& text) {
    const auto lines = static_cast<std::uint32_t>(std::ranges::count(text, '\n')) + 1;
    if (place.line < 1 || place.line > lines || place.column < 1) return false;
    std::size_t start = 0;
    for (std::uint32_t line = 1; line < place.line; ++line) start = text.find('\n', start) + 1;
    return place.column <= std::min(text.find('\n', start), text.size()) - start + 1;
}

class CutSweep : public testing::TestWithParam<const char*> {};

TEST_P(CutSweep, ADocumentCutAnywhereIsRefusedWithAPlaceInIt) {
    const std::string document = hostDocument(GetParam());
    const std::size_t end = document.rfind('>') + 1;
    for (std::size_t length = 1; length < end; ++length) {
        const std::string cut = document.substr(0, length);
        const Rendered rendered = renderDisplayList(cut);
        ASSERT_FALSE(rendered.isDrawn()) << "cut at " << length;
        EXPECT_TRUE(liesIn(rendered.place, cut)) << "cut at " << length << ": " << rendered.error << " at "
                                                 << rendered.place.line << ':' << rendered.place.column;
    }
}

INSTANTIATE_TEST_SUITE_P(Documents, CutSweep, testing::Values("plot", "round"),
                         [](const auto& sweep) { return std::string(sweep.param); });

/// The elements around each element, from the root on, each by its tag; the shortest of several ways.
std::map<std::string, std::vector<std::string>> waysToElements() {
    std::map<std::string, std::vector<std::string>> ways = {{"root", {"root"}}};
    std::vector<std::string> open = {"root"};
    for (std::size_t i = 0; i < open.size(); ++i) {
        for (const XmlObjectTypeInfo* record : XmlObjectFactory::get()->typeInfos()) {
            if (record->getKey().name != open[i]) continue;
            for (; record != nullptr; record = record->getParentTypeInfo()) {
                for (const auto& child : record->elements()) {
                    const std::string name(child->getName());
                    std::vector<std::string> way = ways.at(open[i]);
                    way.push_back(name);
                    if (ways.emplace(name, way).second) open.push_back(name);
                }
            }
        }
    }
    return ways;
}

/// An element of that name inside an element that stands where it may. `place` gets where it starts.
std::string nested(const std::vector<std::string>& way, const std::string& inner, SourcePlace& place) {
    std::string document;
    for (const std::string& element : way)
        document += "<" + element +
                    (document.empty() ? " xmlns='http://vexa-charts.org/2008/vx' width='90' height='90'>" : ">");
    place = {2, 1};
    document += "\n<" + inner + "/>\n";
    for (auto element = way.rbegin(); element != way.rend(); ++element) document += "</" + *element + ">";
    return document;
}

TEST(NestingSweep, EveryElementInEveryOtherIsTakenOrWarnedOf) {
    const auto ways = waysToElements();
    std::size_t taken = 0;
    for (const XmlObjectTypeInfo* const outer : XmlObjectFactory::get()->typeInfos()) {
        if (outer->isAbstract()) continue;
        const auto way = ways.find(std::string(outer->getKey().name));
        ASSERT_NE(way, ways.end()) << outer->getKey().name << " stands nowhere";
        for (const XmlObjectTypeInfo* const inner : XmlObjectFactory::get()->typeInfos()) {
            if (inner->isAbstract()) continue;
            SourcePlace place;
            const std::string document = nested(way->second, std::string(inner->getKey().name), place);
            const Rendered rendered = renderDisplayList(document);
            const bool isAllowed = outer->findElement(inner->getKey().name) != nullptr;
            const bool isWarned = std::ranges::any_of(rendered.log, [&](const LogRecord& record) {
                return record.place == place && record.severity == Severity::Warning && record.code < 34000;
            });
            EXPECT_NE(isAllowed, isWarned) << document;
            EXPECT_TRUE(rendered.isDrawn() || liesIn(rendered.place, document)) << document << rendered.error;
            taken += isAllowed ? 1 : 0;
        }
    }
    EXPECT_GE(taken, ways.size() - 1) << "each element but the root has a place";
}

}  // namespace
}  // namespace VEXA::Testing
