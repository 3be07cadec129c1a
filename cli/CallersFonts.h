#pragma once

#include <memory>
#include <string>
#include <vector>

#include "vexa/support/drawing/FontService.h"

namespace VEXA::Cli {

/// The font service with the fonts of these directories before those of the machine; empty in a program that was built
/// without fonts (VEXA_FONTS=OFF). Throws Exception when a directory cannot be used.
std::shared_ptr<FontService> callersFonts(const std::vector<std::string>& directories);

/// A font service that is in force while the object lives; none leaves the one that is.
class FontServiceScope {
public:
    explicit FontServiceScope(std::shared_ptr<FontService> service) : isInstalled_(service != nullptr) {
        if (isInstalled_) previous_ = FontManager::setService(std::move(service));
    }
    ~FontServiceScope() {
        if (isInstalled_) FontManager::setService(std::move(previous_));
    }
    FontServiceScope(const FontServiceScope&) = delete;
    FontServiceScope& operator=(const FontServiceScope&) = delete;

private:
    bool isInstalled_;
    std::shared_ptr<FontService> previous_;
};

}  // namespace VEXA::Cli
