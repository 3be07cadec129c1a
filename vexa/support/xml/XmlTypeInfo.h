#pragma once

#include "vexa/support/xml/XmlObjectFactory.h"
#include "vexa/support/xml/XmlObjectTypeInfo.h"

namespace VEXA {

/// The record of class C, derived from class B. A nested class `C::CTypeInfo` derives from it, with a static
/// `initTypeInfo(XmlObjectTypeInfo*)` that calls B's one and then registers what C adds, and passes that function here.
template <class C, class B>
class XmlTypeInfo : public XmlObjectTypeInfo {
public:
    XmlObjPtr<XmlObject> createObject() const override {
        if constexpr (std::is_abstract_v<C>) {
            raise(Exception(2029, {String(className_)}), className_, abstractLine_);
        } else {
            XmlObjPtr<XmlObject> object(new C);
            setAttributeDefaults(*object);
            return object;
        }
    }
    std::string_view getClassName() const noexcept override { return className_; }
    bool isAbstract() const noexcept override { return std::is_abstract_v<C>; }
    XmlObjectTypeInfo* getParentTypeInfo() const override { return B::getTypeInfoInstance(); }

protected:
    using InitFunction = void (*)(XmlObjectTypeInfo*);

    /// `abstractLine` is the code location's line of error 2029, for abstract classes.
    XmlTypeInfo(const char* className, std::string_view elementName, const XmlNamespace& space, InitFunction init,
                int abstractLine = 0)
        : XmlObjectTypeInfo(XmlObjectFactory::instance().getNewTypeId()),
          className_(className),
          abstractLine_(abstractLine) {
        setName(elementName, space);
        init(this);
        buildIndexes(B::getTypeInfoInstance());
        XmlObjectFactory::instance().registerTypeInfo(this);
    }

private:
    const char* className_;
    int abstractLine_;
};

}  // namespace VEXA
