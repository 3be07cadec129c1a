#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace VEXA {

/// Reads the text of a value from front to back in one pass. What returns false has read nothing.
class TextScanner {
public:
    explicit TextScanner(std::string_view text) noexcept : at_(text.data()), end_(text.data() + text.size()) {}

    bool isAtEnd() const noexcept { return at_ == end_; }
    /// White space up to the end of the text, and nothing else.
    bool isBlankToEnd() noexcept {
        skipSpace();
        return isAtEnd();
    }
    /// XML white space; true when there was any.
    bool skipSpace() noexcept;
    bool skip(char c) noexcept;
    /// A word in any case of its ASCII letters; `lowerCase` gives it in lower case.
    bool skipWord(std::string_view lowerCase) noexcept;
    /// What may stand between the entries of a list: white space with at most one comma in it.
    bool skipSeparator() noexcept;
    /// As skipSeparator; nothing at all will do where the next number shows by its sign or its point.
    bool skipNumberSeparator() noexcept { return skipSeparator() || isNext('-') || isNext('+') || isNext('.'); }

    /// A finite decimal number at the front. What follows it is left alone, so that "1em" is read as 1.
    bool readNumber(float& out) noexcept;
    bool readNumber(double& out) noexcept;
    /// ASCII letters; may be none.
    std::string_view readLetters() noexcept;
    /// All up to `stop`, which is left alone, or to the end.
    std::string_view readUntil(char stop) noexcept;

    bool isNext(char c) const noexcept { return at_ != end_ && *at_ == c; }

    static bool isSpace(char c) noexcept { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }
    /// Without white space at both ends.
    static std::string_view trim(std::string_view text) noexcept;

private:
    std::size_t rest() const noexcept { return static_cast<std::size_t>(end_ - at_); }

    const char* at_;
    const char* end_;
};

/// Appends the shortest decimal that reads back as the same number; no exponent for 1e-5 <= |v| < 1e15.
/// REQUIRES: a finite number.
void appendNumber(double value, std::string& out);
/// The same with so many significant digits.
void appendNumber(double value, int digits, std::string& out);

}  // namespace VEXA
