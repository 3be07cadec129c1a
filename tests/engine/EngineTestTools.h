#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "vexa/engine/VexaEngine.h"
#include "vexa/support/core/Log.h"
#include "vexa/support/drawing/FontService.h"
#include "vexa/surfaces/NullSurface.h"

/// Documents in, drawing calls out: what the tests of the engine share.
namespace VEXA::Testing {

/// A row of a table: what goes in, what comes out, and what the row is for.
template <class In, class Out>
struct Case {
    In in;
    Out out;
    const char* why;
};

/// One line of a display list. Points and transforms are shown as "x,y x,y" and "a b c d e f", rounded to hundredths.
struct DrawCall {
    std::string op;
    std::string origin;  ///< "x,y" of where the call starts
    std::string box;     ///< "x,y width x height" of a rectangle
    std::string text;
    std::string verbs;   ///< of a path, "MLLZ"
    std::string points;  ///< of a path, or the two of a line
    std::string fill;    ///< "#rrggbb", "linear", "radial"; empty without fill
    std::string stroke;
    std::string transform;           ///< "1 0 0 1 0 0" when the list leaves it out
    std::vector<std::string> clips;  ///< "points | transform"
    std::string json;

    /// Whether the line holds that piece of JSON.
    bool says(std::string_view piece) const { return json.find(piece) != std::string::npos; }
};

/// A document with that content in its root.
std::string rootWith(const std::string& attributes, const std::string& content);
/// A document without theme, 400 px by 300 px, whose one spider fills it: R = 150, centre at (200, 150).
std::string spiderWith(const std::string& attributes, const std::string& content);

SmartPtr<IO::Stream> streamOf(const std::string& xml);
XmlObjPtr<VexaRoot> load(const std::string& xml);
/// The bytes of the display list of a document's page.
std::string draw(const std::string& xml);
/// What a document draws, without the calls for document and page; those of one operation if one is named.
std::vector<DrawCall> drawingCalls(const std::string& xml, const std::string& op = "");

/// What each of two renders of the same tree draws, as RecordingSurface notes it.
std::pair<std::string, std::string> renderedTwice(VexaRoot& root);

std::string shown(double value);
std::string shown(PointF point);
std::string shown(const std::vector<PointF>& points);
std::string shown(const std::vector<float>& values);

/// "#rrggbb/opacity"; "none" for a colour that is not there; "linear 0:#…/1 …" with the opacity of the whole behind the
/// kind, "linear/0.5", if it is not 1; "empty" without a brush.
std::string describe(const SmartPtr<Brush>& brush);
/// The thickness and the brush.
std::string describe(const SmartPtr<Stroke>& stroke);
/// "start end box|user pad|reflect|repeat a b c d e f" of a gradient; of a radial one centre and radii.
std::string geometryOf(const SmartPtr<Brush>& gradient);

/// The text of an object's attribute, given or not.
std::string attributeOf(const XmlObject& object, std::string_view name);
/// Gives attributes as a document would: "stroke=red;stroke-width=3pt".
void give(XmlObject& object, std::string_view attributes);

/// Notes each call as text, "line 0 0 10 5; ", and what it was told of the document when that began.
class RecordingSurface : public RenderContext {
public:
    void beginDocument() override;
    void endDocument() override { note("endDocument", {}); }
    void beginPage(const SizeF& size) override { note("beginPage", {size.width, size.height}); }
    void endPage() override { note("endPage", {}); }
    void drawLine(float x1, float y1, float x2, float y2) override { note("line", {x1, y1, x2, y2}); }
    void drawRectangle(float x, float y, float width, float height, float rx, float ry) override;
    void drawEllipse(float cx, float cy, float rx, float ry) override { note("ellipse", {cx, cy, rx, ry}); }
    void drawPath(SmartPtr<Path> path) override { note("path", {static_cast<float>(path->points().size())}); }
    void drawText(const String& text, int length, float x, float y, float spacing, int flags) override;

    std::string calls;
    DocumentInfo info;

private:
    void note(const std::string& call, const std::vector<float>& numbers);
};

/// Keeps what this thread logs.
class CapturedLog final : public LogSink {
public:
    void write(const LogRecord& record) override { records.push_back(record); }
    /// Numbers of the messages, "34001 34012".
    std::string codes() const;
    /// With their places, "34001@1:5 34012@2:1".
    std::string told() const;

    std::vector<LogRecord> records;

private:
    LogScope scope_{*this};
};

/// Installs a font service for a test; by default one in which layouts can be worked out by hand: at 10 px every
/// character is 6 px wide, a line 10 px high, of which 2 px below the baseline.
class WithFonts {
public:
    explicit WithFonts(std::shared_ptr<FontService> fonts = fixedWidthFontService(600))
        : previous_(FontManager::setService(std::move(fonts))) {}
    ~WithFonts() { FontManager::setService(std::move(previous_)); }
    WithFonts(const WithFonts&) = delete;
    WithFonts& operator=(const WithFonts&) = delete;

private:
    std::shared_ptr<FontService> previous_;
};

/// Measures as the fixed-width fonts, but bold characters twice as wide, W ten times, and AV apart; counts the
/// characters that it is asked for.
class CountingFonts final : public FontService {
public:
    SmartPtr<FontProgram> getFont(const Font& font) override;
    std::size_t measured = 0;
};

inline const std::string kNullPointer = "NullPointerException 2002 SmartPtr:118 at 0:0";

/// "type code source:line at line:column" of an exception.
std::string describe(const Exception& exception);

/// An exception that a call throws, in those words; empty when it throws nothing.
template <class Call>
std::string failureOf(Call call) {
    try {
        call();
    } catch (const Exception& e) {
        return describe(e);
    }
    return {};
}

/// The message of the exception that a call throws.
template <class Call>
std::string messageOf(Call call) {
    try {
        call();
    } catch (const Exception& e) {
        return e.what();
    }
    return {};
}

}  // namespace VEXA::Testing
