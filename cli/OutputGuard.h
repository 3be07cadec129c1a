#pragma once

#include <string>
#include <vector>

namespace VEXA::Cli {

struct RenderJob;

/// A sentence that names both when two jobs would write the same file; else empty.
std::string sameOutputProblem(const std::vector<RenderJob>& jobs);

/// A sentence that names both when a job would write over a document that is read, under whatever name: links are
/// followed, and files behind the standard streams are known. Else empty.
std::string overwriteProblem(const std::vector<RenderJob>& jobs);

}  // namespace VEXA::Cli
