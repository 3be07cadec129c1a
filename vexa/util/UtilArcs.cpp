#include <algorithm>
#include <cmath>

#include "vexa/support/core/Math.h"
#include "vexa/util/BezierArc.h"
#include "vexa/util/Util.h"

namespace VEXA {

namespace {

struct Vec {
    double x = 0;
    double y = 0;

    double length() const noexcept { return std::sqrt(x * x + y * y); }
};

Vec rotated(const Vec& v, double cosine, double sine) noexcept {
    return {cosine * v.x - sine * v.y, sine * v.x + cosine * v.y};
}

/// An arc in centre form whose centre, radii and ends are known as in SVG 1.1, appendix F.6.5.
struct CentreForm {
    Vec centre;
    double rx = 0;
    double ry = 0;
    Vec start;  ///< on the unit circle
    Vec end;
};

/// The angle with that cosine in degrees, which rounding may have carried out of -1 … 1.
double degreesOf(double cosine, bool isPositive) noexcept {
    const double degrees = Util::toDegrees(std::acos(std::clamp(cosine, -1.0, 1.0)));
    return isPositive ? degrees : -degrees;
}

double sweepOf(const CentreForm& form, bool sweep) noexcept {
    const Vec& u = form.start;
    const Vec& v = form.end;
    const double cosine = (u.x * v.x + u.y * v.y) / (u.length() * v.length());
    const double degrees = degreesOf(cosine, u.x * v.y - u.y * v.x >= 0);
    if (!sweep && degrees > 0) return degrees - 360;
    return sweep && degrees < 0 ? degrees + 360 : degrees;
}

ArcData arcOf(const CentreForm& form, bool sweep) noexcept {
    const auto& [centre, rx, ry, start, end] = form;
    return {{Math::toFloat(centre.x - rx), Math::toFloat(centre.y - ry), Math::toFloat(2 * rx), Math::toFloat(2 * ry)},
            Math::toFloat(degreesOf(start.x / start.length(), start.y >= 0)),
            Math::toFloat(sweepOf(form, sweep))};
}

/// F.6.5 and F.6.6 for an ellipse without rotation and an arc from `half` to -`half`. REQUIRES: radii above 0, and ends
/// that differ.
CentreForm centreForm(const Vec& half, double rx, double ry, bool isFarSide) noexcept {
    const double x = half.x / rx;
    const double y = half.y / ry;
    const double reach = x * x + y * y;
    const double scale = std::max(1.0, std::sqrt(reach));
    // The square root of the coefficient (rx²ry² - rx²y² - ry²x²) / (rx²y² + ry²x²), which is 1 / reach - 1.
    const double c = std::sqrt(std::max(0.0, 1 / reach - 1)) * (isFarSide ? 1 : -1);
    const Vec centre{c * y, -c * x};
    return {{centre.x * rx, centre.y * ry},
            rx * scale,
            ry * scale,
            {x / scale - centre.x, y / scale - centre.y},
            {-x / scale - centre.x, -y / scale - centre.y}};
}

}  // namespace

double Util::toDegrees(double radians) { return radians * 180 / Math::kPi; }

double Util::toRadians(double degrees) { return (degrees < 0 ? degrees + 360 : degrees) * Math::kPi / 180; }

PointF Util::getArcEndPoint(const PointF& centre, float rx, float ry, double angle) {
    return {Math::toFloat(centre.x + rx * std::cos(angle)), Math::toFloat(centre.y - ry * std::sin(angle))};
}

ArcData Util::convertArc(const PointF& from, const PointF& to, float rx, float ry, double rotation, bool largeArc,
                         bool sweep) {
    if (from == to || rx == 0 || ry == 0) return {{from.x, from.y, 0, 0}, 0, 0};
    const double phi = toRadians(rotation);
    const double cosine = std::cos(phi);
    const double sine = std::sin(phi);
    const Vec half{(static_cast<double>(from.x) - to.x) * 0.5, (static_cast<double>(from.y) - to.y) * 0.5};
    CentreForm form = centreForm(rotated(half, cosine, -sine), std::abs(static_cast<double>(rx)),
                                 std::abs(static_cast<double>(ry)), largeArc != sweep);
    const Vec centre = rotated(form.centre, cosine, sine);
    form.centre = {centre.x + (static_cast<double>(from.x) + to.x) * 0.5,
                   centre.y + (static_cast<double>(from.y) + to.y) * 0.5};
    return arcOf(form, sweep);
}

Vector<PointF> Util::getBezierArcPoints(const ArcData& arc) {
    const BezierArc curves(arc);
    Vector<PointF> points;
    points.reserve(4 * static_cast<std::size_t>(curves.segmentCount()));
    for (int i = 0; i < curves.segmentCount(); ++i) {
        const BezierSegment segment = curves.segment(i);
        points.insert(points.end(), {segment.from, segment.control1, segment.control2, segment.to});
    }
    return points;
}

}  // namespace VEXA
