#pragma once

#include <span>
#include <string_view>

namespace VEXA::Fuzz {

/// Texts of the type of values with that name (XmlValueType::name), usual ones and nasty ones. Never empty.
std::span<const std::string_view> samplesOf(std::string_view typeName);

}  // namespace VEXA::Fuzz
