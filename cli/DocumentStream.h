#pragma once

#include <cstdint>
#include <string>

#include "vexa/support/core/Stream.h"

namespace VEXA::Cli {

/// Passes a document on, and knows afterwards whether there was an element in it.
class DocumentStream final : public IO::Stream {
public:
    explicit DocumentStream(SmartPtr<IO::Stream> source) : source_(std::move(source)) {}

    std::size_t read(void* buffer, std::size_t size) override;
    void write(const void* data, std::size_t size) override { source_->write(data, size); }

    bool hasElement() const noexcept { return state_ == State::Element; }

private:
    enum class State : std::uint8_t { Outside, Comment, Instruction, Element };

    bool endsWith(std::string_view end) const noexcept { return std::string_view(last_).ends_with(end); }
    void enter(State state);
    void see(char byte);

    static constexpr std::size_t kLongestMark = 4;
    SmartPtr<IO::Stream> source_;
    State state_ = State::Outside;
    std::string last_ = std::string(kLongestMark, ' ');
};

}  // namespace VEXA::Cli
