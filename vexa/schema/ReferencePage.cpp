#include "vexa/schema/ReferencePage.h"

#include <algorithm>

#include "vexa/schema/ValueTypes.h"
#include "vexa/schema/Vocabulary.h"
#include "vexa/support/values/Enumerations.h"

namespace VEXA {

namespace {

constexpr std::string_view kIntroduction =
    R"(<!-- Made from the registered classes and their notes: see CONTRIBUTING.md. Changes belong there. -->
# Reference of the chart document

Every element, every attribute, every kind of value. Elements are in the namespace `http://vexa-charts.org/2008/vx`;
attributes are written without a prefix. Children stand in any order. An attribute that is left out has its default; one
that is *inherited* first takes the value of the nearest element around it that gives one, so `font-size` on the
[`root`](#root) serves the whole chart and `marker` on a [`serie`](#serie) all its points.

[A schema](schema.md) of all this lets editors complete and check charts while they are written.
)";

std::string code(std::string_view text) { return "`" + std::string(text) + "`"; }

/// The anchor of a heading: lower case, hyphens for spaces, without other marks.
std::string anchor(std::string_view heading) {
    std::string result = "#";
    for (const char c : heading) {
        if (c >= 'A' && c <= 'Z') result += static_cast<char>(c - 'A' + 'a');
        if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-') result += c;
        if (c == ' ') result += '-';
    }
    return result;
}

std::string link(std::string_view text, std::string_view heading) {
    return "[" + std::string(text) + "](" + anchor(heading) + ")";
}

std::string elementLink(std::string_view name) { return link(code(name), name); }

template <class Range, class Print>
std::string list(const Range& range, Print print) {
    std::string result;
    for (const auto& entry : range) {
        if (!result.empty()) result += ", ";
        result += print(entry);
    }
    return result;
}

class PageWriter {
public:
    explicit PageWriter(Vocabulary vocabulary) : vocabulary_(std::move(vocabulary)) {}

    std::string write() {
        out_ += kIntroduction;
        out_ += "\n```\n" + std::string(vocabulary_.elements().front().name) + "\n";
        writeTree(vocabulary_.elements().front(), 1);
        out_ += "```\n";
        writeContents();
        for (const NoteChapter& chapter : vocabulary_.chapters()) {
            out_ += "\n## " + std::string(chapter.title) + "\n";
            for (const NoteSection& section : chapter.sections) writeSection(section);
        }
        return std::move(out_);
    }

private:
    using Attributes = std::vector<AttributeEntry>;

    /// What may stand in what; neighbours that take the same share a line.
    void writeTree(const ElementEntry& element, std::size_t depth) {
        constexpr std::size_t kStep = 2;
        constexpr std::size_t kDeepest = 8;  // elements that may stand in themselves have no end
        if (depth > kDeepest) return;
        const auto& children = element.children;
        for (std::size_t i = 0; i < children.size(); ++i) {
            const ElementEntry& child = *vocabulary_.findElement(children[i].name);
            out_.append(depth * kStep, ' ').append(child.name);
            while (i + 1 < children.size() && takesTheSame(child, *vocabulary_.findElement(children[i + 1].name))) {
                out_.append(", ").append(children[++i].name);
            }
            out_ += '\n';
            writeTree(child, depth + 1);
        }
    }

    static bool takesTheSame(const ElementEntry& a, const ElementEntry& b) {
        return std::ranges::equal(a.children, b.children, {}, &ChildEntry::name, &ChildEntry::name);
    }

    void writeContents() {
        out_ += "\n";
        for (const NoteChapter& chapter : vocabulary_.chapters()) {
            std::string names;
            for (const NoteSection& section : chapter.sections) {
                if (hasSection(section)) append(nameOf(section), names);
            }
            out_ += "- " + link(chapter.title, chapter.title) + ": " + names + "\n";
        }
    }

    static void append(const std::string& entry, std::string& list) {
        if (!list.empty()) list += ", ";
        list += entry;
    }

    std::string nameOf(const NoteSection& section) const {
        if (vocabulary_.findElement(section.name) != nullptr) return elementLink(section.name);
        return link(section.heading, section.heading);
    }

    /// The base class that the section is about; null when it is about something else.
    const BaseEntry* findBase(const NoteSection& section) const {
        const auto& bases = vocabulary_.bases();
        const auto found = std::ranges::find(bases, &section, &BaseEntry::notes);
        return found == bases.end() ? nullptr : &*found;
    }

    /// A base class without a text of its own is told with each of its elements.
    bool hasSection(const NoteSection& section) const { return !section.text.empty() || findBase(section) == nullptr; }
    bool hasSection(const BaseEntry& base) const { return base.notes != nullptr && hasSection(*base.notes); }

