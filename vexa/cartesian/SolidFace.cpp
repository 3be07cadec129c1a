#include "vexa/cartesian/SolidFace.h"

namespace VEXA {

SolidFace ribbon(PointF from, PointF to, float depth) noexcept {
    const auto back = [depth](PointF p) { return PointF{p.x + depth, p.y - depth}; };
    return {from, to, back(to), back(from)};
}

void drawFace(VexaRenderContext& context, const SolidFace& face) {
    const auto path = make<Path>();
    path->reserve(5, 4);
    path->moveTo(face[0]).lineTo(face[1]).lineTo(face[2]).lineTo(face[3]).close();
    context.drawPath(path);
}

}  // namespace VEXA
