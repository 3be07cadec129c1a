#include "vexa/fonts/FontDirectory.h"

#include <algorithm>
#include <filesystem>
#include <set>

#include "vexa/fonts/FontFace.h"
#include "vexa/fonts/FontPatterns.h"
#include "vexa/fonts/FontTables.h"
#include "vexa/support/core/Exception.h"
#include "vexa/support/core/FileDescriptor.h"
#include "vexa/support/core/QuotedText.h"

namespace VEXA {

namespace {

namespace fs = std::filesystem;

constexpr char kSource[] = "FontDirectory";
constexpr int kUnreadable = 34030;
constexpr int kNoFont = 34032;
constexpr int kCutOff = 34034;

/// The regular files of the directory and of those below it, in the order of their names; links to directories are not
/// followed, since they may lead in circles.
std::set<std::string> filesBelow(const std::string& directory) {
    std::error_code error;
    const fs::directory_iterator readable(directory, error);
    if (error) IO::raiseFileError(kUnreadable, directory, error.value(), kSource, __LINE__);
    std::set<std::string> files;
    fs::recursive_directory_iterator entry(directory, fs::directory_options::skip_permission_denied, error);
    for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
        std::error_code unknown;
        if (entry->is_regular_file(unknown)) files.insert(entry->path().lexically_normal().string());
    }
    return files;
}

/// Left out in silence, it would be another font that draws.
void requireWhole(const std::string& file) {
    const auto data = FontData::open(file, FileAccess::Map);
    if (data && isCutOff(data->bytes())) raise(Exception(kCutOff, {escapeForMessage(file)}), kSource, __LINE__);
}

bool hasUsableFont(FcConfig& configuration) {
    const FcFontSet* const fonts = fontconfig().ConfigGetFonts(&configuration, FcSetApplication);
    if (fonts == nullptr) return false;
    return std::any_of(fonts->fonts, fonts->fonts + fonts->nfont,
                       [](const FcPattern* font) { return isUsable(*font); });
}

}  // namespace

FontconfigPtr<FcConfig> configurationOf(const std::string& directory) {
    const Fontconfig& fc = fontconfig();
    FontconfigPtr<FcConfig> configuration(fc.ConfigCreate());
    // One by one, since for a whole directory fontconfig wants to write a cache, and complains where it cannot.
    for (const std::string& file : filesBelow(directory)) {
        requireWhole(file);
        fc.ConfigAppFontAddFile(configuration.get(), reinterpret_cast<const FcChar8*>(file.c_str()));
    }
    if (!hasUsableFont(*configuration)) raise(Exception(kNoFont, {escapeForMessage(directory)}), kSource, __LINE__);
    return configuration;
}

}  // namespace VEXA
