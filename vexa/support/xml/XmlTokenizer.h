#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "vexa/support/core/Exception.h"
#include "vexa/support/core/Stream.h"

namespace VEXA {

/// A name with its namespace; views that live until the handler returns.
struct XmlNameToken {
    std::string_view uri;  ///< empty without a namespace
    std::string_view local;
};

struct XmlAttributeToken {
    XmlNameToken name;
    std::string_view value;  ///< UTF-8
};

/// Receives a document's tokens in order. May throw: the tokeniser stops and passes the exception on.
class XmlTokenHandler {
public:
    virtual ~XmlTokenHandler() = default;
    virtual void startElement(const XmlNameToken& name, std::span<const XmlAttributeToken> attributes) = 0;
    virtual void endElement() = 0;
    /// A piece of character content, UTF-8; a run may come in several pieces.
    virtual void text(std::string_view piece) = 0;
    /// The exception for a document that is not well-formed; `what` says why.
    virtual Exception malformed(const String& what) const { return Exception(3000, {what}); }
};

/// Splits an XML 1.0 document with namespaces into tokens. UTF-8, UTF-16, ISO-8859-1 and US-ASCII are read. Document
/// type declarations are refused, so there are no entities to expand and no other files to open.
class XmlTokenizer {
public:
    /// `encoding` overrides the document's own declaration unless empty. The handler must live as long as the
    /// tokeniser.
    static std::unique_ptr<XmlTokenizer> make(SmartPtr<IO::Stream> stream, const String& encoding,
                                              XmlTokenHandler& handler);
    virtual ~XmlTokenizer() = default;

    /// Reads on to the end, or until the handler has called pause. Throws Exceptions 3000 to 3015 with their place.
    virtual void run() = 0;
    /// Called by the handler in startElement: `run` returns after that tag. An empty element's end comes along with its
    /// start.
    virtual void pause() noexcept = 0;
    /// Where the token that is being handled begins.
    virtual SourcePlace getPlace() = 0;
};

}  // namespace VEXA
