#include "cli/Program.h"
#include "vexa/engine/VexaEngine.h"

int main(int count, char** arguments) { return VEXA::Cli::runProgram(count, arguments, &VEXA::VexaEngine::renderPage); }
