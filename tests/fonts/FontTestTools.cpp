#include "tests/fonts/FontTestTools.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace VEXA::Testing {

Font fontOf(const char* families, FontStyleRequest style) {
    Font font;
    font.setFontFamily(families);
    font.setFontSize(100);
    font.setFontWeight(style.bold ? DrawingFontWeight::Bold : DrawingFontWeight::Normal);
    font.setFontStyle(style.italic ? DrawingFontStyle::Italic : DrawingFontStyle::Normal);
    return font;
}

FontReport reportOf(const String& text, const char* families, FontStyleRequest style) {
    return describeFonts(*systemFontService(), fontOf(families, style), text);
}

ShapedText shaped(const String& text, const char* families, FontStyleRequest style) {
    const auto program = systemFontService()->getFont(fontOf(families, style));
    return dynamic_cast<const ShapingFontProgram&>(*program).shape(text);
}

std::string runsOf(const FontReport& report) {
    std::string runs;
    for (const ReportedRun& run : report.runs) runs += "[" + run.text.toUtf8() + "] " + run.face + "; ";
    return runs;
}

std::string faceOf(const char* families, FontStyleRequest style) { return reportOf("", families, style).face; }

std::string fileOf(const char* family) {
    const FontReport report = reportOf("", family);
    EXPECT_EQ(report.face, family) << "not installed, see scripts/install-packages";
    return report.file;
}

std::string bytesOf(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

std::string freshDirectory(const std::string& name) {
    const auto directory = std::filesystem::path(VEXA_TEST_OUTPUT) / name;
    std::filesystem::remove_all(directory);
    std::filesystem::create_directories(directory);
    return directory.string();
}

void writeFile(const std::string& file, std::string_view bytes) {
    std::ofstream(file, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

}  // namespace VEXA::Testing
