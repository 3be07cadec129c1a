#include "vexa/engine/ChartSynonyms.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ranges>

#include "vexa/check/DocumentCheck.h"
#include "vexa/support/xml/XmlObjectFactory.h"
#include "vexa/support/xml/XmlObjectTypeInfo.h"

namespace VEXA {
namespace {

/// The messages of a check, a line each.
std::string toldOf(const std::string& content) {
    const std::string document = "<root xmlns='http://vexa-charts.org/2008/vx' theme='none'>" + content + "</root>";
    std::string lines;
    for (const LogRecord& problem : DocumentCheck::run(make<IO::MemoryStream>(document)).problems)
        lines += problem.message.toUtf8() + "\n";
    return lines;
}

TEST(ChartSynonyms, LeadFromOtherVocabulariesToOurs) {
    const struct {
        const char *content, *advice, *why;
    } cases[] = {
        {"<title caption='T'/>", R"("caption" of "title" is ignored; did you mean "value"?)",
         "a word of other elements"},
        {"<title>T</title>", R"(text in "title" is ignored; write it into "value")", "text like in a page"},
        {"<pie><slice>A</slice></pie>", R"(text in "slice" is ignored; write it into "caption")", "not its value"},
        {"<defs>A</defs>", R"(text in "defs" is ignored; write texts into attributes)", "no attribute for it"},
        {"<pie><slice color='red'/></pie>", R"(did you mean "fill" or "stroke"?)", "two things in one word"},
        {"<plot-area><bar-chart color='red'/></plot-area>", R"(did you mean "fill" or "stroke"?)",
         "for what is inside"},
        {"<plot-area><axis/></plot-area>", R"(did you mean "category-axis" or "value-axis"?)", "one of two elements"},
        {"<spider><axis/></spider>", R"(did you mean "spider-axis"?)", "the element that belongs here"},
        {"<spider><serie/></spider>",
         R"("serie" may not stand in "spider" and is skipped; did you mean "spider-serie"?)",
         "an element of another chart"},
        {"<serie/>", "write it inside <area-chart>", "nothing here goes by that name"},
        {"<legend><legend-item marker='square'/></legend>", R"(did you mean "label"?)",
         "there is nothing to hand it on to"},
        {"<pie><slice unit='5'/></pie>", "write it on <category-axis> or <value-axis>", "an attribute of others"},
    };
    for (const auto& c : cases)
        EXPECT_NE(toldOf(c.content).find(c.advice), std::string::npos) << c.why << "\n" << toldOf(c.content);
}

TEST(ChartSynonyms, HaveANameOfOursInEveryGroup) {
    const auto& records = XmlObjectFactory::get()->typeInfos();
    for (const SynonymGroup group : chartSynonyms()) {
        const std::string_view ours = group.substr(0, group.find(' '));
        EXPECT_TRUE(std::ranges::any_of(records, [&](const XmlObjectTypeInfo* record) {
            return record->getKey().name == ours || record->findAttribute(ours) != nullptr;
        })) << ours;
    }
}

}  // namespace
}  // namespace VEXA
