#pragma once

#include <string>

namespace VEXA::Cli {

/// `vexa schema` as it was typed.
struct SchemaOptions {
    std::string format = "xsd";
};

}  // namespace VEXA::Cli
