#pragma once

#include <string_view>

namespace VEXA {

/// A namespace with the prefix that its documents commonly use. Instances are static.
struct XmlNamespace {
    std::string_view uri;
    std::string_view prefix;
};

/// The full name of an element or attribute. Views of static text.
struct XmlKey {
    std::string_view namespaceUri;
    std::string_view name;
    friend bool operator==(const XmlKey&, const XmlKey&) = default;
};

}  // namespace VEXA
