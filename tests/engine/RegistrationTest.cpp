#include <gtest/gtest.h>

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

namespace VEXA {
namespace {

using namespace Testing;

XmlObjectTypeInfo* recordOf(const char* element) {
    return XmlObjectFactory::get()->findTypeInfo({chartNamespace().uri, element});
}

/// Every element of a chart document: its class, the class's base, and its children, "name" for one and "name*" for
/// any number.
struct ElementRow {
    const char* element;
    const char* className;
    const char* base;
    const char* children;
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
        EXPECT_FALSE(record->isAbstract()) << row.element;
        const XmlObjPtr<XmlObject> object = record->createObject();
        EXPECT_TRUE(object->isA(record->typeID())) << row.element;
        EXPECT_TRUE(object->isKindOf(record->getParentTypeInfo()->typeID())) << row.element;
        EXPECT_TRUE(object->isKindOf(VexaObject::typeID())) << row.element;
        EXPECT_EQ(object->getTypeInfo()->getElementName(), row.element);
    }
}

TEST(Registration, ListOfElementsIsComplete) {
    std::set<std::string_view> known;
    for (const ElementRow& row : kElements) known.insert(row.element);
    std::set<std::string_view> registered;
    for (const XmlObjectTypeInfo* record : XmlObjectFactory::get()->typeInfos()) {
        if (record->getKey().namespaceUri != chartNamespace().uri || record->isAbstract()) continue;
        EXPECT_TRUE(registered.insert(record->getKey().name).second) << record->getKey().name << " is there twice";
    }
    EXPECT_EQ(registered, known);
}

TEST(Registration, ChildrenGoWhereTheyBelong) {
    for (const ElementRow& row : kElements) {
        std::string children;
        for (const auto& child : recordOf(row.element)->elements()) {
            children += std::string(child->getName()) + (child->isList() ? "* " : " ");
            const XmlObjectTypeInfo* const record = recordOf(std::string(child->getName()).c_str());
            ASSERT_NE(record, nullptr) << child->getName();
            EXPECT_TRUE(record->isKindOf(child->memberClass()->typeID())) << row.element << " > " << child->getName();
        }
        EXPECT_EQ(children, row.children) << row.element;
    }
}

TEST(Registration, AbstractClassesAreNotMade) {
    const struct {
        XmlObjectTypeInfo* record;
        const char* failure;
    } cases[] = {
        {VexaObject::getTypeInfoInstance(), "Exception 2029 VexaObject:7 at 0:0"},
        {VexaAreaObject::getTypeInfoInstance(), "Exception 2029 VexaAreaObject:11 at 0:0"},
        {VexaElementObject::getTypeInfoInstance(), "Exception 2029 VexaElementObject:11 at 0:0"},
        {VexaAxisObject::getTypeInfoInstance(), "Exception 2029 VexaAxisObject:8 at 0:0"},
        {VexaContainerObject::getTypeInfoInstance(), "Exception 2029 VexaContainerObject:7 at 0:0"},
    };
    for (const auto& c : cases) {
        EXPECT_TRUE(c.record->isAbstract());
        EXPECT_TRUE(c.record->getElementName().isEmpty());
        EXPECT_EQ(failureOf([&] { c.record->createObject(); }), c.failure);
        const std::string name(c.record->getClassName());
        EXPECT_NE(messageOf([&] { c.record->createObject(); }).find(name), std::string::npos);
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

TEST(Registration, EveryAttributeHasAMemberOfItsOwn) {
    for (const ElementRow& row : kElements) {
        const XmlObjPtr<XmlObject> object = recordOf(row.element)->createObject();
        std::set<const void*> members;
        std::set<std::string_view> names;
        for (const XmlAttributeTypeInfo& attribute : object->getTypeInfo()->attributes()) {
            EXPECT_TRUE(members.insert(&attribute.of(*object)).second) << row.element << ' ' << attribute.getName();
            EXPECT_TRUE(names.insert(attribute.getName()).second) << row.element << ' ' << attribute.getName();
        }
    }
}

TEST(Registration, InheritedAttributesAreThoseOfStylingAndAFewMore) {
    std::string names;
    for (const auto& inheritable : XmlObjectFactory::get()->inheritableNames()) {
        if (inheritable.space->uri == chartNamespace().uri) names += std::string(inheritable.name) + ' ';
    }
    std::set<std::string> sorted;
    for (std::size_t at = 0; at < names.size(); at = names.find(' ', at) + 1) {
        sorted.insert(names.substr(at, names.find(' ', at) - at));
    }
    const std::set<std::string> expected = {
        // Styling of elements.
        "fill", "fill-opacity", "stroke", "stroke-opacity", "stroke-width", "stroke-linecap", "stroke-linejoin",
        "stroke-miterlimit", "stroke-dasharray", "stroke-dashoffset", "opacity", "font-family", "font-size",
        "font-weight", "font-style", "caption-color", "caption-offset",
        // What else a group of elements has in common.
        "theme", "caption-placement", "marker", "marker-width", "min", "max", "padding"};
    EXPECT_EQ(sorted, expected);
}

}  // namespace
}  // namespace VEXA
