#pragma once

#include <span>
#include <string>

/// Documents that ask for much more than they hold: one text or paint used often, patterns that expand, text that
/// wraps.
namespace VEXA::Testing {

struct AmplifyingDocument {
    const char* name;
    std::string (*make)();
};

std::span<const AmplifyingDocument> amplifyingDocuments() noexcept;

}  // namespace VEXA::Testing
