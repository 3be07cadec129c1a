// The text of an attribute's value: the first byte selects a type of value, the rest is the text. What is read and
// written is read as the same value again.

#include <set>
#include <string>
#include <vector>

#include "fuzz/support/Fault.h"
#include "vexa/support/xml/XmlObjectFactory.h"
#include "vexa/support/xml/XmlObjectTypeInfo.h"

#include "vexa/engine/ClassList.h"

using namespace VEXA;

namespace {

/// The type of each registered attribute, each once.
const std::vector<const XmlValueType*>& valueTypes() {
    static const std::vector<const XmlValueType*> types = [] {
        registerAll();
        std::vector<const XmlValueType*> found;
        std::set<const XmlValueType*> known;
        for (const XmlObjectTypeInfo* const record : XmlObjectFactory::get()->typeInfos())
            for (const XmlAttributeTypeInfo& attribute : record->attributes())
                if (known.insert(&attribute.getType()).second) found.push_back(&attribute.getType());
        return found;
    }();
    return types;
}

std::string printed(const XmlValueType& type, XmlValueBox* box) {
    std::string text = type.print(*box);
    type.release(box);
    return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const XmlValueType& type = *valueTypes()[data[0] % valueTypes().size()];
    XmlValueBox* const value = type.parse({reinterpret_cast<const char*>(data) + 1, size - 1});
    if (value == nullptr) return 0;
    const std::string text = printed(type, value);
    XmlValueBox* const again = type.parse(text);
    const std::string name(type.name());
    Fuzz::expect(again != nullptr, name + " is not read again: " + text);
    const std::string second = printed(type, again);
    Fuzz::expect(second == text, name + " is read as another value: " + text + " and " + second);
    return 0;
}
