#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/wait.h>

#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "vexa/check/DocumentCheck.h"

namespace {

using namespace VEXA;

namespace fs = std::filesystem;

const fs::path kSource = VEXA_SOURCE_DIR;

std::string contentOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<fs::path> pages() {
    std::vector<fs::path> found;
    for (const fs::path& directory : {kSource, kSource / "docs"}) {
        for (const auto& entry : fs::directory_iterator(directory)) {
            if (entry.path().extension() == ".md") found.push_back(entry.path());
        }
    }
    return found;
}

struct Found {
    std::string text;
    std::size_t end;  ///< the position behind it
};

/// Every text of one line that stands between two marks.
std::vector<Found> textsBetween(const std::string& page, const std::string& open, const std::string& close) {
    std::vector<Found> found;
    for (std::size_t at = page.find(open); at != std::string::npos; at = page.find(open, at + 1)) {
        const std::size_t start = at + open.size();
        const std::size_t end = page.find(close, start);
        const std::string text = page.substr(start, end - start);
        if (end != std::string::npos && text.find('\n') == std::string::npos) found.push_back({text, end});
    }
    return found;
}

/// The lines of the fenced block that follows `from`.
std::string blockAfter(const std::string& page, std::size_t from) {
    const std::size_t fence = page.find("```", from);
    if (fence == std::string::npos) return {};
    const std::size_t start = page.find('\n', fence) + 1;
    return page.substr(start, page.find("```", start) - start);
}

/// Runs a command of the shell; what it writes to standard output, or how it failed.
std::string outputOf(const std::string& command) {
    std::FILE* pipe = ::popen(command.c_str(), "r");
    std::string text;
    char buffer[4096];
    for (std::size_t n = std::fread(buffer, 1, sizeof buffer, pipe); n > 0;
         n = std::fread(buffer, 1, sizeof buffer, pipe)) {
        text.append(buffer, n);
    }
    const int status = ::pclose(pipe);
    return status == 0 ? text : text + "exit status " + std::to_string(WEXITSTATUS(status));
}

TEST(Docs, PagesShowTheFilesTheyName) {
    std::set<std::string> shown;
    for (const fs::path& path : pages()) {
        const std::string page = contentOf(path);
        for (const auto& [name, end] : textsBetween(page, "<!-- file: ", " -->")) {
            shown.insert(name);
            EXPECT_EQ(blockAfter(page, end), contentOf(kSource / name))
                << path << " differs from " << name << "; scripts/update-docs renews the pages";
        }
    }
    for (const auto& entry : fs::recursive_directory_iterator(kSource / "docs/examples")) {
        if (!entry.is_regular_file()) continue;
        const std::string name = fs::relative(entry.path(), kSource).string();
        EXPECT_TRUE(shown.contains(name)) << name << " is shown by no page";
    }
}

TEST(Docs, PagesShowWhatDiffersAndWhatCommandsPrint) {
    std::size_t count = 0;
    const auto expectBlock = [&](const std::string& page, std::size_t at, const std::string& text) {
        EXPECT_EQ(blockAfter(page, at), text) << "scripts/update-docs renews the pages";
        ++count;
    };
    for (const fs::path& path : pages()) {
        const std::string page = contentOf(path);
        for (const auto& [names, end] : textsBetween(page, "<!-- changes: ", " -->")) {
            expectBlock(page, end,
                        outputOf("cd " VEXA_SOURCE_DIR " && diff -U1 " + names + " | sed -e 1,3d -e 's/^@@.*/@@/'"));
        }
        if (*VEXA_PROGRAM_DIRECTORY == '\0') continue;  // a build without the program
        for (const auto& [command, end] : textsBetween(page, "<!-- run: ", " -->")) {
            const std::string script = "cd " VEXA_SOURCE_DIR "/docs/guide && PATH=" VEXA_PROGRAM_DIRECTORY
                                       ":$PATH && (" +
                                       command + ") 2>&1 || true";
            expectBlock(page, end, "$ " + command + "\n" + outputOf(script));
        }
    }
    EXPECT_GT(count, 1U);
}

TEST(Docs, PagesShowThePicturesOfTheirCharts) {
    const fs::path picture = fs::path(VEXA_TEST_OUTPUT) / "shown.svg";
    std::set<fs::path> shown;
    for (const fs::path& path : pages()) {
        const std::string page = contentOf(path);
        for (const auto& [name, end] : textsBetween(page, "<!-- picture: ", " -->")) {
            const std::size_t start = page.find("](", end) + 2;
            const fs::path file = path.parent_path() / page.substr(start, page.find(')', start) - start);
            const fs::path chart = kSource / name;
            shown.insert(file.filename());
            EXPECT_EQ(outputOf(VEXA_DRAW_CHART " " + chart.string() + " " + picture.string() + " 2>&1"), "");
            EXPECT_TRUE(contentOf(picture) == contentOf(file)) << "look at " << file << " after scripts/update-docs";
            const CheckReport report =
                DocumentCheck::run(make<IO::FileStream>(chart.string(), IO::FileStream::Mode::Read));
            EXPECT_EQ(report.count(Severity::Error) + report.count(Severity::Warning), 0U) << name;
        }
    }
    for (const auto& entry : fs::directory_iterator(kSource / "docs/guide")) {
        const fs::path name = entry.path().filename();
        EXPECT_TRUE(name.extension() != ".svg" || shown.contains(name)) << name << " is shown by no page";
    }
}

TEST(Docs, TheProgramsOfTheGuideWriteCharts) {
    const std::string guide = VEXA_SOURCE_DIR "/docs/guide/";
    const std::string filled =
        "python3 " + guide + "fill_chart.py " + guide + "table-template.xml <" + guide + "table.csv";
    EXPECT_EQ(outputOf(filled), contentOf(guide + "table.xml")) << filled << " >docs/guide/table.xml renews it";

    const fs::path directory = fs::path(VEXA_TEST_OUTPUT) / "guide";
    fs::create_directories(directory);
    const std::string chart = (directory / "lines.xml").string();
    outputOf("printf 'Fish & chips\\t412\\n\"Soup\" <hot>\\t298\\n' | sh " + guide + "lines_to_chart.sh >" + chart);
    const std::string told = outputOf(VEXA_DRAW_MANY " " + directory.string() + " none.xml " + chart + " 2>&1");
    EXPECT_EQ(told.rfind("none.xml:0: ", 0), 0U) << told;
    EXPECT_NE(told.find("exit status 1"), std::string::npos) << told;
    const std::string svg = contentOf(directory / "lines.svg");
    for (const char* word : {">Fish &amp; chips<", "Soup", "&lt;hot", ">298<"}) {
        EXPECT_NE(svg.find(word), std::string::npos) << word << " in " << svg;
    }
}

/// The anchors of a page's headings: in lower case, hyphens for spaces, other marks left out.
std::set<std::string> anchorsOf(const std::string& page) {
    std::set<std::string> anchors;
    for (const Found& heading : textsBetween(page, "\n#", "\n")) {
        std::string anchor;
        for (const char c : heading.text.substr(heading.text.find(' ') + 1)) {
            if (std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '-')
                anchor += static_cast<char>(std::tolower(c));
            if (c == ' ') anchor += '-';
        }
        EXPECT_TRUE(anchors.insert(anchor).second) << "two headings have the anchor " << anchor;
    }
    return anchors;
}

TEST(Docs, LinksLeadSomewhere) {
    std::size_t count = 0;
    for (const fs::path& path : pages()) {
        const std::string page = contentOf(path);
        for (const Found& link : textsBetween(page, "](", ")")) {
            if (link.text.find(':') != std::string::npos) continue;  // an address outside
            const std::size_t hash = link.text.find('#');
            const fs::path target = hash == 0 ? path : path.parent_path() / link.text.substr(0, hash);
            EXPECT_TRUE(fs::exists(target)) << path << " links to " << link.text;
            ++count;
            if (hash == std::string::npos) continue;
            static std::map<fs::path, std::set<std::string>> anchors;
            if (!anchors.contains(target)) anchors[target] = anchorsOf(contentOf(target));
            EXPECT_TRUE(anchors[target].contains(link.text.substr(hash + 1))) << path << " links to " << link.text;
        }
    }
    EXPECT_GT(count, 5U);
}

/// Its documents and pictures are looked at like those of every page.
TEST(Docs, TheGalleryShowsEveryExample) {
    const std::string page = contentOf(kSource / "docs/gallery.md");
    const std::string written = outputOf(VEXA_SOURCE_DIR "/scripts/write-gallery");
    std::string kept;
    for (std::size_t at = 0; at < page.size();) {
        const std::size_t block = std::min(page.find("```xml\n", at), page.size());
        const std::size_t start = std::min(block + 7, page.size());
        kept += page.substr(at, start - at);
        at = start == page.size() ? start : page.find("```", start);
    }
    EXPECT_EQ(kept, written) << "scripts/update-docs renews the gallery";
}

TEST(Docs, TheChartAndTheProgramOfTheReadmeMakeAPicture) {
    const fs::path picture = fs::path(VEXA_TEST_OUTPUT) / "espresso.svg";
    fs::remove(picture);
    EXPECT_EQ(outputOf(VEXA_DRAW_CHART " " VEXA_SOURCE_DIR "/docs/examples/espresso.xml " + picture.string() + " 2>&1"),
              "");
    const std::string svg = contentOf(picture);
    for (const char* word : {"<svg", "House blend", "Sweetness", "#b5652b", "</svg>"}) {
        EXPECT_NE(svg.find(word), std::string::npos) << word;
    }
}

TEST(Docs, TheProgramOfTheReadmeTellsTheLineOfAnError) {
    const fs::path chart = fs::path(VEXA_TEST_OUTPUT) / "broken.xml";
    std::ofstream(chart) << "<root xmlns='http://vexa-charts.org/2008/vx'\n>\n<title</root>";
    const std::string told = outputOf(VEXA_DRAW_CHART " " + chart.string() + " /dev/null 2>&1");
    EXPECT_EQ(told.rfind("line 3: ", 0), 0U) << told;
    EXPECT_NE(told.find("exit status 1"), std::string::npos) << told;
}

TEST(Docs, TheProgramOfTheDiagnosticsTellsAllProblems) {
    const fs::path chart = fs::path(VEXA_TEST_OUTPUT) / "faulty.xml";
    std::ofstream(chart) << "<root xmlns='http://vexa-charts.org/2008/vx'>\n<titel/>\n<title x='a' value='T'/></root>";
    const std::string told = outputOf(VEXA_CHECK_CHART " " + chart.string());
    EXPECT_EQ(told.rfind("line 2 should change: unknown element", 0), 0U) << told;
    EXPECT_NE(told.find("\nline 3 must change: title: attribute \"x\""), std::string::npos) << told;
    EXPECT_NE(told.find("exit status 1"), std::string::npos) << told;
}

// A page of 96 x 48 px is an inch wide and half an inch high: 1016 and 508 units of a plotter. The text starts at the
// left edge of its box, a quarter of an inch from the left.
TEST(Docs, TheCustomSurfaceDrawsOutlinesWithThePen) {
    const fs::path chart = fs::path(VEXA_TEST_OUTPUT) / "framed.xml";
    std::ofstream(chart) << "<root xmlns='http://vexa-charts.org/2008/vx' width='96px' height='48px' theme='none' "
                            "stroke='black'><title x='24px' width='72px' height='48px' value='Ink'/></root>";
    const std::string commands = outputOf(VEXA_PLOTTER_SURFACE " " + chart.string());
    EXPECT_EQ(commands.rfind("IN;SP1;\nPU0,508;PD1016,508;PD1016,0;PD0,0;PD0,508;\n", 0), 0U) << commands;
    EXPECT_NE(commands.find("\nPU254,"), std::string::npos) << commands;
    EXPECT_NE(commands.find(";LBInk\x03;\nPU;PG;\n"), std::string::npos) << commands;
}

}  // namespace
