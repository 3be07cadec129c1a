#include "tests/engine/EngineTestTools.h"

#include <gtest/gtest.h>

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

void readShape(const Json& line, DrawCall& call) {
    for (const auto& [key, value] : line.items()) {
        if (value.is_number()) call.numbers[key] = value;
    }
    if (line.contains("text")) call.text = line.at("text");
    if (line.contains("d")) readPath(line.at("d"), call.verbs, call.points);
    if (call.op == "line") {
        const auto& n = call.numbers;
        call.points = shown(n.at("x1")) + ',' + shown(n.at("y1")) + ' ' + shown(n.at("x2")) + ',' + shown(n.at("y2"));
    }
}

DrawCall parseCall(const std::string& text) {
    const Json line = Json::parse(text);
    DrawCall call;
    call.op = line.at("op");
    call.json = text;
    readShape(line, call);
    if (line.contains("fill")) call.fill = paintOf(line.at("fill"));
    if (line.contains("stroke")) call.stroke = paintOf(line.at("stroke").at("brush"));
    call.transform = line.contains("transform") ? transformOf(line.at("transform")) : "1 0 0 1 0 0";
    for (const Json& clip : line.value("clip", Json::array())) {
        std::string verbs;
        call.clips.push_back({{}, transformOf(clip.at("transform"))});
        readPath(clip.at("d"), verbs, call.clips.back().points);
    }
    return call;
}

}  // namespace

std::string DrawCall::origin() const { return shown(numbers.at("x")) + ',' + shown(numbers.at("y")); }

std::string DrawCall::box() const {
    return origin() + ' ' + shown(numbers.at("width")) + " x " + shown(numbers.at("height"));
}

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

std::vector<DrawCall> parseCalls(const std::string& displayList) {
    std::vector<DrawCall> calls;
    std::istringstream lines(displayList);
    for (std::string line; std::getline(lines, line);) calls.push_back(parseCall(line));
    return calls;
}

std::vector<DrawCall> drawingCalls(const std::string& xml) {
    std::vector<DrawCall> calls = parseCalls(draw(xml));
    EXPECT_GE(calls.size(), 4U);
    calls.erase(calls.begin(), calls.begin() + 2);
    calls.resize(calls.size() - 2);
    return calls;
}

std::vector<DrawCall> drawingCalls(const std::string& xml, const std::string& op) {
    std::vector<DrawCall> calls = drawingCalls(xml);
    std::erase_if(calls, [&](const DrawCall& call) { return call.op != op; });
    return calls;
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

std::string attributeOf(const XmlObject& object, std::string_view name) {
    const XmlAttributeTypeInfo* const attribute = object.getTypeInfo()->findAttribute(name);
    return attribute == nullptr ? "no such attribute" : attribute->getType().print(*attribute->of(object).box());
}

std::string CapturedLog::codes() const {
    std::string text;
    for (const LogRecord& record : records) append(text, std::to_string(record.code));
    return text;
}

}  // namespace VEXA::Testing
