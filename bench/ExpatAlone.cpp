#include "bench/ExpatAlone.h"

#include <benchmark/benchmark.h>
#include <expat.h>

namespace VEXA::Bench {

void expatAlone(const std::string& document) {
    XML_Parser const parser = XML_ParserCreateNS(nullptr, '\n');
    XML_SetElementHandler(
        parser, [](void*, const XML_Char*, const XML_Char**) {}, [](void*, const XML_Char*) {});
    XML_SetCharacterDataHandler(parser, [](void*, const XML_Char*, int) {});
    benchmark::DoNotOptimize(XML_Parse(parser, document.data(), static_cast<int>(document.size()), 1));
    XML_ParserFree(parser);
}

}  // namespace VEXA::Bench
