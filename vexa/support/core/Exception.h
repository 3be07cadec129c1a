#pragma once

#include <cstdint>
#include <exception>
#include <optional>
#include <string>
#include <variant>

#include "vexa/support/core/String.h"
#include "vexa/support/core/Vector.h"

namespace VEXA {

/// An argument of a message.
using Variant = std::variant<String, std::int64_t, double>;
using VariantArray = Vector<Variant>;

/// A place in a document, both counted from 1; line 0 means no place.
struct SourcePlace {
    std::uint32_t line = 0;
    std::uint32_t column = 0;

    bool isKnown() const noexcept { return line != 0; }
    friend bool operator==(const SourcePlace&, const SourcePlace&) = default;
};

/// Where in the code a failure was noticed: the source's name without extension, and its line.
struct CodeLocation {
    const char* source = "";
    int line = 0;
};

/// A failure: a numbered message with its arguments. `what()` is the message in UTF-8.
class Exception : public std::exception {
public:
    explicit Exception(int code, VariantArray arguments = {});

    Exception& initCodeLocation(const char* source, int line) noexcept;
    /// The place in the document that caused it.
    Exception& setPlace(SourcePlace place) noexcept;
    /// Writes the exception to the log with severity Error.
    void logError() const;

    int getCode() const noexcept { return code_; }
    const VariantArray& getArguments() const noexcept { return arguments_; }
    const CodeLocation& getCodeLocation() const noexcept { return location_; }
    SourcePlace getPlace() const noexcept { return place_; }
    String getMessage() const;
    const char* what() const noexcept override { return message_.c_str(); }

private:
    int code_;
    VariantArray arguments_;
    CodeLocation location_;
    SourcePlace place_;
    std::string message_;
};

/// An enumeration value, or a state, that cannot be. Message number 2001; the argument says what was met.
class UnreacheableCodeException : public Exception {
public:
    explicit UnreacheableCodeException(String what);
};

/// A mandatory object is missing. Message number 2002, or one that names the object.
class NullPointerException : public Exception {
public:
    NullPointerException();
    explicit NullPointerException(int code, VariantArray arguments = {});
};

/// Records the code location (and the document's place, when given), writes the exception to the log and throws it.
template <class E>
[[noreturn]] void raise(E exception, const char* source, int line, SourcePlace place = {}) {
    exception.initCodeLocation(source, line);
    if (place.isKnown()) exception.setPlace(place);
    exception.logError();
    throw exception;
}

}  // namespace VEXA
