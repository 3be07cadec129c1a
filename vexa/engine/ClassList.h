#pragma once

namespace VEXA {

/// Registers every class of the chart document; cheap when called again, and safe from several threads. It runs when
/// the library is loaded. Programs that load documents reach it through VexaEngine, so that a static archive keeps all
/// classes.
void registerAll();

}  // namespace VEXA
