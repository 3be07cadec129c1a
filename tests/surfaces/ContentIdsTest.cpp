#include "vexa/surfaces/ContentIds.h"

#include <gtest/gtest.h>

namespace VEXA {
namespace {

ContentIds::Result intern(ContentIds& ids, const Vector<std::uint32_t>& words) {
    for (const std::uint32_t word : words) ids.add(word);
    return ids.intern();
}

TEST(ContentIds, FollowFromTheContentAlone) {
    ContentIds first;
    const auto a = intern(first, {1, 2, 3});
    const auto b = intern(first, {4});
    EXPECT_NE(a.id, b.id);
    ContentIds second;
    EXPECT_EQ(intern(second, {4}).id, b.id) << "another document, another order";
    EXPECT_EQ(intern(second, {1, 2, 3}).id, a.id);
}

TEST(ContentIds, TellWhatIsNew) {
    ContentIds ids;
    EXPECT_TRUE(intern(ids, {1, 2}).isNew);
    EXPECT_FALSE(intern(ids, {1, 2}).isNew);
    EXPECT_TRUE(intern(ids, {2, 1}).isNew);
    EXPECT_TRUE(intern(ids, {1, 2, 0}).isNew) << "zeros at the end count";
    EXPECT_FALSE(intern(ids, {1, 2}).isNew) << "a repeated content leaves the others as they were";
    ids.clear();
    EXPECT_TRUE(intern(ids, {1, 2}).isNew);
}

TEST(ContentIds, DifferentContentsWithOneHashAreKeptApart) {
    // found by search: both come to the same hash
    const Vector<std::uint32_t> one = {0x1ED3BFC, 0xEED3E09F, 0};
    const Vector<std::uint32_t> other = {0xC4045E0B, 0x210CF879, 0x5DC07DAA};
    ContentIds alone;
    const auto expected = intern(alone, other);
    ContentIds ids;
    const auto first = intern(ids, one);
    ASSERT_EQ(first.id, expected.id) << "the hash has changed: search for another pair";
    const auto second = intern(ids, other);
    EXPECT_TRUE(second.isNew);
    EXPECT_NE(second.id, first.id);
    EXPECT_EQ(intern(ids, other).id, second.id);
    EXPECT_EQ(intern(ids, one).id, first.id);
}

TEST(ContentIds, NumbersAreTakenBitByBit) {
    ContentIds ids;
    ids.add(Matrix().translate(0.1F, 0));
    ids.add(PointF{1, 2});
    const auto first = ids.intern();
    ids.add(Matrix().translate(0.1000001F, 0));
    ids.add(PointF{1, 2});
    EXPECT_NE(ids.intern().id, first.id);
}

}  // namespace
}  // namespace VEXA
