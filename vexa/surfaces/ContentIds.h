#pragma once

#include <cstdint>
#include <unordered_map>

#include "vexa/support/core/Vector.h"
#include "vexa/support/drawing/Matrix.h"

namespace VEXA {

/// Numbers for contents: the same content always gets the same number, in every document, since it is the content's
/// hash. A content is put together with add() and ends with intern().
class ContentIds {
public:
    struct Result {
        std::uint64_t id;
        bool isNew;  ///< the content was not met before
    };

    void add(std::uint32_t word) { words_.push_back(word); }
    void add(float value);
    void add(PointF point);
    void add(const Matrix& matrix);
    Result intern();
    void clear() noexcept;

private:
    struct Content {
        std::size_t start;
        std::size_t size;
    };

    bool isPresentContent(const Content& other) const noexcept;

    Vector<std::uint32_t> words_;  ///< of all contents, one after another; the present one at the end
    std::size_t start_ = 0;        ///< of the present content
    std::unordered_map<std::uint64_t, Content> known_;
};

}  // namespace VEXA
