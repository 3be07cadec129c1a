#include "vexa/support/core/Decimal.h"

#include <algorithm>
#include <charconv>

namespace VEXA {

Decimal::Decimal(double value) noexcept { read(value); }
Decimal::Decimal(float value) noexcept { read(value); }

template <class T>
void Decimal::read(T value) noexcept {
    if (value == 0) return;
    char text[32];
    const char* const end = std::to_chars(text, text + sizeof text, value, std::chars_format::scientific).ptr;
    const char* at = text;
    for (; *at != 'e'; ++at) {
        if (*at == '-') {
            negative_ = true;
        } else if (*at != '.') {
            digits_[count_++] = *at;
        }
    }
    at += at[1] == '+' ? 2 : 1;
    std::from_chars(at, end, point_);
    ++point_;
    dropTrailingZeros();
}

void Decimal::clear() noexcept {
    count_ = 0;
    point_ = 0;
    negative_ = false;
}

void Decimal::dropTrailingZeros() noexcept {
    while (count_ > 0 && digits_[count_ - 1] == '0') --count_;
}

void Decimal::increment() noexcept {
    while (count_ > 0 && digits_[count_ - 1] == '9') --count_;
    if (count_ > 0) {
        ++digits_[count_ - 1];
    } else {
        digits_[count_++] = '1';
        ++point_;
    }
}

void Decimal::roundToSignificant(int count) noexcept {
    if (count >= static_cast<int>(count_)) return;
    if (count < 0) return clear();
    const bool up = digits_[count] >= '5';
    count_ = static_cast<std::size_t>(count);
    if (up) return increment();
    dropTrailingZeros();
    if (count_ == 0) clear();
}

void Decimal::roundToPlaces(int places) noexcept {
    constexpr int kMaxPlaces = 400;  // beyond the digits of every double
    roundToSignificant(point_ + std::clamp(places, -kMaxPlaces, kMaxPlaces));
}

void Decimal::appendFixed(std::string& out) const {
    if (isZero()) {
        out += '0';
        return;
    }
    if (negative_) out += '-';
    const int count = static_cast<int>(count_);
    if (point_ <= 0) {
        out.append("0.").append(static_cast<std::size_t>(-point_), '0').append(digits());
    } else if (point_ >= count) {
        out.append(digits()).append(static_cast<std::size_t>(point_ - count), '0');
    } else {
        const auto whole = static_cast<std::size_t>(point_);
        out.append(digits().substr(0, whole)).append(1, '.').append(digits().substr(whole));
    }
}

void Decimal::appendScientific(std::string& out) const {
    if (isZero()) {
        out += '0';
        return;
    }
    if (negative_) out += '-';
    out += digits_[0];
    if (count_ > 1) out.append(1, '.').append(digits().substr(1));
    const int exponent = point_ - 1;
    out.append(exponent < 0 ? "e-" : "e+").append(std::to_string(exponent < 0 ? -exponent : exponent));
}

}  // namespace VEXA
