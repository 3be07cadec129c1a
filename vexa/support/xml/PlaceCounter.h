#pragma once

#include <cstdint>
#include <string_view>

#include "vexa/support/core/Exception.h"
#include "vexa/support/core/Vector.h"

namespace VEXA {

/// Finds line and column of places in a UTF-8 text that is read from front to back. Searches for line ends with the C
/// library's vector code, which is many times faster than counting character by character.
class PlaceCounter {
public:
    /// The next bytes of the text; the first ones hold its byte order mark whole. Places behind the last one asked for
    /// cost a few bytes each in memory.
    void feed(std::string_view bytes);
    /// How many bytes were fed.
    std::uint64_t fed() const noexcept { return fed_; }
    /// The place of a byte that was fed. REQUIRES: not before the last one asked for.
    SourcePlace at(std::uint64_t index) noexcept;
    /// False once the text had bytes that this class does not count right: UTF-16, or lines that end in a carriage
    /// return alone.
    bool isUsable() const noexcept { return isUsable_; }

private:
    void feedLineEnds(std::string_view bytes);
    void feedContinuations(std::string_view bytes);
    void checkStart(std::string_view bytes);
    void checkCarriageReturns(std::string_view bytes) noexcept;

    /// Offsets of bytes in the text, ascending; the first `passed` are done with.
    struct Offsets {
        Vector<std::uint64_t> all;
        std::size_t passed = 0;
        void prune();
    };

    std::uint64_t fed_ = 0;
    Offsets lineEnds_;
    Offsets continuations_;  // bytes that are no character of their own
    std::uint64_t lineStart_ = 0;
    std::uint64_t continuationsInLine_ = 0;
    std::uint32_t line_ = 1;
    bool endsInCarriageReturn_ = false;
    bool isUsable_ = true;
};

}  // namespace VEXA
