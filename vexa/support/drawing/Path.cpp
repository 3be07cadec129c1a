#include "vexa/support/drawing/Path.h"

namespace VEXA {

Path& Path::moveTo(PointF to) {
    verbs_.push_back(PathVerb::MoveTo);
    points_.push_back(to);
    return *this;
}

Path& Path::lineTo(PointF to) {
    if (isEmpty()) return moveTo(to);
    verbs_.push_back(PathVerb::LineTo);
    points_.push_back(to);
    return *this;
}

Path& Path::curveTo(PointF control1, PointF control2, PointF to) {
    if (isEmpty()) moveTo(control1);
    verbs_.push_back(PathVerb::CurveTo);
    points_.insert(points_.end(), {control1, control2, to});
    return *this;
}

Path& Path::close() {
    if (!isEmpty()) verbs_.push_back(PathVerb::Close);
    return *this;
}

Path& Path::append(const Path& other) {
    verbs_.insert(verbs_.end(), other.verbs_.begin(), other.verbs_.end());
    points_.insert(points_.end(), other.points_.begin(), other.points_.end());
    return *this;
}

void Path::reserve(std::size_t verbs, std::size_t points) {
    verbs_.reserve(verbs);
    points_.reserve(points);
}

}  // namespace VEXA
