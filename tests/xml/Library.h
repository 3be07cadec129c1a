#pragma once

#include <string>
#include <vector>

#include "vexa/support/values/Defaults.h"
#include "vexa/support/xml/SaxParserImpl.h"
#include "vexa/support/xml/XmlTypeInfo.h"

/// A small vocabulary for the tests of the binding: shelves with boxes and books.
namespace VEXA::Testing {

inline constexpr XmlNamespace kLibrary{"urn:library", "lib"};

/// What the parser did, in order.
inline thread_local std::string events;

class Item : public XmlObject {
public:
    class ItemTypeInfo final : public XmlTypeInfo<Item, XmlObject> {
    public:
        ItemTypeInfo() : XmlTypeInfo("Item", "", kLibrary, &initTypeInfo, 17) {}
        static void initTypeInfo(XmlObjectTypeInfo* info) {
            XmlObjectTypeInfo::initTypeInfo(info);
            addAttributeTypeInfo(info, "name", kLibrary, &Item::name, DefaultStringAttribute, false);
        }
    };
    static XmlObjectTypeInfo* getTypeInfoInstance() {
        static XmlObjectTypeInfo* const record = new ItemTypeInfo;
        return record;
    }
    static int typeID() { return getTypeInfoInstance()->typeID(); }

    virtual void beConcrete() const = 0;
    void initialize(SmartPtr<XmlObject> parent, SaxParserContext& context) override {
        XmlObject::initialize(parent, context);
        events += "initialize, name " + name->toUtf8() + "; ";
    }
    void finalize(SaxParserContext&) override { events += "finalize " + name->toUtf8() + "; "; }
    void handleUnrecognizedAttribute(const String& attribute, const String& uri, const String& value) override {
        events += "unrecognized " + uri.toUtf8() + "|" + attribute.toUtf8() + "=" + value.toUtf8() + "; ";
    }
    void addText(String text) override { events += "text " + text.toUtf8() + "; "; }

    TXmlAttribute<String> name{DefaultStringAttribute};
};

/// What the classes of the library share: a record, which T's `addParts` fills.
template <class T>
class ItemOf : public Item {
public:
    class Record final : public XmlTypeInfo<T, Item> {
    public:
        Record() : XmlTypeInfo<T, Item>(T::kClass, T::kElement, kLibrary, &initTypeInfo) {}
        static void initTypeInfo(XmlObjectTypeInfo* info) {
            Item::ItemTypeInfo::initTypeInfo(info);
            T::addParts(info);
        }
        using XmlObjectTypeInfo::addAttributeTypeInfo;
        using XmlObjectTypeInfo::addElementTypeInfo;
    };
    static XmlObjectTypeInfo* getTypeInfoInstance() {
        static XmlObjectTypeInfo* const record = new Record;
        return record;
    }
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }
    void beConcrete() const override {}
};

class Book final : public ItemOf<Book> {
public:
    static constexpr const char *kClass = "Book", *kElement = "book";
    static void addParts(XmlObjectTypeInfo* info) {
        Record::addAttributeTypeInfo(info, "size", kLibrary, &Book::size, DefaultMarkerWidth, true);
        Record::addAttributeTypeInfo(info, "depth", kLibrary, &Book::depth, DefaultLength, true);
    }

    TXmlAttribute<Length> size{DefaultMarkerWidth};  // 8
    TXmlAttribute<Length> depth{DefaultLength};      // 0
};

class Box final : public ItemOf<Box> {
public:
    static constexpr const char *kClass = "Box", *kElement = "box";
    static void addParts(XmlObjectTypeInfo* info) {
        Record::addAttributeTypeInfo(info, "depth", kLibrary, &Box::depth, DefaultLength, false);
        Record::addElementTypeInfo(info, "box", kLibrary, &Box::items);
        Record::addElementTypeInfo(info, "book", kLibrary, &Box::items);
        Record::addElementTypeInfo(info, "label", kLibrary, &Box::label);
    }

    TXmlAttribute<Length> depth{DefaultLength};  // kept to itself
    XmlObjectList<Item> items;
    XmlObjPtr<Item> label;
};

class Label final : public ItemOf<Label> {
public:
    static constexpr const char *kClass = "Label", *kElement = "label";
    static void addParts(XmlObjectTypeInfo*) {}
    void finalize(SaxParserContext&) override {
        if (*name == String("explode")) throw std::runtime_error("label");
    }
};

inline void registerLibrary() {
    static const bool once = (Book::typeID(), Box::typeID(), Label::typeID(), true);
    static_cast<void>(once);
}

/// Hands out its bytes a few at a time, never as a whole: the parser's way for pipes.
class TrickleStream final : public IO::Stream {
public:
    TrickleStream(std::string bytes, std::size_t step) : bytes_(std::move(bytes)), step_(step) {}
    std::size_t read(void* buffer, std::size_t size) override {
        const std::size_t count = std::min({size, step_, bytes_.size() - at_});
        bytes_.copy(static_cast<char*>(buffer), count, at_);
        at_ += count;
        return count;
    }
    void write(const void*, std::size_t) override {}

private:
    std::string bytes_;
    std::size_t step_;
    std::size_t at_ = 0;
};

/// Keeps what it is told, each problem as "line:column: severity code; ", and the last message.
class Collector final : public ISAXParserMonitor, public LogSink {
public:
    void report(const LogRecord& record) override { write(record); }
    void write(const LogRecord& record) override {
        ++count;
        message = record.message.toUtf8();
        problems += std::to_string(record.place.line) + ":" + std::to_string(record.place.column) + ": " +
                    (record.severity == Severity::Error ? "error " : "warning ") + std::to_string(record.code) + "; ";
    }
    std::size_t count = 0;
    std::string problems;
    std::string message;
};

struct ReadOptions {
    UnrecognizedElementTreatment unrecognized = UnrecognizedElementTreatment::SkipWithWarning;
    bool inherit = true;
    ISAXParserMonitor* monitor = nullptr;
    bool collectText = false;
    const char* encoding = "";
};

inline XmlObjPtr<XmlObject> readFrom(SmartPtr<IO::Stream> stream, const ReadOptions& options = {}) {
    registerLibrary();
    SmartPtr<SaxParserImpl> parser(new SaxParserImpl(options.unrecognized, options.inherit, options.monitor,
                                                     options.collectText, options.encoding));
    parser->startParsing(std::move(stream));
    XmlObjPtr<XmlObject> top = parser->parseNextChild(nullptr, false);
    if (top) parser->parseChildContent(top);
    return top;
}

inline XmlObjPtr<XmlObject> read(const std::string& document, const ReadOptions& options = {}) {
    return readFrom(SmartPtr<IO::Stream>(new IO::MemoryStream(document)), options);
}

/// What the parser tells a monitor.
inline Collector told(const std::string& document, ReadOptions options = {}) {
    Collector collector;
    options.monitor = &collector;
    read(document, options);
    return collector;
}

/// A box with this content, in the library's namespace.
inline std::string box(const std::string& content, const std::string& attributes = "") {
    return "<box xmlns=\"urn:library\" " + attributes + ">" + content + "</box>";
}

}  // namespace VEXA::Testing
