#include "vexa/support/core/Stream.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <functional>
#include <thread>

#include "tests/TestDirectory.h"
#include "vexa/support/core/Exception.h"
#include "vexa/support/core/FileDescriptor.h"

namespace VEXA::IO {
namespace {

namespace fs = std::filesystem;
using Testing::contentOf;

std::string readAll(Stream& stream) {
    std::string result;
    char piece[4];
    while (const std::size_t count = stream.read(piece, sizeof piece)) result.append(piece, count);
    return result;
}

/// A directory of its own for every test.
class Files : public testing::Test {
protected:
    const Testing::TestDirectory own;
    const fs::path dir = own.path("");
};

/// The number of the exception; its message must name the file.
int codeOfFailure(const fs::path& path, const std::function<void()>& action) {
    try {
        action();
    } catch (const Exception& e) {
        EXPECT_NE(std::string(e.what()).find("\"" + path.string() + "\""), std::string::npos) << e.what();
        return e.getCode();
    }
    return 0;
}

int codeOfWriting(const fs::path& path, std::string_view bytes = "x") {
    return codeOfFailure(path, [&] { writeWholeFile(path, bytes); });
}

TEST(MemoryStream, ReadsWhatWasWritten) {
    MemoryStream stream("abc");
    stream.write("defghij");
    EXPECT_EQ(readAll(stream), "abcdefghij") << "in pieces that do not fit the whole";
    stream.write("k");
    EXPECT_EQ(readAll(stream), "k") << "goes on after the end";
    EXPECT_EQ(stream.takeBytes(), "abcdefghijk") << "keeps all";
    EXPECT_EQ(readAll(stream), "");
    stream.give("given ");
    stream.give("again");
    EXPECT_EQ(readAll(stream), "given again") << "behind what is there";
}

TEST(MemoryStream, HandsOutTheRest) {
    MemoryStream memory("abcdef");
    ViewStream view("abcdef");
    EXPECT_THROW(view.write("x"), Exception) << "the memory is the caller's";
    for (Stream* stream : {static_cast<Stream*>(&memory), static_cast<Stream*>(&view)}) {
        char first[2];
        EXPECT_EQ(stream->read(first, 2), 2U);
        EXPECT_EQ(stream->takeRest(), "cdef");
        EXPECT_EQ(readAll(*stream), "") << "the rest counts as read";
    }
}

TEST_F(Files, FailuresNameTheFile) {
    const fs::path missing = dir / "missing";
    EXPECT_EQ(codeOfFailure(missing, [&] { FileStream(missing, FileStream::Mode::Read); }), 1001);
    const fs::path below = missing / "x.svg";
    EXPECT_EQ(codeOfFailure(below, [&] { FileStream(below, FileStream::Mode::Write); }), 1002);
    const auto readDirectory = [&] {
        FileStream stream(dir, FileStream::Mode::Read);
        readAll(stream);
    };
    EXPECT_EQ(codeOfFailure(dir, readDirectory), 1003) << "a directory opens, but does not read";
    EXPECT_EQ(codeOfFailure("/dev/full", [] { FileStream("/dev/full", FileStream::Mode::Write).write("x"); }), 1004);
    const std::string cut = (dir / "a").string() + std::string("\0b", 2);
    EXPECT_THROW(FileStream(cut, FileStream::Mode::Write), Exception);
    EXPECT_THROW(writeWholeFile(cut, "x"), Exception);
    EXPECT_EQ(own.entryCount(), 0U) << "no file \"a\" either: a name does not end at NUL";
}

TEST_F(Files, WritingReplacesWhatWasThere) {
    const fs::path path = dir / std::string(255, 'n');  // a temporary file's name must not be longer still
    FileStream(path, FileStream::Mode::Write).write("first, and longest");
    FileStream(path, FileStream::Mode::Write).write(std::string_view("the\0second", 10));
    EXPECT_EQ(contentOf(path), std::string("the\0second", 10)) << "a stream cuts what was there before";
    writeWholeFile(path, "third");
    FileStream stream(path, FileStream::Mode::Read);
    EXPECT_EQ(readAll(stream), "third");
    EXPECT_EQ(own.entryCount(), 1U) << "nothing else is left";
    writeWholeFile(path, "");
    EXPECT_EQ(contentOf(path), "") << "an empty file is a whole file";
}

TEST_F(Files, WholeFileKeepsPermissions) {
    const mode_t before = ::umask(027);
    FileStream(dir / "known", FileStream::Mode::Write).write("x");
    fs::permissions(dir / "known", fs::perms(0646));
    writeWholeFile(dir / "fresh", "x");
    writeWholeFile(dir / "known", "y");
    ::umask(before);
    EXPECT_EQ(fs::status(dir / "fresh").permissions(), fs::perms(0640)) << "0666 less the umask";
    EXPECT_EQ(fs::status(dir / "known").permissions(), fs::perms(0646)) << "as before, whatever the umask";
}

TEST_F(Files, WholeFileWritesThroughLinks) {
    fs::create_directory(dir / "target");
    FileStream(dir / "target/old.svg", FileStream::Mode::Write).write("old");
    fs::create_symlink("target/old.svg", dir / "old.svg");
    fs::create_symlink("old.svg", dir / "twice.svg");
    fs::create_symlink("target/new.svg", dir / "new.svg");
    fs::create_symlink("loop", dir / "loop");
    writeWholeFile(dir / "twice.svg", "new");
    writeWholeFile(dir / "new.svg", "made");
    EXPECT_EQ(codeOfWriting(dir / "loop"), 1002);
    for (const char* link : {"old.svg", "twice.svg", "loop"}) EXPECT_TRUE(fs::is_symlink(dir / link)) << link;
    EXPECT_EQ(contentOf(dir / "target/old.svg"), "new");
    EXPECT_EQ(contentOf(dir / "target/new.svg"), "made") << "a link to nothing yet";
}

TEST_F(Files, WholeFileWritesStraightIntoPipes) {
    const fs::path pipe = dir / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    std::string received;
    std::thread reader([&] { received = contentOf(pipe); });
    writeWholeFile(pipe, "through the pipe");
    reader.join();
    EXPECT_EQ(received, "through the pipe");
    EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST_F(Files, WholeFileLeavesNothingWhenItFails) {
    const fs::path path = dir / "chart.svg";
    writeWholeFile(path, "old");
    rlimit unlimited{};
    ::getrlimit(RLIMIT_FSIZE, &unlimited);
    const rlimit full{1000, unlimited.rlim_max};
    const auto signalBefore = std::signal(SIGXFSZ, SIG_IGN);
    ::setrlimit(RLIMIT_FSIZE, &full);
    EXPECT_EQ(codeOfWriting(path, std::string(5000, 'x')), 1004) << "the disk is full";
    ::setrlimit(RLIMIT_FSIZE, &unlimited);
    std::signal(SIGXFSZ, signalBefore);
    EXPECT_EQ(contentOf(path), "old") << "the file before is untouched";
    EXPECT_EQ(codeOfWriting(dir), 1002) << "a directory";
    EXPECT_EQ(codeOfWriting(path / "x.svg"), 1002) << "below a file";
    const fs::path before = fs::current_path();
    fs::current_path(dir);
    EXPECT_EQ(codeOfWriting(""), 1005) << "written, but nowhere to put it";
    fs::current_path(before);
    EXPECT_EQ(own.entryCount(), 1U) << "no temporary file stays behind";
}

TEST_F(Files, WholeFileRespectsProtection) {
    for (const char* name : {"open", "closed"}) fs::create_directory(dir / name);
    const fs::path file = dir / "open/protected.svg";
    writeWholeFile(file, "mine");
    fs::permissions(file, fs::perms(0444));
    fs::permissions(dir / "open", fs::perms(0777));
    fs::permissions(dir / "closed", fs::perms(0555));
    fs::permissions(dir, fs::perms(0755));
    const uid_t before = ::geteuid();  // root may write anywhere
    ASSERT_TRUE(before != 0 || ::seteuid(65534) == 0);
    EXPECT_EQ(codeOfWriting(dir / "closed/chart.svg"), 1002) << "a directory without the right";
    EXPECT_EQ(codeOfWriting(file), 1002) << "not replaced, though the directory would allow it";
    EXPECT_EQ(::seteuid(before), 0);
    EXPECT_EQ(contentOf(file), "mine");
}

TEST(FileDescriptor, WaitsForASlowReader) {
    int ends[2];
    ASSERT_EQ(::pipe2(ends, O_NONBLOCK), 0);
    const FileDescriptor source(ends[0]);
    FileDescriptor sink(ends[1]);
    const std::string sent(1'000'000, 'x');
    std::string received;
    std::thread reader([&] {
        char buffer[10'000];
        std::ptrdiff_t count = 0;
        while ((count = readSome(source.get(), buffer, sizeof buffer)) > 0) received.append(buffer, buffer + count);
        EXPECT_EQ(count, 0) << "an empty pipe is neither a failure nor the end";
    });
    EXPECT_TRUE(writeAll(sink.get(), sent.data(), sent.size())) << "a full pipe is no failure";
    sink.close();
    reader.join();
    EXPECT_EQ(received, sent);
}

}  // namespace
}  // namespace VEXA::IO
