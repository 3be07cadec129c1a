#include "vexa/surfaces/DisplayListWriter.h"

#include "vexa/support/core/Format.h"
#include "vexa/surfaces/JsonText.h"
#include "vexa/surfaces/Keywords.h"
#include "vexa/surfaces/PathData.h"

namespace VEXA {

void DisplayListWriter::begin(std::string_view operation) {
    openObject();
    word("op", operation);
}

void DisplayListWriter::end() { text_ += "}\n"; }

void DisplayListWriter::number(std::string_view name, float value) {
    key(name);
    Format::appendShortest(value, text_);
}

void DisplayListWriter::string(std::string_view name, std::u32string_view value) {
    key(name);
    appendJsonString(value, text_);
}

void DisplayListWriter::path(std::string_view name, const Path& path) {
    key(name);
    text_.push_back('"');
    appendPathData(path, Format::appendShortest, text_);
    text_.push_back('"');
}

void DisplayListWriter::placement(const DrawingState& state) {
    if (!state.transform.isIdentity()) matrix("transform", state.transform);
    if (!state.clip) return;
    if (state.clip == lastClip_) {
        text_ += lastClipText_;
        return;
    }
    const std::size_t start = text_.size();
    clip(state.clip.get());
    lastClipText_.assign(text_, start);
    lastClip_ = state.clip;
}

void DisplayListWriter::font(const Font& font) {
    key("font");
    openObject();
    string("family", font.getFontFamily().view());
    number("size", font.getFontSize());
    word("weight", font.getFontWeight() == DrawingFontWeight::Bold ? "bold" : "normal");
    word("style", font.getFontStyle() == DrawingFontStyle::Italic ? "italic" : "normal");
    text_.push_back('}');
}

void DisplayListWriter::fill(const DrawingState& state) {
    const Brush* paint = state.fill.get();
    if (paint != nullptr && paint->paints()) brush("fill", *paint);
}

void DisplayListWriter::stroke(const DrawingState& state) {
    const Stroke* stroke = state.stroke.get();
    if (stroke == nullptr || !stroke->paints()) return;
    key("stroke");
    openObject();
    brush("brush", *stroke->getBrush());
    number("width", stroke->getThickness());
    word("cap", keywordOf(stroke->getStartLineCap()));
    word("join", keywordOf(stroke->getLineJoin()));
    number("miterlimit", stroke->getMiterLimit());
    if (stroke->isDashed()) dash(*stroke);
    text_.push_back('}');
}

void DisplayListWriter::key(std::string_view name) {
    separate();
    text_.push_back('"');
    text_ += name;
    text_ += "\":";
}

void DisplayListWriter::word(std::string_view name, std::string_view value) {
    key(name);
    text_.push_back('"');
    text_ += value;
    text_.push_back('"');
}

void DisplayListWriter::color(const Color& color) {
    key("color");
    text_.push_back('"');
    Color::appendHex(color.rgb(), text_);
    text_.push_back('"');
}

void DisplayListWriter::matrix(std::string_view name, const Matrix& matrix) {
    key(name);
    openList();
    for (const float element : matrix.getElements()) {
        separate();
        Format::appendShortest(element, text_);
    }
    text_.push_back(']');
}

void DisplayListWriter::clip(const ClipNode* innermost) {
    Vector<const ClipNode*> chain;
    for (const ClipNode* node = innermost; node != nullptr; node = node->outer.get()) chain.push_back(node);
    key("clip");
    openList();
    for (auto node = chain.rbegin(); node != chain.rend(); ++node) {
        separate();
        openObject();
        path("d", *(*node)->path);
        matrix("transform", (*node)->transform);
        text_.push_back('}');
    }
    text_.push_back(']');
}

void DisplayListWriter::brush(std::string_view name, const Brush& brush) {
    key(name);
    openObject();
    if (brush.getBrushType() == BrushType::Gradient) {
        gradient(static_cast<const GradientBrush&>(brush));
    } else {
        word("type", "solid");
        color(*static_cast<const SolidColorBrush&>(brush).getColor());
        number("opacity", brush.getOpacity());
    }
    text_.push_back('}');
}

void DisplayListWriter::gradient(const GradientBrush& gradient) {
    if (gradient.isRadial()) {
        const auto& radial = static_cast<const RadialGradientBrush&>(gradient);
        word("type", "radial");
        number("cx", radial.centre().x);
        number("cy", radial.centre().y);
        number("rx", radial.radii().width);
        number("ry", radial.radii().height);
    } else {
        const auto& linear = static_cast<const LinearGradientBrush&>(gradient);
        word("type", "linear");
        number("x1", linear.start().x);
        number("y1", linear.start().y);
        number("x2", linear.end().x);
        number("y2", linear.end().y);
    }
    word("units", keywordOf(gradient.getUnits()));
    word("spread", keywordOf(gradient.getSpreadMethod()));
    matrix("matrix", gradient.getMatrix());
    number("opacity", gradient.getOpacity());
    key("stops");
    openList();
    for (const StopPoint& each : gradient.getStops()) stop(each);
    text_.push_back(']');
}

void DisplayListWriter::stop(const StopPoint& stop) {
    separate();
    openObject();
    number("offset", stop.offset);
    if (stop.color) color(*stop.color);
    number("opacity", stop.opacity);
    text_.push_back('}');
}

void DisplayListWriter::dash(const Stroke& stroke) {
    key("dash");
    openObject();
    key("array");
    openList();
    for (const float length : stroke.getDashArray()) {
        separate();
        Format::appendShortest(length, text_);
    }
    text_.push_back(']');
    number("offset", stroke.getDashOffset());
    text_.push_back('}');
}

void DisplayListWriter::openObject() { text_.push_back('{'); }

void DisplayListWriter::openList() { text_.push_back('['); }

void DisplayListWriter::separate() {
    if (text_.back() != '{' && text_.back() != '[') text_.push_back(',');
}

}  // namespace VEXA
