// `vexa render --watch`, as someone has it run beside an editor.

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <thread>

#include "tests/program/ProgramTools.h"

namespace VEXA::Cli {
namespace {

std::string page(const std::string& title) { return kOpen + "<title value='" + title + "' height='20'/></root>"; }

/// The program at work in a directory; what it tells goes to the file "told".
class Watching {
public:
    Watching(const TestDirectory& directory, const std::string& arguments) : directory_(directory), child_(fork()) {
        if (child_ != 0) return;
        const std::string command =
            "cd " + directory.path("") + " && exec " VEXA_PROGRAM " render --watch " + arguments + " 2>told";
        execl("/bin/sh", "sh", "-c", command.c_str(), nullptr);
        _exit(127);
    }
    ~Watching() {
        if (child_ > 0) end(SIGKILL);
    }
    Watching(const Watching&) = delete;
    Watching& operator=(const Watching&) = delete;

    /// Whether a file holds a text, waited for as long as a busy machine may need.
    bool comesTo(const std::string& file, const std::string& text) const {
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
        while (std::chrono::steady_clock::now() < deadline) {
            if (directory_.has(file) && directory_.read(file).find(text) != std::string::npos) return true;
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
        return false;
    }

    /// How the program ended, as waitpid tells it.
    int end(int signal) {
        int status = -1;
        kill(child_, signal);
        waitpid(child_, &status, 0);
        child_ = -1;
        return status;
    }

private:
    const TestDirectory& directory_;
    pid_t child_;
};

TEST(Watch, DrawsAgainWhatChangesAndOutlivesMistakes) {
    const TestDirectory directory;
    directory.write("a.xml", page("first"));
    directory.write("b.xml", page("other"));
    Watching vexa(directory, "a.xml b.xml --out-dir out");
    ASSERT_TRUE(vexa.comesTo("told", "2 documents: drawn in "));
    directory.write("a.xml", page("written over"));
    ASSERT_TRUE(vexa.comesTo("out/a.svg", "written over"));
    directory.write("a.xml", "<root");
    ASSERT_TRUE(vexa.comesTo("told", "a.xml: not drawn; waiting for a change"));
    EXPECT_NE(directory.read("out/a.svg").find("written over"), std::string::npos) << "the last good picture stays";
    shell(directory, "rm a.xml");
    directory.write("new.xml", page("moved here"));
    shell(directory, "mv new.xml a.xml");
    ASSERT_TRUE(vexa.comesTo("out/a.svg", "moved here")) << "as editors write";
    shell(directory, "rm -r out && touch out");
    directory.write("b.xml", page("no folder"));
    ASSERT_TRUE(vexa.comesTo("told", "b.xml: not drawn"));
    shell(directory, "rm out");
    directory.write("b.xml", page("folder is back"));
    ASSERT_TRUE(vexa.comesTo("out/b.svg", "folder is back"));
    const int status = vexa.end(SIGINT);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
}

TEST(Watch, RefusesStreams) {
    const TestDirectory directory;
    for (const char* const arguments : {"- -o a.svg", "a.xml -o -"}) {
        const Outcome told = run(directory, std::string("render --watch ") + arguments);
        EXPECT_EQ(told.status, 2);
        EXPECT_TRUE(startsWith(told.errors, "vexa render: --watch is for files: standard ")) << told.errors;
    }
}

}  // namespace
}  // namespace VEXA::Cli
