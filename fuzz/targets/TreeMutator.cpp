#include "fuzz/targets/TreeMutator.h"

#include <algorithm>
#include <random>

namespace VEXA::Fuzz {

namespace {

using Tree = std::vector<std::uint8_t>;

class Mutator {
public:
    Mutator(Bytes tree, unsigned seed) : bytes_(tree.begin(), tree.end()), steps_(stepsOf(tree)), random_(seed) {}

    Tree mutated() {
        switch (below(8)) {
            case 0:
            case 1:
                addAttribute();
                break;
            case 2:
                addElement();
                break;
            case 3:
                dropElement();
                break;
            case 4:
                copyElement();
                break;
            case 5:
                dropStep();
                break;
            default:
                changeValue();
                break;
        }
        return std::move(bytes_);
    }

    /// The bytes of a random element, or of a few steps where there is none.
    Tree piece() {
        if (steps_.empty()) return {};
        const auto [first, last] = element();
        return {bytes_.begin() + at(first), bytes_.begin() + at(last)};
    }

    Tree with(const Tree& piece) {
        insert(below(steps_.size() + 1), piece);
        return std::move(bytes_);
    }

private:
    std::size_t below(std::size_t bound) { return bound == 0 ? 0 : random_() % bound; }
    std::uint8_t byte() { return static_cast<std::uint8_t>(random_()); }

    /// Offset of a step; of the end behind the last one.
    std::ptrdiff_t at(std::size_t step) const {
        return static_cast<std::ptrdiff_t>(step < steps_.size() ? steps_[step].begin : bytes_.size());
    }
    void insert(std::size_t step, const Tree& piece) {
        bytes_.insert(bytes_.begin() + at(step), piece.begin(), piece.end());
    }
    void erase(std::size_t first, std::size_t last) {
        bytes_.erase(bytes_.begin() + at(first), bytes_.begin() + at(last));
    }

    /// A random step of that kind, the first one at or behind a random place; the number of steps if there is none.
    std::size_t stepOf(StepKind kind) {
        const std::size_t start = below(steps_.size());
        for (std::size_t i = 0; i < steps_.size(); ++i) {
            const std::size_t step = (start + i) % steps_.size();
            if (steps_[step].kind == kind) return step;
        }
        return steps_.size();
    }
    /// The steps from the one that opens an element to the one behind its end.
    std::pair<std::size_t, std::size_t> element() {
        const std::size_t open = stepOf(StepKind::Open);
        if (open == steps_.size()) return {0, std::min<std::size_t>(steps_.size(), 3)};
        return {open, endOfElement(steps_, open)};
    }

    Tree randomAttribute() {
        Tree step{2, byte(), byte()};
        if (step[2] < kFirstNumber) return step;
        const std::size_t size = step[2] < kFirstText ? kNumberBytes : below(12);
        if (step[2] >= kFirstText) step.push_back(static_cast<std::uint8_t>(size));
        for (std::size_t i = 0; i < size; ++i) step.push_back(byte());
        return step;
    }

    void addAttribute() {
        // Behind the step that opens an element, where it counts.
        const std::size_t open = stepOf(StepKind::Open);
        insert(open == steps_.size() ? 0 : open + 1, randomAttribute());
    }
    void addElement() {
        Tree piece{1, byte()};
        for (std::size_t i = below(4); i > 0; --i) {
            const Tree attribute = randomAttribute();
            piece.insert(piece.end(), attribute.begin(), attribute.end());
        }
        piece.insert(piece.end(), {0, 0});
        insert(below(steps_.size() + 1), piece);
    }
    void dropElement() {
        const auto [first, last] = element();
        erase(first, last);
    }
    void dropStep() {
        const std::size_t step = below(steps_.size());
        if (!steps_.empty()) erase(step, step + 1);
    }
    void copyElement() {
        const auto [first, last] = element();
        const Tree copied(bytes_.begin() + at(first), bytes_.begin() + at(last));
        // Beside the original as a rule: there it may stand. Now and then so many that they get in each other's way.
        const std::size_t place = below(4) == 0 ? below(steps_.size() + 1) : last;
        Tree copies;
        for (std::size_t i = 1 + below(below(8) == 0 ? 100 : 4); i > 0; --i) {
            const Tree copy = varied(copied);
            copies.insert(copies.end(), copy.begin(), copy.end());
        }
        insert(place, copies);
    }
    /// Some of its numbers and samples are others.
    Tree varied(Tree piece) {
        for (const Step& step : stepsOf(piece)) {
            const std::size_t value = step.begin + 2;
            if (step.kind != StepKind::Attribute || value >= step.end || below(2) == 0) continue;
            if (piece[value] < kFirstNumber) piece[value] = static_cast<std::uint8_t>(below(kFirstNumber));
            if (piece[value] < kFirstText && value + 1 < step.end) piece[value + 1] = byte();
        }
        return piece;
    }
    void changeValue() {
        const std::size_t step = stepOf(StepKind::Attribute);
        if (step == steps_.size()) return addElement();
        Tree attribute = randomAttribute();
        if (below(4) != 0) attribute[1] = bytes_[std::min(steps_[step].begin + 1, bytes_.size() - 1)];
        erase(step, step + 1);
        steps_ = stepsOf(bytes_);
        insert(step, attribute);
    }

    Tree bytes_;
    std::vector<Step> steps_;
    std::minstd_rand random_;
};

}  // namespace

Tree mutatedTree(Bytes tree, unsigned seed) { return Mutator(tree, seed).mutated(); }

Tree crossedTree(Bytes tree, Bytes other, unsigned seed) {
    return Mutator(tree, seed).with(Mutator(other, seed ^ 1U).piece());
}

}  // namespace VEXA::Fuzz
