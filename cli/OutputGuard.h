#pragma once

#include <string>
#include <vector>

namespace VEXA::Cli {

struct RenderJob;

/// A sentence that names the two when two jobs would write the same file that they do not join in, or a job would write
/// over a document that is read, under whatever name (links are followed); else empty.
std::string outputProblem(const std::vector<RenderJob>& jobs, bool isJoined);

}  // namespace VEXA::Cli
