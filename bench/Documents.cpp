#include "bench/Documents.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace VEXA::Bench {

std::string example(const std::string& name) {
    const std::string path = std::string(VEXA_EXAMPLES_DIR) + "/" + name + ".xml";
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        std::fprintf(stderr, "%s cannot be read\n", path.c_str());
        std::exit(1);
    }
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string radarChart(int axes, int series) {
    std::string text =
        "<root xmlns=\"http://vexa-charts.org/2008/vx\"><spider x=\"100\" y=\"100\" width=\"400\" height=\"400\">\n";
    for (int a = 0; a < axes; ++a) {
        text += "<spider-axis id=\"a" + std::to_string(a) + "\" min=\"0\" max=\"100\" stroke=\"#ccc\"/>\n";
    }
    for (int s = 0; s < series; ++s) {
        text += "<spider-serie fill=\"#4572a7\" fill-opacity=\"0.3\" stroke=\"#345b89\">\n";
        for (int a = 0; a < axes; ++a) {
            text += "<spider-data-point axis-id=\"a" + std::to_string(a) + "\" value=\"" +
                    std::to_string((a * 37 + s * 11) % 100) + "\"/>\n";
        }
        text += "</spider-serie>\n";
    }
    return text + "</spider></root>\n";
}

std::string pieChart(int slices, bool showsCaptions) {
    std::string text =
        "<root xmlns=\"http://vexa-charts.org/2008/vx\"><pie start-angle=\"270\" show-connectors=\"true\" "
        "show-captions=\"" +
        std::string(showsCaptions ? "true" : "false") + "\">\n";
    for (int s = 0; s < slices; ++s) {
        text +=
            "<slice value=\"" + std::to_string(1 + s * 37 % 100) + "\" caption=\"Part " + std::to_string(s) + "\"/>\n";
    }
    return text + "</pie></root>\n";
}

}  // namespace VEXA::Bench
