#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "vexa/support/core/Log.h"

/// Documents that must not do harm: what they become on every surface, and what that costs.
namespace VEXA::Testing {

/// What a document becomes.
struct Rendered {
    std::string bytes;  ///< of the picture, the start of it where the document failed
    std::string error;  ///< empty when the document is drawn
    SourcePlace place;  ///< of the error
    std::vector<LogRecord> log;
    std::size_t peak = 0;  ///< most bytes in use at once, above those of before

    bool isDrawn() const noexcept { return error.empty(); }
};

Rendered renderSvg(const std::string& document);
Rendered renderDisplayList(const std::string& document);

/// What an XML parser finds in a picture.
struct Markup {
    std::string error;  ///< empty when it is well-formed
    std::vector<std::string> elements;
    std::vector<std::string> texts;  ///< of the elements that have one
    struct Attribute {
        std::string name, value;
    };
    std::vector<Attribute> attributes;
};
Markup parseMarkup(const std::string& svg);

/// Empty when each line is JSON with finite numbers and the last one ends the document; else what is wrong.
std::string displayListProblem(const std::string& list);

/// The most bytes that a document may take, apart from the pixels of a picture.
std::size_t memoryBound(const std::string& document, const Rendered& rendered);

/// A chart document among these tests, by its name without extension.
std::string hostDocument(const std::string& name);
/// The documents that together hold every element.
const std::vector<std::string>& hostDocuments();

/// The document with that attribute in the first element of the name; empty when it has no such element. The value
/// stands between double quotes as it is.
std::string withAttribute(const std::string& document, const std::string& element, const std::string& attribute,
                          const std::string& value);

}  // namespace VEXA::Testing
