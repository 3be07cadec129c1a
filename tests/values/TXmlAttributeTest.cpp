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
    width.setValue(Length(3));
    EXPECT_EQ(width->pxSize(), 3.0F);
    EXPECT_EQ(DefaultWidthLength.getValue().pxSize(), 20.0F);
    EXPECT_FALSE(width == DefaultWidthLength);
    width.setValue(Length(20));
    EXPECT_TRUE(width == DefaultWidthLength) << "compared by value";
    EXPECT_TRUE(width.isGiven()) << "stops inheritance";
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

TEST(Defaults, AreNeverCounted) {
    EXPECT_TRUE(DefaultFillColor.getValue()->isImmortal());
    EXPECT_EQ(DefaultFillColor.getValue().get(), DefaultGradientStopColor.getValue().get()) << "one black for all";
}

}  // namespace
}  // namespace VEXA
