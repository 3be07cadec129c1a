#include "vexa/surfaces/SvgRoot.h"

#include <algorithm>

#include "vexa/support/core/Format.h"
#include "vexa/surfaces/SvgFontFamily.h"
#include "vexa/surfaces/SvgOutput.h"
#include "vexa/surfaces/XmlText.h"

namespace VEXA {

namespace {

void appendSize(const SizeF& size, SvgOutput& out) {
    const float width = std::max(size.width, 0.0F);
    const float height = std::max(size.height, 0.0F);
    out.number(" width=\"", width, Format::appendHundredths);
    out.number(" height=\"", height, Format::appendHundredths);
    out.raw(" viewBox=\"0 0 ");
    Format::appendHundredths(width, out.text());
    out.number(" ", height, Format::appendHundredths);
}

void appendElement(std::string_view name, const String& text, SvgOutput& out) {
    if (text.isEmpty()) return;
    out.raw("<");
    out.raw(name);
    out.raw(">");
    appendXmlText(text.view(), out.text());
    out.raw("</");
    out.raw(name);
    out.raw(">\n");
}

}  // namespace

std::string svgRoot(const DocumentInfo& info, const std::optional<SizeF>& page) {
    SvgOutput out;
    out.raw("<svg xmlns=\"http://www.w3.org/2000/svg\"");
    if (page) appendSize(*page, out);
    out.raw(" role=\"img\"");
    if (!info.language.isEmpty()) {
        out.quoted(" lang=\"", info.language.view());
        out.quoted(" xml:lang=\"", info.language.view());
    }
    out.word(" direction=\"", "ltr");  // a page in Hebrew would hand on its own, and texts would end at their x
    out.word(" font-family=\"", kSvgDefaultFamilies);
    out.raw(" fill-rule=\"evenodd\"");
    out.number(" stroke-miterlimit=\"", kSvgMiterLimit, Format::appendHundredths);
    out.raw(">\n");
    appendElement("title", info.title, out);
    appendElement("desc", info.description, out);
    return std::move(out.text());
}

}  // namespace VEXA
