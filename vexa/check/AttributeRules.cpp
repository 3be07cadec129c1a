#include "vexa/check/AttributeRules.h"

#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "vexa/cartesian/VexaDataPoint.h"
#include "vexa/check/AttributeReading.h"
#include "vexa/check/TreeWalk.h"
#include "vexa/spider/VexaSpider.h"
#include "vexa/style/VexaDefs.h"
#include "vexa/support/core/QuotedText.h"

namespace VEXA {

namespace {

constexpr int kNotFound = 34001;
constexpr int kNearlyFound = 34102;
constexpr int kBelowZero = 34114;
constexpr int kOpacityBeyond = 34136;
constexpr int kSecondId = 34138;

/// Lengths that areas, titles and layouts do not tell of themselves.
constexpr std::string_view kSizes[] = {"stroke-width", "web-stroke-width", "marker-width",
                                       "label-width",  "font-size",        "caption-size"};

constexpr std::string_view kOpacities[] = {"opacity", "fill-opacity", "stroke-opacity", "stop-opacity",
                                           "web-stroke-opacity"};

/// Tells each size below 0 and each opacity beyond 0 to 1 once, where it stands, or where it takes effect first if its
/// element only hands it on.
class NumberRule {
public:
    explicit NumberRule(ProblemList& problems) noexcept : problems_(problems) {}

    void check(const XmlObject& object) {
        for (const std::string_view name : kSizes) checkSize(object, name);
        if (object.isA(VexaDataPoint::typeID())) checkSize(object, "width");
        for (const std::string_view name : kOpacities) checkOpacity(object, name);
    }

private:
    /// The attribute when the document gives it and it was not told of.
    const XmlValueBox* fresh(const XmlObject& object, std::string_view name) const {
        const XmlAttributeTypeInfo* const attribute = object.getTypeInfo()->findAttribute(name);
        const XmlValueBox* const box = attribute == nullptr ? nullptr : attribute->of(object).box();
        return box == nullptr || box == &attribute->getDefault() || told_.contains(box) ? nullptr : box;
    }

    void checkSize(const XmlObject& object, std::string_view name) {
        const XmlValueBox* const box = fresh(object, name);
        if (box == nullptr) return;
        const XmlObjectTypeInfo& info = *object.getTypeInfo();
        const std::string text = info.findAttribute(name)->getType().print(*box);
        if (!text.starts_with('-')) return;
        told_.insert(box);
        problems_.add(Severity::Warning, kBelowZero, {String(name), info.getElementName(), String(text)},
                      object.getPlace());
    }

    void checkOpacity(const XmlObject& object, std::string_view name) {
        const XmlValueBox* const box = fresh(object, name);
        if (box == nullptr) return;
        const FloatOrPercent& opacity = *readAttribute<FloatOrPercent>(object, name);
        if (opacity.getValue() >= 0 && opacity.getValue() <= 1) return;
        told_.insert(box);
        const XmlObjectTypeInfo& info = *object.getTypeInfo();
        const std::int64_t counts = opacity.getValue() < 0 ? 0 : 1;
        problems_.add(
            Severity::Hint, kOpacityBeyond,
            {String(name), info.getElementName(), String(info.findAttribute(name)->getType().print(*box)), counts},
            object.getPlace());
    }

    ProblemList& problems_;
    std::unordered_set<const XmlValueBox*> told_;
};

/// Tells each reference that leads nowhere once, where sizes are told; a render tells it of each element it paints.
class ReferenceRule {
public:
    explicit ReferenceRule(VexaRoot& root) noexcept : root_(root) {}

    void check(VexaObject& object) {
        checkPaint<SNullableColor>(object, "fill", [](const SNullableColor& paint) { return paint.getSColor(); });
        checkPaint<SNullableColor>(object, "stroke", [](const SNullableColor& paint) { return paint.getSColor(); });
        checkPaint<SColor>(object, "web-stroke", [](const SColor& paint) { return paint; });
        if (object.getTypeInfo()->findAttribute("href") != nullptr)
            checkReference(object, *readAttribute<String>(object, "href"));
    }

private:
    template <class T, class ToColor>
    void checkPaint(VexaObject& object, std::string_view name, const ToColor& toColor) {
        if (object.getTypeInfo()->findAttribute(name) == nullptr) return;
        const TXmlAttribute<T>& paint = readAttribute<T>(object, name);
        if (told_.contains(paint.box())) return;
        const SColor color = toColor(*paint);
        if (color.getType() == SColorType::Url && !checkReference(object, color.getUrl())) told_.insert(paint.box());
    }

    bool checkReference(VexaObject& object, const String& reference) {
        if (reference.isEmpty() || root_.findObject(reference)) return true;
        object.tellNotFound(reference);
        return false;
    }

    VexaRoot& root_;
    std::unordered_set<const XmlValueBox*> told_;
};

/// Ids that nothing refers to by; those of definitions and of the axes of a spider have rules of their own.
class IdRule {
public:
    explicit IdRule(ProblemList& problems) noexcept : problems_(problems) {}

    void check(const VexaObject& object) {
        if (object.getId().isEmpty() || object.isA(VexaSpiderAxis::typeID()) || isDefinition(object)) return;
        const auto [known, isNew] = first_.emplace(object.getId(), &object);
        if (isNew) return;
        const VexaObject* second = &object;
        if (isBefore(object, *known->second)) std::swap(second, known->second);  // titles and legends are met last
        const VexaObject& first = *known->second;
        problems_.add(Severity::Hint, kSecondId,
                      {quoteForMessage(object.getId()), first.getTypeInfo()->getElementName(),
                       static_cast<std::int64_t>(first.getPlace().line)},
                      second->getPlace());
    }

private:
    static bool isBefore(const VexaObject& a, const VexaObject& b) {
        return std::pair(a.getPlace().line, a.getPlace().column) < std::pair(b.getPlace().line, b.getPlace().column);
    }
    static bool isDefinition(const VexaObject& object) {
        return object.getParent() != nullptr && object.getParent()->isA(VexaDefs::typeID());
    }

    ProblemList& problems_;
    std::unordered_map<String, const VexaObject*> first_;
};

}  // namespace

void checkAttributes(VexaRoot& root, ProblemList& problems) {
    NumberRule numbers(problems);
    ReferenceRule references(root);
    IdRule ids(problems);
    walkTree(root, [&](XmlObject& object) {
        numbers.check(object);
        references.check(static_cast<VexaObject&>(object));
        ids.check(static_cast<VexaObject&>(object));
    });
    problems.ignoreWarnings({kNotFound, kNearlyFound});
}

}  // namespace VEXA
