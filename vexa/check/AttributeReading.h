#pragma once

#include <string_view>

#include "vexa/support/values/TXmlAttribute.h"
#include "vexa/support/xml/XmlObject.h"
#include "vexa/support/xml/XmlObjectTypeInfo.h"

namespace VEXA {

/// The attribute of that name, as the document gives it. REQUIRES: the object's class has it, with values of type T.
template <class T>
const TXmlAttribute<T>& readAttribute(const XmlObject& object, std::string_view name) {
    return static_cast<const TXmlAttribute<T>&>(object.getTypeInfo()->findAttribute(name)->of(object));
}

}  // namespace VEXA
