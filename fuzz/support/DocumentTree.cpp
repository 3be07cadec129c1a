#include "fuzz/support/DocumentTree.h"

#include <expat.h>

#include <algorithm>
#include <charconv>
#include <memory>
#include <string>

#include "fuzz/support/ValueSamples.h"
#include "vexa/engine/ChartNamespace.h"
#include "vexa/engine/ClassList.h"
#include "vexa/engine/VexaRoot.h"
#include "vexa/support/core/Utf8.h"
#include "vexa/support/xml/XmlObjectFactory.h"
#include "vexa/support/xml/XmlObjectTypeInfo.h"

namespace VEXA::Fuzz {

namespace {

constexpr std::size_t kHeadBytes = 2;       // what a step is, and which element or attribute
constexpr std::size_t kMostDepth = 64;      // far beyond what elements allow, and below the parser's limit
constexpr std::uint8_t kAnyElement = 0xF0;  // from here on an element that may not stand there
constexpr std::size_t kMostTextBytes = 255;

std::size_t valueBytes(Bytes rest) {
    if (rest.empty() || rest[0] < kFirstNumber) return 1;
    if (rest[0] < kFirstText) return 1 + kNumberBytes;
    return 2 + (rest.size() > 1 ? rest[1] : std::size_t{0});
}

StepKind kindOf(std::uint8_t byte) {
    switch (byte % 4) {
        case 0:
            return StepKind::Close;
        case 1:
            return StepKind::Open;
        default:
            return StepKind::Attribute;
    }
}

std::string numberText(Bytes bytes, std::uint8_t unit) {
    static constexpr std::string_view kUnits[] = {"", "", "%", "px", "pt", "mm"};
    const auto mantissa = static_cast<std::int16_t>(bytes[0] | bytes[1] << 8U);
    const int exponent = bytes[2] < 0xC0 ? bytes[2] % 8 - 4 : static_cast<std::int8_t>(bytes[2]);
    return std::to_string(mantissa) + 'e' + std::to_string(exponent) + std::string(kUnits[unit % std::size(kUnits)]);
}

std::string valueText(Bytes bytes, std::string_view typeName) {
    if (bytes.empty()) return {};
    const std::uint8_t selector = bytes[0];
    if (selector < kFirstNumber) {
        const auto samples = samplesOf(typeName);
        return std::string(samples[selector % samples.size()]);
    }
    if (selector < kFirstText)
        return bytes.size() <= kNumberBytes ? std::string() : numberText(bytes.subspan(1), selector);
    const Bytes text = bytes.subspan(std::min<std::size_t>(bytes.size(), 2));
    return {text.begin(), text.end()};
}

/// Characters that XML has no place for become spaces; ill-formed UTF-8 was made good by String.
void appendQuoted(std::string_view text, std::string& out) {
    const String characters(text);
    for (const char32_t c : characters.view()) {
        if (c == U'<' || c == U'&' || c == U'"' || c == U'\t' || c == U'\n' || c == U'\r') {
            out += "&#" + std::to_string(static_cast<std::uint32_t>(c)) + ';';
        } else {
            char bytes[4];
            out.append(bytes, Utf8::encode(c < U' ' || c == 0xFFFE || c == 0xFFFF ? U' ' : c, bytes));
        }
    }
}

/// Elements that a document may name; the top element comes once only.
const std::vector<const XmlObjectTypeInfo*>& namedRecords() {
    static const std::vector<const XmlObjectTypeInfo*> records = [] {
        std::vector<const XmlObjectTypeInfo*> found;
        for (const XmlObjectTypeInfo* const record : XmlObjectFactory::get()->typeInfos())
            if (!record->isAbstract()) found.push_back(record);
        return found;
    }();
    return records;
}

class DocumentWriter {
public:
    DocumentWriter() {
        registerAll();
        open(*VexaRoot::getTypeInfoInstance());
        document_ += " xmlns=\"" + std::string(chartNamespace().uri) + '"';
    }

    void addStep(StepKind kind, Bytes step) {
        const std::uint8_t choice = step.size() > 1 ? step[1] : std::uint8_t{0};
        switch (kind) {
            case StepKind::Close:
                if (path_.size() > 1) close();
                break;
            case StepKind::Open:
                openChild(choice);
                break;
            case StepKind::Attribute:
                addAttribute(choice, step.subspan(std::min(step.size(), kHeadBytes)));
                break;
        }
    }

    std::string finish() {
        while (!path_.empty()) close();
        return std::move(document_);
    }

private:
    void openChild(std::uint8_t choice) {
        if (path_.size() >= kMostDepth) return;
        const auto& elements = path_.back()->elements();
        if (choice < kAnyElement && !elements.empty()) return open(*elements[choice % elements.size()]->childClass());
        open(*namedRecords()[choice % namedRecords().size()]);
    }

