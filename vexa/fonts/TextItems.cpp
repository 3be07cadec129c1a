#include "vexa/fonts/TextItems.h"

#include <algorithm>
#include <iterator>

#include "vexa/fonts/Characters.h"
#include "vexa/fonts/GlyphCoverage.h"
#include "vexa/fonts/Scripts.h"
#include "vexa/fonts/TextClusters.h"
#include "vexa/support/core/Limits.h"

namespace VEXA {

namespace {

/// A cluster, or a part of one that no face shows as a whole, and its face.
struct Piece {
    TextCluster cluster;
    FontFace* face;
};

/// Cuts a text into pieces and joins those that can be shaped in one go.
class Itemizer {
public:
    Itemizer(std::u32string_view text, const FontStack& stack, FaceFinder& finder, std::u32string& missing)
        : text_(text), stack_(stack), finder_(finder), missing_(missing), ofHan_(languageOfHan(text)) {}

    void cut(const std::vector<TextCluster>& clusters);
    void shareSpaces();
    std::vector<TextItem> join(const std::vector<BidiLevel>& levels) const;

private:
    void add(const TextCluster& cluster, std::size_t end);
    void addParts(const TextCluster& cluster, std::size_t end);
    FontFace* faceOf(char32_t character, const TextCluster& cluster);
    bool isSpace(const Piece& piece) const noexcept;
    std::size_t endOf(std::size_t piece) const noexcept;

    std::u32string_view text_;
    const FontStack& stack_;
    FaceFinder& finder_;
    std::u32string& missing_;
    const char* ofHan_;
    std::u32string visible_;  // what is to be seen of one cluster
    std::vector<Piece> pieces_;
};

void Itemizer::cut(const std::vector<TextCluster>& clusters) {
    pieces_.reserve(clusters.size());
    for (std::size_t i = 0; i < clusters.size(); ++i) {
        add(clusters[i], i + 1 < clusters.size() ? clusters[i + 1].begin : text_.size());
    }
}

void Itemizer::add(const TextCluster& cluster, std::size_t end) {
    visible_.clear();
    std::copy_if(text_.begin() + cluster.begin, text_.begin() + static_cast<std::ptrdiff_t>(end),
                 std::back_inserter(visible_), [](char32_t c) { return !Characters::isIgnorable(c); });
    FontFace* face = stack_.faces.front().get();
    if (!visible_.empty()) {
        face = finder_.findFace(stack_, visible_, languageOf(cluster.script, ofHan_), cluster.isEmoji);
    }
    if (face == nullptr) {
        addParts(cluster, end);
    } else {
        pieces_.push_back({cluster, face});
    }
}

// The letter comes from one font, marks that it lacks from others.
void Itemizer::addParts(const TextCluster& cluster, std::size_t end) {
    Piece part{cluster, faceOf(text_[cluster.begin], cluster)};
    pieces_.push_back(part);
    for (std::size_t i = cluster.begin + 1; i < end; ++i) {
        if (Characters::isIgnorable(text_[i]) || showsCharacter(*part.face, text_[i])) continue;
        FontFace* const face = faceOf(text_[i], cluster);
        if (face == part.face) continue;
        part.face = face;
        part.cluster.begin = static_cast<std::uint32_t>(i);
        part.cluster.isCut = true;
        pieces_.push_back(part);
    }
}

FontFace* Itemizer::faceOf(char32_t character, const TextCluster& cluster) {
    const char* const language = languageOf(cluster.script, ofHan_);
    FontFace* const face = finder_.findFace(stack_, {&character, 1}, language, cluster.isEmoji);
    if (face != nullptr || Characters::isIgnorable(character))
        return face == nullptr ? stack_.faces.front().get() : face;
    const bool isKnown = missing_.find(character) != missing_.npos;
    if (!isKnown && missing_.size() < Limits::kQuotedCharacters) missing_.push_back(character);
    return stack_.faces.front().get();
}

bool Itemizer::isSpace(const Piece& piece) const noexcept {
    const char32_t c = text_[piece.cluster.begin];
    return c == 0x00A0 || String::isSpace(c);
}

// A space between two words of one face is that face's, so that the words stay in one piece.
void Itemizer::shareSpaces() {
    const FontFace* before = nullptr;
    const auto isWord = [this](const Piece& piece) { return !isSpace(piece); };
    for (auto space = pieces_.begin(); space != pieces_.end();) {
        if (isWord(*space)) {
            before = (space++)->face;
            continue;
        }
        const auto word = std::find_if(space, pieces_.end(), isWord);
        const bool isShared = word != pieces_.end() && word->face == before && !before->isColored();
        for (; space != word; ++space) {
            if (isShared && before->hasGlyph(text_[space->cluster.begin])) space->face = word->face;
        }
    }
}

std::size_t Itemizer::endOf(std::size_t piece) const noexcept {
    return piece + 1 < pieces_.size() ? pieces_[piece + 1].cluster.begin : text_.size();
}

// Signs and spaces go with the letters before or after them, if those have the same face and direction.
std::vector<TextItem> Itemizer::join(const std::vector<BidiLevel>& levels) const {
    std::vector<TextItem> items;
    bool isNeutral = true;  // no letter in the last item yet
    for (std::size_t i = 0; i < pieces_.size(); ++i) {
        const auto& [cluster, face] = pieces_[i];
        const TextItem item{cluster.begin, static_cast<std::uint32_t>(endOf(i)), face, cluster.script,
                            levels.empty() ? BidiLevel{0} : levels[cluster.begin]};
        const bool goesOn = !items.empty() && !cluster.isCut && items.back().face == face &&
                            items.back().level == item.level &&
                            (isNeutral || cluster.isNeutral || items.back().script == cluster.script);
        if (goesOn) {
            items.back().end = item.end;
            if (isNeutral) items.back().script = cluster.script;
        } else {
            items.push_back(item);
        }
        isNeutral = cluster.isNeutral && (isNeutral || !goesOn);
    }
    return items;
}

}  // namespace

std::vector<TextItem> itemize(std::u32string_view text, const FontStack& stack, FaceFinder& finder,
                              std::u32string& missing) {
    Itemizer itemizer(text, stack, finder, missing);
    itemizer.cut(splitClusters(text));
    itemizer.shareSpaces();
    return itemizer.join(bidiLevels(text));
}

}  // namespace VEXA
