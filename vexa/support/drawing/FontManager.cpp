#include <atomic>
#include <cstdint>
#include <mutex>
#include <utility>

#include "vexa/support/core/Limits.h"
#include "vexa/support/drawing/FontService.h"

namespace VEXA {

namespace {

/// The service in force. Every measured text asks for it, so each thread keeps its own pointer and looks at the shared
/// one only after a change, which the generation tells.
struct Installed {
    std::mutex mutex;
    std::shared_ptr<FontService> service = defaultFontService();
    std::atomic<std::uint64_t> generation{1};
};

Installed& installed() {
    static Immortal<Installed> instance;  // threads may still measure while the program ends
    return instance.value;
}

FontService& currentService() {
    thread_local std::shared_ptr<FontService> service;
    thread_local std::uint64_t generation = 0;
    Installed& shared = installed();
    if (generation != shared.generation.load(std::memory_order_acquire)) {
        const std::lock_guard lock(shared.mutex);
        service = shared.service;
        generation = shared.generation.load(std::memory_order_relaxed);
    }
    return *service;
}

/// More are not named in a message.
constexpr std::size_t kMissingCharacters = Limits::kQuotedCharacters;

std::u32string& missingCharacters() {
    thread_local std::u32string characters;
    return characters;
}

}  // namespace

SmartPtr<FontProgram> FontManager::getFont(const SmartPtr<Font>& font) { return currentService().getFont(*font); }

std::shared_ptr<FontService> FontManager::setService(std::shared_ptr<FontService> service) {
    if (service == nullptr) service = defaultFontService();
    Installed& shared = installed();
    const std::lock_guard lock(shared.mutex);
    shared.service.swap(service);
    shared.generation.fetch_add(1, std::memory_order_release);
    return service;
}

void FontManager::noteMissing(std::u32string_view characters) {
    std::u32string& missing = missingCharacters();
    for (const char32_t character : characters) {
        if (missing.size() >= kMissingCharacters) return;
        if (missing.find(character) == std::u32string::npos) missing.push_back(character);
    }
}

std::u32string FontManager::takeMissing() { return std::exchange(missingCharacters(), {}); }

}  // namespace VEXA
