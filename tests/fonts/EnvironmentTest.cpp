#include <cstdlib>
#include <functional>

#include "tests/fonts/FontTestTools.h"
#include "vexa/support/core/DynamicLibrary.h"
#include "vexa/support/core/Exception.h"

// Machines with little on them. What is read of the machine stays for the life of a process, so each case runs in one
// of its own.

namespace VEXA::Testing {
namespace {

/// Ends the process: with 0 if what was got is what was expected.
template <class T>
[[noreturn]] void endWith(const T& got, const T& expected) {
    if (!(got == expected)) std::fprintf(stderr, "got %s\n", testing::PrintToString(got).c_str());
    std::_Exit(got == expected ? 0 : 1);
}

void useConfiguration(const std::string& file) {
    setenv("FONTCONFIG_FILE", file.c_str(), 1);
    setenv("FONTCONFIG_PATH", "/nonexistent", 1);
    unsetenv("HOME");
    unsetenv("XDG_CACHE_HOME");
}

/// What texts come to where there is no font but the built-in one.
void measureAlone() {
    const auto program = systemFontService()->getFont(fontOf("Noto Serif, Times New Roman, serif"));
    const std::vector<int> widths = {program->measureString("A"), program->measureString("\u4E2D"),
                                     program->measureString("e\u0303"), program->measureString("\u05D0")};
    const int box = 1536;
    std::vector<int> expected = {1366, box, 1139, reportOf("\u05D0").width > 0 ? widths[3] : 0};
    if (FontManager::takeMissing() != U"\u4E2D") expected.clear();
    endWith(widths, expected);
}

void useOtherLocale() {
    setenv("LC_ALL", "ja_JP.UTF-8", 1);
    setenv("LANG", "ko_KR.UTF-8", 1);
    setenv("FC_LANG", "ja", 1);
    endWith<std::string>(runsOf(reportOf("\u6F22", "Nobody Has This")), "[\u6F22] Noto Sans CJK SC; ");
}

TEST(Environment, WithLittleOfItTextsAreDrawnAllTheSame) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const std::string directory = freshDirectory("environment");
    writeFile(directory + "/no-fonts.conf", "<fontconfig/>");
    writeFile(directory + "/empty.conf", "");
    struct Case {
        const char* why;
        std::function<void()> use;
        const char* complaint = "^$";
    };
    const Case cases[] = {
        {"without a configuration", [] { useConfiguration("/nonexistent/fonts.conf"), measureAlone(); }},
        {"without fonts", [&] { useConfiguration(directory + "/no-fonts.conf"), measureAlone(); }},
        {"with a broken configuration fontconfig complains",
         [&] { useConfiguration(directory + "/empty.conf"), measureAlone(); }, "no element found"},
        {"the locale makes no difference", useOtherLocale},
    };
    for (const Case& c : cases) EXPECT_EXIT(c.use(), testing::ExitedWithCode(0), c.complaint) << c.why;
}

TEST(Environment, CallersFontsNeedNoConfiguration) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const std::string directory = freshDirectory("callers");
    writeFile(directory + "/kufi.ttf", bytesOf(fileOf("Noto Kufi Arabic")));
    const auto use = [&] {
        useConfiguration("/nonexistent/fonts.conf");
        const auto report = describeFonts(*systemFontService({{directory}}), fontOf("sans-serif"), "a\u0645");
        endWith<std::string>(runsOf(report), "[a] Liberation Sans; [\u0645] Noto Kufi Arabic; ");
    };
    EXPECT_EXIT(use(), testing::ExitedWithCode(0), "^$");
}

TEST(Libraries, OnesThatAreMissingAreNamedWithTheirPackages) {
    const auto messageOf = [](auto load) {
        try {
            load();
        } catch (const Exception& exception) {
            return std::to_string(exception.getCode()) + ": " + exception.what();
        }
        return std::string("loaded");
    };
    const std::string missing = messageOf([] { DynamicLibrary("libnobody-has.so.7", "libnobody7"); });
    EXPECT_TRUE(missing.starts_with("1007: the library \"libnobody-has.so.7\"")) << missing;
    EXPECT_NE(missing.find("package libnobody7"), std::string::npos) << missing;
    const std::string old = messageOf([] { DynamicLibrary("libc.so.6", "libc6").find("nobody_has_this"); });
    EXPECT_TRUE(old.starts_with("1008: the library \"libc.so.6\" has no function \"nobody_has_this\"")) << old;
    EXPECT_TRUE(DynamicLibrary::isInstalled("libc.so.6"));
    EXPECT_FALSE(DynamicLibrary::isInstalled("libnobody-has.so.7"));
}

}  // namespace
}  // namespace VEXA::Testing
