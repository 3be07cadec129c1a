#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <string>

#include "tests/cli/CliTestTools.h"

namespace VEXA::Cli {

inline const std::string kOpen =
    "<root xmlns='http://vexa-charts.org/2008/vx' width='200px' height='100px' theme='none'>\n";

struct Outcome {
    int status;
    std::string output;
    std::string errors;
};

/// What a shell does with a command in the directory.
inline Outcome shell(const TestDirectory& directory, const std::string& command) {
    const int status = std::system(("cd " + directory.path("") + " && (" + command + ") >.out 2>.err").c_str());
    return {WEXITSTATUS(status), directory.read(".out"), directory.read(".err")};
}

inline Outcome run(const TestDirectory& directory, const std::string& arguments) {
    return shell(directory, VEXA_PROGRAM " " + arguments);
}

inline bool startsWith(const std::string& text, const std::string& start) { return text.rfind(start, 0) == 0; }

}  // namespace VEXA::Cli
