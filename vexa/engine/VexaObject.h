#pragma once

#include "vexa/engine/ChartNamespace.h"
#include "vexa/support/values/Defaults.h"
#include "vexa/support/xml/XmlTypeInfo.h"

namespace VEXA {

class VexaRenderContext;

/// Base of every element of a chart document.
class VexaObject : public XmlObject {
public:
    class VexaObjectTypeInfo final : public XmlTypeInfo<VexaObject, XmlObject> {
    public:
        VexaObjectTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    /// The name that references use; empty when the document gives none.
    String getId() const { return id_.getValue(); }

    /// Paints the object.
    virtual void render(VexaRenderContext& context) = 0;
    /// This object when `id` is its own id, else empty. Children are not searched.
    virtual XmlObjPtr<VexaObject> findObject(const String& id);

    /// The nearest root upwards, this object included; without one the top of the tree.
    XmlObject* getVexaRoot();
    /// What the root (or the top of a tree without one) finds under the reference; empty when it finds nothing.
    XmlObjPtr<VexaObject> findReferencedObject(const String& reference);
    /// Warns of a reference of this object that is not found, with the nearest one that would be.
    void tellNotFound(const String& reference);

    /// What a root would find under a reference near to this one, which it does not find; empty when none is near.
    using NearestReference = String (*)(const XmlObject& root, const String& reference);
    /// Tells this class, which does not know its descendants, how to recognise the root and whom to ask for a nearest
    /// reference. The root's record calls it.
    static void setRoot(int typeId, NearestReference nearest) noexcept;

protected:
    VexaObject() noexcept = default;

    TXmlAttribute<String> id_{DefaultStringAttribute};
};

}  // namespace VEXA
