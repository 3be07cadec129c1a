#include "cli/DocumentStream.h"

namespace VEXA::Cli {

std::size_t DocumentStream::read(void* buffer, std::size_t size) {
    const std::size_t count = source_->read(buffer, size);
    const std::string_view bytes(static_cast<const char*>(buffer), count);
    for (std::size_t i = 0; i < count && state_ != State::Element; ++i) see(bytes[i]);
    return count;
}

void DocumentStream::enter(State state) {
    state_ = state;
    last_.assign(kLongestMark, ' ');
}

/// What stands before the first element: blanks, comments and instructions.
void DocumentStream::see(char byte) {
    if (byte == '\0') return;  // half of a character in UTF-16
    last_.erase(0, 1);
    last_ += byte;
    if (state_ == State::Comment || state_ == State::Instruction) {
        if (endsWith(state_ == State::Comment ? "-->" : "?>")) enter(State::Outside);
    } else if (endsWith("<!--")) {
        enter(State::Comment);
    } else if (endsWith("<?")) {
        enter(State::Instruction);
    } else if (last_[kLongestMark - 2] == '<' && byte != '!') {
        enter(State::Element);
    }
}

}  // namespace VEXA::Cli
