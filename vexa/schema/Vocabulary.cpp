#include "vexa/schema/Vocabulary.h"

#include <algorithm>
#include <utility>

#include "vexa/engine/ClassList.h"
#include "vexa/engine/VexaRoot.h"

namespace VEXA {

namespace {

/// Children and attributes without which an element cannot be drawn: the records know of no such rule, the charts do.
constexpr std::pair<std::string_view, std::string_view> kRequired[] = {
    {"plot-area", "category-axis"},
    {"plot-area", "value-axis"},
    {"spider-data-point", "axis-id"},
};

bool isRequired(std::string_view element, std::string_view part) noexcept {
    return std::ranges::find(kRequired, std::pair(element, part)) != std::end(kRequired);
}

/// `area` for VexaAreaObject.
std::string shortName(std::string_view className) {
    constexpr std::string_view kPrefix = "Vexa";
    constexpr std::string_view kSuffix = "Object";
    if (className.starts_with(kPrefix)) className.remove_prefix(kPrefix.size());
    if (className.ends_with(kSuffix) && className != kSuffix) className.remove_suffix(kSuffix.size());
    std::string name(className);
    std::ranges::transform(name, name.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return name;
}

AttributeEntry describe(const XmlAttributeTypeInfo& attribute, const XmlObjectTypeInfo& owner, std::string_view note) {
    const std::string_view name = attribute.getName();
    const XmlValueType& type = attribute.getType();
    return {
        name, &type, type.print(attribute.getDefault()), attribute.isInherited(), isRequired(owner.getKey().name, name),
        note};
}

/// The classes of the elements in an element of that class, at any depth.
void collectBelow(const XmlObjectTypeInfo& record, std::vector<const XmlObjectTypeInfo*>& below) {
    for (const auto& child : record.elements()) {
        const XmlObjectTypeInfo* const childRecord = child->childClass();
        if (std::ranges::find(below, childRecord) != below.end()) continue;
        below.push_back(childRecord);
        collectBelow(*childRecord, below);
    }
}

}  // namespace

Vocabulary::Vocabulary(const XmlObjectTypeInfo& top) : chapters_(readNotes(kNoteTexts)) {
    addElement(top, {});
    for (ElementEntry& element : elements_) element.handedOn = handedOnAttributes(element);
}

Vocabulary Vocabulary::ofCharts() {
    registerAll();
    return Vocabulary(*VexaRoot::getTypeInfoInstance());
}

const ElementEntry* Vocabulary::findElement(std::string_view name) const noexcept {
    const auto found = std::ranges::find(elements_, name, &ElementEntry::name);
    return found == elements_.end() ? nullptr : &*found;
}

const BaseEntry* Vocabulary::findBase(const XmlObjectTypeInfo& record) const noexcept {
    const auto found = std::ranges::find(bases_, &record, &BaseEntry::record);
    return found == bases_.end() ? nullptr : &*found;
}

void Vocabulary::addElement(const XmlObjectTypeInfo& record, std::string_view parent) {
    const std::string_view name = record.getKey().name;
    if (const auto known = std::ranges::find(elements_, name, &ElementEntry::name); known != elements_.end()) {
        known->parents.push_back(parent);
        return;
    }
    ElementEntry element{&record, name, addBase(*record.getParentTypeInfo()), findNotes(chapters_, record)};
    element.attributes = ownAttributes(record);
    element.retold = retoldAttributes(element);
    if (!parent.empty()) element.parents.push_back(parent);
    for (const auto& child : record.elements()) {
        element.children.push_back({child->getName(), child->isList(), isRequired(name, child->getName())});
    }
    elements_.push_back(std::move(element));
    for (const auto& child : record.elements()) addElement(*child->childClass(), name);
}

const BaseEntry* Vocabulary::addBase(const XmlObjectTypeInfo& record) {
    if (record.attributes().empty()) return nullptr;
    if (const BaseEntry* const known = findBase(record)) return known;
    const BaseEntry* const base = addBase(*record.getParentTypeInfo());
    return &bases_.emplace_back(BaseEntry{&record, shortName(record.getClassName()), base, findNotes(chapters_, record),
                                          ownAttributes(record)});
}

// A record begins with the attributes of its bases.
std::vector<AttributeEntry> Vocabulary::ownAttributes(const XmlObjectTypeInfo& record) const {
    std::vector<AttributeEntry> own;
    for (std::size_t i = record.getParentTypeInfo()->attributes().size(); i < record.attributes().size(); ++i) {
        const XmlAttributeTypeInfo& attribute = record.attributes()[i];
        own.push_back(describe(attribute, record, noteOf(attribute.getName(), record)));
    }
    return own;
}

std::vector<AttributeEntry> Vocabulary::retoldAttributes(const ElementEntry& element) const {
    std::vector<AttributeEntry> retold;
    if (element.notes == nullptr) return retold;
    for (const auto& [name, note] : element.notes->rows) {
        const XmlAttributeTypeInfo* const attribute = element.record->findAttribute(name);
        const bool isOwn =
            std::ranges::find(element.attributes, name, &AttributeEntry::name) != element.attributes.end();
        if (attribute != nullptr && !isOwn) retold.push_back(describe(*attribute, *element.record, note));
    }
    return retold;
}

std::vector<AttributeEntry> Vocabulary::handedOnAttributes(const ElementEntry& element) const {
    std::vector<const XmlObjectTypeInfo*> below;
    collectBelow(*element.record, below);
    std::vector<AttributeEntry> handedOn;
    for (const XmlObjectTypeInfo* const record : below) {
        for (const XmlAttributeTypeInfo& attribute : record->attributes()) {
            const std::string_view name = attribute.getName();
            if (!attribute.isInherited() || element.record->findAttribute(name) != nullptr) continue;
            if (std::ranges::find(handedOn, name, &AttributeEntry::name) != handedOn.end()) continue;
            handedOn.push_back(describe(attribute, *record, noteOf(name, *record)));
            handedOn.back().defaultText.clear();  // the elements below may differ in it
        }
    }
    return handedOn;
}

std::string_view Vocabulary::noteOf(std::string_view attribute, const XmlObjectTypeInfo& owner) const noexcept {
    for (const XmlObjectTypeInfo* record = &owner; record != nullptr; record = record->getParentTypeInfo()) {
        const NoteSection* const section = findNotes(chapters_, *record);
        if (section == nullptr) continue;
        if (const std::string_view note = section->noteOf(attribute); !note.empty()) return note;
    }
    return {};
}

const NoteSection* findNotes(const std::vector<NoteChapter>& chapters, const XmlObjectTypeInfo& record) noexcept {
    return findSection(chapters, record.isAbstract() ? record.getClassName() : record.getKey().name);
}

}  // namespace VEXA
