#include "vexa/fonts/FaceStore.h"

#include "vexa/fonts/FontTables.h"

namespace VEXA {

namespace {

/// For people: "Noto Sans CJK SC Bold"; that a font is the ordinary one goes without saying.
std::string nameOf(const FcPattern& font) {
    const std::string style = fontText(font, FC_STYLE);
    std::string name = fontText(font, FC_FAMILY);
    if (!style.empty() && style != "Regular" && style != "Book") name.append(" ").append(style);
    return name;
}

}  // namespace

FontFace* FaceStore::open(const FcPattern& font) {
    const std::string file = fontText(font, FC_FILE);
    const int index = fontNumber(font, FC_INDEX);
    const auto [entry, isNew] = faces_.try_emplace({file, index});
    if (!isNew || file.empty() || !isUsable(font)) return entry->second.get();
    if (const auto& data = dataOf(file))
        entry->second = FontFace::open(data, static_cast<unsigned>(index), nameOf(font));
    return entry->second.get();
}

const SmartPtr<FontData>& FaceStore::dataOf(const std::string& file) {
    const auto [entry, isNew] = data_.try_emplace(file);
    if (isNew) entry->second = FontData::open(file, access_);
    if (isNew && entry->second && isCutOff(entry->second->bytes())) entry->second = nullptr;
    return entry->second;
}

}  // namespace VEXA
