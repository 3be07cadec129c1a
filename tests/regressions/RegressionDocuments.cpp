#include "tests/regressions/RegressionDocuments.h"

#include <filesystem>

#include "tests/TestDirectory.h"

namespace VEXA::Testing {

namespace {
namespace fs = std::filesystem;

void addFolder(const fs::path& folder, std::vector<RegressionDocument>& out) {
    const bool isTree = folder.filename() == "fuzz_document_tree";
    for (const fs::directory_entry& file : fs::directory_iterator(folder)) {
        std::string text = contentOf(file.path());
        if (isTree) text = Fuzz::documentOf(std::vector<std::uint8_t>(text.begin(), text.end()));
        out.push_back({file.path().string(), std::move(text)});
    }
}

}  // namespace

std::vector<RegressionDocument> regressionDocuments() {
    const fs::path top = VEXA_SOURCE_DIR;
    std::vector<fs::path> folders = {top / "examples", top / "tests/regressions/documents"};
    for (const fs::directory_entry& folder : fs::directory_iterator(top / "fuzz/corpus"))
        if (folder.path().filename().string().starts_with("fuzz_document_")) folders.push_back(folder.path());
    std::vector<RegressionDocument> documents;
    for (const fs::path& folder : folders) {
        const std::size_t before = documents.size();
        addFolder(folder, documents);
        EXPECT_GT(documents.size(), before) << "no documents in " << folder;
    }
    return documents;
}

}  // namespace VEXA::Testing
