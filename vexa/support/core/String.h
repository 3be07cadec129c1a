#pragma once

#include <atomic>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "vexa/support/core/KeyedHash.h"

namespace VEXA {

/// Header of a shared text; the code points follow it in memory.
struct StringData {
    static constexpr std::uint32_t kImmortal = 0x80000000U;

    mutable std::atomic<std::uint32_t> references;
    std::uint32_t length;

    const char32_t* characters() const noexcept { return reinterpret_cast<const char32_t*>(this + 1); }
};

/// A text with static lifetime; `String(&data.header)` costs nothing and works before any constructor has run.
template <std::size_t N>
struct StaticStringData {
    StringData header;
    char32_t characters[N];
};

/// An immutable text of Unicode code points. One pointer wide, shared by copies, empty without allocation.
/// Ill-formed UTF-8 and code points that are no characters become U+FFFD.
class String {
public:
    static constexpr std::size_t npos = static_cast<std::size_t>(-1);

    constexpr String() noexcept = default;
    explicit constexpr String(const StringData* immortal) noexcept : data_(immortal) {}
    String(const char* utf8) : String(std::string_view(utf8)) {}
    String(std::string_view utf8);
    String(const std::string& utf8) : String(std::string_view(utf8)) {}
    explicit String(std::u32string_view characters);
    String(const String& other) noexcept;
    constexpr String(String&& other) noexcept : data_(other.data_) { other.data_ = nullptr; }
    constexpr ~String() {
        if (data_ != nullptr) release();
    }
    String& operator=(const String& other) noexcept;
    String& operator=(String&& other) noexcept;

    std::size_t length() const noexcept { return data_ == nullptr ? 0 : data_->length; }
    bool isEmpty() const noexcept { return length() == 0; }
    char32_t operator[](std::size_t index) const noexcept { return data_->characters()[index]; }
    std::u32string_view view() const noexcept {
        return data_ == nullptr ? std::u32string_view() : std::u32string_view(data_->characters(), data_->length);
    }

    /// Gives the reference to the shared text to the caller, who hands it back to `adopt`; null for the empty text.
    const StringData* detach() noexcept {
        const StringData* const data = data_;
        data_ = nullptr;
        return data;
    }
    /// Takes over a reference that `detach` gave.
    static String adopt(const StringData* data) noexcept { return String(data); }

    std::string toUtf8() const;
    void appendUtf8To(std::string& out) const;

    /// 0 when both are equal, else the sign of the first difference in code point order.
    int compare(const String& other) const noexcept;
    friend bool operator==(const String& a, const String& b) noexcept {
        return a.data_ == b.data_ || a.view() == b.view();
    }
    friend std::strong_ordering operator<=>(const String& a, const String& b) noexcept { return a.compare(b) <=> 0; }

    /// Position of the first occurrence at or after `from`, or npos.
    std::size_t find(const String& what, std::size_t from = 0) const noexcept;
    bool startsWith(const String& prefix) const noexcept;
    /// Up to `count` characters from `start`; a range beyond the end is cut.
    String subString(std::size_t start, std::size_t count = npos) const;
    /// The text before or after the first occurrence of `marker`; empty when it does not occur.
    String substringBefore(const String& marker) const;
    String substringAfter(const String& marker) const;
    /// Without white space (isSpace) at both ends.
    String trim() const;
    String replaceAll(const String& what, const String& with) const;

    /// White space of XML and Unicode's space separators, without the no-break ones (a line does not break there).
    static bool isSpace(char32_t character) noexcept;

    /// The text of a numbered message, with fields {0}, {1}, …; empty for an unknown number.
    static String loadString(int number);

    friend String operator+(const String& a, const String& b);

private:
    static StringData* allocate(std::size_t length);
    void release() noexcept;

    const StringData* data_ = nullptr;
};

/// Appends one code point as UTF-8; what is no character (a surrogate, above 10FFFF) becomes U+FFFD.
void appendUtf8(char32_t character, std::string& out);

}  // namespace VEXA

template <>
struct std::hash<VEXA::String> {
    std::size_t operator()(const VEXA::String& text) const noexcept {
        return VEXA::keyedHash(text.view().data(), text.view().size() * sizeof(char32_t));
    }
};
