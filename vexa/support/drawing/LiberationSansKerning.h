#pragma once

namespace VEXA {

/// What two characters that follow each other add to their widths, in 1/2048 em; mostly 0, below it where they move
/// together.
int liberationSansKerning(bool bold, bool italic, char32_t left, char32_t right) noexcept;

}  // namespace VEXA
