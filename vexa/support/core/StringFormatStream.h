#pragma once

#include "vexa/support/core/Exception.h"

namespace VEXA {

/// Fills the fields {0}, {1}, … of a template with arguments, in one pass: text that comes from an argument is
/// never read as a template. A field without an argument stays as it is.
class StringFormatStream {
public:
    explicit StringFormatStream(const String& messageTemplate) : template_(messageTemplate) {}

    StringFormatStream& operator<<(Variant argument) {
        arguments_.push_back(std::move(argument));
        return *this;
    }
    String str() const { return format(template_, arguments_); }

    static String format(const String& messageTemplate, const VariantArray& arguments);

private:
    String template_;
    VariantArray arguments_;
};

}  // namespace VEXA
