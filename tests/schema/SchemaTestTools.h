#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/TestDirectory.h"
#include "vexa/schema/Vocabulary.h"

namespace VEXA::Testing {

/// What an independent validator (xmllint) says of documents.
struct Verdict {
    bool isValid = false;
    std::string told;  ///< the validator's words
};
std::vector<Verdict> validate(const std::vector<std::string>& documents);

/// What the engine says while it reads and paints a document: warnings and the error that ends it, one a line.
std::string complaints(const std::string& document);

/// The text as the value of an attribute, in double quotes; control characters as references.
std::string quotedAttribute(const std::string& text);

/// A whole document around an element of that name, with the elements that must stand beside it.
std::string documentAround(const Vocabulary& vocabulary, std::string_view name, const std::string& element);

}  // namespace VEXA::Testing
