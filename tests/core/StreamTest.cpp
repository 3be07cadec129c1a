#include "vexa/support/core/Stream.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <functional>
#include <iterator>
#include <thread>

#include "vexa/support/core/Exception.h"
#include "vexa/support/core/FileDescriptor.h"

namespace VEXA::IO {
namespace {

namespace fs = std::filesystem;

std::string readAll(Stream& stream, std::size_t piece = 7) {
    std::string result;
    std::string buffer(piece, '\0');
    while (const std::size_t count = stream.read(buffer.data(), buffer.size())) result.append(buffer, 0, count);
    return result;
}

std::string contentOf(const fs::path& path) {
    FileStream stream(path, FileStream::Mode::Read);
    return readAll(stream);
}

mode_t permissionsOf(const fs::path& path) {
    struct stat status {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0);
    return status.st_mode & 07777;
}

/// A directory of its own for every test.
class Files : public testing::Test {
protected:
    Files() {
        std::string name = (fs::temp_directory_path() / "vexa-test-XXXXXX").string();
        dir = ::mkdtemp(name.data());
    }
    ~Files() override { fs::remove_all(dir); }

    std::size_t filesInside() const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(dir), fs::directory_iterator()));
    }

    fs::path dir;
};

/// Root may write anywhere, so permissions are tested as somebody else.
class WithoutPrivileges {
public:
    WithoutPrivileges() {
        constexpr uid_t kNobody = 65534;
        EXPECT_TRUE(before_ != 0 || ::seteuid(kNobody) == 0);
    }
    ~WithoutPrivileges() { EXPECT_EQ(::seteuid(before_), 0); }

private:
    uid_t before_ = ::geteuid();
};

/// A disk that is full after so many bytes of a file.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        signalBefore_ = std::signal(SIGXFSZ, SIG_IGN);
    }
    ~FullDisk() {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, signalBefore_);
    }

private:
    rlimit before_{};
    void (*signalBefore_)(int) = nullptr;
};

/// The number of the exception; its message must name the file.
int codeOfFailure(const fs::path& path, const std::function<void()>& action) {
    try {
        action();
    } catch (const Exception& e) {
        const std::string message = e.what();
        EXPECT_NE(message.find("\"" + path.string() + "\""), message.npos) << message;
        return e.getCode();
    }
    return 0;
}

TEST(MemoryStream, ReadsWhatWasWritten) {
    MemoryStream stream("abc");
    stream.write("defghij");
    EXPECT_EQ(readAll(stream, 4), "abcdefghij") << "in pieces that do not fit the whole";
    stream.write("k");
    EXPECT_EQ(readAll(stream), "k") << "goes on after the end";
    EXPECT_EQ(stream.bytes(), "abcdefghijk") << "keeps all";
    EXPECT_EQ(stream.takeBytes(), "abcdefghijk");
    EXPECT_EQ(readAll(stream), "");
}

TEST(MemoryStream, HandsOutTheRest) {
    MemoryStream memory("abcdef");
    const std::string kept = "abcdef";
    ViewStream view(kept);
    for (Stream* stream : {static_cast<Stream*>(&memory), static_cast<Stream*>(&view)}) {
        char first[2];
        EXPECT_EQ(stream->read(first, 2), 2U);
        EXPECT_EQ(stream->takeRest(), "cdef");
        EXPECT_EQ(stream->read(first, 2), 0U) << "the rest counts as read";
        EXPECT_EQ(stream->takeRest(), "");
    }
}

TEST(ViewStream, RefusesToWrite) {
    ViewStream stream("abc");
    EXPECT_THROW(stream.write("x"), Exception);
    EXPECT_EQ(readAll(stream, 2), "abc");
}

TEST_F(Files, WriteAndRead) {
    const fs::path path = dir / "a.txt";
    FileStream(path, FileStream::Mode::Write).write("a longer text");
    {
        FileStream stream(path, FileStream::Mode::Write);
        stream.write("");
        stream.write("ab");
        stream.write(std::string_view("c\0d", 3));
    }
    EXPECT_EQ(contentOf(path), std::string("abc\0d", 5)) << "what was there before is gone";
}

TEST_F(Files, FailuresNameTheFile) {
    const fs::path missing = dir / "missing";
    EXPECT_EQ(codeOfFailure(missing, [&] { FileStream(missing, FileStream::Mode::Read); }), 1001);
    const fs::path below = missing / "x.svg";
    EXPECT_EQ(codeOfFailure(below, [&] { FileStream(below, FileStream::Mode::Write); }), 1002);
    EXPECT_EQ(codeOfFailure(dir, [&] { contentOf(dir); }), 1003) << "a directory opens, but does not read";
    const fs::path full = "/dev/full";
    EXPECT_EQ(codeOfFailure(full, [&] { FileStream(full, FileStream::Mode::Write).write("x"); }), 1004);
    EXPECT_FALSE(fs::exists(missing));
}

TEST_F(Files, ANameIsNotCutAtNul) {
    const std::string name = (dir / "a").string() + std::string("\0b", 2);
    EXPECT_THROW(FileStream(name, FileStream::Mode::Write), Exception);
    EXPECT_THROW(writeWholeFile(name, "x"), Exception);
    EXPECT_EQ(filesInside(), 0U) << "no file \"a\" either";
}

TEST_F(Files, WholeFileReplacesWhatWasThere) {
    const fs::path path = dir / "chart.svg";
    writeWholeFile(path, "first, and longer");
    writeWholeFile(path, "second");
    EXPECT_EQ(contentOf(path), "second");
    EXPECT_EQ(filesInside(), 1U) << "nothing else is left";
    writeWholeFile(path, "");
    EXPECT_EQ(contentOf(path), "") << "an empty file is a whole file";
}

