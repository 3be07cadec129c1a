#pragma once

#include <vector>

namespace VEXA {

/// The growable array of all interfaces.
template <class T>
using Vector = std::vector<T>;

}  // namespace VEXA
