#pragma once

#include <string>
#include <vector>

#include "cli/ExitStatus.h"
#include "cli/OutputFormat.h"
#include "cli/RenderOptions.h"

namespace VEXA::Cli {

/// One document to draw. "-" names a standard stream.
struct RenderJob {
    std::string input;
    std::string output;
    OutputFormat format = OutputFormat::Svg;
    PictureOptions picture;
    bool isStrict = false;  ///< a document with a warning is not drawn
};

/// What a command line asks for: the jobs in the order of the inputs, or what is wrong with it.
struct RenderPlan {
    std::vector<RenderJob> jobs;
    bool isJoined = false;            ///< the documents become pages of one file, the output of them all
    std::string problem;              ///< one sentence for the user; empty when the plan can be carried out
    ExitStatus status = kWrongUsage;  ///< what a problem makes the program end with
};

/// Decides the output file and the format of every input. Refuses a plan in which two documents would write one file
/// that cannot hold both, or a picture would replace a document that is read. Looks at files, writes none.
RenderPlan planRender(const RenderOptions& options);

}  // namespace VEXA::Cli
