#include "vexa/support/values/Value.h"

#include <bit>
#include <utility>

#include "vexa/support/core/Format.h"
#include "vexa/support/values/TextScanner.h"

namespace VEXA {

namespace {

/// Only what starts so can be a number or a date; spares texts the attempt.
bool mayBeNumberOrDate(char first) noexcept {
    return (first >= '0' && first <= '9') || first == '-' || first == '+' || first == '.';
}

}  // namespace

Value::Value(double number) noexcept : kind_(ValueKind::Number) { setRaw(number); }

Value::Value(const DateTimeEx& date) noexcept : kind_(ValueKind::Date) { setRaw(date.totalSeconds()); }

Value::Value(String text) noexcept {
    if (text.isEmpty()) return;
    kind_ = ValueKind::Text;
    setRaw(text.detach());
}

Value::Value(const Value& other) noexcept : kind_(other.kind_) {
    if (kind_ == ValueKind::Text) {
        setRaw(other.getText().detach());
    } else {
        std::memcpy(raw_, other.raw_, sizeof(raw_));
    }
}

Value& Value::operator=(Value other) noexcept {
    std::swap(kind_, other.kind_);
    std::swap(raw_, other.raw_);
    return *this;
}

void Value::releaseText() noexcept { String::adopt(raw<const StringData*>()); }

DateTimeEx Value::getDate() const noexcept {
    return kind_ == ValueKind::Date ? DateTimeEx::fromTotalSeconds(raw<std::int64_t>()) : DateTimeEx();
}

String Value::getText() const noexcept {
    String shared = String::adopt(raw<const StringData*>());
    String copy(shared);
    static_cast<void>(shared.detach());  // this value keeps its own reference
    return copy;
}

std::u32string_view Value::textView() const noexcept {
    const auto* const text = raw<const StringData*>();
    return {text->characters(), text->length};
}

String Value::getValue() const {
    switch (kind_) {
        case ValueKind::Number:
            return String(Format::number(raw<double>()));
        case ValueKind::Date:
            return String(getDate().toString());
        case ValueKind::Text:
            return getText();
        case ValueKind::None:
            break;
    }
    return {};
}

bool Value::equals(const Value& other) const noexcept {
    if (kind_ != other.kind_) return false;
    switch (kind_) {
        case ValueKind::Number:
            return raw<double>() == other.raw<double>();
        case ValueKind::Date:
            return raw<std::int64_t>() == other.raw<std::int64_t>();
        case ValueKind::Text:
            return textView() == other.textView();
        case ValueKind::None:
            break;
    }
    return true;
}

std::size_t Value::hash() const noexcept {
    switch (kind_) {
        case ValueKind::Number:
            return keyedHash(std::bit_cast<std::uint64_t>(raw<double>() + 0.0));  // -0 equals 0
        case ValueKind::Date:
            return keyedHash(static_cast<std::uint64_t>(raw<std::int64_t>()));
        case ValueKind::Text:
            return keyedHash(textView().data(), textView().size() * sizeof(char32_t));
        case ValueKind::None:
            break;
    }
    return 0;
}

bool ValueTraits<Value>::parse(std::string_view text, Value& out) {
    const std::string_view word = TextScanner::trim(text);
    if (word.empty()) {
        out = Value();
        return true;
    }
    if (mayBeNumberOrDate(word.front())) {
        if (const auto number = Format::parseDouble(word)) {
            out = Value(*number);
            return true;
        }
        if (const auto date = DateTimeEx::parse(word)) {
            out = Value(*date);
            return true;
        }
    }
    out = Value(String(text));
    return true;
}

std::string ValueTraits<Value>::print(const Value& value) {
    if (value.getKind() != ValueKind::Number) return value.getValue().toUtf8();
    std::string result;
    appendNumber(value.getDouble(), result);
    return result;
}

std::string_view ValueTraits<Value>::expectation() noexcept { return "a number, a date or a text"; }
std::string_view ValueTraits<Value>::name() noexcept { return "Value"; }

}  // namespace VEXA
