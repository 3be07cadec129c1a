#include "vexa/support/drawing/RenderContext.h"

namespace VEXA {

namespace {

/// Takes the fill away for as long as it lives.
class WithoutFill {
public:
    explicit WithoutFill(SmartPtr<Brush>& fill) noexcept : fill_(fill) { saved_.swap(fill_); }
    ~WithoutFill() { saved_.swap(fill_); }
    WithoutFill(const WithoutFill&) = delete;
    WithoutFill& operator=(const WithoutFill&) = delete;

private:
    SmartPtr<Brush>& fill_;
    SmartPtr<Brush> saved_;
};

}  // namespace

ClipNode::ClipNode(SmartPtr<Path> outline, const Matrix& inForce, SmartPtr<ClipNode> outside) noexcept
    : path(std::move(outline)),
      transform(inForce),
      outer(std::move(outside)),
      depth(outer.isEmpty() ? 1 : outer.get()->depth + 1) {}

ClipNode::~ClipNode() {
    // A long chain that nobody else holds would otherwise be freed by a recursion of its length.
    while (!outer.isEmpty() && outer.get()->referenceCount() == 1) {
        SmartPtr<ClipNode> next = std::move(outer.get()->outer);
        outer = std::move(next);
    }
}

void RenderContext::drawPolygon(const Vector<PointF>& points, bool closed) {
    if (points.empty()) return;
    SmartPtr<Path> path = PathCommand::polygon(points, closed);
    if (closed) {
        drawPath(std::move(path));
        return;
    }
    const WithoutFill onlyStroked(state_.fill);
    drawPath(std::move(path));
}

void RenderContext::setClip(SmartPtr<Path> path) {
    if (path.isEmpty()) return;
    state_.clip = make<ClipNode>(std::move(path), state_.transform, std::move(state_.clip));
}

RenderContextScope::RenderContextScope(SmartPtr<RenderContext> surface) : surface_(std::move(surface)) {
    if (!surface_.isEmpty()) saved_ = surface_->state();
}

RenderContextScope::~RenderContextScope() {
    if (!surface_.isEmpty()) surface_.get()->restoreState(std::move(saved_));
}

}  // namespace VEXA
