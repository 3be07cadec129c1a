#pragma once

#include <mutex>
#include <optional>
#include <string>

#include "vexa/fonts/BoundedCache.h"
#include "vexa/support/core/String.h"

namespace VEXA {

/// What measuring a text came to.
struct MeasuredText {
    int width = 0;  ///< in units of the program
    std::u32string missing;
};

/// Remembers the widths of shaped texts: the layout of a chart measures each label several times. Safe from several
/// threads.
class WidthCache {
public:
    WidthCache();

    /// `program` is a number that no two programs share.
    std::optional<MeasuredText> find(std::uint64_t program, const String& text);
    void insert(std::uint64_t program, const String& text, const MeasuredText& measured);

private:
    struct Key {
        std::uint64_t program;
        String text;

        friend bool operator==(const Key&, const Key&) = default;
    };
    struct KeyHash {
        std::size_t operator()(const Key& key) const noexcept {
            return std::hash<String>()(key.text) ^ (key.program * 0x9E3779B97F4A7C15U);
        }
    };

    std::mutex mutex_;
    BoundedCache<Key, MeasuredText, KeyHash> widths_;
};

}  // namespace VEXA