    void open(const XmlObjectTypeInfo& record) {
        if (isTagOpen_) document_ += '>';
        document_ += '<';
        document_ += record.getKey().name;
        path_.push_back(&record);
        given_.assign(record.attributes().size(), false);
        isTagOpen_ = true;
    }

    void addAttribute(std::uint8_t choice, Bytes value) {
        const auto& attributes = path_.back()->attributes();
        if (!isTagOpen_ || attributes.empty()) return;
        const std::size_t index = choice % attributes.size();
        if (given_[index]) return;
        given_[index] = true;
        document_ += ' ';
        document_ += attributes[index].getName();
        document_ += "=\"";
        appendQuoted(valueText(value, attributes[index].getType().name()), document_);
        document_ += '"';
    }

    void close() {
        if (isTagOpen_) {
            document_ += "/>";
        } else {
            document_ += "</";
            document_ += path_.back()->getKey().name;
            document_ += '>';
        }
        isTagOpen_ = false;
        path_.pop_back();
    }

    std::string document_;
    std::vector<const XmlObjectTypeInfo*> path_;
    std::vector<bool> given_;  // attributes of the open tag
    bool isTagOpen_ = false;
};

/// Writes steps while an XML parser reads.
struct StepWriter {
    std::vector<std::uint8_t> steps;
    std::vector<const XmlObjectTypeInfo*> path;  // null for what is left out
};

void appendAttribute(std::vector<std::uint8_t>& steps, std::size_t index, std::string_view value) {
    value = value.substr(0, kMostTextBytes);
    steps.insert(steps.end(),
                 {2, static_cast<std::uint8_t>(index), kFirstText, static_cast<std::uint8_t>(value.size())});
    steps.insert(steps.end(), value.begin(), value.end());
}

/// The record of a child of the open element, its step written; null when the open element does not take it.
const XmlObjectTypeInfo* openStep(StepWriter& writer, std::string_view name) {
    if (writer.path.empty()) return VexaRoot::getTypeInfoInstance();
    if (writer.path.back() == nullptr) return nullptr;
    const auto& elements = writer.path.back()->elements();
    const auto element = std::ranges::find_if(elements, [&](const auto& e) { return e->getName() == name; });
    if (element == elements.end()) return nullptr;
    writer.steps.insert(writer.steps.end(), {1, static_cast<std::uint8_t>(element - elements.begin())});
    return (*element)->childClass();
}

void XMLCALL onStart(void* user, const XML_Char* name, const XML_Char** attributes) {
    StepWriter& writer = *static_cast<StepWriter*>(user);
    writer.path.push_back(openStep(writer, name));
    const XmlObjectTypeInfo* const record = writer.path.back();
    for (; record != nullptr && *attributes != nullptr; attributes += 2) {
        const XmlAttributeTypeInfo* const attribute = record->findAttribute(attributes[0]);
        if (attribute == nullptr) continue;
        appendAttribute(writer.steps, static_cast<std::size_t>(attribute - record->attributes().data()), attributes[1]);
    }
}

void XMLCALL onEnd(void* user, const XML_Char*) {
    StepWriter& writer = *static_cast<StepWriter*>(user);
    if (writer.path.back() != nullptr) writer.steps.insert(writer.steps.end(), {0, 0});
    writer.path.pop_back();
}

}  // namespace

std::vector<Step> stepsOf(Bytes bytes) {
    std::vector<Step> steps;
    for (std::size_t at = 0; at < bytes.size();) {
        const StepKind kind = kindOf(bytes[at]);
        std::size_t end = std::min(at + kHeadBytes, bytes.size());
        if (kind == StepKind::Attribute) end = std::min(end + valueBytes(bytes.subspan(end)), bytes.size());
        steps.push_back({kind, at, end});
        at = end;
    }
    return steps;
}

std::size_t endOfElement(std::span<const Step> steps, std::size_t open) {
    std::size_t depth = 0;
    for (std::size_t i = open; i < steps.size(); ++i) {
        if (steps[i].kind == StepKind::Open) ++depth;
        if (steps[i].kind == StepKind::Close && --depth == 0) return i + 1;
    }
    return steps.size();
}

std::string documentOf(Bytes bytes) {
    DocumentWriter writer;
    for (const Step& step : stepsOf(bytes)) writer.addStep(step.kind, bytes.subspan(step.begin, step.end - step.begin));
    return writer.finish();
}

std::vector<std::uint8_t> stepsOfDocument(std::string_view document) {
    StepWriter writer;
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(XML_ParserCreate("UTF-8"),
                                                                              &XML_ParserFree);
    XML_SetUserData(parser.get(), &writer);
    XML_SetElementHandler(parser.get(), &onStart, &onEnd);
    XML_Parse(parser.get(), document.data(), static_cast<int>(document.size()), XML_TRUE);
    return std::move(writer.steps);
}

}  // namespace VEXA::Fuzz
