#pragma once

#include <optional>

#include "vexa/cartesian/ValueIndex.h"
#include "vexa/support/xml/DecimalFormat.h"

namespace VEXA {

/// The texts that the labels of one axis show for its values.
class LabelTexts {
public:
    /// `format`: the pattern for the numbers or the dates of an axis of that kind, empty for none.
    LabelTexts(const String& format, ValueKind kind);

    /// Gives a value a text of its own. Of equal values the first one counts. Numbers are equal when they are in single
    /// precision, as the axis has them; on an axis of texts values are equal when their own texts are.
    void replace(const Value& value, const String& display);
    /// The value's replacement; else number or date by the format; else its own text.
    String find(const Value& value) const;

private:
    Value keyOf(const Value& value) const;

    ValueKind kind_;
    String dateFormat_;  // empty for none
    std::optional<DecimalFormat> numberFormat_;
    ValueIndex replaced_;
    Vector<String> displays_;
};

}  // namespace VEXA
