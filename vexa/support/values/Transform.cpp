#include "vexa/support/values/Transform.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "vexa/support/core/Math.h"
#include "vexa/support/values/LengthText.h"

namespace VEXA {

namespace {

/// A function of a transform list: its operands are numbers first, then lengths.
struct Function {
    std::string_view name;
    TransformKind kind;
    std::size_t numbers;
    std::size_t lengths;
    bool oneWillDo;  // the operands after the first may be left out together

    std::size_t operands() const noexcept { return numbers + lengths; }
};
constexpr Function kFunctions[] = {
    {"matrix", TransformKind::Matrix, 6, 0, false}, {"translate", TransformKind::Translate, 0, 2, true},
    {"scale", TransformKind::Scale, 2, 0, true},    {"rotate", TransformKind::Rotate, 1, 2, true},
    {"skewX", TransformKind::SkewX, 1, 0, false},   {"skewY", TransformKind::SkewY, 1, 0, false},
};

double tangent(double degrees) noexcept { return std::tan(std::remainder(degrees, 180.0) / 180.0 * Math::kPi); }

/// The angle whose tangent is exactly the given one; the nearest where there is none.
double angleOf(double wanted) noexcept {
    constexpr int kRoundingSteps = 8;  // the arc tangent is off by a few units in the last place
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    const double nearest = std::atan(wanted) / Math::kPi * 180.0;
    double below = nearest;
    double above = nearest;
    for (int i = 0; i < kRoundingSteps; ++i) {
        if (tangent(below) == wanted) return below;
        if (tangent(above) == wanted) return above;
        below = std::nextafter(below, -kInfinity);
        above = std::nextafter(above, kInfinity);
    }
    return nearest;
}

bool readOperand(TextScanner& scanner, const Function& function, std::size_t index, Transform& out) noexcept {
    if (index >= function.numbers) return readLength(scanner, out.lengths[index - function.numbers]);
    double& number = out.numbers[index];
    return scanner.readNumber(number) && std::fabs(number) <= std::numeric_limits<float>::max();
}

/// Reads the operands and the closing bracket; returns their count, 0 when they are wrong.
std::size_t readOperands(TextScanner& scanner, const Function& function, Transform& out) noexcept {
    for (std::size_t count = 0; count < function.operands();) {
        if (!readOperand(scanner, function, count++, out)) return 0;
        TextScanner ahead = scanner;
        ahead.skipSpace();
        if (ahead.skip(')')) {
            scanner = ahead;
            return count;
        }
        if (!scanner.skipNumberSeparator()) return 0;
    }
    return 0;
}

bool readFunction(TextScanner& scanner, Transform& out) noexcept {
    const auto* const function = std::ranges::find(kFunctions, scanner.readLetters(), &Function::name);
    scanner.skipSpace();
    if (function == std::end(kFunctions) || !scanner.skip('(')) return false;
    scanner.skipSpace();
    const std::size_t count = readOperands(scanner, *function, out);
    if (count != function->operands() && !(count == 1 && function->oneWillDo)) return false;
    out.kind = function->kind;
    if (out.kind == TransformKind::Scale && count == 1) out.numbers[1] = out.numbers[0];
    if (out.kind == TransformKind::SkewX || out.kind == TransformKind::SkewY) out.numbers[0] = tangent(out.numbers[0]);
    return true;
}

void appendOperand(const Transform& transform, const Function& function, std::size_t index, std::string& out) {
    if (index >= function.numbers) {
        appendLength(transform.lengths[index - function.numbers], out);
    } else if (transform.kind == TransformKind::SkewX || transform.kind == TransformKind::SkewY) {
        appendNumber(angleOf(transform.numbers[index]), out);
    } else {
        appendNumber(transform.numbers[index], out);
    }
}

void appendFunction(const Transform& transform, std::string& out) {
    const auto* const function = std::ranges::find(kFunctions, transform.kind, &Function::kind);
    if (function == std::end(kFunctions)) return;
    if (!out.empty()) out += ' ';
    out.append(function->name) += '(';
    for (std::size_t i = 0; i < function->operands(); ++i) {
        if (i > 0) out += ' ';
        appendOperand(transform, *function, i, out);
    }
    out += ')';
}

}  // namespace

bool ValueTraits<Vector<Transform>>::parse(std::string_view text, Vector<Transform>& out) {
    out.clear();
    TextScanner scanner(text);
    if (scanner.isBlankToEnd()) return true;
    while (readFunction(scanner, out.emplace_back())) {
        if (scanner.isBlankToEnd()) return true;
        scanner.skipSeparator();
    }
    return false;
}

std::string ValueTraits<Vector<Transform>>::print(const Vector<Transform>& value) {
    std::string result;
    for (const Transform& transform : value) appendFunction(transform, result);
    return result;
}

std::string_view ValueTraits<Vector<Transform>>::expectation() noexcept {
    return "a transform list (write matrix, translate, scale, rotate, skewX or skewY with operands in brackets, such "
           "as "
           "translate(10 20) rotate(45))";
}
std::string_view ValueTraits<Vector<Transform>>::name() noexcept { return "TransformList"; }

}  // namespace VEXA
