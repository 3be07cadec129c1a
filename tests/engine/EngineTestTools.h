#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "vexa/engine/VexaEngine.h"
#include "vexa/support/core/Log.h"
#include "vexa/support/drawing/FontService.h"

/// Documents in, drawing calls out: what the tests of the engine share.
namespace VEXA::Testing {

struct DrawClip {
    std::string points;
    std::string transform;
};

/// One line of a display list. Points and transforms are shown as "x,y x,y" and "a b c d e f", rounded to hundredths.
struct DrawCall {
    std::string op;
    std::map<std::string, double> numbers;  ///< x, y, width, …
    std::string text;
    std::string verbs;   ///< of a path, "MLLZ"
    std::string points;  ///< of a path, or the two of a line
    std::string fill;    ///< "#rrggbb", "linear", "radial"; empty without fill
    std::string stroke;
    std::string transform;  ///< "1 0 0 1 0 0" when the list leaves it out
    std::vector<DrawClip> clips;
    std::string json;

    /// "x,y" of where the call starts.
    std::string origin() const;
    /// "x,y width x height" of a rectangle.
    std::string box() const;
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
std::vector<DrawCall> parseCalls(const std::string& displayList);
/// What a document draws, without the calls for document and page.
std::vector<DrawCall> drawingCalls(const std::string& xml);
/// Those of one operation.
std::vector<DrawCall> drawingCalls(const std::string& xml, const std::string& op);

std::string shown(double value);
std::string shown(PointF point);
std::string shown(const std::vector<PointF>& points);
std::string shown(const std::vector<float>& values);

/// The text of an object's attribute, given or not.
std::string attributeOf(const XmlObject& object, std::string_view name);

/// Keeps what this thread logs.
class CapturedLog final : public LogSink {
public:
    void write(const LogRecord& record) override { records.push_back(record); }
    /// Numbers of the messages, "34001 34012".
    std::string codes() const;

    std::vector<LogRecord> records;

private:
    LogScope scope_{*this};
};

/// Fonts in which layouts can be worked out by hand: at 10 px every character is 6 px wide, a line 10 px high, of which
/// 2 px below the baseline.
class FixedWidthFonts {
public:
    FixedWidthFonts() : previous_(FontManager::setService(fixedWidthFontService(600))) {}
    ~FixedWidthFonts() { FontManager::setService(std::move(previous_)); }
    FixedWidthFonts(const FixedWidthFonts&) = delete;
    FixedWidthFonts& operator=(const FixedWidthFonts&) = delete;

private:
    std::shared_ptr<FontService> previous_;
};

/// "type code source:line at line:column" of what a call throws; empty when it throws nothing.
template <class Call>
std::string failureOf(Call call) {
    const auto told = [](const char* type, const Exception& e) {
        return std::string(type) + ' ' + std::to_string(e.getCode()) + ' ' + e.getCodeLocation().source + ':' +
               std::to_string(e.getCodeLocation().line) + " at " + std::to_string(e.getPlace().line) + ':' +
               std::to_string(e.getPlace().column);
    };
    try {
        call();
    } catch (const UnreacheableCodeException& e) {
        return told("UnreacheableCodeException", e);
    } catch (const NullPointerException& e) {
        return told("NullPointerException", e);
    } catch (const Exception& e) {
        return told("Exception", e);
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
