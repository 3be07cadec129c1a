#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace VEXA::Testing {

inline std::string contentOf(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

/// A directory of the test's own, gone with the object.
class TestDirectory {
public:
    TestDirectory() {
        std::string name = (std::filesystem::temp_directory_path() / "vexa-test-XXXXXX").string();
        path_ = ::mkdtemp(name.data());
    }
    ~TestDirectory() { std::filesystem::remove_all(path_); }
    TestDirectory(const TestDirectory&) = delete;
    TestDirectory& operator=(const TestDirectory&) = delete;

    std::string path(const std::string& name) const { return (path_ / name).string(); }
    bool has(const std::string& name) const { return std::filesystem::exists(path_ / name); }
    /// How many files and directories are in it, hidden ones included.
    std::size_t entryCount() const {
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(path_), {}));
    }
    /// Writes a file and returns its path.
    std::string write(const std::string& name, const std::string& text) const {
        std::ofstream(path_ / name, std::ios::binary) << text;
        return path(name);
    }
    std::string read(const std::string& name) const { return contentOf(path_ / name); }

private:
    std::filesystem::path path_;
};

}  // namespace VEXA::Testing
