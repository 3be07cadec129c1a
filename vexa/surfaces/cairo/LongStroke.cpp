#include "vexa/surfaces/cairo/LongStroke.h"

#include <algorithm>
#include <cmath>

namespace VEXA {

namespace {

constexpr std::size_t kLong = 256;
constexpr std::size_t kPiece = 64;  // about the fastest, for smooth lines and for noise

/// Strokes the polylines of a path one after the other.
class PieceStroker {
public:
    PieceStroker(cairo_t* context, const StrokeStyle& style, const cairo_matrix_t& matrix)
        : context_(context), style_(style), matrix_(matrix), inverse_(matrix) {
        cairo().matrix_invert(&inverse_);
    }

    void stroke(const Path& path) {
        const PointF* next = path.points().data();
        for (const PathVerb verb : path.verbs()) {
            if (verb != PathVerb::LineTo) strokePolyline(verb == PathVerb::Close);
            if (verb != PathVerb::Close) points_.push_back(toDevice(matrix_, *next++));
        }
        strokePolyline(false);
    }

private:
    /// From point to point. Where the line goes on, the piece begins or ends beside the point, on the way to the next
    /// one: its corner then lies within one piece, and two pieces meet where the line is straight.
    struct Piece {
        std::size_t first;
        std::size_t end;
        bool beginsBeside;
        bool endsBeside;
    };

    /// Strokes the points so far; then the polyline starts anew, behind a closed one at its first point.
    void strokePolyline(bool isClosed) {
        if (points_.empty()) return;
        const DevicePoint start = points_.front();
        if (points_.size() <= kPiece) {
            strokeWhole(isClosed);
        } else if (isClosed) {
            points_.insert(points_.end(), {start, points_[1]});  // round the corner at the start
            strokePieces(points_.size() - 2, true);
        } else {
            strokeEnds();
            strokePieces(points_.size() - 1, false);
        }
        points_.clear();
        if (isClosed) points_.push_back(start);
    }

    void strokePieces(std::size_t last, bool isClosed) {
        if (!style_.isDashed()) cairo().set_line_cap(context_, CAIRO_LINE_CAP_BUTT);
        double walked = 0;
        for (std::size_t first = 0; first < last; first += kPiece) {
            const std::size_t end = std::min(first + kPiece, last);
            strokePiece({first, end, isClosed || first > 0, isClosed || end < last}, walked);
            for (std::size_t i = first; i < end; ++i) walked += userDistance(inverse_, points_[i], points_[i + 1]);
        }
        style_.applyCap(context_);
        style_.applyDashes(context_, 0);
    }

    void strokePiece(const Piece& piece, double walked) {
        const DevicePoint start = piece.beginsBeside ? beside(piece.first) : points_[piece.first];
        begin(start);
        for (std::size_t i = piece.first + 1; i <= piece.end; ++i) lineTo(points_[i]);
        if (piece.endsBeside) lineTo(beside(piece.end));
        style_.applyDashes(context_, walked + userDistance(inverse_, points_[piece.first], start));
        strokeCurrent();
    }

    /// A pixel off the point, or half the way.
    DevicePoint beside(std::size_t i) const noexcept {
        const double x = points_[i + 1].x - points_[i].x;
        const double y = points_[i + 1].y - points_[i].y;
        const double part = std::min(1 / std::hypot(x, y), 0.5);
        return {points_[i].x + x * part, points_[i].y + y * part, true};
    }

    void strokeWhole(bool isClosed) {
        begin(points_.front());
        for (std::size_t i = 1; i < points_.size(); ++i) lineTo(points_[i]);
        if (isClosed) cairo().close_path(context_);
        strokeCurrent();
    }

    /// Pieces have no caps. Round ones are dots on the ends, square ones make the line longer.
    void strokeEnds() {
        if (style_.isDashed()) return;
        if (style_.cap() == LineCap::Round) {
            for (const DevicePoint& end : {points_.front(), points_.back()}) {
                begin(end);
                lineTo(end);
                strokeCurrent();
            }
        } else if (style_.cap() == LineCap::Square) {
            points_.front() = beyond(points_.front(), points_[1]);
            points_.back() = beyond(points_.back(), points_[points_.size() - 2]);
        }
    }

    /// Half a width further than the end of a line.
    DevicePoint beyond(const DevicePoint& end, const DevicePoint& before) const noexcept {
        const double length = userDistance(inverse_, before, end);
        if (!(length > 0)) return end;
        const double part = style_.width() / 2 / length;
        return {end.x + (end.x - before.x) * part, end.y + (end.y - before.y) * part, true};
    }

    void begin(const DevicePoint& at) {
        static constexpr cairo_matrix_t kIdentity{1, 0, 0, 1, 0, 0};
        cairo().set_matrix(context_, &kIdentity);
        cairo().move_to(context_, at.x, at.y);
    }
    void lineTo(const DevicePoint& to) { cairo().line_to(context_, to.x, to.y); }
    void strokeCurrent() {
        cairo().set_matrix(context_, &style_.penMatrix());
        cairo().stroke(context_);
    }

    cairo_t* context_;
    const StrokeStyle& style_;
    const cairo_matrix_t& matrix_;
    cairo_matrix_t inverse_;
    Vector<DevicePoint> points_;
};

}  // namespace

bool isLongPolyline(const Path& path) noexcept {
    const auto& verbs = path.verbs();
    return verbs.size() > kLong && std::find(verbs.begin(), verbs.end(), PathVerb::CurveTo) == verbs.end();
}

void strokeInPieces(cairo_t* context, const StrokeStyle& style, const Path& path, const cairo_matrix_t& matrix) {
    const CairoLibrary& library = cairo();
    library.new_path(context);
    library.push_group_with_content(context, CAIRO_CONTENT_ALPHA);
    library.set_operator(context, CAIRO_OPERATOR_ADD);
    library.set_source_rgba(context, 0, 0, 0, 1);
    style.apply(context);
    PieceStroker(context, style, matrix).stroke(path);
    const CairoPtr<cairo_pattern_t> coverage(library.pop_group(context));
    library.mask(context, coverage.get());
}

}  // namespace VEXA
