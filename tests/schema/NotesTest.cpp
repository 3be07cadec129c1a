#include <cstdlib>
#include <fstream>
#include <set>

#include "tests/schema/SchemaTestTools.h"
#include "vexa/engine/ChartNamespace.h"
#include "vexa/engine/ClassList.h"
#include "vexa/engine/VexaObject.h"
#include "vexa/schema/ReferencePage.h"
#include "vexa/schema/ValueTypes.h"
#include "vexa/schema/XmlSchema.h"

namespace VEXA::Testing {
namespace {

/// Every attribute of the vocabulary, with what carries it in front: "serie marker".
std::vector<std::pair<std::string, const AttributeEntry*>> allAttributes(const Vocabulary& vocabulary) {
    std::vector<std::pair<std::string, const AttributeEntry*>> all;
    const auto add = [&](std::string_view owner, const std::vector<AttributeEntry>& attributes) {
        for (const AttributeEntry& attribute : attributes)
            all.emplace_back(std::string(owner) + ' ' + std::string(attribute.name), &attribute);
    };
    for (const ElementEntry& element : vocabulary.elements()) {
        add(element.name, element.attributes);
        add(element.name, element.retold);
        add(element.name, element.handedOn);
    }
    for (const BaseEntry& base : vocabulary.bases()) add(base.name, base.attributes);
    return all;
}

TEST(Notes, EveryAttributeHasOneAndEveryNoteHasItsAttribute) {
    const Vocabulary vocabulary = Vocabulary::ofCharts();
    std::set<std::string_view> titles;
    for (const auto& [place, attribute] : allAttributes(vocabulary)) {
        EXPECT_FALSE(attribute->note.empty()) << place;
        titles.insert(titleOf(*attribute->type));
    }
    for (const ElementEntry& element : vocabulary.elements()) EXPECT_NE(element.notes, nullptr) << element.name;

    for (const NoteChapter& chapter : vocabulary.chapters()) {
        std::set<std::string_view> names;
        for (const NoteSection& section : chapter.sections) {
            EXPECT_TRUE(names.insert(section.name).second) << section.name << " comes twice";
            const XmlObjectTypeInfo* record = nullptr;
            if (const ElementEntry* element = vocabulary.findElement(section.name)) record = element->record;
            for (const BaseEntry& base : vocabulary.bases()) record = base.notes == &section ? base.record : record;
            const bool isOfValues = titles.contains(section.name) || section.name == "Patterns of labels";
            EXPECT_NE(record != nullptr, isOfValues) << section.name << " is neither an element, a class nor a type";
            std::set<std::string_view> rows;
            for (const auto& [name, note] : section.rows) {
                EXPECT_TRUE(rows.insert(name).second) << section.name << ' ' << name << " comes twice";
                EXPECT_FALSE(note.empty()) << section.name << ' ' << name;
                if (record == nullptr) continue;
                EXPECT_NE(record->findAttribute(name), nullptr) << section.name << " has no attribute " << name;
            }
        }
    }
}

TEST(Notes, TheVocabularyHasEveryRegisteredClass) {
    const Vocabulary vocabulary = Vocabulary::ofCharts();
    std::size_t count = 0;
    for (const XmlObjectTypeInfo* record : XmlObjectFactory::get()->typeInfos()) {
        if (record->getNamespace().uri != chartNamespace().uri) continue;
        const bool isThere = record->isAbstract() ? vocabulary.findBase(*record) != nullptr
                                                  : vocabulary.findElement(record->getKey().name) != nullptr;
        EXPECT_TRUE(isThere) << record->getClassName();
        ++count;
    }
    EXPECT_EQ(count, vocabulary.elements().size() + vocabulary.bases().size());
}

// Both the schema and the engine take what the reference shows.
TEST(Notes, ExamplesAreRight) {
    const Vocabulary vocabulary = Vocabulary::ofCharts();
    std::vector<Judged> examples;
    for (const ElementEntry& element : vocabulary.elements()) {
        ASSERT_NE(element.notes, nullptr);
        EXPECT_FALSE(element.notes->example.empty()) << element.name;
        examples.push_back({documentAround(vocabulary, element.name, element.notes->example), "an example"});
        EXPECT_EQ(complaints(examples.back().document), "") << examples.back().document;
    }
    expectVerdicts(examples);
}

// VEXA_UPDATE_GOLDEN=1 renews the files and fails the run, so that the author looks at what changed.
TEST(Docs, SchemaAndReferenceAreThoseOfTheClasses) {
    const char* const update = std::getenv("VEXA_UPDATE_GOLDEN");
    for (const auto& [name, made] :
         {std::pair("docs/vexa.xsd", makeXmlSchema()), std::pair("docs/reference.md", makeReferencePage())}) {
        const std::string file = std::string(VEXA_SOURCE_DIR "/") + name;
        EXPECT_TRUE(contentOf(file) == made) << name << " is stale: VEXA_UPDATE_GOLDEN=1 renews it";
        if (update == nullptr || std::string_view(update) != "1") continue;
        std::ofstream(file, std::ios::binary) << made;
        ADD_FAILURE() << name << " is renewed: look at the difference, then run without VEXA_UPDATE_GOLDEN";
    }
}

}  // namespace
}  // namespace VEXA::Testing
