#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace VEXA::Testing {

/// What a busy server meets: all examples, documents that are wrong in many ways, and texts in many scripts, families
/// and sizes.
class MixedDocuments {
public:
    MixedDocuments();

    /// So many renders meet every document in every format.
    std::size_t cycle() const noexcept;
    /// What the i-th render writes, as SVG, display list, PDF or PNG, with its messages in front of it. An error is a
    /// message as well.
    std::string render(std::size_t i) const;

private:
    std::vector<std::string> documents_;
};

}  // namespace VEXA::Testing
