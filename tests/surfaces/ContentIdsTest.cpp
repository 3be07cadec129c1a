#include "vexa/surfaces/ContentIds.h"

#include <gtest/gtest.h>

namespace VEXA {
namespace {

ContentIds::Result intern(ContentIds& ids, const Vector<std::uint32_t>& words) {
    for (const std::uint32_t word : words) ids.add(word);
    return ids.intern();
}

TEST(ContentIds, TellWhatIsNewByTheContentAlone) {
    ContentIds ids;
    const auto first = intern(ids, {1, 2});
    EXPECT_TRUE(first.isNew);
    EXPECT_FALSE(intern(ids, {1, 2}).isNew);
    EXPECT_TRUE(intern(ids, {2, 1}).isNew);
    EXPECT_TRUE(intern(ids, {1, 2, 0}).isNew) << "zeros at the end count";
    EXPECT_FALSE(intern(ids, {1, 2}).isNew) << "a repeated content leaves the others as they were";
    ids.clear();
    EXPECT_TRUE(intern(ids, {4}).isNew);
    EXPECT_TRUE(intern(ids, {1, 2}).isNew);
    EXPECT_EQ(intern(ids, {1, 2}).id, first.id) << "in another order";
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

}  // namespace
}  // namespace VEXA
