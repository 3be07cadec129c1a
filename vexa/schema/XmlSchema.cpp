#include "vexa/schema/XmlSchema.h"

#include <map>

#include "vexa/schema/ContentModel.h"
#include "vexa/schema/MarkupText.h"
#include "vexa/schema/ValueTypes.h"
#include "vexa/schema/Vocabulary.h"

namespace VEXA {

namespace {

class SchemaWriter {
public:
    explicit SchemaWriter(const Vocabulary& vocabulary) {
        const ElementEntry& top = vocabulary.elements().front();
        const std::string uri(top.record->getNamespace().uri);
        out_ +=
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!-- Chart documents of Vexa; made by `vexa schema`. -->\n";
        out_ += "<xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\" xmlns:vx=\"" + uri + "\" targetNamespace=\"" +
                uri + "\" elementFormDefault=\"qualified\" attributeFormDefault=\"unqualified\">\n";
        out_ += elementDeclaration(top.name) + nothingDeclaration();
        for (const ElementEntry& element : vocabulary.elements()) writeElement(element);
        for (const BaseEntry& base : vocabulary.bases()) writeBase(base);
        for (const auto& [name, content] : types_) {
            out_ += "<xs:simpleType name=\"" + name + "\">\n" + content + "</xs:simpleType>\n";
        }
        out_ += "</xs:schema>\n";
    }

    std::string text() const { return indentedMarkup(out_); }

private:
    void writeElement(const ElementEntry& element) {
        out_ += "<xs:complexType name=\"" + std::string(element.name) + "\">\n";
        if (element.notes != nullptr) writeNote(element.notes->text);
        out_ += contentModel(element);
        for (const AttributeEntry& attribute : element.attributes) writeAttribute(attribute);
        for (const AttributeEntry& attribute : element.handedOn) {
            writeAttribute(attribute, "For the elements in it: ");
        }
        if (element.base != nullptr) writeReference(*element.base);
        out_ += "</xs:complexType>\n" + contentGroup(element);
    }

    // Foreign attributes, such as xsi:schemaLocation, are other programs' business.
    void writeBase(const BaseEntry& base) {
        out_ += "<xs:attributeGroup name=\"" + base.name + "\">\n";
        if (base.notes != nullptr) writeNote(base.notes->text);
        for (const AttributeEntry& attribute : base.attributes) writeAttribute(attribute);
        if (base.base != nullptr) {
            writeReference(*base.base);
        } else {
            out_ += "<xs:anyAttribute namespace=\"##other\" processContents=\"lax\"/>\n";
        }
        out_ += "</xs:attributeGroup>\n";
    }

    void writeReference(const BaseEntry& base) { out_ += "<xs:attributeGroup ref=\"vx:" + base.name + "\"/>\n"; }

    // The default of an inherited attribute is not what it has when a document leaves it out: an ancestor may give it.
    void writeAttribute(const AttributeEntry& attribute, std::string_view noteStart = {}) {
        out_ += "<xs:attribute name=\"" + std::string(attribute.name) + "\" type=\"vx:" + nameOf(*attribute.type) + '"';
        if (attribute.isRequired) out_ += " use=\"required\"";
        if (!attribute.isInherited && !attribute.defaultText.empty()) {
            out_ += " default=\"" + escapedMarkup(attribute.defaultText) + '"';
        }
        out_ += ">\n";
        writeNote(std::string(noteStart).append(attribute.note));
        out_ += "</xs:attribute>\n";
    }

    void writeNote(std::string_view note) {
        if (note.empty()) return;
        out_ += "<xs:annotation><xs:documentation>" + escapedMarkup(withoutMarkdown(note)) +
                "</xs:documentation></xs:annotation>\n";
    }

    /// The name of a type, whose definition goes to the end of the schema.
    std::string nameOf(const XmlValueType& type) {
        std::string name = schemaNameOf(type);
        if (types_.contains(name)) return name;
        TypeDefinition definition = defineType(type);
        types_.emplace(name, std::move(definition.content));
        for (auto& [part, content] : definition.parts) types_.emplace(part, std::move(content));
        return name;
    }

    std::string out_;
    std::map<std::string, std::string> types_;
};

}  // namespace

std::string makeXmlSchema() { return SchemaWriter(Vocabulary::ofCharts()).text(); }

}  // namespace VEXA
