#include "vexa/support/core/String.h"

#include <limits>
#include <new>
#include <stdexcept>
#include <utility>

#include "vexa/support/core/StringTable.h"
#include "vexa/support/core/Utf8.h"

namespace VEXA {

namespace {

char32_t* charactersOf(StringData* data) noexcept { return reinterpret_cast<char32_t*>(data + 1); }

}  // namespace

StringData* String::allocate(std::size_t length) {
    constexpr std::size_t kMaxLength = std::numeric_limits<std::uint32_t>::max() / sizeof(char32_t);
    if (length > kMaxLength) throw std::length_error("VEXA::String");
    void* memory = ::operator new(sizeof(StringData) + length * sizeof(char32_t));
    return new (memory) StringData{{1}, static_cast<std::uint32_t>(length)};
}

String::String(std::string_view utf8) {
    if (utf8.empty()) return;
    if (Utf8::isAscii(utf8)) {
        StringData* data = allocate(utf8.size());
        char32_t* out = charactersOf(data);
        for (std::size_t i = 0; i < utf8.size(); ++i) out[i] = static_cast<unsigned char>(utf8[i]);
        data_ = data;
    } else {
        StringData* data = allocate(Utf8::count(utf8));
        Utf8::decode(utf8, charactersOf(data));
        data_ = data;
    }
}

String::String(std::u32string_view characters) {
    if (characters.empty()) return;
    StringData* data = allocate(characters.size());
    char32_t* out = charactersOf(data);
    for (const char32_t c : characters) *out++ = Utf8::isCharacter(c) ? c : Utf8::kReplacement;
    data_ = data;
}

String::String(const String& other) noexcept : data_(other.data_) {
    if (data_ == nullptr || (data_->references.load(std::memory_order_relaxed) & StringData::kImmortal) != 0) return;
    data_->references.fetch_add(1, std::memory_order_relaxed);
}

String& String::operator=(const String& other) noexcept {
    String copy(other);
    std::swap(data_, copy.data_);
    return *this;
}

String& String::operator=(String&& other) noexcept {
    String taken(std::move(other));
    std::swap(data_, taken.data_);
    return *this;
}

void String::release() noexcept {
    if (data_ == nullptr) return;
    // The only owner needs no atomic subtraction: nobody else can take a reference meanwhile.
    const std::uint32_t references = data_->references.load(std::memory_order_acquire);
    if ((references & StringData::kImmortal) != 0) return;
    if (references != 1 && data_->references.fetch_sub(1, std::memory_order_acq_rel) != 1) return;
    data_->~StringData();
    ::operator delete(const_cast<StringData*>(data_));
}

std::string String::toUtf8() const {
    std::string result;
    appendUtf8To(result);
    return result;
}

void String::appendUtf8To(std::string& out) const {
    const std::size_t before = out.size();
    out.resize(before + Utf8::encodedSize(view()));
    char* at = out.data() + before;
    for (const char32_t c : view()) {
        if (c < 0x80) {
            *at++ = static_cast<char>(c);
        } else {
            at = Utf8::encode(c, at);
        }
    }
}

int String::compare(const String& other) const noexcept {
    const int order = data_ == other.data_ ? 0 : view().compare(other.view());
    return (order > 0) - (order < 0);
}

std::size_t String::find(const String& what, std::size_t from) const noexcept { return view().find(what.view(), from); }

bool String::startsWith(const String& prefix) const noexcept { return view().starts_with(prefix.view()); }

String String::subString(std::size_t start, std::size_t count) const {
    if (start >= length()) return {};
    if (start == 0 && count >= length()) return *this;
    return String(view().substr(start, count));
}

String String::substringBefore(const String& marker) const {
    const std::size_t at = find(marker);
    return at == npos ? String() : subString(0, at);
}

String String::substringAfter(const String& marker) const {
    const std::size_t at = find(marker);
    return at == npos ? String() : subString(at + marker.length());
}

String String::trim() const {
    std::size_t begin = 0;
    std::size_t end = length();
    while (begin < end && isSpace((*this)[begin])) ++begin;
    while (end > begin && isSpace((*this)[end - 1])) --end;
    return subString(begin, end - begin);
}

String String::replaceAll(const String& what, const String& with) const {
    std::size_t at = what.isEmpty() ? npos : find(what);
    if (at == npos) return *this;
    std::u32string result;
    std::size_t done = 0;
    for (; at != npos; at = find(what, done)) {
        result.append(view(), done, at - done).append(with.view());
        done = at + what.length();
    }
    return String(result.append(view(), done));
}

bool String::isSpace(char32_t character) noexcept {
    switch (character) {
        case U'\t':
        case U'\n':
        case U'\r':
        case U' ':
        case U'\u1680':  // Ogham space mark
        case U'\u205F':  // medium mathematical space
        case U'\u3000':  // ideographic space
            return true;
        default:
            // En quad to hair space; between them the figure space does not break.
            return character >= U'\u2000' && character <= U'\u200A' && character != U'\u2007';
    }
}

String String::loadString(int number) { return String(findMessage(number)); }

String operator+(const String& a, const String& b) {
    if (a.isEmpty()) return b;
    if (b.isEmpty()) return a;
    String result;
    StringData* data = String::allocate(a.length() + b.length());
    b.view().copy(charactersOf(data) + a.view().copy(charactersOf(data), a.length()), b.length());
    result.data_ = data;
    return result;
}

void appendUtf8(char32_t character, std::string& out) {
    char bytes[4];
    out.append(bytes, Utf8::encode(character, bytes));
}

}  // namespace VEXA
