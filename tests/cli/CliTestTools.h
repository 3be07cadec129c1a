#pragma once

#include <gtest/gtest.h>

#include <string>

#include "cli/Console.h"
#include "tests/TestDirectory.h"

namespace VEXA::Cli {

using Testing::TestDirectory;

/// Keeps what the program tells people.
class RecordingConsole final : public Console {
public:
    explicit RecordingConsole(bool isTerminal = false) : isTerminal_(isTerminal) {}

    void write(std::string_view text) override { text_ += text; }
    bool isTerminal() const override { return isTerminal_; }
    const std::string& text() const { return text_; }

private:
    std::string text_;
    bool isTerminal_;
};

}  // namespace VEXA::Cli
