#include "vexa/support/values/ParseUtil.h"

#include <algorithm>

namespace VEXA {

std::u32string_view ParseUtil::extractWord(const String& text, std::size_t& position) noexcept {
    const std::u32string_view all = text.view();
    const auto* const begin = std::find_if_not(all.data() + std::min(position, all.size()), all.data() + all.size(),
                                               [](char32_t c) { return String::isSpace(c); });
    const auto* const end = std::find_if(begin, all.data() + all.size(), [](char32_t c) { return String::isSpace(c); });
    position = static_cast<std::size_t>(end - all.data());
    return {begin, static_cast<std::size_t>(end - begin)};
}

}  // namespace VEXA
