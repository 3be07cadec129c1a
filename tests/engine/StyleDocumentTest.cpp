#include <set>

#include "tests/engine/StyleTestTools.h"

namespace VEXA {
namespace {

using namespace Testing;

/// The brush of the definition that the reference names in a document.
SmartPtr<Brush> brushIn(const XmlObjPtr<VexaRoot>& root, const char* reference) {
    const XmlObjPtr<VexaObject> found = root->findObject(reference);
    auto* const gradient = dynamic_cast<GradientDefinition*>(found.get());
    return gradient == nullptr ? nullptr : gradient->getBrush(ColorAspect::Normal, 0.5F);
}

TEST(StyleDocument, LinearGradientReadsAllItsAttributes) {
    const XmlObjPtr<VexaRoot> root = load(rootWith("", R"x(<defs><linear-gradient id="g" x1="1" y1="2" x2="3pt"
        y2="5" gradientUnits="userSpaceOnUse" spreadMethod="reflect" gradientTransform="translate(10 20) scale(2 3)">
        <stop offset="25%" stop-color="#c80000" stop-opacity="0.5"/><stop/></linear-gradient></defs>)x"));
    const SmartPtr<Brush> brush = brushIn(root, "#g");
    EXPECT_EQ(describe(brush), "linear 0.25:#c80000/0.5 1:#000000/1") << "a bare stop is black, at the end";
    const auto& linear = static_cast<const LinearGradientBrush&>(*brush);
    EXPECT_EQ(linear.start(), (PointF{1, 2}));
    EXPECT_EQ(linear.end(), (PointF{4, 5}));
    EXPECT_EQ(linear.getUnits(), GradientUnits::UserSpaceOnUse);
    EXPECT_EQ(linear.getSpreadMethod(), GradientSpreadMethod::Reflect);
    EXPECT_EQ(linear.getMatrix(), Matrix(2, 0, 0, 3, 10, 20));
}

TEST(StyleDocument, RadialGradientReadsAllItsAttributes) {
    const XmlObjPtr<VexaRoot> root = load(rootWith("", R"x(<defs><radial-gradient id="g" cx="1" cy="2" r="3pt"
        fx="8" fy="9" gradientUnits="userSpaceOnUse" spreadMethod="repeat" gradientTransform="scale(2)"/>
        <radial-gradient id="h" href="#g" r="50%"/></defs>)x"));
    const SmartPtr<Brush> brush = brushIn(root, "#g");
    const auto& radial = static_cast<const RadialGradientBrush&>(*brush);
    EXPECT_EQ(radial.centre(), (PointF{1, 2}));
    EXPECT_EQ(radial.radii(), (SizeF{4, 4}));
    EXPECT_EQ(radial.getUnits(), GradientUnits::UserSpaceOnUse);
    EXPECT_EQ(radial.getSpreadMethod(), GradientSpreadMethod::Repeat);
    EXPECT_EQ(radial.getMatrix(), Matrix(2, 0, 0, 2, 0, 0));
    const SmartPtr<Brush> borrower = brushIn(root, "#h");
    EXPECT_EQ(describe(borrower), "radial");
    EXPECT_EQ(static_cast<const RadialGradientBrush&>(*borrower).radii(), (SizeF{0, 0}));
}

TEST(StyleDocument, ReferencesReachTheFirstDefinitionOfTheWholeDocument) {
    const XmlObjPtr<VexaRoot> root = load(rootWith(R"(id="top")", R"(
        <defs><linear-gradient id="a"><stop stop-color="#111111"/></linear-gradient></defs>
        <pie id="pie"/>
        <defs><linear-gradient id="a"/><linear-gradient id="b" href="#a"/></defs>)"));
    EXPECT_EQ(describe(brushIn(root, "#a")), "linear 1:#111111/1") << "the first of two";
    EXPECT_EQ(describe(brushIn(root, "#b")), "linear 1:#111111/1") << "out of the second list, into the first";
    EXPECT_TRUE(root->findObject("#pie").isEmpty()) << "no definition";
    EXPECT_TRUE(root->findObject("#top").isEmpty()) << "the root does not answer for itself";
    EXPECT_EQ(root->getVexaRoot(), root.get());

    XmlObject* const pie = root->getBodies()[0].get();
    EXPECT_EQ(static_cast<VexaObject*>(pie)->getVexaRoot(), root.get());
    EXPECT_FALSE(static_cast<VexaObject*>(pie)->findReferencedObject("#b").isEmpty());
}

TEST(StyleDocument, AreaPaintsWithAllItsAttributes) {
    const auto calls = drawingCalls(
        R"(<root xmlns="http://vexa-charts.org/2008/vx" theme="none" x="5" y="6" width="50%" height="1in"
           fill="#c80000" fill-opacity="0.5" stroke="#3264c8" stroke-width="3pt" stroke-linecap="round"
           stroke-linejoin="bevel" stroke-miterlimit="7" stroke-dasharray="3pt 2" stroke-dashoffset="3pc"
           opacity="0.25"/>)",
        "rectangle");
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_TRUE(calls[0].says(R"("fill":{"type":"solid","color":"#c80000","opacity":0.5})")) << calls[0].json;
    EXPECT_TRUE(calls[0].says(R"("stroke":{"brush":{"type":"solid","color":"#3264c8","opacity":0.25},"width":4,)"
                              R"("cap":"round","join":"bevel","miterlimit":7,"dash":{"array":[4,2],"offset":48}})"))
        << calls[0].json;
    EXPECT_EQ(calls[0].numbers.at("width"), 200) << "half of the root's own width, as any percentage in it";
    EXPECT_EQ(calls[0].numbers.at("height"), 96);
}

TEST(StyleDocument, ElementsTakeTheFontOfTheAreasAroundThemButNotTheirPaint) {
    const FixedWidthFonts fonts;
    const std::string serie = R"(<spider-serie><spider-data-point axis-id="a" value="1"/></spider-serie>)";
    const auto calls = drawingCalls(R"(<root xmlns="http://vexa-charts.org/2008/vx" theme="none" font-family="Charter"
        font-size="30" fill="#0000ff"><spider font-size="20" fill="#c80000" draw-web="false">)" +
                                    serie + R"(<spider-axis id="a" caption="A"/></spider></root>)");
    std::string fills;
    for (const DrawCall& call : calls) fills += call.op + (call.fill.empty() ? "" : " " + call.fill) + ", ";
    EXPECT_EQ(fills.rfind("rectangle #0000ff, rectangle #c80000, path, ", 0), 0U) << fills;
    const auto texts = drawingCalls(R"(<root xmlns="http://vexa-charts.org/2008/vx" theme="none" font-family="Charter"
        font-size="30"><spider font-size="20">)" +
                                        serie + R"(<spider-axis id="a" caption="A"/></spider></root>)",
                                    "text");
    ASSERT_FALSE(texts.empty());
    EXPECT_TRUE(texts[0].says(R"("family":"Charter","size":20)")) << "the family of the root, the size of the spider";
}

TEST(StyleDocument, AreasHandOnFontCaptionColourAndThemeAndKeepTheRest) {
    const std::set<std::string_view> handedOn{"theme",     "caption-color", "font-family",
                                              "font-size", "font-weight",   "font-style"};
    for (const XmlAttributeTypeInfo& attribute : VexaAreaObject::getTypeInfoInstance()->attributes())
        EXPECT_EQ(attribute.isInherited(), handedOn.contains(attribute.getName())) << attribute.getName();
    for (const XmlAttributeTypeInfo& attribute : VexaElementObject::getTypeInfoInstance()->attributes())
        EXPECT_EQ(attribute.isInherited(), attribute.getName() != "id") << attribute.getName();
}

}  // namespace
}  // namespace VEXA
