#include "vexa/fonts/FamilyNames.h"

#include "vexa/fonts/FontPatterns.h"

namespace VEXA {

namespace {

std::string_view textOf(const FontData& file) {
    return {reinterpret_cast<const char*>(file.bytes().data()), file.bytes().size()};
}

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view kSpace = " \t\r\n";
    const auto begin = text.find_first_not_of(kSpace);
    return begin == text.npos ? std::string_view() : text.substr(begin, text.find_last_not_of(kSpace) - begin + 1);
}

}  // namespace

FamilyNames::FamilyNames(FcConfig& configuration) {
    const Fontconfig& fc = fontconfig();
    for (const FcSetName set : {FcSetSystem, FcSetApplication}) addFonts(fc.ConfigGetFonts(&configuration, set));
    const FontconfigPtr<FcStrList> files(fc.ConfigGetConfigFiles(&configuration));
    while (const FcChar8* file = fc.StrListNext(files.get())) {
        const auto data = FontData::open(reinterpret_cast<const char*>(file), FileAccess::Read);
        if (data) addRules(textOf(*data));
    }
}

void FamilyNames::addFonts(const FcFontSet* fonts) {
    for (int i = 0; fonts != nullptr && i < fonts->nfont; ++i) {
        for (int name = 0;; ++name) {
            const std::string family = fontText(*fonts->fonts[i], FC_FAMILY, name);
            if (family.empty()) break;
            names_.insert(comparableFamily(family));
        }
    }
}

// Rules name families in elements <family> and <string>; what else they hold there does no harm.
void FamilyNames::addRules(std::string_view xml) {
    for (const std::string_view tag : {"<family>", "<string>"}) {
        for (auto at = xml.find(tag); at != xml.npos; at = xml.find(tag, at)) {
            at += tag.size();
            names_.insert(comparableFamily(trimmed(xml.substr(at, xml.find('<', at) - at))));
        }
    }
}

}  // namespace VEXA
