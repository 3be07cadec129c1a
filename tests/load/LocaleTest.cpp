#include <gtest/gtest.h>

#include <clocale>
#include <locale>
#include <string>
#include <vector>

#include "tests/load/MixedDocuments.h"

namespace VEXA::Testing {
namespace {

class LocaleScope {
public:
    explicit LocaleScope(const char* name)
        : before_(std::setlocale(LC_ALL, nullptr)), old_(std::locale::global(std::locale(name))) {}
    ~LocaleScope() {
        std::locale::global(old_);
        std::setlocale(LC_ALL, before_.c_str());
    }
    LocaleScope(const LocaleScope&) = delete;
    LocaleScope& operator=(const LocaleScope&) = delete;

private:
    std::string before_;
    std::locale old_;
};

/// LOCPATH names the folder that CMake made for it.
TEST(Locale, ThatWritesDecimalsWithACommaChangesNothing) {
    const MixedDocuments documents;
    const auto renderAll = [&](const char* locale) {
        const LocaleScope scope(locale);
        std::vector<std::string> pictures;
        for (std::size_t i = 0; i < documents.cycle(); ++i) pictures.push_back(documents.render(i));
        return pictures;
    };
    const auto pictures = renderAll("C");
    {
        const LocaleScope german("de_DE.UTF-8");
        ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    }
    EXPECT_EQ(renderAll("de_DE.UTF-8"), pictures);
}

}  // namespace
}  // namespace VEXA::Testing
