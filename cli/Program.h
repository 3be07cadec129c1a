#pragma once

#include "cli/DocumentPainter.h"

namespace VEXA::Cli {

/// The whole program with the arguments of main; returns its exit status.
int runProgram(int count, const char* const* arguments, const Painter& paint);

}  // namespace VEXA::Cli
