#include <gtest/gtest.h>

#include "vexa/legend/VexaNote.h"
#include "vexa/surfaces/DisplayListSurface.h"

namespace VEXA {
namespace {

// The element that docs/add-an-element.md adds.
TEST(Docs, TheAddedElementPaintsItsTextWhereItsAttributesSay) {
    const XmlObjectTypeInfo* const info = VexaNote::getTypeInfoInstance();
    const XmlObjPtr<XmlObject> note = info->createObject();
    const auto give = [&](const char* name, const char* text) {
        const XmlAttributeTypeInfo* const attribute = info->findAttribute(name);
        ASSERT_NE(attribute, nullptr) << name;
        attribute->setGiven(*note, attribute->getType().parse(text));
    };
    give("x", "24px");
    give("y", "1in");
    give("value", "Source: a guild");
    give("caption-color", "#666");

    const auto stream = make<IO::MemoryStream>();
    const auto surface = make<DisplayListSurface>(stream);
    surface->beginDocument();
    {
        VexaRenderContext context(surface, 800, 600);
        static_cast<VexaNote&>(*note).render(context);
    }
    surface->endDocument();
    const std::string& drawn = stream->bytes();
    EXPECT_NE(drawn.find(R"({"op":"text","text":"Source: a guild","x":24,"y":96,)"), std::string::npos) << drawn;
    EXPECT_NE(drawn.find(R"("fill":{"type":"solid","color":"#666666","opacity":1})"), std::string::npos) << drawn;
}

}  // namespace
}  // namespace VEXA
