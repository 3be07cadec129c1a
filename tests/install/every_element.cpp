// Links the archive and names nothing of it but the engine: every class must still be there to be made.

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <set>
#include <string>

#include "vexa/engine/VexaEngine.h"
#include "vexa/support/xml/XmlObjectFactory.h"
#include "vexa/support/xml/XmlObjectTypeInfo.h"

namespace {

constexpr const char* kElements[] = {
    "root",        "plot-area",     "bar-chart",   "line-chart",      "area-chart",      "serie",  "data-point",
    "value-axis",  "category-axis", "tick-marks",  "grid-lines",      "display-values",  "value",  "pie",
    "slice",       "spider",        "spider-axis", "title",           "spider-serie",    "legend", "spider-data-point",
    "legend-item", "defs",          "stop",        "linear-gradient", "radial-gradient",
};

/// True when an object of the element's own class was made.
bool canBeMade(const std::string& element, VEXA::XmlObjectFactory& factory) {
    const auto* info = factory.findTypeInfo({"http://vexa-charts.org/2008/vx", element});
    if (info == nullptr) return false;
    const auto object = info->createObject();
    return object && object->getTypeInfo() == info && info->getElementName() == VEXA::String(element);
}

/// Abstract classes aside, as many as there are elements.
bool hasNoOtherClass(const VEXA::XmlObjectFactory& factory) {
    const auto& infos = factory.typeInfos();
    const auto isConcrete = [](const VEXA::XmlObjectTypeInfo* info) { return !info->isAbstract(); };
    return std::count_if(infos.begin(), infos.end(), isConcrete) == std::ssize(kElements);
}

}  // namespace

int main() {
    const std::string chart = "<root xmlns='http://vexa-charts.org/2008/vx'/>";
    const auto root = VEXA::VexaEngine::loadStream(VEXA::make<VEXA::IO::MemoryStream>(chart));
    int missing = root ? 0 : 1;
    for (const char* element : kElements) {
        if (canBeMade(element, *VEXA::XmlObjectFactory::get())) continue;
        std::printf("no class for %s\n", element);
        ++missing;
    }
    if (!hasNoOtherClass(*VEXA::XmlObjectFactory::get())) {
        std::printf("a class is registered that this list lacks\n");
        ++missing;
    }
    return missing == 0 ? 0 : 1;
}
