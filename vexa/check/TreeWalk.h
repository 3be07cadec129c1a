#pragma once

#include "vexa/support/core/Vector.h"
#include "vexa/support/xml/XmlObjectTypeInfo.h"

namespace VEXA {

/// Calls `visit` for an object and all below it, parents first. Does not recurse: a document may be nested deeply.
template <class Visit>
void walkTree(XmlObject& top, const Visit& visit) {
    Vector<XmlObject*> open{&top};
    while (!open.empty()) {
        XmlObject& object = *open.back();
        open.pop_back();
        visit(object);
        const XmlObjectTypeInfo& info = *object.getTypeInfo();
        if (!info.hasChildren()) continue;
        const Vector<XmlObject*> children = info.childrenOf(object);
        open.insert(open.end(), children.rbegin(), children.rend());
    }
}

}  // namespace VEXA
