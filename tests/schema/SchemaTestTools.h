#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/TestDirectory.h"
#include "vexa/schema/Vocabulary.h"

namespace VEXA::Testing {

/// A document, what it shows, and whether the schema takes it.
struct Judged {
    std::string document;
    std::string why;
    bool isValid = true;
};
/// Asks an independent validator, xmllint.
void expectVerdicts(const std::vector<Judged>& cases);

/// What the engine says while it reads and paints a document: warnings and the error that ends it, one a line.
std::string complaints(const std::string& document);

/// The text as the value of an attribute, in double quotes; control characters as references.
std::string quotedAttribute(const std::string& text);

/// A whole document around an element of that name, with the elements that must stand beside it.
std::string documentAround(const Vocabulary& vocabulary, std::string_view name, const std::string& element);

}  // namespace VEXA::Testing
