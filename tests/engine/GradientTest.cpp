#include "tests/engine/StyleTestTools.h"

namespace VEXA {
namespace {

using namespace Testing;
using enum ColorAspect;

/// Two definitions in a list of definitions, which is the top of their tree.
struct Definitions {
    SmartPtr<TestDefs> defs = make<TestDefs>();
    SmartPtr<TestLinear> linear = make<TestLinear>();
    SmartPtr<TestRadial> radial = make<TestRadial>();

    Definitions() {
        defs->add(linear.get());
        defs->add(radial.get());
        linear->id_.setValue("l");
        linear->setPlace({4, 5});
        radial->id_.setValue("r");
        linear->stops_.add(stop(0, 0xc80000, 0.5F));
        linear->stops_.add(stop(1, 0x3264c8));
        radial->stops_.add(stop(0.5F, 0x102030));
    }
};

TEST(Gradient, BrushHasTheStopsShadedByAspect) {
    const Definitions d;
    EXPECT_EQ(describe(d.linear->getBrush(Normal, 0.5F)), "linear 0:#c80000/0.5 1:#3264c8/1");
    EXPECT_EQ(describe(d.linear->getBrush(Darker, 0.5F)), "linear 0:#640000/0.5 1:#193264/1");
    EXPECT_EQ(describe(d.radial->getBrush(Normal, 0.5F)), "radial 0.5:#102030/1");

    const Definitions lighter;
    // A fifth of the way to white: (211, 51, 51) and (91, 131, 211).
    EXPECT_EQ(describe(lighter.linear->getBrush(Lighter, 0.8F)), "linear 0:#d33333/0.5 1:#5b83d3/1");
}

TEST(Gradient, FirstCallFixesTheBrushes) {
    const Definitions d;
    const SmartPtr<Brush> first = d.linear->getBrush(Darker, 0.5F);
    EXPECT_EQ(d.linear->getBrush(Darker, 0.25F).get(), first.get());
    EXPECT_EQ(describe(first), "linear 0:#640000/0.5 1:#193264/1");
    EXPECT_EQ(d.linear->getBrush(static_cast<ColorAspect>(9), 1).get(), d.linear->getBrush(Lighter, 1).get());
}

TEST(Gradient, DefaultGeometry) {
    const auto linear = make<TestLinear>();
    const SmartPtr<Brush> line = linear->getBrush(Normal, 0.5F);
    EXPECT_EQ(describe(line), "linear") << "no stops";
    EXPECT_EQ(static_cast<LinearGradientBrush&>(*line).start(), (PointF{0, 0}));
    EXPECT_EQ(static_cast<LinearGradientBrush&>(*line).end(), (PointF{1, 0}));
    EXPECT_EQ(static_cast<LinearGradientBrush&>(*line).getUnits(), GradientUnits::ObjectBoundingBox);
    EXPECT_EQ(static_cast<LinearGradientBrush&>(*line).getSpreadMethod(), GradientSpreadMethod::Pad);
    EXPECT_TRUE(static_cast<LinearGradientBrush&>(*line).getMatrix().isIdentity());

    const auto radial = make<TestRadial>();
    radial->fx_.setValue(SNullableLength(SLength(0.1F)));
    const SmartPtr<Brush> circle = radial->getBrush(Normal, 0.5F);
    EXPECT_EQ(static_cast<RadialGradientBrush&>(*circle).centre(), (PointF{0.5F, 0.5F})) << "fx has no effect";
    EXPECT_EQ(static_cast<RadialGradientBrush&>(*circle).radii(), (SizeF{0.5F, 0.5F}));
}

TEST(Gradient, RadiusInPercentIsNothing) {
    const auto radial = make<TestRadial>();
    radial->r_.setValue(SLengthOrPercent(LengthOrPercent::percent(0.5F)));
    const SmartPtr<Brush> brush = radial->getBrush(Normal, 0.5F);
    EXPECT_EQ(static_cast<RadialGradientBrush&>(*brush).radii(), (SizeF{0, 0}));
}

TEST(Gradient, TransformGoesIntoAllThreeBrushes) {
    const auto linear = make<TestLinear>();
    linear->gradientTransform_.setValue(
        {{TransformKind::Translate, {}, {Length(10), Length(20)}}, {TransformKind::Scale, {2, 3}, {}}});
    for (const ColorAspect aspect : {Normal, Lighter, Darker}) {
        const SmartPtr<Brush> brush = linear->getBrush(aspect, 0.5F);
        EXPECT_EQ(static_cast<GradientBrush&>(*brush).getMatrix(), Matrix(2, 0, 0, 3, 10, 20));
    }
}

TEST(Gradient, HrefLendsTheStopsOnly) {
    const Definitions d;
    const auto borrower = make<TestLinear>();
    d.defs->add(borrower.get());
    d.linear->gradientTransform_.setValue({{TransformKind::Scale, {2, 3}, {}}});
    borrower->stops_.add(stop(0, 0xffffff));
    borrower->href_.setValue("#l");
    const SmartPtr<Brush> brush = borrower->getBrush(Normal, 0.5F);
    EXPECT_EQ(describe(brush), "linear 0:#c80000/0.5 1:#3264c8/1") << "its own stops do not count";
    EXPECT_TRUE(static_cast<GradientBrush&>(*brush).getMatrix().isIdentity()) << "the transform stays where it is";
}

TEST(Gradient, HrefIsFollowedOneStep) {
    const Definitions d;
    const auto middle = make<TestLinear>();
    const auto last = make<TestLinear>();
    const auto self = make<TestLinear>();
    d.defs->add(middle.get());
    d.defs->add(last.get());
    d.defs->add(self.get());
    middle->id_.setValue("m");
    middle->href_.setValue("#l");
    last->href_.setValue("#m");
    EXPECT_EQ(describe(last->getBrush(Normal, 0.5F)), "linear") << "the middle one has no stops of its own";

    self->id_.setValue("s");
    self->href_.setValue("#s");
    self->stops_.add(stop(0, 0xff0000));
    EXPECT_EQ(describe(self->getBrush(Normal, 0.5F)), "linear 0:#ff0000/1") << "itself is one step away";
}

TEST(Gradient, HrefToNoneOfItsKindGivesNothingThenNoStops) {
    const std::pair<const char*, int> cases[] = {
        {"#missing", 34001}, {"#r", 34003}, {"l", 34001}};  // the other kind; a reference needs its #
    for (const auto& [href, code] : cases) {
        CapturedLog log;
        const Definitions d;
        d.linear->href_.setValue(href);
        EXPECT_TRUE(d.linear->getBrush(Normal, 0.5F).isEmpty()) << href;
        ASSERT_EQ(log.records.size(), 1U) << href;
        EXPECT_EQ(log.records[0].code, code) << href;
        EXPECT_EQ(log.records[0].place, (SourcePlace{4, 5}));
        for (const ColorAspect aspect : {Normal, Lighter, Darker})
            EXPECT_EQ(describe(d.linear->getBrush(aspect, 0.5F)), "linear") << href;
        EXPECT_EQ(log.records.size(), 1U) << "told once";
    }
}

TEST(Gradient, DefinitionsAnswerReferencesOnly) {
    const Definitions d;
    const auto second = make<TestLinear>();
    const auto nameless = make<TestRadial>();
    d.defs->add(second.get());
    d.defs->add(nameless.get());
    second->id_.setValue("r");
    d.defs->id_.setValue("d");
    const struct {
        const char* reference;
        const VexaObject* expected;
        const char* why;
    } cases[] = {
        {"#l", d.linear.get(), "by id"},
        {"#r", d.radial.get(), "the first of two of that id"},
        {"l", nullptr, "a name is no reference"},
        {"", nullptr, "nothing"},
        {"#", nameless.get(), "no name is the name of the nameless"},
        {"#d", nullptr, "the list itself is no definition"},
        {"#L", nullptr, "capitals count"},
        {"##l", nullptr, "one mark only"},
        {" #l", nullptr, "no space in front"},
    };
    for (const auto& c : cases) EXPECT_EQ(d.defs->findObject(c.reference).get(), c.expected) << c.why;
}

/// An element and an area below definitions, with a fill and a stroke that refer to something.
template <class T>
struct Referring {
    Definitions d;
    SmartPtr<T> object = make<T>();

