#pragma once

#include <string>

#include "vexa/schema/Vocabulary.h"

namespace VEXA {

/// What may stand in an element, in XML Schema: its children in any order, lists any number of times, others once at
/// most. An element without children has room for blanks and comments.
std::string contentModel(const ElementEntry& element);

/// The group of the element's lists that its content model refers to; empty when it refers to none.
std::string contentGroup(const ElementEntry& element);

/// The declaration of an element, with the constraints on ids in it; of the one that stands where none may, too.
std::string elementDeclaration(std::string_view name, std::string_view occurrence = {});
std::string nothingDeclaration();

}  // namespace VEXA
