#include "vexa/fonts/BoundedCache.h"

#include <gtest/gtest.h>

#include <string>

#include "vexa/fonts/WidthCache.h"

namespace VEXA {
namespace {

TEST(BoundedCache, KeepsWhatWasUsedLast) {
    BoundedCache<int, std::string> cache(3);
    for (int i = 0; i < 100; ++i) {
        cache.insert(i, std::to_string(i));
        ASSERT_NE(cache.find(0), nullptr) << "is used again and again";
        ASSERT_LE(cache.size(), 6U);
    }
    EXPECT_EQ(*cache.find(0), "0");
    EXPECT_EQ(*cache.find(99), "99");
    EXPECT_EQ(cache.find(50), nullptr);
}

TEST(BoundedCache, CountsCosts) {
    BoundedCache<int, int> cache(10);
    cache.insert(1, 1, 10);
    cache.insert(2, 2, 10);
    EXPECT_NE(cache.find(1), nullptr) << "in the older half";
    cache.insert(3, 3, 1000);
    cache.insert(4, 4, 10);
    cache.insert(5, 5, 10);
    EXPECT_EQ(cache.size(), 2U) << "what is too large goes like the rest";
    EXPECT_EQ(cache.find(3), nullptr);
}

TEST(WidthCache, KeepsProgramsApartAndForgets) {
    WidthCache cache;
    cache.insert(1, "text", {10, U"x"});
    cache.insert(2, "text", {20, U""});
    ASSERT_TRUE(cache.find(1, "text"));
    EXPECT_EQ(cache.find(1, "text")->width, 10);
    EXPECT_EQ(cache.find(1, "text")->missing, U"x");
    EXPECT_EQ(cache.find(2, "text")->width, 20);
    EXPECT_FALSE(cache.find(3, "text"));
    const std::string padding(4000, 'a');
    for (int i = 0; i < 1000; ++i) cache.insert(1, padding + std::to_string(i), {i, U""});
    EXPECT_FALSE(cache.find(1, padding + "0")) << "four million characters are more than it keeps";
    EXPECT_TRUE(cache.find(1, padding + "999"));
    EXPECT_FALSE(cache.find(1, "text"));
    cache.insert(1, std::string(100'000, 'a'), {1, U""});
    EXPECT_FALSE(cache.find(1, std::string(100'000, 'a'))) << "one of so many characters is not kept";
}

}  // namespace
}  // namespace VEXA
