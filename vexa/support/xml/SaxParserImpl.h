#pragma once

#include <memory>

#include "vexa/support/core/Log.h"
#include "vexa/support/core/Stream.h"
#include "vexa/support/xml/XmlObject.h"

namespace VEXA {

/// Receives what a parser finds wrong, with its place. With a monitor an error does not end the parse where the parser
/// can go on, so that one run finds all of them.
class ISAXParserMonitor {
public:
    virtual ~ISAXParserMonitor() = default;
    virtual void report(const LogRecord& problem) = 0;
    /// How many errors, and how many warnings, it is told. The first warning beyond is message 3014.
    virtual std::size_t getLimit() const noexcept { return Limits::kWarnings; }
    /// One more problem, which is not told.
    virtual void leaveOut(Severity) {}
};

/// What to do with an element that no class knows.
enum class UnrecognizedElementTreatment : std::int32_t {
    Refuse = 0,           ///< an error
    SkipWithWarning = 1,  ///< it and all in it is passed over, with a warning
    SkipSilently = 2,
};

/// What the parser shows to the objects it makes.
class SaxParserContext {
public:
    virtual ~SaxParserContext() = default;
    /// Where the parser is reading.
    virtual SourcePlace getPlace() const = 0;
    /// Tells the monitor, or the log when there is none.
    virtual void warn(int code, const VariantArray& arguments, SourcePlace place) = 0;
};

/// Reads an XML document into a tree of typed objects.
///
/// Order of making an element: object with its defaults, initialize, given attributes, inherited ones, joining the
/// parent, children, finalize. An inheritable attribute that the element does not give takes the value on the nearest
/// ancestor that carries the name, unless that ancestor's class keeps the name to itself.
///
/// Without a monitor the first error is thrown as an Exception with its place and warnings go to the log.
class SaxParserImpl final : public Object {
public:
    /// `inheritAttributes`: as above, else every attribute not given has its default. `collectText`: content between
    /// the tags goes to XmlObject::addText, else it is ignored with a warning unless blank. `encoding`: overrides what
    /// the document says (UTF-8, UTF-16, ISO-8859-1, US-ASCII); empty leaves it to the document.
    SaxParserImpl(UnrecognizedElementTreatment unrecognized, bool inheritAttributes, ISAXParserMonitor* monitor,
                  bool collectText, String encoding);
    ~SaxParserImpl() override;

    /// Binds the parser to the stream and reads up to the first element.
    void startParsing(SmartPtr<IO::Stream> stream);
    /// The document's top element, made from its tag alone, or with all its content when `withContent`; empty when
    /// the document has no element or the element was handed out before. REQUIRES: `parent` is empty; other elements
    /// arrive through parseChildContent.
    XmlObjPtr<XmlObject> parseNextChild(SmartPtr<XmlObject> parent, bool withContent);
    /// Reads the rest of the document into the top element.
    void parseChildContent(SmartPtr<XmlObject> element);
    /// Whether an error ended the reading before the document did; what was open then lacks content.
    bool isCutOff() const noexcept;

private:
    class Body;
    std::unique_ptr<Body> body_;
};

}  // namespace VEXA