TEST_F(Files, WholeFileTakesNamesOfAnyLength) {
    const fs::path path = dir / std::string(255, 'n');
    writeWholeFile(path, "x");
    EXPECT_EQ(contentOf(path), "x") << "the temporary file's name must not be longer still";
}

TEST_F(Files, WholeFileKeepsPermissions) {
    const mode_t before = ::umask(027);
    const fs::path fresh = dir / "fresh";
    const fs::path known = dir / "known";
    FileStream(known, FileStream::Mode::Write).write("x");
    ASSERT_EQ(::chmod(known.c_str(), 0646), 0);
    writeWholeFile(fresh, "x");
    writeWholeFile(known, "y");
    ::umask(before);
    EXPECT_EQ(permissionsOf(fresh), 0640U) << "0666 less the umask";
    EXPECT_EQ(permissionsOf(known), 0646U) << "those of the file that it replaced, whatever the umask";
}

TEST_F(Files, WholeFileWritesThroughLinks) {
    fs::create_directory(dir / "target");
    FileStream(dir / "target/old.svg", FileStream::Mode::Write).write("old");
    fs::create_symlink("target/old.svg", dir / "old.svg");
    fs::create_symlink("old.svg", dir / "twice.svg");
    fs::create_symlink("target/new.svg", dir / "new.svg");
    writeWholeFile(dir / "twice.svg", "new");
    writeWholeFile(dir / "new.svg", "made");
    EXPECT_TRUE(fs::is_symlink(dir / "twice.svg") && fs::is_symlink(dir / "old.svg")) << "links stay";
    EXPECT_EQ(contentOf(dir / "target/old.svg"), "new");
    EXPECT_EQ(contentOf(dir / "target/new.svg"), "made") << "a link to nothing yet";

    fs::create_symlink("loop", dir / "loop");
    EXPECT_EQ(codeOfFailure(dir / "loop", [&] { writeWholeFile(dir / "loop", "x"); }), 1002);
    EXPECT_TRUE(fs::is_symlink(dir / "loop"));
}

TEST_F(Files, WholeFileWritesStraightIntoPipesAndDevices) {
    {
        const WithoutPrivileges somebody;  // so that a fault cannot put a file in the device's place
        EXPECT_NO_THROW(writeWholeFile("/dev/null", "x"));
    }
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
    {
        const FullDisk disk(1000);
        EXPECT_EQ(codeOfFailure(path, [&] { writeWholeFile(path, std::string(5000, 'x')); }), 1004);
    }
    EXPECT_EQ(contentOf(path), "old") << "the file before is untouched";
    EXPECT_EQ(codeOfFailure(dir, [&] { writeWholeFile(dir, "x"); }), 1002) << "a directory";
    const fs::path below = path / "x.svg";
    EXPECT_EQ(codeOfFailure(below, [&] { writeWholeFile(below, "x"); }), 1002) << "below a file";
    EXPECT_EQ(filesInside(), 1U);

    const fs::path before = fs::current_path();
    fs::current_path(dir);
    EXPECT_EQ(codeOfFailure("", [] { writeWholeFile("", "x"); }), 1005) << "written, but nowhere to put it";
    fs::current_path(before);
    EXPECT_EQ(filesInside(), 1U) << "no temporary file stays behind";
}

TEST_F(Files, WholeFileRespectsProtection) {
    const fs::path open = dir / "open";
    const fs::path closed = dir / "closed";
    fs::create_directory(open);
    fs::create_directory(closed);
    writeWholeFile(open / "protected.svg", "mine");
    fs::permissions(dir, fs::perms(0755));
    fs::permissions(closed, fs::perms(0555));
    fs::permissions(open, fs::perms(0777));
    fs::permissions(open / "protected.svg", fs::perms(0444));
    {
        const WithoutPrivileges somebody;
        const fs::path chart = closed / "chart.svg";
        EXPECT_EQ(codeOfFailure(chart, [&] { writeWholeFile(chart, "x"); }), 1002) << "a directory without the right";
        const fs::path file = open / "protected.svg";
        EXPECT_EQ(codeOfFailure(file, [&] { writeWholeFile(file, "x"); }), 1002)
            << "a read-only file is not replaced, though the directory would allow it";
    }
    EXPECT_EQ(contentOf(open / "protected.svg"), "mine");
}

TEST_F(Files, ManyThreadsWriteBesideEachOther) {
    const auto write = [this](const char* name) {
        for (int i = 0; i < 200; ++i) writeWholeFile(dir / name, name);
    };
    std::thread other(write, "b");
    write("a");
    other.join();
    EXPECT_EQ(contentOf(dir / "a") + contentOf(dir / "b"), "ab");
    EXPECT_EQ(filesInside(), 2U);
}

TEST(FileDescriptor, WaitsForASlowReader) {
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    FileDescriptor source(ends[0]);
    FileDescriptor sink(ends[1]);
    for (const int end : ends) ASSERT_EQ(::fcntl(end, F_SETFL, O_NONBLOCK), 0);
    const std::string sent(1'000'000, 'x');
    std::size_t received = 0;
    std::thread reader([&] {
        std::string buffer(10'000, '\0');
        while (const auto count = readSome(source.get(), buffer.data(), buffer.size())) {
            ASSERT_GT(count, 0);
            received += static_cast<std::size_t>(count);
        }
    });
    EXPECT_TRUE(writeAll(sink.get(), sent.data(), sent.size())) << "a full pipe is no failure";
    sink.close();
    reader.join();
    EXPECT_EQ(received, sent.size());
}

}  // namespace
}  // namespace VEXA::IO
