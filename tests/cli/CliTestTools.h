#pragma once

#include <gtest/gtest.h>

#include <string>

#include "cli/Console.h"
#include "cli/RenderPlan.h"
#include "tests/TestDirectory.h"

namespace VEXA::Cli {

using Testing::TestDirectory;

inline void expectProblem(const RenderOptions& options, const std::string& part) {
    const std::string problem = planRender(options).problem;
    EXPECT_NE(problem.find(part), std::string::npos) << "not \"" << part << "\" but: " << problem;
}

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
