#include "vexa/fonts/TextClusters.h"

#include <algorithm>

#include "vexa/fonts/Characters.h"
#include "vexa/fonts/HarfBuzz.h"
#include "vexa/support/core/Limits.h"

namespace VEXA {

namespace {

using namespace Characters;

constexpr hb_script_t kOfNeighbours = HB_SCRIPT_COMMON;

/// Walks over a text from cluster to cluster: a shortened form of the extended grapheme clusters of Unicode Standard
/// Annex #29, with the emoji sequences of Technical Standard #51.
class ClusterScanner {
public:
    explicit ClusterScanner(std::u32string_view text)
        : text_(text), hb_(harfBuzz()), ucd_(hb_.unicode_funcs_get_default()) {}

    bool atEnd() const noexcept { return at_ == text_.size(); }
    TextCluster next();

private:
    char32_t peek() const noexcept { return atEnd() ? 0 : text_[at_]; }
    hb_script_t scriptOf(char32_t character) const;
    bool isSymbol(char32_t character) const;
    bool isExtension(char32_t character) const;
    bool startsEmoji(std::size_t begin) const;
    void takeExtensions(const TextCluster& cluster);
    bool takeJoined(const TextCluster& cluster);
    bool isFull(const TextCluster& cluster) const noexcept { return at_ - cluster.begin >= Limits::kClusterCharacters; }

    std::u32string_view text_;
    const HarfBuzz& hb_;
    hb_unicode_funcs_t* ucd_;
    std::size_t at_ = 0;
};

// ASCII, most of all texts, needs no look into tables.
hb_script_t ClusterScanner::scriptOf(char32_t character) const {
    const bool isLatin = (character | 0x20U) >= U'a' && (character | 0x20U) <= U'z';
    if (character < 0x80) return isLatin ? HB_SCRIPT_LATIN : kOfNeighbours;
    const hb_script_t script = hb_.unicode_script(ucd_, character);
    return script == HB_SCRIPT_INHERITED || script == HB_SCRIPT_UNKNOWN ? kOfNeighbours : script;
}

bool ClusterScanner::isSymbol(char32_t character) const {
    return isEmoji(character) ||
           hb_.unicode_general_category(ucd_, character) == HB_UNICODE_GENERAL_CATEGORY_OTHER_SYMBOL;
}

bool ClusterScanner::isExtension(char32_t character) const {
    if (character < 0xA0) return false;
    if (isIgnorable(character) || joinsSyllable(character)) return true;
    const auto category = hb_.unicode_general_category(ucd_, character);
    return category == HB_UNICODE_GENERAL_CATEGORY_NON_SPACING_MARK ||
           category == HB_UNICODE_GENERAL_CATEGORY_SPACING_MARK ||
           category == HB_UNICODE_GENERAL_CATEGORY_ENCLOSING_MARK;
}

// By the first characters: what follows may turn a sign into a picture and back.
bool ClusterScanner::startsEmoji(std::size_t begin) const {
    const auto characterAt = [&](std::size_t i) { return i < text_.size() ? text_[i] : U'\0'; };
    const char32_t first = text_[begin];
    const char32_t second = characterAt(begin + 1);
    const char32_t third = characterAt(begin + 2);
    if (first < 0xA0) return second == kEmojiStyle && third == kKeycap;
    if (second == kEmojiStyle) return true;
    if (isSkinTone(second)) return isSymbol(first);
    if (second == kZeroWidthJoiner && isEmoji(third)) return true;
    return second != kTextStyle && isEmoji(first);
}

void ClusterScanner::takeExtensions(const TextCluster& cluster) {
    while (!atEnd() && !isFull(cluster) && (isExtension(peek()) || (cluster.isEmoji && isSkinTone(peek())))) ++at_;
}

// A joiner binds the picture after it to the emoji before it.
bool ClusterScanner::takeJoined(const TextCluster& cluster) {
    if (!cluster.isEmoji || atEnd() || isFull(cluster)) return false;
    if (text_[at_ - 1] != kZeroWidthJoiner || !isSymbol(peek())) return false;
    ++at_;
    return true;
}

TextCluster ClusterScanner::next() {
    const std::size_t begin = at_;
    const char32_t first = text_[at_++];
    const bool isCut = begin > 0 && isExtension(first);
    const hb_script_t script = scriptOf(first);
    const TextCluster cluster{static_cast<std::uint32_t>(begin), script, script == kOfNeighbours, startsEmoji(begin),
                              isCut};
    if (isRegionalIndicator(first) && isRegionalIndicator(peek())) ++at_;
    do {
        takeExtensions(cluster);
    } while (takeJoined(cluster));
    return cluster;
}

void resolveScripts(std::vector<TextCluster>& clusters) {
    const auto first = std::find_if(clusters.begin(), clusters.end(), [](const auto& each) { return !each.isNeutral; });
    hb_script_t script = first == clusters.end() ? HB_SCRIPT_LATIN : first->script;
    for (TextCluster& cluster : clusters) {
        if (cluster.isNeutral) {
            cluster.script = script;
        } else {
            script = cluster.script;
        }
    }
}

}  // namespace

std::vector<TextCluster> splitClusters(std::u32string_view text) {
    std::vector<TextCluster> clusters;
    clusters.reserve(text.size());
    ClusterScanner scanner(text);
    while (!scanner.atEnd()) clusters.push_back(scanner.next());
    resolveScripts(clusters);
    return clusters;
}

}  // namespace VEXA