    void writeSection(const NoteSection& section) {
        if (!hasSection(section)) return;
        const ElementEntry* const element = vocabulary_.findElement(section.name);
        const std::string heading = element == nullptr ? std::string(section.heading) : code(section.name);
        out_ += "\n### " + heading + "\n\n" + section.text + "\n";
        if (!section.example.empty()) out_ += "\n```xml\n" + section.example + "\n```\n";
        if (element != nullptr) {
            writeElement(*element);
        } else if (const BaseEntry* const base = findBase(section)) {
            writeTable(base->attributes);
        } else {
            writeValues(section);
        }
    }

    void writeElement(const ElementEntry& element) {
        const auto printChild = [](const ChildEntry& child) {
            return elementLink(child.name) + (child.isList       ? " (any number)"
                                              : child.isRequired ? " (one)"
                                                                 : " (at most one)");
        };
        out_ += "\n";
        if (!element.parents.empty()) out_ += "- In: " + list(element.parents, elementLink) + "\n";
        if (!element.children.empty()) out_ += "- Children: " + list(element.children, printChild) + "\n";
        out_ += "- Attributes: " + attributesOf(element) + "\n";
        if (!element.handedOn.empty()) {
            out_ += "- Attributes for the elements in it: " + handedOnBy(element) + "\n";
        }
        writeTable(rowsOf(element));
    }

    /// What the element's table does not tell.
    std::string attributesOf(const ElementEntry& element) const {
        std::string text = rowsOf(element).empty() ? "" : "those below";
        for (const BaseEntry* base = element.base; base != nullptr; base = base->base) {
            if (!hasSection(*base)) continue;
            const std::string_view heading = base->notes->heading;
            append(base->base == nullptr ? link(code(base->attributes.front().name), heading)
                                         : link(lowerCase(heading), heading),
                   text);
        }
        return text;
    }

    std::string handedOnBy(const ElementEntry& element) const {
        std::string text;
        Attributes rest = element.handedOn;
        for (const BaseEntry& base : vocabulary_.bases()) {
            const auto isHandedOn = [&](const AttributeEntry& attribute) {
                return std::ranges::find(rest, attribute.name, &AttributeEntry::name) != rest.end();
            };
            if (!hasSection(base) || !std::ranges::all_of(base.attributes, isHandedOn)) continue;
            append(link(lowerCase(base.notes->heading), base.notes->heading), text);
            std::erase_if(rest, [&](const AttributeEntry& attribute) {
                return std::ranges::find(base.attributes, attribute.name, &AttributeEntry::name) !=
                       base.attributes.end();
            });
        }
        for (const AttributeEntry& attribute : rest) append(code(attribute.name), text);
        return text;
    }

    /// The attributes of the element's table: its own, those of bases without a section, and those with another
    /// meaning.
    Attributes rowsOf(const ElementEntry& element) const {
        Attributes rows = element.attributes;
        for (const BaseEntry* base = element.base; base != nullptr; base = base->base) {
            if (!hasSection(*base)) rows.insert(rows.end(), base->attributes.begin(), base->attributes.end());
        }
        for (const AttributeEntry& retold : element.retold) {
            const auto known = std::ranges::find(rows, retold.name, &AttributeEntry::name);
            if (known == rows.end()) {
                rows.push_back(retold);
            } else {
                *known = retold;
            }
        }
        return rows;
    }

    static std::string lowerCase(std::string_view heading) {
        std::string text(heading);
        if (text[0] >= 'A' && text[0] <= 'Z') text[0] = static_cast<char>(text[0] - 'A' + 'a');
        return text;
    }

    void writeTable(const Attributes& rows) {
        if (rows.empty()) return;
        out_ += "\n| attribute | value | default | inherited | meaning |\n| --- | --- | --- | --- | --- |\n";
        for (const AttributeEntry& row : rows) {
            const std::string unset = row.isRequired ? "must be given" : "not set";
            out_ += "| " + code(row.name) + " | " + typeCell(*row.type) + " | " +
                    (row.defaultText.empty() ? unset : code(row.defaultText)) + " | " + (row.isInherited ? "yes" : "") +
                    " | " + std::string(row.note) + " |\n";
        }
    }

    std::string typeCell(const XmlValueType& type) const {
        const std::string_view title = titleOf(type);
        if (findSection(vocabulary_.chapters(), title) != nullptr) return link(lowerCase(title), title);
        return list(findKeywords(type.name()), code);
    }

    void writeValues(const NoteSection& section) {
        if (section.rows.empty()) return;
        out_ += "\n| example | meaning |\n| --- | --- |\n";
        for (const auto& [example, meaning] : section.rows) {
            out_ += "| " + code(example) + " | " + std::string(meaning) + " |\n";
        }
    }

    Vocabulary vocabulary_;
    std::string out_;
};

}  // namespace

std::string makeReferencePage() { return PageWriter(Vocabulary::ofCharts()).write(); }

}  // namespace VEXA
