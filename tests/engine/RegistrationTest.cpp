#include <set>

#include "tests/engine/EngineTestTools.h"
#include "vexa/cartesian/VexaArea.h"
#include "vexa/cartesian/VexaBar.h"
#include "vexa/cartesian/VexaLine.h"
#include "vexa/cartesian/VexaPlotArea.h"
#include "vexa/pie/VexaPie.h"
#include "vexa/spider/VexaSpider.h"
#include "vexa/style/VexaLinearGradient.h"
#include "vexa/style/VexaRadialGradient.h"

namespace VEXA::Testing {
namespace {

XmlObjectTypeInfo* recordOf(const char* element) {
    return XmlObjectFactory::get()->findTypeInfo({chartNamespace().uri, element});
}

/// Every element of a chart document: its class, the class's base, and its children, "name" for one and "name*" for
/// any number.
struct ElementRow {
    const char *element, *className, *base, *children;
};
const ElementRow kElements[] = {
    {"root", "VexaRoot", "VexaAreaObject", "plot-area* pie* spider* legend title defs* "},
    {"plot-area", "VexaPlotArea", "VexaAreaObject", "line-chart* bar-chart* area-chart* category-axis value-axis "},
    {"bar-chart", "VexaBar", "VexaContainerObject", "serie* "},
    {"line-chart", "VexaLine", "VexaContainerObject", "serie* "},
    {"area-chart", "VexaArea", "VexaContainerObject", "serie* "},
    {"serie", "VexaSerie", "VexaElementObject", "data-point* "},
    {"data-point", "VexaDataPoint", "VexaElementObject", ""},
    {"category-axis", "VexaCategoryAxis", "VexaAxisObject", "tick-marks display-values grid-lines "},
    {"value-axis", "VexaValueAxis", "VexaAxisObject", "tick-marks display-values grid-lines "},
    {"tick-marks", "VexaTickMarks", "VexaElementObject", ""},
    {"grid-lines", "VexaGridLine", "VexaElementObject", ""},
    {"display-values", "VexaDisplayValues", "VexaElementObject", "value* "},
    {"value", "VexaValue", "VexaElementObject", ""},
    {"pie", "VexaPie", "VexaAreaObject", "slice* "},
    {"slice", "VexaSlice", "VexaElementObject", ""},
    {"spider", "VexaSpider", "VexaAreaObject", "spider-serie* spider-axis* "},
    {"spider-axis", "VexaSpiderAxis", "VexaElementObject", ""},
    {"spider-serie", "VexaSpiderSerie", "VexaElementObject", "spider-data-point* "},
    {"spider-data-point", "VexaSpiderDataPoint", "VexaElementObject", ""},
    {"title", "VexaTitle", "VexaElementObject", ""},
    {"legend", "VexaLegend", "VexaAreaObject", "legend-item* "},
    {"legend-item", "VexaLegendItem", "VexaElementObject", ""},
    {"defs", "VexaDefs", "VexaObject", "linear-gradient* radial-gradient* "},
    {"linear-gradient", "VexaLinearGradient", "VexaElementObject", "stop* "},
    {"radial-gradient", "VexaRadialGradient", "VexaElementObject", "stop* "},
    {"stop", "VexaGradientStop", "VexaElementObject", ""},
};

TEST(Registration, EveryNameMakesAnObjectOfItsClass) {
    for (const ElementRow& row : kElements) {
        XmlObjectTypeInfo* const record = recordOf(row.element);
        ASSERT_NE(record, nullptr) << row.element;
        EXPECT_EQ(record->getClassName(), row.className);
        EXPECT_EQ(record->getParentTypeInfo()->getClassName(), row.base) << row.element;
        const XmlObjPtr<XmlObject> object = record->createObject();
        EXPECT_TRUE(object->isA(record->typeID()) && object->isKindOf(VexaObject::typeID())) << row.element;
        EXPECT_TRUE(object->isKindOf(record->getParentTypeInfo()->typeID())) << row.element;
        EXPECT_EQ(object->getTypeInfo()->getElementName(), row.element);

        std::string children;
        for (const auto& child : record->elements()) {
            children += std::string(child->getName()) + (child->isList() ? "* " : " ");
            const XmlObjectTypeInfo* const childRecord = recordOf(std::string(child->getName()).c_str());
            ASSERT_NE(childRecord, nullptr) << child->getName();
            EXPECT_TRUE(childRecord->isKindOf(child->memberClass()->typeID())) << row.element << child->getName();
        }
        EXPECT_EQ(children, row.children) << row.element;

        std::set<const void*> members;
        std::set<std::string_view> names;
        for (const XmlAttributeTypeInfo& attribute : record->attributes()) {
            EXPECT_TRUE(members.insert(&attribute.of(*object)).second) << row.element << ' ' << attribute.getName();
            EXPECT_TRUE(names.insert(attribute.getName()).second) << row.element << ' ' << attribute.getName();
        }
    }
    std::set<std::string_view> registered;
    for (const XmlObjectTypeInfo* record : XmlObjectFactory::get()->typeInfos()) {
        if (record->getKey().namespaceUri != chartNamespace().uri || record->isAbstract()) continue;
        EXPECT_TRUE(registered.insert(record->getKey().name).second) << record->getKey().name << " is there twice";
    }
    EXPECT_EQ(registered.size(), std::size(kElements)) << "the list is complete";
}

TEST(Registration, AbstractClassesAreNotMade) {
    const std::pair<XmlObjectTypeInfo*, const char*> cases[] = {
        {VexaObject::getTypeInfoInstance(), "7"},          {VexaAreaObject::getTypeInfoInstance(), "11"},
        {VexaElementObject::getTypeInfoInstance(), "11"},  {VexaAxisObject::getTypeInfoInstance(), "8"},
        {VexaContainerObject::getTypeInfoInstance(), "7"},
    };
    for (const auto& [record, line] : cases) {
        const std::string name(record->getClassName());
        const auto create = [record = record] { record->createObject(); };
        EXPECT_TRUE(record->isAbstract() && record->getElementName().isEmpty()) << name;
        EXPECT_EQ(failureOf(create), "Exception 2029 " + name + ':' + line + " at 0:0");
        EXPECT_NE(messageOf(create).find(name), std::string::npos);
    }
}

/// An object as its constructor leaves it carries the same defaults as one that the parser makes.
template <class... Classes>
void expectDefaultsOfConstructors() {
    const auto check = [](const XmlObjPtr<XmlObject>& object) {
        const XmlObjectTypeInfo& record = *object->getTypeInfo();
        for (const XmlAttributeTypeInfo& attribute : record.attributes()) {
            EXPECT_EQ(attribute.of(*object).box(), &attribute.getDefault())
                << record.getClassName() << ' ' << attribute.getName();
            EXPECT_FALSE(attribute.of(*object).isGiven());
        }
    };
    (check(XmlObjPtr<XmlObject>(make<Classes>())), ...);
    static_assert(sizeof...(Classes) == std::size(kElements));
}

TEST(Registration, ConstructorsAndRecordsHaveTheSameDefaults) {
    expectDefaultsOfConstructors<VexaRoot, VexaPlotArea, VexaBar, VexaLine, VexaArea, VexaSerie, VexaDataPoint,
                                 VexaCategoryAxis, VexaValueAxis, VexaTickMarks, VexaGridLine, VexaDisplayValues,
                                 VexaValue, VexaPie, VexaSlice, VexaSpider, VexaSpiderAxis, VexaSpiderSerie,
                                 VexaSpiderDataPoint, VexaTitle, VexaLegend, VexaLegendItem, VexaDefs,
                                 VexaLinearGradient, VexaRadialGradient, VexaGradientStop>();
}

TEST(Registration, InheritedAttributesAreThoseOfStylingAndAFewMore) {
    std::set<std::string_view> names;
    for (const auto& inheritable : XmlObjectFactory::get()->inheritableNames())
        if (inheritable.space->uri == chartNamespace().uri) names.insert(inheritable.name);
    const std::set<std::string_view> expected = {
        // Styling of elements.
        "fill", "fill-opacity", "stroke", "stroke-opacity", "stroke-width", "stroke-linecap", "stroke-linejoin",
        "stroke-miterlimit", "stroke-dasharray", "stroke-dashoffset", "opacity", "font-family", "font-size",
        "font-weight", "font-style", "caption-color", "caption-offset",
        // What else a group of elements has in common.
        "theme", "caption-placement", "marker", "marker-width", "min", "max", "padding"};
    EXPECT_EQ(names, expected);

    const std::set<std::string_view> ofAreas{"theme",     "caption-color", "font-family",
                                             "font-size", "font-weight",   "font-style"};
    for (const XmlAttributeTypeInfo& attribute : VexaAreaObject::getTypeInfoInstance()->attributes())
        EXPECT_EQ(attribute.isInherited(), ofAreas.contains(attribute.getName())) << attribute.getName();
    for (const XmlAttributeTypeInfo& attribute : VexaElementObject::getTypeInfoInstance()->attributes())
        EXPECT_EQ(attribute.isInherited(), attribute.getName() != "id") << attribute.getName();
}

}  // namespace
}  // namespace VEXA::Testing
