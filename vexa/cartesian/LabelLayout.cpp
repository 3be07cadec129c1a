#include "vexa/cartesian/LabelLayout.h"

#include <algorithm>

namespace VEXA {

namespace {

constexpr float kSqrt2 = 1.41421356F;  // a text turned by 45 degrees

bool intersect(const RectF& a, const RectF& b) noexcept {
    return a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height && b.y < a.y + a.height;
}

RectF unite(const RectF& a, const RectF& b) noexcept {
    const float x = std::min(a.x, b.x);
    const float y = std::min(a.y, b.y);
    return {x, y, std::max(a.x + a.width, b.x + b.width) - x, std::max(a.y + a.height, b.y + b.height) - y};
}

PointF anchorOnVertical(const LabelPlacing& placing, float p, const SizeF& text) noexcept {
    const auto [tw, th] = text;
    const float o = placing.offset;
    const bool isRight = placing.isAtMaximum;
    switch (placing.orientation) {
        case DisplayValOrientation::Perpendicular:
            return isRight ? PointF{o, p - tw / 2} : PointF{-o, p + tw / 2};
        case DisplayValOrientation::Diagonal:
            return isRight ? PointF{o, p + th / (2 * kSqrt2)} : PointF{-o - tw / kSqrt2, p + (tw + th / 2) / kSqrt2};
        default:
            return {isRight ? o : -o - tw, p + th / 2};
    }
}

PointF anchorOnHorizontal(const LabelPlacing& placing, float p, const SizeF& text) noexcept {
    const auto [tw, th] = text;
    const float o = placing.offset;
    const bool isTop = placing.isAtMaximum;
    switch (placing.orientation) {
        case DisplayValOrientation::Perpendicular:
            return {p + th / 2, isTop ? -o : o + tw};
        case DisplayValOrientation::Diagonal:
            return isTop ? PointF{p, -o} : PointF{p - tw / kSqrt2, o + (th + tw) / kSqrt2};
        default:
            return {p - tw / 2, isTop ? -o : o + th};
    }
}

}  // namespace

PointF labelAnchor(const LabelPlacing& placing, float position, const SizeF& text) noexcept {
    return placing.isVertical ? anchorOnVertical(placing, position, text) : anchorOnHorizontal(placing, position, text);
}

RectF labelBox(DisplayValOrientation orientation, PointF anchor, const SizeF& text) noexcept {
    const auto [x, y] = anchor;
    const auto [tw, th] = text;
    const float side = (tw + th) / kSqrt2;
    switch (orientation) {
        case DisplayValOrientation::Perpendicular:
            return {x - th, y - tw, th, tw};
        case DisplayValOrientation::Diagonal:
            return {x - th / kSqrt2, y - side, side, side};
        default:
            return {x, y - th, tw, th};
    }
}

Vector<std::size_t> keptLabels(const Vector<RectF>& boxes, bool isDiagonal) {
    const auto overlap = [&](std::size_t i, std::size_t j) {
        RectF a = boxes[i];
        RectF b = boxes[j];
        if (isDiagonal) {
            a.width /= 2;
            b.width /= 2;
        }
        return intersect(a, b);
    };
    const std::size_t count = boxes.size();
    if (count == 0) return {};
    Vector<std::size_t> front{0};
    if (count == 1 || overlap(0, count - 1)) return front;
    Vector<std::size_t> back{count - 1};
    std::size_t last = 0;  // the boxes that the next ones are tested against
    std::size_t next = count - 1;
    for (std::size_t i = 1, j = count - 2; i <= j; ++i, --j) {
        const bool isFree = !overlap(i, last) && !overlap(j, next);
        if (isFree) front.push_back(i);
        if (isFree && i != j) {
            if (!overlap(i, j)) back.push_back(j);
            last = i;
            next = j;
        }
    }
    front.insert(front.end(), back.rbegin(), back.rend());
    return front;
}

LabelLayout::LabelLayout(const LabelPlacing& placing, const Vector<LabelText>& texts, bool isThinned) {
    Vector<RectF> boxes;
    boxes.reserve(texts.size());
    labels.reserve(texts.size());
    for (const auto& [text, textSize, position] : texts) {
        const PointF anchor = labelAnchor(placing, position, textSize);
        boxes.push_back(labelBox(placing.orientation, anchor, textSize));
        labels.push_back({text, anchor, boxes.back()});
    }
    if (isThinned) {
        Vector<Label> kept;
        for (const std::size_t i : keptLabels(boxes, placing.orientation == DisplayValOrientation::Diagonal))
            kept.push_back(std::move(labels[i]));
        labels = std::move(kept);
    }
    if (!labels.empty()) box = labels.front().box;
    for (const Label& label : labels) {
        box = unite(box, label.box);
        size = {std::max(size.width, label.box.width), std::max(size.height, label.box.height)};
    }
}

}  // namespace VEXA
