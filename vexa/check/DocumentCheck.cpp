#include "vexa/check/DocumentCheck.h"
#include "vexa/check/AttributeRules.h"

#include <algorithm>

#include "vexa/check/PageRules.h"
#include "vexa/check/PlotRules.h"
#include "vexa/check/ProblemList.h"
#include "vexa/check/TreeRules.h"
#include "vexa/engine/ClassList.h"
#include "vexa/engine/VexaRoot.h"
#include "vexa/surfaces/NullSurface.h"

namespace VEXA {

namespace {

constexpr int kEmptyDocument = 34115;
constexpr int kOtherTop = 34116;
constexpr int kMore = 34117;
constexpr float kReferenceWidth = 800;  // px, of a size in percent
constexpr float kReferenceHeight = 600;

/// Paints part by part, keeps what they throw, and asks the rules that need a layout.
class WatchedPage final : public PaintWatch {
public:
    explicit WatchedPage(ProblemList& problems) noexcept : problems_(problems) {}

    void paint(VexaObject& part, VexaRenderContext& context, const std::function<void()>& step) override {
        attempt([&] { checkBeforePainting(part, context); });
        if (attempt(step)) attempt([&] { checkPainted(part, context); });
    }

private:
    template <class Step>
    bool attempt(const Step& step) {
        try {
            step();
            return true;
        } catch (const Exception& error) {
            problems_.add(error);
            return false;
        }
    }

    void checkBeforePainting(VexaObject& part, VexaRenderContext& context) {
        if (part.isA(VexaLegend::typeID())) checkLegend(static_cast<VexaLegend&>(part), context, problems_);
        if (part.isA(VexaPlotArea::typeID())) checkPlotData(static_cast<VexaPlotArea&>(part), problems_);
    }

    void checkPainted(VexaObject& part, VexaRenderContext& context) {
        if (part.isA(VexaPlotArea::typeID())) checkPlotLayout(static_cast<VexaPlotArea&>(part), context, problems_);
    }

    ProblemList& problems_;
};

/// The root; empty when the document has none, which is told.
XmlObjPtr<VexaRoot> load(const SmartPtr<IO::Stream>& stream, ProblemList& problems) {
    registerAll();
    const auto parser = make<SaxParserImpl>(UnrecognizedElementTreatment::SkipWithWarning, /*inheritAttributes*/ true,
                                            &problems, /*collectText*/ false, /*encoding*/ String());
    parser->startParsing(stream);
    const XmlObjPtr<XmlObject> top = parser->parseNextChild(nullptr, /*withContent*/ false);
    const String space(chartNamespace().uri);
    if (!top) {
        if (!problems.hasErrors()) problems.add(Severity::Error, kEmptyDocument, {space}, {1, 1});
        return nullptr;
    }
    parser->parseChildContent(top);
    if (!top->isA(VexaRoot::typeID())) {
        problems.add(Severity::Error, kOtherTop, {top->getTypeInfo()->getElementName(), space}, top->getPlace());
        return nullptr;
    }
    if (parser->isCutOff()) problems.ignoreFrom(lastChildPlace(*top));
    return XmlObjPtr<VexaRoot>(static_cast<VexaRoot*>(top.get()));
}

void judge(const SmartPtr<IO::Stream>& stream, ProblemList& problems) {
    const XmlObjPtr<VexaRoot> root = load(stream, problems);
    if (!root) return;
    const WarningLimitScope limit(Limits::kCheckedProblems);
    checkRoot(*root, problems);
    checkAttributes(*root, problems);
    checkTree(*root, problems);
    WatchedPage page(problems);
    root->render(make<NullSurface>(), kReferenceWidth, kReferenceHeight, page);
    checkVisibility(*root, problems);
    problems.addLeftOut(limit.leftOut());
}

}  // namespace

std::size_t CheckReport::count(Severity severity) const noexcept {
    return static_cast<std::size_t>(std::ranges::count(problems, severity, &LogRecord::severity));
}

CheckReport DocumentCheck::run(const SmartPtr<IO::Stream>& stream) {
    ProblemList problems;
    const LogScope scope(problems);
    try {
        judge(stream, problems);
    } catch (const Exception& error) {
        problems.add(error);
    }
    CheckReport report{problems.takeSorted(), problems.leftOut()};
    if (report.leftOut > 0) {
        const Exception more(kMore, {static_cast<std::int64_t>(report.leftOut)});
        report.problems.push_back({Severity::Warning, kMore, more.getMessage(), {}});
    }
    return report;
}

}  // namespace VEXA
