#include "vexa/support/core/Exception.h"

#include "vexa/support/core/Log.h"
#include "vexa/support/core/StringTable.h"

namespace VEXA {

namespace {

constexpr int kUnreacheableCode = 2001;
constexpr int kNullPointer = 2002;

}  // namespace

Exception::Exception(int code, VariantArray arguments)
    : code_(code), arguments_(std::move(arguments)), message_(messageText(code_, arguments_).toUtf8()) {}

Exception& Exception::initCodeLocation(const char* source, int line) noexcept {
    location_ = {source, line};
    return *this;
}

Exception& Exception::setPlace(SourcePlace place) noexcept {
    place_ = place;
    return *this;
}

void Exception::logError() const { Log::write({Severity::Error, code_, getMessage(), place_}); }

String Exception::getMessage() const { return String(message_); }

UnreacheableCodeException::UnreacheableCodeException(String what) : Exception(kUnreacheableCode, {std::move(what)}) {}

NullPointerException::NullPointerException() : Exception(kNullPointer) {}

NullPointerException::NullPointerException(int code, VariantArray arguments) : Exception(code, std::move(arguments)) {}

}  // namespace VEXA
