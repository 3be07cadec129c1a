#pragma once

#include <map>
#include <string>
#include <utility>

#include "vexa/fonts/FontPatterns.h"

namespace VEXA {

/// Opens the faces of font files, each once. They live as long as the store. Not safe from several threads.
class FaceStore {
public:
    explicit FaceStore(FileAccess access) noexcept : access_(access) {}

    /// The face that fontconfig speaks of; null when it cannot be used.
    FontFace* open(const FcPattern& font);

private:
    const SmartPtr<FontData>& dataOf(const std::string& file);

    FileAccess access_;
    std::map<std::string, SmartPtr<FontData>> data_;
    std::map<std::pair<std::string, int>, SmartPtr<FontFace>> faces_;  // empty where it cannot be used
};

}  // namespace VEXA
