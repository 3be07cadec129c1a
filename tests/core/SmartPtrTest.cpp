#include "vexa/support/core/SmartPtr.h"

#include <gtest/gtest.h>

#include <thread>

#include "vexa/support/core/Exception.h"
#include "vexa/support/core/String.h"

namespace VEXA {
namespace {

int alive = 0;

class Probe : public Object {
public:
    Probe() { ++alive; }
    Probe(const Probe& other) : Object(other) { ++alive; }
    Probe& operator=(const Probe&) = default;
    ~Probe() override { --alive; }
};

/// Says when it goes, as objects of a pool do.
class Derived final : public Probe {
public:
    void OnFinalRelease() override { ++released; }
    int released = 0;
};

class Fixed final : public Object {
public:
    constexpr Fixed() noexcept : Object(ImmortalTag{}) {}
};

constinit Immortal<Fixed> fixed;

TEST(SmartPtr, DereferencingAnEmptyOneThrows) {
    const SmartPtr<Probe> empty;
    EXPECT_THROW(static_cast<void>(*empty), NullPointerException);
    try {
        static_cast<void>(empty->referenceCount());
        FAIL() << "no exception";
    } catch (const NullPointerException& e) {
        EXPECT_EQ(e.getCode(), 2002);
        EXPECT_STREQ(e.getCodeLocation().source, "SmartPtr");
        EXPECT_EQ(e.getCodeLocation().line, 118);
    }
}

TEST(SmartPtr, CountsItsObject) {
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
    a = make<Probe>(*c);
    EXPECT_EQ(c->referenceCount(), 1U) << "assignment lets go of what was held";
    EXPECT_EQ(a->referenceCount(), 1U) << "a copied object starts its own life";
    EXPECT_EQ(alive, 2);
    *a = *c;
    EXPECT_EQ(a->referenceCount(), 1U);
    a = nullptr;
    EXPECT_EQ(alive, 1);
}

TEST(SmartPtr, HandsReferencesOverUncounted) {
    Derived object;
    SmartPtr<Probe> a = SmartPtr<Derived>(&object);
    EXPECT_EQ(a->referenceCount(), 1U) << "conversion to a base moves the reference";
    Probe* raw = a.detach();
    EXPECT_TRUE(a.isEmpty());
    EXPECT_EQ(SmartPtr<Probe>::adopt(raw)->referenceCount(), 1U);
    EXPECT_EQ(object.released, 1) << "the object decides how it goes";
}

TEST(SmartPtr, LeavesImmortalObjectsUncounted) {
    { const SmartPtr<Object> pointer = SmartPtr<Fixed>(&fixed.value); }
    EXPECT_EQ(fixed.value.referenceCount(), 0x80000000U) << "neither counted nor freed";
}

TEST(SmartPtr, CountsAcrossThreads) {
    const SmartPtr<Probe> shared = make<Probe>();
    const String text("freed once, by the last of its owners");
    const auto copyOften = [&] {
        for (int i = 0; i < 20'000; ++i) EXPECT_FALSE(SmartPtr<Probe>(shared).isEmpty() || String(text).isEmpty());
    };
    std::thread other(copyOften);
    copyOften();
    other.join();
    EXPECT_EQ(shared->referenceCount(), 1U);
    EXPECT_EQ(text.view().substr(0, 5), U"freed");
}

}  // namespace
}  // namespace VEXA
