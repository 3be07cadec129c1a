#pragma once

#include <functional>

namespace VEXA {

class VexaObject;
class VexaRenderContext;

/// Stands by while a page is painted: paints each part of it, or what prepares a part, by calling `step`.
class PaintWatch {
public:
    virtual ~PaintWatch() = default;
    /// `part` is the root itself for what concerns the whole page, else a body, the title or the legend. What `step`
    /// throws may be kept back; the other parts are painted all the same.
    virtual void paint(VexaObject& part, VexaRenderContext& context, const std::function<void()>& step) = 0;
};

}  // namespace VEXA
