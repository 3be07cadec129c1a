#pragma once

#include <span>
#include <string>

namespace VEXA::Testing {

/// A document that asks for much more than it holds: one text or paint used often, patterns that expand, text that
/// wraps.
struct Attack {
    const char* name;
    std::string (*document)();
};

std::span<const Attack> attacks();

}  // namespace VEXA::Testing
