#include "vexa/engine/ClassList.h"

#include "vexa/cartesian/VexaArea.h"
#include "vexa/cartesian/VexaBar.h"
#include "vexa/cartesian/VexaLine.h"
#include "vexa/cartesian/VexaPlotArea.h"
#include "vexa/engine/ChartSynonyms.h"
#include "vexa/engine/VexaRoot.h"
#include "vexa/pie/VexaPie.h"
#include "vexa/spider/VexaSpider.h"
#include "vexa/style/VexaLinearGradient.h"
#include "vexa/style/VexaRadialGradient.h"

namespace VEXA {

namespace {

// A base comes before its descendants.
constexpr XmlObjectTypeInfo* (*kRecords[])() = {
    &VexaObject::getTypeInfoInstance,         &VexaElementObject::getTypeInfoInstance,
    &VexaAreaObject::getTypeInfoInstance,     &VexaContainerObject::getTypeInfoInstance,
    &VexaAxisObject::getTypeInfoInstance,     &VexaRoot::getTypeInfoInstance,
    &VexaPlotArea::getTypeInfoInstance,       &VexaPie::getTypeInfoInstance,
    &VexaSpider::getTypeInfoInstance,         &VexaLegend::getTypeInfoInstance,
    &VexaArea::getTypeInfoInstance,           &VexaBar::getTypeInfoInstance,
    &VexaLine::getTypeInfoInstance,           &VexaCategoryAxis::getTypeInfoInstance,
    &VexaValueAxis::getTypeInfoInstance,      &VexaSerie::getTypeInfoInstance,
    &VexaDataPoint::getTypeInfoInstance,      &VexaDisplayValues::getTypeInfoInstance,
    &VexaValue::getTypeInfoInstance,          &VexaGridLine::getTypeInfoInstance,
    &VexaTickMarks::getTypeInfoInstance,      &VexaTitle::getTypeInfoInstance,
    &VexaSlice::getTypeInfoInstance,          &VexaLegendItem::getTypeInfoInstance,
    &VexaGradientStop::getTypeInfoInstance,   &VexaLinearGradient::getTypeInfoInstance,
    &VexaRadialGradient::getTypeInfoInstance, &VexaSpiderAxis::getTypeInfoInstance,
    &VexaSpiderSerie::getTypeInfoInstance,    &VexaSpiderDataPoint::getTypeInfoInstance,
    &VexaDefs::getTypeInfoInstance,
};

bool makeRecords() {
    for (auto* const record : kRecords) record();
    XmlObjectFactory::instance().setSynonyms(chartSynonyms());
    return true;
}

// The factory's first user may come before this file's initialiser has run: VexaEngine calls registerAll itself.
[[maybe_unused]] const bool kRegistered = [] {
    XmlObjectFactory::setRegistrar(&registerAll);
    registerAll();
    return true;
}();

}  // namespace

void registerAll() { [[maybe_unused]] static const bool done = makeRecords(); }

}  // namespace VEXA
