#include "vexa/support/core/SmartPtr.h"

#include <gtest/gtest.h>

#include <cstring>
#include <thread>
#include <type_traits>

#include "vexa/support/core/Exception.h"

namespace VEXA {
namespace {

int alive = 0;

class Probe : public Object {
public:
    Probe() { ++alive; }
    Probe(const Probe& other) : Object(other) { ++alive; }
    Probe& operator=(const Probe&) = default;
    ~Probe() override { --alive; }
    int value = 7;
};

class Derived final : public Probe {};

/// Gives itself back to whoever made it, as objects of a pool do.
class Pooled final : public Object {
public:
    explicit Pooled(int& returned) : returned_(returned) {}
    void OnFinalRelease() override { ++returned_; }

private:
    int& returned_;
};

class Fixed final : public Object {
public:
    constexpr Fixed() noexcept : Object(ImmortalTag{}) {}
};

constinit Immortal<Fixed> fixed;

TEST(SmartPtr, DereferencingAnEmptyOneThrows) {
    const SmartPtr<Probe> empty;
    const auto expectNullPointer = [](const NullPointerException& e) {
        EXPECT_EQ(e.getCode(), 2002);
        EXPECT_STREQ(e.getCodeLocation().source, "SmartPtr");
        EXPECT_EQ(e.getCodeLocation().line, 118);
    };
    try {
        static_cast<void>(empty->value);
        FAIL() << "no exception";
    } catch (const NullPointerException& e) {
        expectNullPointer(e);
    }
    try {
        static_cast<void>(*empty);
        FAIL() << "no exception";
    } catch (const NullPointerException& e) {
        expectNullPointer(e);
    }
}

TEST(SmartPtr, CountsItsObject) {
    ASSERT_EQ(alive, 0);
    SmartPtr<Probe> a = make<Probe>();
    EXPECT_EQ(a->referenceCount(), 1U) << "the first pointer takes the first reference";
    SmartPtr<Probe> b = a;
    EXPECT_EQ(a->referenceCount(), 2U);
    const SmartPtr<Probe> c = std::move(b);
    EXPECT_EQ(a->referenceCount(), 2U) << "moving counts nothing";
    EXPECT_TRUE(b.isEmpty());
    const SmartPtr<Probe>& alias = a;
    a = alias;
    EXPECT_EQ(a->referenceCount(), 2U) << "assigned to itself";
    EXPECT_TRUE(a == c);
    a = make<Probe>();
    EXPECT_EQ(c->referenceCount(), 1U) << "assignment lets go of what was held";
    EXPECT_EQ(alive, 2);
    a = nullptr;
    EXPECT_EQ(alive, 1);
}

TEST(SmartPtr, HandsReferencesOverUncounted) {
    {
        SmartPtr<Probe> a = make<Derived>();
        EXPECT_EQ(a->referenceCount(), 1U) << "conversion to a base moves the reference";
        Probe* raw = a.detach();
        EXPECT_TRUE(a.isEmpty());
        EXPECT_EQ(raw->referenceCount(), 1U);
        const SmartPtr<Probe> b = SmartPtr<Probe>::adopt(raw);
        EXPECT_EQ(b->referenceCount(), 1U);
    }
    EXPECT_EQ(alive, 0);
}

TEST(SmartPtr, ACopiedObjectStartsItsOwnLife) {
    const SmartPtr<Probe> a = make<Probe>();
    const SmartPtr<Probe> b = make<Probe>(*a);
    *b = *a;
    EXPECT_EQ(a->referenceCount(), 1U);
    EXPECT_EQ(b->referenceCount(), 1U);
}

TEST(SmartPtr, LetsTheObjectDecideHowItGoes) {
    int returned = 0;
    Pooled object(returned);
    {
        const SmartPtr<Pooled> a(&object);
        const SmartPtr<Object> b = a;
        EXPECT_EQ(returned, 0);
    }
    EXPECT_EQ(returned, 1);
}

TEST(SmartPtr, LeavesImmortalObjectsUncounted) {
    {
        const SmartPtr<Fixed> a(&fixed.value);
        const SmartPtr<Fixed> b = a;
        EXPECT_TRUE(b->isImmortal());
    }
    EXPECT_EQ(fixed.value.referenceCount(), 0x80000000U) << "neither counted nor freed";
}

TEST(SmartPtr, CountsAcrossThreads) {
    {
        const SmartPtr<Probe> shared = make<Probe>();
        const auto copyOften = [&shared] {
            for (int i = 0; i < 20'000; ++i) EXPECT_EQ(SmartPtr<Probe>(shared)->value, 7);
        };
        std::thread other(copyOften);
        copyOften();
        other.join();
        EXPECT_EQ(shared->referenceCount(), 1U);
    }
    EXPECT_EQ(alive, 0);
}

}  // namespace
}  // namespace VEXA
