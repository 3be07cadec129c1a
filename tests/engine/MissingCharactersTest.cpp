#include "tests/engine/EngineTestTools.h"
#include "vexa/support/core/Limits.h"

namespace VEXA::Testing {
namespace {

/// Has no letter of what it is made with.
class LackingFont final : public FontService {
public:
    explicit LackingFont(std::u32string lacking) : program_(make<Program>(std::move(lacking))) {}
    SmartPtr<FontProgram> getFont(const Font&) override { return program_; }

private:
    struct Program final : FontProgram {
        explicit Program(std::u32string text) : lacking(std::move(text)) {}
        FontMetrics getMetrics() const noexcept override { return {1000, 800, 200}; }
        int measureString(const String& text) const override {
            if (text.view().find_first_of(lacking) != text.view().npos) FontManager::noteMissing(lacking);
            return 100;
        }
        std::u32string lacking;
    };
    SmartPtr<FontProgram> program_;
};

std::vector<LogRecord> warningsOf(const std::string& xml, std::u32string lacking) {
    const WithFonts fonts(std::make_shared<LackingFont>(std::move(lacking)));
    const CapturedLog log;
    draw(xml);
    return log.records;
}

TEST(MissingCharacters, AreToldOnceForAPictureAtTheRoot) {
    const auto many = [](std::size_t count) {
        std::u32string text;
        for (std::size_t i = 0; i < count; ++i) text.push_back(static_cast<char32_t>(0x4E00 + i));
        return text;
    };
    const Case<std::u32string, const char*> cases[] = {
        {U"\u16A0", "no font has \"\u16A0\" (U+16A0), it is measured", "one"},
        {U"\u16A0\U0001F600", "no font has \"\u16A0\" (U+16A0), \"\U0001F600\" (U+1F600), they are", "two"},
        {many(7), "\"\u4E04\" (U+4E04) and 2 more, they are", "five are named"},
        {many(Limits::kQuotedCharacters), "\"\u4E04\" (U+4E04) and many more, they are", "no more are remembered"},
        {U"\u200B\u16A0", "no font has \"\\u200b\" (U+200B), \"\u16A0\"", "what cannot be seen"},
    };
    for (const auto& c : cases) {
        const std::string xml = rootWith("width='400' height='300'", "\n<title value='a \u16A0 \u4E00'/>");
        const auto warnings = warningsOf(xml, c.in);
        ASSERT_EQ(warnings.size(), 1U) << c.why;
        EXPECT_NE(warnings[0].message.toUtf8().find(c.out), std::string::npos) << warnings[0].message.toUtf8();
        EXPECT_EQ(warnings[0].place.line, 1U) << "of the root";
    }
}

TEST(MissingCharacters, OfOnePictureAreNotToldWithAnother) {
    FontManager::noteMissing(U"\u16A0");  // by a picture that ended with an exception
    EXPECT_TRUE(warningsOf(rootWith("width='400' height='300'", "<title value='abc'/>"), U"\u16A0").empty());
}

}  // namespace
}  // namespace VEXA::Testing
