#include "vexa/surfaces/ContentIds.h"

#include <algorithm>
#include <bit>
#include <span>

namespace VEXA {

namespace {

std::uint64_t hashOf(std::span<const std::uint32_t> words) noexcept {
    std::uint64_t hash = words.size();
    for (const std::uint32_t word : words) {
        hash = (hash ^ word) * 0x9E3779B97F4A7C15U;  // 2^64 over the golden ratio: spreads what differs in few bits
        hash ^= hash >> 29U;
    }
    return hash;
}

}  // namespace

void ContentIds::add(float value) { add(std::bit_cast<std::uint32_t>(value)); }

void ContentIds::add(PointF point) {
    add(point.x);
    add(point.y);
}

void ContentIds::add(const Matrix& matrix) {
    for (const float element : matrix.getElements()) add(element);
}

ContentIds::Result ContentIds::intern() {
    const std::size_t size = words_.size() - start_;
    std::uint64_t id = hashOf({words_.data() + start_, size});
    for (;; ++id) {  // another content with the same hash: the next number that is free
        const auto [known, isNew] = known_.try_emplace(id, Content{start_, size});
        if (isNew) {
            start_ = words_.size();
            return {id, true};
        }
        if (isPresentContent(known->second)) {
            words_.resize(start_);
            return {id, false};
        }
    }
}

void ContentIds::clear() noexcept {
    words_.clear();
    start_ = 0;
    known_.clear();
}

bool ContentIds::isPresentContent(const Content& other) const noexcept {
    const std::span<const std::uint32_t> words(words_);
    const auto present = words.subspan(start_);
    const auto before = words.subspan(other.start, other.size);
    return std::equal(present.begin(), present.end(), before.begin(), before.end());
}

}  // namespace VEXA
