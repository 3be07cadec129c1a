#include "vexa/support/core/Math.h"
#include "vexa/util/Util.h"

namespace VEXA {

namespace {

void addTransformation(Matrix& matrix, const Transform& transform) {
    const auto& [a, b, c, d, e, f] = transform.numbers;
    const float x = transform.lengths[0].pxSize();
    const float y = transform.lengths[1].pxSize();
    switch (transform.kind) {
        case TransformKind::Matrix:
            matrix.multiply({Math::toFloat(a), Math::toFloat(b), Math::toFloat(c), Math::toFloat(d), Math::toFloat(e),
                             Math::toFloat(f)});
            return;
        case TransformKind::Translate:
            matrix.translate(x, y);
            return;
        case TransformKind::Scale:
            matrix.scale(Math::toFloat(a), Math::toFloat(b));
            return;
        case TransformKind::Rotate:
            matrix.rotateAt(Math::toFloat(a), {x, y});
            return;
        case TransformKind::SkewX:
            matrix.shear(Math::toFloat(a), 0);
            return;
        case TransformKind::SkewY:
            matrix.shear(0, Math::toFloat(a));
            return;
        case TransformKind::None:
            return;
    }
}

}  // namespace

void Util::addTransformationList(Matrix& matrix, const Vector<Transform>& transforms) {
    for (const Transform& transform : transforms) addTransformation(matrix, transform);
}

}  // namespace VEXA
