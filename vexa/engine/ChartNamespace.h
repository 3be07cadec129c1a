#pragma once

#include "vexa/support/xml/XmlKey.h"

namespace VEXA {

/// The namespace of every element of a chart document.
inline const XmlNamespace& chartNamespace() noexcept {
    static constexpr XmlNamespace space{"http://vexa-charts.org/2008/vx", "vx"};
    return space;
}

}  // namespace VEXA
