#include "vexa/support/xml/XmlObjectFactory.h"

#include "vexa/support/xml/XmlObjectTypeInfo.h"

namespace VEXA {
namespace {

using Registrar = void (*)();
constinit Registrar registrar = nullptr;

}  // namespace

XmlObjectFactory& XmlObjectFactory::instance() {
    static XmlObjectFactory* const factory = new XmlObjectFactory;
    return *factory;
}

XmlObjectFactory* XmlObjectFactory::get() {
    if (registrar != nullptr) registrar();
    return &instance();
}

void XmlObjectFactory::setRegistrar(void (*registerAll)()) noexcept { registrar = registerAll; }

void XmlObjectFactory::registerTypeInfo(XmlObjectTypeInfo* info) {
    if (!info->getKey().name.empty()) elementIndex_.add(info->getKey().name, static_cast<int>(infos_.size()));
    infos_.push_back(info);
}

XmlObjectTypeInfo* XmlObjectFactory::findTypeInfo(const XmlKey& key) const noexcept {
    const int position = elementIndex_.find(key.name);
    if (position < 0) return nullptr;
    XmlObjectTypeInfo* const info = infos_[static_cast<std::size_t>(position)];
    return info->getKey() == key ? info : nullptr;
}

int XmlObjectFactory::inheritableId(std::string_view name, const XmlNamespace& space, const XmlValueType& type) {
    if (const int known = inheritableIndex_.find(name); known >= 0) {
        if (inheritable_[static_cast<std::size_t>(known)].type == &type) return known;
        raise(UnreacheableCodeException(String("two types for the inherited attribute \"") + String(name) + "\""),
              "XmlObjectFactory", __LINE__);
    }
    const int id = static_cast<int>(inheritable_.size());
    if (id == kMaxInheritableNames) {
        raise(UnreacheableCodeException("too many names of inherited attributes"), "XmlObjectFactory", __LINE__);
    }
    inheritable_.push_back({name, &space, &type});
    inheritableIndex_.add(name, id);
    return id;
}

}  // namespace VEXA
