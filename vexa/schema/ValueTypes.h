#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "vexa/support/xml/XmlAttribute.h"

namespace VEXA {

/// What people call a type of values, "Length or percentage"; types that read the same texts have the same title.
std::string_view titleOf(const XmlValueType& type) noexcept;

/// The name of the type in the schema, "LengthOrPercentage".
std::string schemaNameOf(const XmlValueType& type);

/// The definition of a type of values in XML Schema. What it accepts is what the type's parser reads, with three
/// exceptions: a reference must begin with "#" and a step of an axis be above 0, because no other one works, and
/// numbers in a list need something between them where the parser sees the next one by its point.
struct TypeDefinition {
    std::string content;                                     ///< of its xs:simpleType
    std::vector<std::pair<std::string, std::string>> parts;  ///< name and content of further types that it refers to
};
TypeDefinition defineType(const XmlValueType& type);

}  // namespace VEXA
