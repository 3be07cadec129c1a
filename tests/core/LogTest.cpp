#include "vexa/support/core/Log.h"

#include <gtest/gtest.h>

#include <thread>

namespace VEXA {
namespace {

class Recorder final : public LogSink {
public:
    void write(const LogRecord& record) override { records.push_back(record); }
    Vector<LogRecord> records;
};

/// Puts the log back as it was, whatever a test does.
class SharedSink {
public:
    explicit SharedSink(std::shared_ptr<LogSink> sink) : previous_(Log::setSink(std::move(sink))) {}
    ~SharedSink() { Log::setSink(previous_); }
    SharedSink(const SharedSink&) = delete;
    SharedSink& operator=(const SharedSink&) = delete;

private:
    std::shared_ptr<LogSink> previous_;
};

void warnAbout(const char* name, SourcePlace place = {}) { Log::warning(2001, {String(name)}, place); }

TEST(Exception, TellsItsMessage) {
    const Exception e(2029, {String("VexaObject")});
    EXPECT_EQ(e.getCode(), 2029);
    EXPECT_STREQ(e.what(), "the abstract class VexaObject was instantiated; make an object of one of its descendants");
    EXPECT_EQ(e.getMessage(), String(e.what()));
    EXPECT_STREQ(UnreacheableCodeException("grouping \xC3\xA4{0}").what(), "grouping \xC3\xA4{0}") << "UTF-8, as given";
    EXPECT_STREQ(Exception(12345).what(), "message number 12345") << "an unknown number still says something";
}

TEST(Exception, IsLoggedWhenRaised) {
    Recorder recorder;
    const LogScope scope(recorder);
    try {
        raise(UnreacheableCodeException("top element"), "VexaEngine", 34, {7, 31});
        FAIL() << "did not throw";
    } catch (const UnreacheableCodeException& e) {
        EXPECT_STREQ(e.getCodeLocation().source, "VexaEngine");
        EXPECT_EQ(e.getCodeLocation().line, 34);
        EXPECT_EQ(e.getPlace(), (SourcePlace{7, 31}));
    }
    ASSERT_EQ(recorder.records.size(), 1U);
    EXPECT_EQ(recorder.records[0].severity, Severity::Error);
    EXPECT_EQ(recorder.records[0].code, 2001);
    EXPECT_EQ(recorder.records[0].message, String("top element"));
    EXPECT_EQ(recorder.records[0].place, (SourcePlace{7, 31}));
}

TEST(Exception, KeepsAPlaceThatWasSetBefore) {
    Recorder recorder;
    const LogScope scope(recorder);
    Exception exception(2002);
    exception.setPlace({3, 4});
    try {
        raise(exception, "VexaRoot", 1);
    } catch (const Exception& e) {
        EXPECT_EQ(e.getPlace(), (SourcePlace{3, 4}));
    }
}

TEST(Log, WritesWarningsToStandardError) {
    const SharedSink standard(nullptr);
    testing::internal::CaptureStderr();
    warnAbout("plain");
    warnAbout("placed", {12, 5});
    warnAbout("\x1B[2J\nerror: forged \xC3\xA4");
    Exception(2002).logError();
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "warning: plain\n"
              "12:5: warning: placed\n"
              "warning: \\u001b[2J\\nerror: forged \xC3\xA4\n")
        << "one line each, nothing for a terminal to obey, and no error: who catches it tells it";
}

TEST(Log, FillsTheTemplate) {
    Recorder recorder;
    const LogScope scope(recorder);
    Log::warning(34002, {String("a{0}")}, {2, 3});
    ASSERT_EQ(recorder.records.size(), 1U);
    EXPECT_EQ(recorder.records[0].code, 34002);
    EXPECT_TRUE(recorder.records[0].message.startsWith("\"a{0}\" is not a gradient"));
    EXPECT_EQ(recorder.records[0].place, (SourcePlace{2, 3}));
}

TEST(Log, SetSinkReturnsTheOneBefore) {
    const auto first = std::make_shared<Recorder>();
    const SharedSink shared(first);
    warnAbout("one");
    const auto second = std::make_shared<Recorder>();
    EXPECT_EQ(Log::setSink(second), first);
    warnAbout("two");
    EXPECT_EQ(first->records.size(), 1U);
    EXPECT_EQ(second->records.size(), 1U);
}

TEST(LogScope, NestsAndEnds) {
    const auto shared = std::make_shared<Recorder>();
    const SharedSink sink(shared);
    Recorder outer;
    Recorder inner;
    {
        const LogScope outerScope(outer);
        {
            const LogScope innerScope(inner);
            warnAbout("inner");
        }
        warnAbout("outer");
    }
    warnAbout("shared");
    ASSERT_EQ(inner.records.size(), 1U);
    ASSERT_EQ(outer.records.size(), 1U);
    ASSERT_EQ(shared->records.size(), 1U);
    EXPECT_EQ(outer.records[0].message, String("outer"));
    EXPECT_EQ(shared->records[0].message, String("shared"));
}

TEST(LogScope, KeepsThreadsApart) {
    constexpr int kMessages = 2000;
    Recorder recorders[2];
    const auto work = [&recorders](int thread) {
        const LogScope scope(recorders[thread]);
        for (int i = 0; i < kMessages; ++i) warnAbout(thread == 0 ? "first" : "second");
    };
    std::thread other(work, 1);
    work(0);
    other.join();
    for (int thread = 0; thread < 2; ++thread) {
        ASSERT_EQ(recorders[thread].records.size(), static_cast<std::size_t>(kMessages));
        for (const LogRecord& record : recorders[thread].records) {
            ASSERT_EQ(record.message, String(thread == 0 ? "first" : "second"));
        }
    }
}

TEST(Log, AThreadWithoutAScopeUsesTheSharedSink) {
    const auto shared = std::make_shared<Recorder>();
    const SharedSink sink(shared);
    Recorder own;
    const LogScope scope(own);
    std::thread([] { warnAbout("elsewhere"); }).join();
    EXPECT_TRUE(own.records.empty());
    EXPECT_EQ(shared->records.size(), 1U);
}

TEST(Log, ChangesItsSinkWhileOthersLog) {
    const SharedSink restore(std::make_shared<Recorder>());
    std::thread other([] {
        for (int i = 0; i < 2000; ++i) Log::setSink(std::make_shared<Recorder>());
    });
    for (int i = 0; i < 2000; ++i) warnAbout("to a sink that may be replaced meanwhile");
    other.join();
}

}  // namespace
}  // namespace VEXA