    explicit Referring(const char* url) {
        object->setParent(d.defs.get());
        object->setPlace({8, 2});
        object->fill_.setValue(reference(url));
        object->stroke_.setValue(reference(url));
        object->strokeWidth_.setValue(SLength(3));
    }
};

template <class T>
void expectReferencesResolve() {
    const Referring<T> r("#l");
    EXPECT_EQ(describe(r.object->getFillBrush(Darker, 0.5F)), "linear 0:#640000/0.5 1:#193264/1");
    EXPECT_EQ(describe(r.object->getStrokeBrush(Normal, 0.5F)), "3 linear 0:#c80000/0.5 1:#3264c8/1");
    const Referring<T> round("#r");
    EXPECT_EQ(describe(round.object->getFillBrush(Normal, 0.5F)), "radial 0.5:#102030/1");
}

TEST(Gradient, FillsAndStrokesReferToIt) {
    expectReferencesResolve<TestArea>();
    expectReferencesResolve<TestElement>();
}

template <class T>
void expectOpacityOnACopy() {
    const Referring<T> r("#l");
    r.object->fillOpacity_.setValue(FloatOrPercent(0.25F));
    r.object->strokeOpacity_.setValue(FloatOrPercent(0.75F));
    EXPECT_EQ(r.object->getFillBrush(Normal, 0.5F)->getOpacity(), 0.25F);
    EXPECT_EQ(r.object->getStrokeBrush(Normal, 0.5F)->getBrush()->getOpacity(), 0.75F);
    EXPECT_EQ(r.d.linear->getBrush(Normal, 0.5F)->getOpacity(), 1.0F) << "others share the definition's brush";
}

TEST(Gradient, OpacityIsSetOnACopyOfTheDefinitionsBrush) {
    expectOpacityOnACopy<TestArea>();
    expectOpacityOnACopy<TestElement>();
}

TEST(Gradient, CylinderOfAGradientFillTakesItsMiddleStop) {
    const Referring<TestElement> r("#l");
    r.object->fillOpacity_.setValue(FloatOrPercent(0.25F));
    // Of two stops the second, (50, 100, 200) of opacity 1; the fill's opacity goes to the whole.
    EXPECT_EQ(describe(r.object->getCylinderFillBrush(AxisOrientation::Vertical, 0.5F)),
              "linear/0.25 0:#193264/1 0.5:#3264c8/1 0.7:#3264c8/1 0.9:#193264/1");
}

template <class T>
void expectMissing(const char* fill) {
    const Referring<T> r("#missing");
    r.object->setThemeFill(make<SolidColorBrush>(rgb(0x3264c8)));
    CapturedLog log;
    EXPECT_EQ(describe(r.object->getFillBrush(Normal, 0.5F)), fill);
    EXPECT_EQ(describe(r.object->getStrokeBrush(Normal, 0.5F)), "3 empty") << "a stroke without a brush";
    ASSERT_EQ(log.records.size(), 2U);
    for (const LogRecord& record : log.records) {
        EXPECT_EQ(record.severity, Severity::Warning);
        EXPECT_EQ(record.code, 34001);
        EXPECT_EQ(record.place, (SourcePlace{8, 2}));
        EXPECT_NE(record.message.find("#missing"), String::npos);
    }
}

TEST(Gradient, MissingReferenceIsAWarningAndNoBrush) {
    expectMissing<TestArea>("empty");
    expectMissing<TestElement>("#3264c8/1");
}

TEST(Gradient, ReferenceToSomethingElseIsAWarningThatNamesIt) {
    const Referring<TestElement> r("#plain");
    const auto plain = make<TestElement>();
    plain->id_.setValue("plain");
    r.d.defs->add(plain.get());
    CapturedLog log;
    EXPECT_TRUE(r.object->getFillBrush(Normal, 0.5F).isEmpty());
    ASSERT_EQ(log.records.size(), 1U);
    EXPECT_EQ(log.records[0].code, 34002);
    EXPECT_NE(log.records[0].message.find("\"plain\""), String::npos);
}

TEST(Gradient, WithoutATreeNothingIsFound) {
    CapturedLog log;
    auto element = make<TestElement>();
    element->id_.setValue("e");
    element->fill_.setValue(reference("#e"));
    EXPECT_TRUE(element->getFillBrush(Normal, 0.5F).isEmpty());
    EXPECT_EQ(element->getVexaRoot(), element.get()) << "the top of its own tree";
    EXPECT_EQ(element->findReferencedObject("e").get(), element.get()) << "a top object answers to its own id";
    EXPECT_EQ(log.records.size(), 1U);
}

TEST(StyleObject, NearestRootEndsTheWayUp) {
    const Definitions d;
    const auto root = make<VexaRoot>();
    auto element = make<TestElement>();
    element->setParent(root.get());
    root->setParent(d.defs.get());
    EXPECT_EQ(element->getVexaRoot(), root.get()) << "a root inside something else";
    EXPECT_TRUE(element->findReferencedObject("#l").isEmpty()) << "definitions outside the root do not count";
    element->setParent(d.defs.get());
    EXPECT_EQ(element->getVexaRoot(), d.defs.get()) << "no root at all: the top";
}

TEST(StyleObject, FindsItselfByItsIdOnly) {
    auto element = make<TestElement>();
    EXPECT_EQ(element->findObject("").get(), element.get()) << "no id matches the empty one";
    element->id_.setValue("a");
    EXPECT_EQ(element->findObject("a").get(), element.get());
    EXPECT_TRUE(element->findObject("").isEmpty());
    EXPECT_TRUE(element->findObject("A").isEmpty());
    EXPECT_EQ(element->getId(), "a");
}

TEST(StyleObject, AbstractClassesAreNotMade) {
    CapturedLog log;
    const std::pair<XmlObjectTypeInfo*, const char*> records[] = {
        {VexaObject::getTypeInfoInstance(), "VexaObject:7 at 0:0"},
        {VexaAreaObject::getTypeInfoInstance(), "VexaAreaObject:11 at 0:0"},
        {VexaElementObject::getTypeInfoInstance(), "VexaElementObject:11 at 0:0"},
    };
    for (const auto& [record, place] : records) {
        EXPECT_TRUE(record->isAbstract());
        EXPECT_EQ(failureOf([record = record] { record->createObject(); }), std::string("Exception 2029 ") + place);
    }
    ASSERT_EQ(log.records.size(), 3U);
    EXPECT_EQ(log.records[1].code, 2029);
    EXPECT_NE(log.records[1].message.find("VexaAreaObject"), String::npos);
}

}  // namespace
}  // namespace VEXA
