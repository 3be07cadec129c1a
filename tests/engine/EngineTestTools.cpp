#include "tests/engine/EngineTestTools.h"

#include <nlohmann/json.hpp>
#include <sstream>

#include "vexa/support/core/Format.h"
#include "vexa/surfaces/DisplayListSurface.h"

namespace VEXA::Testing {

namespace {

using Json = nlohmann::json;

std::string paintOf(const Json& brush) {
    const std::string type = brush.at("type");
    return type == "solid" ? brush.at("color").get<std::string>() : type;
}

/// Puts a text behind others, with a blank between them.
void append(std::string& list, const std::string& text) {
    if (!list.empty()) list += ' ';
    list += text;
}

std::string transformOf(const Json& matrix) {
    std::string text;
    for (const double element : matrix) append(text, shown(element));
    return text;
}

/// Splits "M0 0L10 5Z" into its letters and its points.
void readPath(const std::string& data, std::string& verbs, std::string& points) {
    std::vector<PointF> read;
    std::string numbers = data;
    for (char& c : numbers) {
        if (std::isalpha(static_cast<unsigned char>(c)) == 0 || c == 'e') continue;
        verbs.push_back(c);
        c = ' ';
    }
    std::istringstream in(numbers);
    for (PointF point; in >> point.x >> point.y;) read.push_back(point);
    points = shown(read);
}

DrawCall parseCall(const std::string& text) {
    const Json line = Json::parse(text);
    DrawCall call;
    call.op = line.at("op");
    call.json = text;
    const auto number = [&](const char* key) { return line.contains(key) ? shown(line.at(key).get<double>()) : ""; };
    call.origin = number("x") + ',' + number("y");
    call.box = call.origin + ' ' + number("width") + " x " + number("height");
    call.text = line.value("text", "");
    if (line.contains("d")) readPath(line.at("d"), call.verbs, call.points);
    if (call.op == "line") call.points = number("x1") + ',' + number("y1") + ' ' + number("x2") + ',' + number("y2");
    if (line.contains("fill")) call.fill = paintOf(line.at("fill"));
    if (line.contains("stroke")) call.stroke = paintOf(line.at("stroke").at("brush"));
    call.transform = line.contains("transform") ? transformOf(line.at("transform")) : "1 0 0 1 0 0";
    for (const Json& clip : line.value("clip", Json::array())) {
        std::string verbs;
        std::string points;
        readPath(clip.at("d"), verbs, points);
        call.clips.push_back(points + " | " + transformOf(clip.at("transform")));
    }
    return call;
}

std::string describe(const SmartPtr<Color>& color) {
    if (color.isEmpty()) return "none";
    char text[8];
    std::snprintf(text, sizeof(text), "#%06x", color->rgb());
    return text;
}

std::string describe(SourcePlace place) { return std::to_string(place.line) + ':' + std::to_string(place.column); }

}  // namespace

std::string rootWith(const std::string& attributes, const std::string& content) {
    return R"(<root xmlns="http://vexa-charts.org/2008/vx" )" + attributes + ">" + content + "</root>";
}

std::string spiderWith(const std::string& attributes, const std::string& content) {
    return rootWith(R"(width="400" height="300" theme="none")", "<spider " + attributes + ">" + content + "</spider>");
}

SmartPtr<IO::Stream> streamOf(const std::string& xml) { return make<IO::MemoryStream>(xml); }

XmlObjPtr<VexaRoot> load(const std::string& xml) { return VexaEngine::loadStream(streamOf(xml)); }

std::string draw(const std::string& xml) {
    const auto out = make<IO::MemoryStream>();
    VexaEngine::renderPage(streamOf(xml), make<DisplayListSurface>(out));
    return out->bytes();
}

std::vector<DrawCall> drawingCalls(const std::string& xml, const std::string& op) {
    std::vector<DrawCall> calls;
    std::istringstream lines(draw(xml));
    for (std::string line; std::getline(lines, line);) calls.push_back(parseCall(line));
    std::erase_if(calls, [&](const DrawCall& call) {
        const bool isBracket = call.op.starts_with("begin") || call.op.starts_with("end");
        return op.empty() ? isBracket : call.op != op;
    });
    return calls;
}

std::pair<std::string, std::string> renderedTwice(VexaRoot& root) {
    const auto render = [&root] {
        const auto surface = make<RecordingSurface>();
        root.render(surface, 800, 600);
        return surface->calls;
    };
    std::string first = render();
    return {std::move(first), render()};
}

std::string shown(double value) {
    std::string text;
    Format::appendHundredths(static_cast<float>(value), text);
    return text;
}

std::string shown(PointF point) { return shown(point.x) + ',' + shown(point.y); }

std::string shown(const std::vector<PointF>& points) {
    std::string text;
    for (const PointF point : points) append(text, shown(point));
    return text;
}

std::string shown(const std::vector<float>& values) {
    std::string text;
    for (const float value : values) append(text, shown(value));
    return text;
}

std::string describe(const SmartPtr<Brush>& brush) {
    if (brush.isEmpty()) return "empty";
    if (brush->getBrushType() == BrushType::SolidColor)
        return describe(static_cast<SolidColorBrush&>(*brush).getColor()) + "/" + shown(brush->getOpacity());
    auto& gradient = static_cast<GradientBrush&>(*brush);
    std::string text = gradient.isRadial() ? "radial" : "linear";
    if (brush->getOpacity() != 1) text += "/" + shown(brush->getOpacity());
    for (const StopPoint& point : gradient.getStops())
        text += " " + shown(point.offset) + ":" + describe(point.color) + "/" + shown(point.opacity);
    return text;
}

std::string describe(const SmartPtr<Stroke>& stroke) {
    return stroke.isEmpty() ? "empty" : shown(stroke->getThickness()) + " " + describe(stroke->getBrush());
}

std::string geometryOf(const SmartPtr<Brush>& brush) {
    const auto& gradient = static_cast<const GradientBrush&>(*brush);
    std::string text;
    if (gradient.isRadial()) {
        const auto& radial = static_cast<const RadialGradientBrush&>(gradient);
        text = shown(radial.centre()) + ' ' + shown(radial.radii().width) + ',' + shown(radial.radii().height);
    } else {
        const auto& linear = static_cast<const LinearGradientBrush&>(gradient);
        text = shown(linear.start()) + ' ' + shown(linear.end());
    }
    const GradientSpreadMethod spread = gradient.getSpreadMethod();
    append(text, gradient.getUnits() == GradientUnits::UserSpaceOnUse ? "user" : "box");
    append(text, spread == GradientSpreadMethod::Pad       ? "pad"
                 : spread == GradientSpreadMethod::Reflect ? "reflect"
                                                           : "repeat");
    for (const float element : gradient.getMatrix().getElements()) append(text, shown(element));
    return text;
}

std::string attributeOf(const XmlObject& object, std::string_view name) {
    const XmlAttributeTypeInfo* const attribute = object.getTypeInfo()->findAttribute(name);
    return attribute == nullptr ? "no such attribute" : attribute->getType().print(*attribute->of(object).box());
}

void give(XmlObject& object, std::string_view attributes) {
    while (!attributes.empty()) {
        const std::size_t equals = attributes.find('=');
        const std::size_t end = std::min(attributes.find(';'), attributes.size());
        const XmlAttributeTypeInfo* const attribute = object.getTypeInfo()->findAttribute(attributes.substr(0, equals));
        attribute->setGiven(object, attribute->getType().parse(attributes.substr(equals + 1, end - equals - 1)));
        attributes.remove_prefix(std::min(end + 1, attributes.size()));
    }
}

void RecordingSurface::beginDocument() {
    info = documentInfo();
    note("beginDocument", {});
}

void RecordingSurface::drawRectangle(float x, float y, float width, float height, float rx, float ry) {
    note("rectangle", {x, y, width, height, rx, ry});
}

void RecordingSurface::drawText(const String& text, int length, float x, float y, float spacing, int flags) {
    EXPECT_TRUE(state().stroke.isEmpty()) << "texts are not outlined";
    note("text " + text.toUtf8(), {static_cast<float>(length), x, y, spacing, static_cast<float>(flags)});
}

void RecordingSurface::note(const std::string& call, const std::vector<float>& numbers) {
    calls += call;
    for (const float value : numbers) calls += ' ' + shown(value);
    calls += "; ";
}

SmartPtr<FontProgram> CountingFonts::getFont(const Font& font) {
    struct Program final : FontProgram {
        Program(int width, std::size_t& count) : advance(width), measured(count) {}
        FontMetrics getMetrics() const noexcept override { return {1000, 800, 200}; }
        int measureString(const String& text) const override {
            int width = text == String("AV") ? advance : 0;  // kerned apart
            for (const char32_t c : text.view()) width += c == U'W' ? 10 * advance : advance;
            measured += text.length();
            return width;
        }
        int advance;
        std::size_t& measured;
    };
    return make<Program>(font.getFontWeight() == DrawingFontWeight::Bold ? 1200 : 600, measured);
}

std::string CapturedLog::codes() const {
    std::string text;
    for (const LogRecord& record : records) append(text, std::to_string(record.code));
    return text;
}

std::string CapturedLog::told() const {
    std::string text;
    for (const LogRecord& record : records) append(text, std::to_string(record.code) + '@' + describe(record.place));
    return text;
}

std::string describe(const Exception& e) {
    const char* const type = dynamic_cast<const UnreacheableCodeException*>(&e) != nullptr
                                 ? "UnreacheableCodeException "
                             : dynamic_cast<const NullPointerException*>(&e) != nullptr ? "NullPointerException "
                                                                                        : "Exception ";
    return type + std::to_string(e.getCode()) + ' ' + e.getCodeLocation().source + ':' +
           std::to_string(e.getCodeLocation().line) + " at " + describe(e.getPlace());
}

}  // namespace VEXA::Testing
