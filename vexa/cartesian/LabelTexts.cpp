#include "vexa/cartesian/LabelTexts.h"

#include "vexa/util/NumberFormat.h"
#include "vexa/util/Util.h"

namespace VEXA {

LabelTexts::LabelTexts(const String& format, ValueKind kind) : kind_(kind) {
    if (kind == ValueKind::Date) dateFormat_ = format;
    if (kind == ValueKind::Number && !format.isEmpty()) numberFormat_.emplace(readNumberFormat(format));
}

Value LabelTexts::keyOf(const Value& value) const {
    if (kind_ == ValueKind::Text) return asText(value);
    return value.getKind() == ValueKind::Number ? Value(static_cast<double>(value.getFloat())) : value;
}

void LabelTexts::replace(const Value& value, const String& display) {
    if (replaced_.add(keyOf(value)) == displays_.size()) displays_.push_back(display);
}

String LabelTexts::find(const Value& value) const {
    if (replaced_.size() > 0) {
        const std::size_t position = replaced_.find(keyOf(value));
        if (position != ValueIndex::kNone) return displays_[position];
    }
    if (numberFormat_) {
        std::u32string text;
        numberFormat_->append(value.getFloat(), text);
        return String(text);
    }
    return dateFormat_.isEmpty() ? value.getValue() : Util::dateFormat(dateFormat_, value.getDate());
}

}  // namespace VEXA
