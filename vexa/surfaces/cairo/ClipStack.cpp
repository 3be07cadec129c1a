#include "vexa/surfaces/cairo/ClipStack.h"

#include "vexa/surfaces/cairo/DevicePath.h"

namespace VEXA {

namespace {

/// A clip without an inside, or one that has no place, lets nothing through.
void clip(cairo_t* context, const ClipNode& node, double scale) {
    const cairo_matrix_t matrix = deviceMatrix(node.transform, scale);
    if (isDrawable(matrix)) {
        makeCurrentPath(context, *node.path, matrix);
    } else {
        cairo().new_path(context);
    }
    cairo().clip(context);
}

}  // namespace

void ClipStack::enter(cairo_t* context, ClipNode* innermost, double scale) {
    if (innermost == (clips_.empty() ? nullptr : clips_.back().get())) return;
    Vector<ClipNode*> entered;
    ClipNode* node = innermost;
    while (node != nullptr && !(node->depth <= clips_.size() && clips_[node->depth - 1].get() == node)) {
        entered.push_back(node);
        node = node->outer.get();
    }
    leave(context, node == nullptr ? 0 : node->depth);
    for (auto next = entered.rbegin(); next != entered.rend(); ++next) {
        cairo().save(context);
        clips_.emplace_back(*next);
        clip(context, **next, scale);
    }
}

void ClipStack::leave(cairo_t* context, std::size_t depth) {
    for (; clips_.size() > depth; clips_.pop_back()) cairo().restore(context);
}

}  // namespace VEXA
