#pragma once

#include <span>
#include <string_view>

#include "vexa/support/core/Vector.h"
#include "vexa/support/xml/Synonyms.h"
#include "vexa/support/xml/XmlKey.h"
#include "vexa/support/xml/XmlNameTable.h"

namespace VEXA {

class XmlObjectTypeInfo;
class XmlValueType;

/// Knows the record of every class. Filled while the library is loaded, only read afterwards.
class XmlObjectFactory {
public:
    /// The factory with the classes of the library that its registrar registers. The registrar is set while the library
    /// is loaded; a program that links it statically and never refers to VexaEngine has no registrar and calls
    /// registerAll() of vexa/engine/ClassList.h itself.
    static XmlObjectFactory* get();
    /// The factory as it is: for the records themselves, while they register.
    static XmlObjectFactory& instance();
    /// The function that registers all classes; `get` calls it. It must be cheap when called again.
    static void setRegistrar(void (*registerAll)()) noexcept;

    int getNewTypeId() noexcept { return ++lastTypeId_; }
    void registerTypeInfo(XmlObjectTypeInfo* info);

    /// The class of an element; null when no class has that key.
    XmlObjectTypeInfo* findTypeInfo(const XmlKey& key) const noexcept;
    /// All records in the order of registration, abstract classes included.
    const Vector<XmlObjectTypeInfo*>& typeInfos() const noexcept { return infos_; }

    /// An attribute name that descendants inherit. One type of value for each name.
    struct InheritableName {
        std::string_view name;
        const XmlNamespace* space;
        const XmlValueType* type;
    };
    static constexpr int kMaxInheritableNames = 64;

    /// The number of an inheritable name, given out on first use.
    int inheritableId(std::string_view name, const XmlNamespace& space, const XmlValueType& type);
    /// -1 when the name is not inheritable.
    int findInheritable(std::string_view name) const noexcept { return inheritableIndex_.find(name); }
    const Vector<InheritableName>& inheritableNames() const noexcept { return inheritable_; }

    /// Serve messages about unknown names.
    void setSynonyms(std::span<const SynonymGroup> groups) noexcept { synonyms_ = groups; }
    std::span<const SynonymGroup> synonyms() const noexcept { return synonyms_; }

private:
    XmlObjectFactory() = default;

    int lastTypeId_ = 0;
    Vector<XmlObjectTypeInfo*> infos_;
    XmlNameTable elementIndex_;  // by local name; a name belongs to one class
    Vector<InheritableName> inheritable_;
    XmlNameTable inheritableIndex_;
    std::span<const SynonymGroup> synonyms_;
};

}  // namespace VEXA
