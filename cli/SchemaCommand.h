#pragma once

#include "cli/ExitStatus.h"
#include "cli/SchemaOptions.h"

namespace VEXA::Cli {

/// `vexa schema`: the schema or the reference of chart documents.
Answer describeDocuments(const SchemaOptions& options);

}  // namespace VEXA::Cli
