#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "vexa/schema/Notes.h"
#include "vexa/support/xml/XmlObjectTypeInfo.h"

namespace VEXA {

struct AttributeEntry {
    std::string_view name;
    const XmlValueType* type;
    std::string defaultText;  ///< as a document would write it; empty when it is not set
    bool isInherited;
    bool isRequired;
    std::string_view note;
};

struct ChildEntry {
    std::string_view name;
    bool isList;
    bool isRequired;
};

/// A base class: what all elements that derive from it have in common.
struct BaseEntry {
    const XmlObjectTypeInfo* record;
    std::string name;       ///< `area` for VexaAreaObject
    const BaseEntry* base;  ///< what it derives from itself; null for the first one
    const NoteSection* notes;
    std::vector<AttributeEntry> attributes{};  ///< its own
};

struct ElementEntry {
    const XmlObjectTypeInfo* record;
    std::string_view name;
    const BaseEntry* base;
    const NoteSection* notes;
    std::vector<AttributeEntry> attributes{};  ///< its own
    std::vector<AttributeEntry> retold{};      ///< those of its bases of which there is something else to say
    std::vector<AttributeEntry> handedOn{};    ///< those that it only carries for elements in it
    std::vector<ChildEntry> children{};
    std::vector<std::string_view> parents{};
};

/// The elements of a chart document and all that may be written in them, from the records of the registered classes.
/// Classes that a document cannot reach from its top element are not in it.
class Vocabulary {
public:
    /// `top`: the class of the document's top element.
    explicit Vocabulary(const XmlObjectTypeInfo& top);
    Vocabulary(Vocabulary&&) noexcept = default;
    /// That of chart documents, with all classes registered.
    static Vocabulary ofCharts();

    const std::vector<NoteChapter>& chapters() const noexcept { return chapters_; }
    /// The top element first.
    const std::vector<ElementEntry>& elements() const noexcept { return elements_; }
    /// Each before what derives from it.
    const std::deque<BaseEntry>& bases() const noexcept { return bases_; }
    /// Null when there is none of that name.
    const ElementEntry* findElement(std::string_view name) const noexcept;
    const BaseEntry* findBase(const XmlObjectTypeInfo& record) const noexcept;

private:
    void addElement(const XmlObjectTypeInfo& record, std::string_view parent);
    const BaseEntry* addBase(const XmlObjectTypeInfo& record);
    std::vector<AttributeEntry> ownAttributes(const XmlObjectTypeInfo& record) const;
    std::vector<AttributeEntry> retoldAttributes(const ElementEntry& element) const;
    std::vector<AttributeEntry> handedOnAttributes(const ElementEntry& element) const;
    std::string_view noteOf(std::string_view attribute, const XmlObjectTypeInfo& owner) const noexcept;

    std::vector<NoteChapter> chapters_;
    std::vector<ElementEntry> elements_;
    std::deque<BaseEntry> bases_;
};

/// The section of notes about a class: that of its element or of its C++ class; null when there is none.
const NoteSection* findNotes(const std::vector<NoteChapter>& chapters, const XmlObjectTypeInfo& record) noexcept;

}  // namespace VEXA
