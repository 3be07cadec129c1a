#pragma once

#include "tests/engine/EngineTestTools.h"
#include "vexa/style/VexaAreaObject.h"
#include "vexa/style/VexaElementObject.h"

/// Styled objects made without a parser, open to the tests: `give` sets their attributes.
namespace VEXA::Testing {

struct TestElement final : VexaElementObject {
    void render(VexaRenderContext&) override {}
};

struct TestArea final : VexaAreaObject {
    void render(VexaRenderContext&) override {}
    void preRender(VexaRenderContext&, SmartPtr<VexaTheme>) override {}
    using VexaAreaObject::getFillBrush;
    using VexaAreaObject::getFont;
    using VexaAreaObject::getStrokeBrush;
    using VexaAreaObject::updateRenderContext;
};

inline SmartPtr<Color> rgb(std::uint32_t value) {
    return make<RGBColor>(static_cast<std::uint8_t>(value >> 16), static_cast<std::uint8_t>(value >> 8),
                          static_cast<std::uint8_t>(value));
}

template <class T>
SmartPtr<T> styled(std::string_view attributes) {
    auto object = make<T>();
    give(*object, attributes);
    return object;
}

/// What is told of an area and of an element with these attributes, which must be the same.
template <class Tell>
std::string ofBoth(std::string_view attributes, Tell tell) {
    const std::string area = tell(*styled<TestArea>(attributes));
    EXPECT_EQ(tell(*styled<TestElement>(attributes)), area);
    return area;
}

}  // namespace VEXA::Testing
