#include "vexa/support/values/TXmlAttribute.h"

#include <gtest/gtest.h>

#include <memory>

#include "vexa/support/values/Defaults.h"

namespace VEXA {
namespace {

static_assert(sizeof(TXmlAttribute<Vector<Transform>>) == sizeof(void*), "a document may hold millions of them");
static_assert(sizeof(AttributeBox<Value>) == 16);

TEST(TXmlAttribute, StartsWithItsDefaultWhichWritingLeavesAlone) {
    TXmlAttribute<Length> width(DefaultWidthLength);
    EXPECT_FALSE(width.isGiven());
    EXPECT_EQ(width->pxSize(), 20.0F);
    EXPECT_TRUE(width == DefaultWidthLength);
    width.setValue(Length(3));
    EXPECT_EQ(width->pxSize(), 3.0F);
    EXPECT_EQ(DefaultWidthLength.getValue().pxSize(), 20.0F);
    EXPECT_FALSE(width == DefaultWidthLength);
    EXPECT_TRUE(width.isGiven());
}

TEST(TXmlAttribute, TheDefaultValueWrittenOutIsGivenButNoDifference) {
    TXmlAttribute<String> family(DefaultFontFamily);
    family.setValue(String("sans-serif"));
    EXPECT_TRUE(family.isGiven()) << "stops inheritance";
    EXPECT_TRUE(family == DefaultFontFamily) << "compared by value";
}

TEST(TXmlAttribute, CopiesShareTheValueUntilOneIsWritten) {
    auto first = std::make_unique<TXmlAttribute<String>>(DefaultStringAttribute);
    first->setValue(String("North"));
    TXmlAttribute<String> copy(*first);
    TXmlAttribute<String> assigned(DefaultStringAttribute);
    assigned = copy;
    EXPECT_EQ(&copy.getValue(), &first->getValue());
    copy.setValue(String("South"));
    EXPECT_EQ(**first, String("North"));
    first.reset();
    EXPECT_EQ(*assigned, String("North")) << "outlives the first owner";
}

TEST(TXmlAttribute, ReadsTextsByItsType) {
    const XmlValueType& type = TXmlAttribute<Length>::valueType();
    XmlValueBox* const box = type.parse("1.5cm");
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(type.print(*box), "1.5cm");
    type.release(box);
    EXPECT_EQ(type.parse("thick"), nullptr);
    EXPECT_EQ(type.name(), "Length");
}

}  // namespace
}  // namespace VEXA
