#include "vexa/surfaces/PathData.h"

#include <algorithm>
#include <cmath>

namespace VEXA {

namespace {

struct VerbText {
    char letter;
    int points;
};

VerbText textOf(PathVerb verb) noexcept {
    switch (verb) {
        case PathVerb::MoveTo:
            return {'M', 1};
        case PathVerb::LineTo:
            return {'L', 1};
        case PathVerb::CurveTo:
            return {'C', 3};
        case PathVerb::Close:
            break;
    }
    return {'Z', 0};
}

}  // namespace

void appendPathData(const Path& path, NumberWriter number, std::string& out) {
    const PointF* point = path.points().data();
    for (const PathVerb verb : path.verbs()) {
        const auto [letter, count] = textOf(verb);
        char separator = letter;
        for (const PointF* end = point + count; point != end; ++point) {
            out.push_back(separator);
            number(point->x, out);
            out.push_back(' ');
            number(point->y, out);
            separator = ' ';
        }
        if (count == 0) out.push_back(letter);
    }
}

bool isFlat(const Path& path, float tolerance) noexcept {
    if (path.points().empty()) return true;
    PointF low = path.points().front();
    PointF high = low;
    for (const PointF& point : path.points()) {
        low = {std::min(low.x, point.x), std::min(low.y, point.y)};
        high = {std::max(high.x, point.x), std::max(high.y, point.y)};
    }
    return high.x - low.x <= tolerance || high.y - low.y <= tolerance;
}

bool isPoint(const Path& path) noexcept {
    const auto& points = path.points();
    return std::all_of(points.begin(), points.end(), [&](const PointF& point) { return point == points.front(); });
}

bool isFinite(const Path& path) noexcept {
    const auto& points = path.points();
    return std::all_of(points.begin(), points.end(),
                       [](const PointF& point) { return std::isfinite(point.x) && std::isfinite(point.y); });
}

}  // namespace VEXA
