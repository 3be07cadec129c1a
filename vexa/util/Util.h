#pragma once

#include "vexa/support/core/DateTimeEx.h"
#include "vexa/support/core/String.h"
#include "vexa/support/core/Vector.h"
#include "vexa/support/drawing/Matrix.h"
#include "vexa/support/values/Transform.h"
#include "vexa/util/ArcData.h"

namespace VEXA {

/// Arithmetic of scales, transforms and arcs, numbers and dates as text. Nothing here throws, and every loop ends for
/// every input.
class Util {
public:
    Util() = delete;

    /// The next round value beyond `value`, away from zero, in single precision; a round value moves on too: 10 gives
    /// 12, 19.2 gives 25, 1234 gives 1400. 0 gives 0. Results are cut to the range of finite floats, infinity's too;
    /// NaN gives 0.
    static double adjustValueRange(double value);

    /// Moves an axis's bounds outwards onto multiples of `step`: counted from 0, which the range then includes, when
    /// `min` is 0 or below, else from `min`, which then stays. Sums are rounded to single precision at each of the
    /// first hundred thousand steps; farther bounds go to the multiple that is nearest in double precision. Results are
    /// finite. With a bound that is not finite, or a step that is not finite and above 0, nothing changes.
    static void adjustValueRange(float& min, float& max, float step);

    /// The smallest of 0.1, 0.2, 0.5, 1, 2, 5, 10, … that is not below `value`. 0.1 for NaN; the largest float beyond
    /// the last member, 2e38.
    static float getNextFrequencyUnit(float value);

    /// `total` divided by `parts`, rounded up and cut to the range of int; `total` itself for no parts.
    static int getIntMinUnit(int total, int parts);

    /// The smallest step of the series of getNextFrequencyUnit that divides a span into about `parts` pieces at most.
    /// 0 for a span of 0; 0.1 for a negative span, for NaN, and for 0 parts or less.
    static float getFloatMinUnit(float span, int parts);

    /// A number by a pattern of XmlDecimalNumberFormatter. Settings may follow in this order: `th:` and the grouping
    /// separator, `dec:` and the decimal separator, `sign:` and the minus sign, as in `#,##0.00 th:. dec:, sign:-`.
    /// `th:` may be empty but must be there: without it the others are shown, too. To write many numbers by one
    /// format read it once, with readNumberFormat.
    static String decimalFormat(float value, const String& spec);

    /// A date by a pattern, in English; `date:` in front of it is left out. Runs of a letter stand for a field, as many
    /// letters for as many digits at least:
    ///
    /// `y` `yy` year without the century, nothing before the year 100, `yyyy` in full; `M` month, `MMM` Mar, `MMMM`
    /// March; `d` day, `O` 1st; `D` day of the year; `E` Tue, `EEEE` Tuesday; `F` full weeks of the month that are
    /// over; `w` week of the year from Monday on, `W` week of the month from Sunday on, as DateFields counts them; `H`
    /// hour 0-23, `k` 1-24, `h` 1-12, `K` 0-11 with `a` AM or PM; `m` minute; `s` second; `S` nothing; `G` AD or BC;
    /// `z` UTC.
    ///
    /// Other letters of ASCII are left out, other characters stay. Text between quotes (') stays as it is, two quotes
    /// in a row outside of such text are one. Of an overlong pattern only the start counts (Limits::kDatePattern).
    static String dateFormat(const String& pattern, const DateTimeEx& date);

    /// Multiplies the transforms into the matrix in their order, as SVG does; an unknown kind changes nothing.
    static void addTransformationList(Matrix& matrix, const Vector<Transform>& transforms);

    static double toDegrees(double radians);
    /// A negative angle is turned on by 360 degrees first, once: -90 means 270, -400 means -40.
    static double toRadians(double degrees);

    /// The point of an ellipse at `angle` radians, which grow counter-clockwise on the screen from the positive x axis.
    static PointF getArcEndPoint(const PointF& centre, float rx, float ry, double angle);

    /// The centre form of an arc of SVG's path data: from one point to another over an ellipse turned by `rotation`
    /// degrees. Radii too small to reach are scaled up together. The result does not carry the rotation: with one
    /// other than 0 its box is that of the ellipse before the turn, and its angles count from the turned axis. Finite
    /// for finite arguments; an arc without a radius, or whose ends are the same, is its first point.
    static ArcData convertArc(const PointF& from, const PointF& to, float rx, float ry, double rotation, bool largeArc,
                              bool sweep);
    /// The curves of BezierArc, four points for each: its start, both handles and its end.
    static Vector<PointF> getBezierArcPoints(const ArcData& arc);
};

}  // namespace VEXA
