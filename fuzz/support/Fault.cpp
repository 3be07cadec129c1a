#include "fuzz/support/Fault.h"

#include <cstdio>
#include <cstdlib>

namespace VEXA::Fuzz {

void expectNoFault(std::string_view fault) {
    if (fault.empty()) return;
    std::fprintf(stderr, "FAULT: %.*s\n", static_cast<int>(fault.size()), fault.data());
    std::abort();
}

}  // namespace VEXA::Fuzz
