#include <filesystem>
#include <random>

#include "tests/fonts/FontTestTools.h"
#include "vexa/support/core/Exception.h"

namespace VEXA::Testing {
namespace {

namespace fs = std::filesystem;

constexpr char kArabic[] = "\u0645\u0628\u064A\u0639\u0627\u062A";

FontReport reportFrom(const std::vector<std::string>& directories, const char* text,
                      const char* families = "sans-serif") {
    return describeFonts(*systemFontService({directories}), fontOf(families), text);
}

TEST(CallersFonts, ComeBeforeThoseOfTheMachine) {
    const std::string directory = freshDirectory("before");
    fs::create_directories(directory + "/deeper/still");
    const std::string copy = directory + "/deeper/still/kufi.ttf";
    fs::copy_file(fileOf("Noto Kufi Arabic"), copy);
    const FontReport byCharacter = reportFrom({directory}, kArabic);
    ASSERT_EQ(byCharacter.runs.size(), 1U);
    EXPECT_EQ(byCharacter.runs[0].file, copy);
    EXPECT_EQ(byCharacter.face, "Liberation Sans") << "the default family stays built in";
    EXPECT_EQ(reportFrom({directory}, "", "noto kufi arabic").file, copy);
    EXPECT_EQ(reportFrom({directory}, "", "Noto Kufi Arabic, serif").file, copy);
    EXPECT_EQ(reportFrom({directory}, "", "Noto Serif").face, "Noto Serif") << "others are still found";
    EXPECT_NE(reportOf(kArabic).runs[0].file, copy) << "other services do not know of it";
}

TEST(CallersFonts, OfSeveralDirectoriesTheFirstWins) {
    const std::string first = freshDirectory("first");
    const std::string second = freshDirectory("second");
    fs::copy_file(fileOf("Noto Kufi Arabic"), first + "/a.ttf");
    fs::copy_file(fileOf("Noto Naskh Arabic"), second + "/b.ttf");
    const auto faceFrom = [](const std::vector<std::string>& directories) {
        return reportFrom(directories, kArabic).runs[0].face;
    };
    EXPECT_EQ(faceFrom({first, second}), "Noto Kufi Arabic");
    EXPECT_EQ(faceFrom({second, first}), "Noto Naskh Arabic");
    EXPECT_EQ(faceFrom({first, first + "/"}), "Noto Kufi Arabic") << "the same twice does no harm";
}

TEST(CallersFonts, OutliveTheService) {
    const std::string directory = freshDirectory("outlive");
    fs::copy_file(fileOf("Noto Kufi Arabic"), directory + "/a.ttf");
    const auto program = systemFontService({{directory}})->getFont(fontOf("Noto Kufi Arabic"));
    fs::remove_all(directory);
    EXPECT_GT(program->measureString(kArabic), 0);
    const ShapedText line = dynamic_cast<const ShapingFontProgram&>(*program).shape(kArabic);
    EXPECT_EQ(line.runs[0].face->name(), "Noto Kufi Arabic");
}

/// The code of the error, which has to name the culprit; else 0.
int codeFor(const std::string& directory, const std::string& culprit) {
    try {
        systemFontService({{directory}});
    } catch (const Exception& exception) {
        EXPECT_NE(std::string(exception.what()).find(culprit), std::string::npos) << exception.what();
        return exception.getCode();
    }
    return 0;
}

TEST(CallersFonts, ADirectoryWithoutFontsIsAnError) {
    const std::string directory = freshDirectory("without");
    const auto codeOf = [](const std::string& path) { return codeFor(path, '"' + path + '"'); };
    EXPECT_EQ(codeOf(directory), 34032);
    writeFile(directory + "/notes.ttf", "This is no font.");
    fs::create_directory_symlink(directory, directory + "/circle");
    EXPECT_EQ(codeOf(directory), 34032);
    EXPECT_EQ(codeOf(directory + "/notes.ttf"), 34030);
    EXPECT_EQ(codeOf(directory + "/missing"), 34030);
}

TEST(CallersFonts, AFontThatIsCutOffIsAnError) {
    const std::string directory = freshDirectory("cut");
    for (const char* family : {"Noto Kufi Arabic", "Noto Sans CJK SC"}) {  // the second is a collection
        const std::string whole = bytesOf(fileOf(family));
        for (const std::size_t length : {std::size_t{20}, whole.size() / 2, whole.size() - 100, whole.size()}) {
            writeFile(directory + "/cut.ttf", std::string_view(whole).substr(0, length));
            EXPECT_EQ(codeFor(directory, "cut.ttf"), length < whole.size() ? 34034 : 0) << family << ", " << length;
        }
    }
}

/// Uses whatever is in the directory.
void use(const std::string& directory) {
    try {
        const auto service = systemFontService({{directory}});
        for (const char* family : {"sans-serif", "Noto Naskh Arabic", "Noto Color Emoji"}) {
            describeFonts(*service, fontOf(family),
                          "Ab \u0645\u064E\u0628\u0651\u064A\u0639 \U0001F600\U0001F1EB\U0001F1F7");
        }
    } catch (const Exception& exception) {
        const int code = exception.getCode();
        EXPECT_TRUE(code == 34032 || code == 34034) << exception.what();
    }
    FontManager::takeMissing();
}

TEST(CallersFonts, BrokenFilesAreHarmless) {
    const std::string directory = freshDirectory("broken");
    const std::string whole = bytesOf(fileOf("Noto Naskh Arabic"));
    ASSERT_GT(whole.size(), 10'000U);
    for (std::size_t cut = 0; cut < whole.size(); cut += cut < 600 ? 37 : whole.size() / 40) {
        writeFile(directory + "/font.ttf", std::string_view(whole).substr(0, cut));
        use(directory);
    }
    std::mt19937 random(11);
    for (int i = 0; i < 100; ++i) {
        std::string spoilt = whole;
        for (int k = 0; k < 40; ++k)
            spoilt[random() % (k % 2 == 0 ? 600 : spoilt.size())] = static_cast<char>(random());
        writeFile(directory + "/font.ttf", spoilt);
        use(directory);
    }
}

SmartPtr<FontFace> opened(std::string_view bytes, unsigned index = 0) {
    const auto* const begin = reinterpret_cast<const std::byte*>(bytes.data());
    return FontFace::open(make<FontData>(std::span(begin, bytes.size())), index, "name");
}

// Past fontconfig, which refuses much of it: what a face does with spoilt tables.
TEST(CallersFonts, SpoiltTablesAreHarmless) {
    const std::string whole = bytesOf(fileOf("Noto Naskh Arabic"));
    std::mt19937 random(13);
    for (int i = 0; i < 300; ++i) {
        std::string spoilt = whole.substr(0, i % 3 == 0 ? random() % whole.size() : whole.size());
        for (int k = 0; k < 60; ++k) spoilt[random() % spoilt.size()] = static_cast<char>(random());
        const auto face = opened(spoilt);
        if (face.isEmpty()) continue;
        face->hasGlyph(U'\u0645');
        EXPECT_GT(face->metrics().unitsPerEm, 0);
        EXPECT_GE(std::min(face->metrics().ascent, face->metrics().descent), 0);
    }
}

TEST(CallersFonts, AFaceThatIsNotInTheFileIsNone) {
    const std::string file = fileOf("Noto Kufi Arabic");
    const std::string whole = bytesOf(file);
    EXPECT_FALSE(opened(whole).isEmpty());
    EXPECT_TRUE(opened(whole, 7).isEmpty());
    EXPECT_TRUE(opened("").isEmpty());
    EXPECT_TRUE(opened("no font at all").isEmpty());
    for (const FileAccess access : {FileAccess::Map, FileAccess::Read}) {
        for (const char* none : {"/nonexistent", "/", "/dev/null"})
            EXPECT_TRUE(FontData::open(none, access).isEmpty()) << none;
        EXPECT_EQ(FontData::open(file, access)->bytes().size(), whole.size());
    }
}

}  // namespace
}  // namespace VEXA::Testing
