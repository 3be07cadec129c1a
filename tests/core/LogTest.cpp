#include "vexa/support/core/Log.h"

#include <gtest/gtest.h>

#include <thread>

namespace VEXA {
namespace {

/// Keeps messages as "7:31 error 2001 text;".
class Recorder final : public LogSink {
public:
    void write(const LogRecord& record) override {
        messages += std::to_string(record.place.line) + ":" + std::to_string(record.place.column) +
                    (record.severity == Severity::Error ? " error " : " warning ") + std::to_string(record.code) + " " +
                    record.message.toUtf8() + ";";
    }
    std::string messages;
};

void warnAbout(const char* name, SourcePlace place = {}) { Log::warning(2001, {String(name)}, place); }

TEST(Exception, TellsItsMessageAndIsLoggedWhenRaised) {
    EXPECT_STREQ(Exception(2029, {String("Item")}).what(),
                 "the abstract class Item was instantiated; make an object of one of its descendants");
    EXPECT_STREQ(UnreacheableCodeException("grouping \xC3\xA4{0}").what(), "grouping \xC3\xA4{0}") << "UTF-8, as given";
    EXPECT_STREQ(Exception(12345).what(), "message number 12345") << "an unknown number still says something";
    Recorder recorder;
    const LogScope scope(recorder);
    try {
        raise(UnreacheableCodeException("top element"), "VexaEngine", 34, {7, 31});
        FAIL() << "did not throw";
    } catch (const UnreacheableCodeException& e) {
        EXPECT_STREQ(e.getCodeLocation().source, "VexaEngine");
        EXPECT_EQ(e.getCodeLocation().line, 34);
    }
    EXPECT_EQ(recorder.messages, "7:31 error 2001 top element;");
    EXPECT_THROW(raise(Exception(2002).setPlace({3, 4}), "VexaRoot", 1), Exception);
    EXPECT_NE(recorder.messages.find(";3:4 error 2002"), std::string::npos) << "a place that was set before stays";
}

TEST(Log, WritesWarningsToStandardError) {
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

TEST(Log, TheInnermostSinkOfTheThreadIsTold) {
    const auto first = std::make_shared<Recorder>();
    Log::setSink(first);
    Recorder outer;
    Recorder inner;
    {
        const LogScope outerScope(outer);
        {
            const LogScope innerScope(inner);
            Log::warning(34002, {String("a{0}")}, {2, 3});
        }
        warnAbout("outer");
        std::thread([] { warnAbout("elsewhere"); }).join();
    }
    warnAbout("shared");
    const auto second = std::make_shared<Recorder>();
    EXPECT_EQ(Log::setSink(second), first);
    warnAbout("replaced");
    EXPECT_EQ(Log::setSink(nullptr), second);
    EXPECT_TRUE(inner.messages.starts_with("2:3 warning 34002 \"a{0}\" is not a gradient")) << inner.messages;
    EXPECT_EQ(outer.messages, "0:0 warning 2001 outer;");
    EXPECT_EQ(first->messages, "0:0 warning 2001 elsewhere;0:0 warning 2001 shared;") << "the thread has no scope";
    EXPECT_EQ(second->messages, "0:0 warning 2001 replaced;");
}

TEST(Log, CountsWarningsBeyondTheLimitOfADocument) {
    Recorder recorder;
    const LogScope scope(recorder);
    {
        const WarningLimitScope limit(2);
        const WarningLimitScope inner;  // counts on with the outer one
        warnAbout("1");
        EXPECT_TRUE(Log::takesWarning(2001));
        warnAbout("2");
        EXPECT_FALSE(Log::takesWarning(2001));
        warnAbout("3", {4, 5});
        warnAbout("4");
        EXPECT_EQ(limit.leftOut(), 2U);
    }
    EXPECT_EQ(recorder.messages,
              "0:0 warning 2001 1;0:0 warning 2001 2;4:5 warning 3014 more than 2 warnings, further ones of this "
              "document are left out; correct these first;");
    EXPECT_TRUE(Log::takesWarning(2001)) << "the document is done";
}

TEST(Log, ChangesItsSinkWhileOthersLog) {
    Log::setSink(std::make_shared<Recorder>());
    std::thread other([] {
        for (int i = 0; i < 2000; ++i) Log::setSink(std::make_shared<Recorder>());
    });
    for (int i = 0; i < 2000; ++i) warnAbout("to a sink that may be replaced meanwhile");
    other.join();
    Log::setSink(nullptr);
}

}  // namespace
}  // namespace VEXA
