#pragma once

#include <string>

namespace VEXA {

/// The schema of chart documents in XML Schema 1.0 (W3C), made from the registered classes; UTF-8, one definition to
/// each element, base class and type of values, ended by a line feed.
std::string makeXmlSchema();

}  // namespace VEXA
