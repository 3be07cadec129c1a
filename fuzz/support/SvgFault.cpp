#include <expat.h>

#include <algorithm>
#include <array>
#include <memory>
#include <set>

#include "fuzz/support/PictureFaults.h"

namespace VEXA::Fuzz {

namespace {

struct Found {
    std::set<std::string, std::less<>> ids;
    std::set<std::string, std::less<>> references;
    std::string fault;
};

/// Elements that run code or bring other files.
constexpr std::array<std::string_view, 8> kForbidden = {"script", "foreignObject", "image",   "a",
                                                        "use",    "style",         "animate", "set"};
/// Attributes that carry words, or names of fonts, of the document, and ids, which are made of any letters.
constexpr std::array<std::string_view, 4> kWords = {"font-family", "xml:lang", "id", "href"};

void checkAttribute(Found& found, std::string_view name, std::string_view value) {
    const auto refuse = [&](std::string_view why) {
        found.fault = std::string(why) + " " + std::string(name) + "=\"" + std::string(value.substr(0, 200)) + '"';
    };
    const bool isWord = std::ranges::find(kWords, name) != kWords.end();
    if (name == "id" && !found.ids.emplace(value).second) refuse("an id twice:");
    if (name.starts_with("on")) refuse("a script:");
    if (name.ends_with("href")) {
        if (!value.starts_with('#')) return refuse("an external reference:");
        found.references.emplace(value.substr(1));
    }
    if (const std::size_t url = value.find("url("); url != value.npos && !isWord) {
        if (!value.substr(url).starts_with("url(#") || !value.ends_with(')')) return refuse("an external reference:");
        found.references.emplace(value.substr(url + 5, value.size() - url - 6));
    } else if (!isWord && (value.find("nan") != value.npos || value.find("inf") != value.npos)) {
        refuse("no number:");
    }
}

void XMLCALL onStart(void* user, const XML_Char* name, const XML_Char** attributes) {
    Found& found = *static_cast<Found*>(user);
    if (std::ranges::find(kForbidden, std::string_view(name)) != kForbidden.end()) {
        found.fault = "an element " + std::string(name);
    }
    for (; *attributes != nullptr; attributes += 2) checkAttribute(found, attributes[0], attributes[1]);
}

}  // namespace

std::string svgFault(std::string_view svg) {
    Found found;
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(XML_ParserCreate("UTF-8"),
                                                                              &XML_ParserFree);
    XML_SetUserData(parser.get(), &found);
    XML_SetElementHandler(parser.get(), &onStart, nullptr);
    if (XML_Parse(parser.get(), svg.data(), static_cast<int>(svg.size()), XML_TRUE) != XML_STATUS_OK) {
        return XML_ErrorString(XML_GetErrorCode(parser.get()));
    }
    if (found.fault.empty() && !std::ranges::includes(found.ids, found.references)) return "a reference to nothing";
    return found.fault;
}

}  // namespace VEXA::Fuzz
