#pragma once

namespace VEXA::Characters {

inline constexpr char32_t kZeroWidthJoiner = 0x200D;
inline constexpr char32_t kTextStyle = 0xFE0E;   ///< asks for the plain look of the character before it
inline constexpr char32_t kEmojiStyle = 0xFE0F;  ///< asks for its colourful look
inline constexpr char32_t kKeycap = 0x20E3;

/// Characters without a look of their own, such as joiners, direction marks and variation selectors (Unicode's property
/// Default_Ignorable_Code_Point): where a font lacks them nothing is missing.
bool isIgnorable(char32_t character) noexcept;

/// Whether a character is a colourful picture when nothing else is said (Unicode's property Emoji_Presentation).
bool isEmoji(char32_t character) noexcept;

/// A tone of skin, which colours the emoji before it.
constexpr bool isSkinTone(char32_t c) noexcept { return c >= 0x1F3FB && c <= 0x1F3FF; }

/// Letters of country codes; two make a flag.
constexpr bool isRegionalIndicator(char32_t c) noexcept { return c >= 0x1F1E6 && c <= 0x1F1FF; }

/// Vowels and final consonants that make a Korean syllable with what is before them.
constexpr bool joinsSyllable(char32_t c) noexcept {
    return (c >= 0x1160 && c <= 0x11FF) || (c >= 0xD7B0 && c <= 0xD7FB);
}

constexpr bool isControl(char32_t c) noexcept { return c < 0x20 || (c >= 0x7F && c < 0xA0); }

}  // namespace VEXA::Characters
