// Writes what fuzzing starts from, made from the registered classes: the words of chart documents as a dictionary for
// libFuzzer, and trees of the documents named.
//
//   fuzz_seeds OUT_DIR DOCUMENT...     OUT_DIR/vexa.dict, OUT_DIR/trees/NAME
//   fuzz_seeds --show TREE             the XML that an input of fuzz_document_tree stands for

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>

#include "fuzz/support/DocumentTree.h"
#include "fuzz/support/ValueSamples.h"
#include "vexa/engine/ChartNamespace.h"
#include "vexa/engine/ClassList.h"
#include "vexa/support/xml/XmlObjectFactory.h"
#include "vexa/support/xml/XmlObjectTypeInfo.h"

using namespace VEXA;
namespace fs = std::filesystem;

namespace {

/// Elements with the start of their tag, attributes with what comes before their value, and values.
std::set<std::string> wordsOfDocuments() {
    std::set<std::string> words{"/>", "</",  "<?xml version=\"1.0\" encoding=\"", "<!--", "-->", "<![CDATA[",
                                "&#", "&lt;"};
    words.insert(" xmlns=\"" + std::string(chartNamespace().uri) + '"');
    for (const XmlObjectTypeInfo* const record : XmlObjectFactory::get()->typeInfos()) {
        if (!record->isAbstract()) words.insert('<' + std::string(record->getKey().name) + ' ');
        for (const XmlAttributeTypeInfo& attribute : record->attributes()) {
            words.insert(' ' + std::string(attribute.getName()) + "=\"");
            for (const std::string_view sample : Fuzz::samplesOf(attribute.getType().name())) words.emplace(sample);
        }
    }
    words.erase("");
    return words;
}

/// One word a line, between quotes; what is not plain as \xAB.
void writeDictionary(const fs::path& file) {
    static constexpr char kDigits[] = "0123456789ABCDEF";
    std::ofstream out(file, std::ios::binary);
    for (const std::string& word : wordsOfDocuments()) {
        out << '"';
        for (const char c : word) {
            const auto byte = static_cast<unsigned char>(c);
            const bool isPlain = byte >= ' ' && byte < 0x7F && c != '"' && c != '\\';
            if (isPlain) out << c;
            if (!isPlain) out << "\\x" << kDigits[byte >> 4U] << kDigits[byte & 15U];
        }
        out << "\"\n";
    }
}

std::string contentOf(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

void writeTree(const fs::path& document, const fs::path& folder) {
    const std::vector<std::uint8_t> tree = Fuzz::stepsOfDocument(contentOf(document));
    std::ofstream(folder / document.stem(), std::ios::binary)
        .write(reinterpret_cast<const char*>(tree.data()), static_cast<std::streamsize>(tree.size()));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::cerr << "usage: fuzz_seeds OUT_DIR DOCUMENT... | --show TREE\n";
        return 2;
    }
    registerAll();
    if (std::string_view(argv[1]) == "--show") {
        const std::string tree = contentOf(argv[2]);
        std::cout << Fuzz::documentOf(std::vector<std::uint8_t>(tree.begin(), tree.end())) << '\n';
        return 0;
    }
    const fs::path trees = fs::path(argv[1]) / "trees";
    fs::create_directories(trees);
    writeDictionary(fs::path(argv[1]) / "vexa.dict");
    for (int i = 2; i < argc; ++i) writeTree(argv[i], trees);
    return 0;
}
