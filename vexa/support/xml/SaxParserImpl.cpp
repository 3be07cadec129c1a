#include "vexa/support/xml/SaxParserImpl.h"

#include <algorithm>

#include "vexa/support/core/Limits.h"
#include "vexa/support/core/NearestName.h"
#include "vexa/support/core/QuotedText.h"
#include "vexa/support/xml/ElementPool.h"
#include "vexa/support/xml/InheritedValues.h"
#include "vexa/support/xml/XmlTokenizer.h"

namespace VEXA {
namespace {

bool isBlank(std::string_view text) noexcept { return text.find_first_not_of(" \t\r\n") == std::string_view::npos; }

String quoted(std::string_view text) { return quoteForMessage(String(text)); }

/// The names of a record's children or attributes, for "did you mean".
template <class Rows>
Vector<std::string_view> namesOf(const Rows& rows) {
    Vector<std::string_view> names;
    for (const auto& row : rows) {
        if constexpr (requires { row->getName(); }) {
            names.push_back(row->getName());
        } else {
            names.push_back(row.getName());
        }
    }
    return names;
}

/// The last one of `tokens` was given before: with the prefix and without it a name means the same.
bool isRepeated(std::span<const XmlAttributeToken> tokens, const XmlNamespace& space) noexcept {
    const XmlNameToken& name = tokens.back().name;
    return std::ranges::any_of(tokens.first(tokens.size() - 1), [&](const XmlAttributeToken& other) {
        return other.name.uri.size() != name.uri.size() && other.name.local == name.local &&
               (other.name.uri.empty() || other.name.uri == space.uri);
    });
}

/// `<a>, <b> or <c>`, in the brackets that are given.
String listOf(std::span<const std::string_view> names, char open, char close) {
    std::string list;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (i > 0) list += i + 1 == names.size() ? " or " : ", ";
        list.append(1, open).append(names[i]).append(1, close);
    }
    return String(list);
}

/// The known names that other vocabularies have this word for, in double quotes; empty when there are none.
String synonymFor(std::string_view word, std::span<const std::string_view> known) {
    return listOf(synonymsOf(word, XmlObjectFactory::instance().synonyms(), known), '"', '"');
}

/// The same, or else the nearest name.
String guessFor(std::string_view word, std::span<const std::string_view> known) {
    String names = synonymFor(word, known);
    const std::string_view near = names.isEmpty() ? nearestName(word, known) : std::string_view();
    return near.empty() ? names : listOf({&near, 1}, '"', '"');
}

/// The elements that take this child, for messages; empty when none does.
String parentsOf(const XmlKey& child) {
    Vector<std::string_view> parents;
    for (const XmlObjectTypeInfo* const parent : XmlObjectFactory::instance().typeInfos()) {
        const XmlElementTypeInfo* const member = parent->isAbstract() ? nullptr : parent->findElement(child.name);
        if (member != nullptr && member->getNamespace().uri == child.namespaceUri)
            parents.push_back(parent->getKey().name);
    }
    return listOf(parents, '<', '>');
}

/// The elements that have this attribute, in the same form; empty when these are none, or too many to be of help.
String ownersOf(std::string_view attribute) {
    constexpr std::size_t kFew = 8;
    Vector<std::string_view> owners;
    for (const XmlObjectTypeInfo* const owner : XmlObjectFactory::instance().typeInfos()) {
        if (!owner->isAbstract() && owner->findAttribute(attribute) != nullptr) owners.push_back(owner->getKey().name);
    }
    return owners.size() > kFew ? String() : listOf(owners, '<', '>');
}

}  // namespace

class SaxParserImpl::Body final : public XmlTokenHandler, public SaxParserContext {
public:
    Body(UnrecognizedElementTreatment unrecognized, bool inheritAttributes, ISAXParserMonitor* monitor,
         bool collectText, String encoding)
        : unrecognized_(unrecognized),
          inheritAttributes_(inheritAttributes),
          collectText_(collectText),
          monitor_(monitor),
          limit_(monitor != nullptr ? monitor->getLimit() : Limits::kWarnings),
          encoding_(std::move(encoding)) {}

    void begin(SmartPtr<IO::Stream> stream) {
        tokenizer_ = XmlTokenizer::make(std::move(stream), encoding_, *this);
        pauseAtTop_ = true;
        run();
    }

    XmlObjPtr<XmlObject> takeTop() { return std::move(top_); }

    void readContent() {
        pauseAtTop_ = false;
        run();
    }

    SourcePlace getPlace() const override { return tokenizer_->getPlace(); }

    void warn(int code, const VariantArray& arguments, SourcePlace place) override {
        if (!takesWarnings()) return leaveOutWarning(place);
        ++warnings_;
        tell(Severity::Warning, code, arguments, place);
    }

    bool isCutOff() const noexcept { return failed_; }

    void startElement(const XmlNameToken& name, std::span<const XmlAttributeToken> attributes) override {
        if (frames_.size() + skippedDepth_ >= Limits::kNestingDepth) stop(3010, Limits::kNestingDepth);
        if (++elements_ > Limits::kElements) stop(3012, Limits::kElements);
        if (skippedDepth_ > 0 || !open(name, attributes)) ++skippedDepth_;
        if (pauseAtTop_) tokenizer_->pause();
    }

    void endElement() override {
        if (skippedDepth_ > 0) {
            --skippedDepth_;
            return;
        }
        const Frame frame = frames_.back();
        frames_.pop_back();
        inherited_.leave(frame.inheritedMark);
        frame.object->finalize(*this);
    }

    void text(std::string_view piece) override {
        if (skippedDepth_ > 0 || frames_.empty()) return;
        Frame& frame = frames_.back();
        if (collectText_) {
            frame.object->addText(String(piece));
        } else if (!frame.warnedOfText && !isBlank(piece)) {
            frame.warnedOfText = true;
            tellText(*frame.info, piece);
        }
    }

    /// Malformed XML is mostly a tag that was not closed: says which element was open.
    Exception malformed(const String& what) const override {
        if (frames_.empty() || skippedDepth_ > 0) return XmlTokenHandler::malformed(what);
        const Frame& open = frames_.back();
        return Exception(3017, {what, open.info->getElementName(), std::int64_t{open.object->getPlace().line}});
    }

private:
    struct Frame {
        XmlObject* object;  // held by its parent, the top one by whoever took it
        const XmlObjectTypeInfo* info;
        std::size_t inheritedMark;
        bool warnedOfText = false;
    };

    void run() {
        if (failed_) return;
        const ElementPool::Scope scope(pool_);
        try {
            tokenizer_->run();
        } catch (const Exception& problem) {
            failed_ = true;
            if (monitor_ == nullptr || !problem.getPlace().isKnown()) throw;
            report(problem);
        }
    }

    void report(const Exception& problem) {
        monitor_->report({Severity::Error, problem.getCode(), problem.getMessage(), problem.getPlace()});
    }

    /// False when the element is passed over with all that is in it.
    bool open(const XmlNameToken& name, std::span<const XmlAttributeToken> attributes) {
        if (frames_.empty()) return openTop(name, attributes);
        XmlObject& parent = *frames_.back().object;
        const XmlElementTypeInfo* const member = frames_.back().info->findElement(name.local);
        if (member == nullptr || member->getNamespace().uri != name.uri) {
            tellUnknownElement(name);
            return false;
        }
        if (member->isFull(parent)) {
            warn(3008, {String(name.local), frames_.back().info->getElementName()}, getPlace());
            return false;
        }
        const XmlObjPtr<XmlObject> child = make(*member->childClass(), &parent, attributes);
        member->attach(parent, child);
        return true;
    }

    bool openTop(const XmlNameToken& name, std::span<const XmlAttributeToken> attributes) {
        const XmlObjectTypeInfo* const info = XmlObjectFactory::get()->findTypeInfo({name.uri, name.local});
        if (info == nullptr) {
            tellUnknownTop(name);
            return false;
        }
        top_ = make(*info, nullptr, attributes);
        return true;
    }

    XmlObjPtr<XmlObject> make(const XmlObjectTypeInfo& info, XmlObject* parent,
                              std::span<const XmlAttributeToken> attributes) {
        XmlObjPtr<XmlObject> object = info.createObject();
        object->setPlace(getPlace());
        object->initialize(XmlObjPtr<XmlObject>(parent), *this);
        frames_.push_back({object.get(), &info, inherited_.mark()});
        for (std::size_t i = 0; i < attributes.size(); ++i) setAttribute(*object, info, attributes.first(i + 1));
        if (inheritAttributes_) inherited_.hand(*object, info);
        return object;
    }

    /// The last one of `tokens`; those before it are set.
    void setAttribute(XmlObject& object, const XmlObjectTypeInfo& info, std::span<const XmlAttributeToken> tokens) {
        const XmlAttributeToken& token = tokens.back();
        const std::string_view name = token.name.local;
        const bool foreign = !token.name.uri.empty() && token.name.uri != info.getNamespace().uri;
        const auto* const attribute = foreign ? nullptr : info.findAttribute(name);
        const bool handsOn = !foreign && attribute == nullptr && info.hasChildren();
        const int id = handsOn ? XmlObjectFactory::instance().findInheritable(name) : -1;
        const bool isKnown = attribute != nullptr || id >= 0;
        if (isKnown && isRepeated(tokens, info.getNamespace())) {
            warn(3019, {String(name), info.getElementName()}, getPlace());
        } else if (attribute != nullptr) {
            XmlValueBox* const value = parse(attribute->getType(), info, token);
            if (value == nullptr) return;
            attribute->setGiven(object, value);
            if (attribute->isInherited()) carry(attribute->inheritableId(), attribute->getType(), *value, info);
        } else if (id >= 0) {
            const XmlValueType& type =
                *XmlObjectFactory::instance().inheritableNames()[static_cast<std::size_t>(id)].type;
            const auto release = [&](XmlValueBox* unused) { type.release(unused); };
            const std::unique_ptr<XmlValueBox, decltype(release)> value(parse(type, info, token), release);
            if (value != nullptr) carry(id, type, *value, info);
        } else {
            object.handleUnrecognizedAttribute(String(name), String(token.name.uri), String(token.value));
            // Attributes of other namespaces are other programs' business.
            if (!foreign) tellUnknownAttribute(info, name);
        }
    }

    void carry(int id, const XmlValueType& type, XmlValueBox& value, const XmlObjectTypeInfo& info) {
        if (info.hasChildren()) inherited_.carry(id, type, value);
    }

    XmlValueBox* parse(const XmlValueType& type, const XmlObjectTypeInfo& info, const XmlAttributeToken& token) {
        if (token.value.size() > Limits::kTagBytes) stop(3013, Limits::kTagBytes);
        XmlValueBox* const value = type.parse(token.value);
        if (value == nullptr) tellNoValue(type, info, token);
        return value;
    }

    void tellNoValue(const XmlValueType& type, const XmlObjectTypeInfo& info, const XmlAttributeToken& token) {
        if (!takesErrors()) return monitor_->leaveOut(Severity::Error);
        const std::string meant = type.suggest(token.value);
        VariantArray arguments{info.getElementName(), String(token.name.local), quoted(token.value),
                               String(type.expectation())};
        if (!meant.empty()) arguments.emplace_back(quoted(meant));
        fail(meant.empty() ? 3003 : 34100, std::move(arguments));
    }

    void tellUnknownTop(const XmlNameToken& name) {
        const XmlNamespace& space = vocabulary();
        if (name.uri != space.uri && XmlObjectFactory::instance().findTypeInfo({space.uri, name.local}) != nullptr) {
            tellOtherNamespace(/*refuse*/ true, name, space);
        } else {
            fail(3002, {quoted(name.local), String(space.uri)});
        }
    }

    /// A name that is known in `space`.
    void tellOtherNamespace(bool refuse, const XmlNameToken& name, const XmlNamespace& space) {
        VariantArray arguments{quoted(name.local), String(space.uri)};
        if (!name.uri.empty()) arguments.emplace_back(quoted(name.uri));
        problem(refuse, name.uri.empty() ? 3016 : 34101, std::move(arguments));
    }

    void tellUnknownElement(const XmlNameToken& name) {
        const XmlObjectTypeInfo& info = *frames_.back().info;
        const bool refuse = unrecognized_ == UnrecognizedElementTreatment::Refuse;
        const bool isSilent = unrecognized_ == UnrecognizedElementTreatment::SkipSilently;
        if (isSilent) return;
        if (!refuse && !takesWarnings()) return leaveOutWarning(getPlace());
        if (info.findElement(name.local) != nullptr) return tellOtherNamespace(refuse, name, info.getNamespace());
        if (XmlObjectFactory::instance().findTypeInfo({name.uri, name.local}) != nullptr) {
            tellMisplacedElement(refuse, name);
            return;
        }
        const String meant = guessFor(name.local, namesOf(info.elements()));
        problem(refuse, meant.isEmpty() ? 3004 : 3005, {quoted(name.local), info.getElementName(), meant});
    }

    void tellMisplacedElement(bool refuse, const XmlNameToken& name) {
        const XmlObjectTypeInfo& info = *frames_.back().info;
        const String meant = synonymFor(name.local, namesOf(info.elements()));
        const String parents = parentsOf({name.uri, name.local});
        VariantArray arguments{String(name.local), info.getElementName(), meant.isEmpty() ? parents : meant};
        const int elsewhere = parents.isEmpty() ? 3020 : 3018;
        problem(refuse, meant.isEmpty() ? elsewhere : 3022, std::move(arguments));
    }

    void tellUnknownAttribute(const XmlObjectTypeInfo& info, std::string_view name) {
        if (!takesWarnings()) return leaveOutWarning(getPlace());
        Vector<std::string_view> known = namesOf(info.attributes());
        String meant = synonymFor(name, known);
        const String owners = meant.isEmpty() ? ownersOf(name) : String();
        if (!owners.isEmpty()) return warn(3021, {String(name), info.getElementName(), owners}, getPlace());
        if (info.hasChildren()) addInheritableNames(known);
        if (meant.isEmpty()) meant = guessFor(name, known);
        warn(meant.isEmpty() ? 3006 : 3007, {quoted(name), info.getElementName(), meant}, getPlace());
    }

    static void addInheritableNames(Vector<std::string_view>& known) {
        for (const auto& inheritable : XmlObjectFactory::instance().inheritableNames())
            known.push_back(inheritable.name);
    }

    void tellText(const XmlObjectTypeInfo& info, std::string_view piece) {
        const String attribute = synonymFor("text", namesOf(info.attributes()));
        warn(attribute.isEmpty() ? 3009 : 3023, {info.getElementName(), quoted(piece), attribute}, getPlace());
    }

    /// The namespace of the registered classes.
    static const XmlNamespace& vocabulary() noexcept {
        static constexpr XmlNamespace none{};
        const auto& infos = XmlObjectFactory::instance().typeInfos();
        return infos.empty() ? none : infos.front()->getNamespace();
    }

    void problem(bool isError, int code, VariantArray arguments) {
        if (isError) {
            fail(code, std::move(arguments));
        } else {
            warn(code, arguments, getPlace());
        }
    }

    /// Told to the monitor, which collects errors; thrown when there is none.
    void fail(int code, VariantArray arguments) {
        if (monitor_ == nullptr) raise(Exception(code, std::move(arguments)), "SaxParserImpl", __LINE__, getPlace());
        if (!takesErrors()) return monitor_->leaveOut(Severity::Error);
        ++errors_;
        tell(Severity::Error, code, arguments, getPlace());
    }

    bool takesErrors() const noexcept { return monitor_ == nullptr || errors_ < limit_; }
    bool takesWarnings() const noexcept { return warnings_ < limit_; }

    void leaveOutWarning(SourcePlace place) {
        if (!hasToldLimit_) tell(Severity::Warning, 3014, {static_cast<std::int64_t>(limit_)}, place);
        hasToldLimit_ = true;
        if (monitor_ != nullptr) monitor_->leaveOut(Severity::Warning);
    }

    /// A limit: nothing after it is read.
    [[noreturn]] void stop(int code, std::size_t limit) {
        raise(Exception(code, {static_cast<std::int64_t>(limit)}), "SaxParserImpl", __LINE__, getPlace());
    }

    void tell(Severity severity, int code, const VariantArray& arguments, SourcePlace place) {
        const LogRecord record{severity, code, Exception(code, arguments).getMessage(), place};
        if (monitor_ != nullptr) {
            monitor_->report(record);
        } else {
            Log::write(record);
        }
    }

    UnrecognizedElementTreatment unrecognized_;
    bool inheritAttributes_;
    bool collectText_;
    bool pauseAtTop_ = false;
    bool failed_ = false;
    bool hasToldLimit_ = false;
    ISAXParserMonitor* monitor_;
    std::size_t limit_;
    String encoding_;
    ElementPool pool_;
    std::unique_ptr<XmlTokenizer> tokenizer_;
    XmlObjPtr<XmlObject> top_;
    Vector<Frame> frames_;
    InheritedValues inherited_;
    std::size_t skippedDepth_ = 0;
    std::size_t elements_ = 0;
    std::size_t warnings_ = 0;
    std::size_t errors_ = 0;
};

SaxParserImpl::SaxParserImpl(UnrecognizedElementTreatment unrecognized, bool inheritAttributes,
                             ISAXParserMonitor* monitor, bool collectText, String encoding)
    : body_(std::make_unique<Body>(unrecognized, inheritAttributes, monitor, collectText, std::move(encoding))) {}

SaxParserImpl::~SaxParserImpl() = default;

void SaxParserImpl::startParsing(SmartPtr<IO::Stream> stream) { body_->begin(std::move(stream)); }

XmlObjPtr<XmlObject> SaxParserImpl::parseNextChild(SmartPtr<XmlObject> parent, bool withContent) {
    if (parent) raise(UnreacheableCodeException("a parent in parseNextChild"), "SaxParserImpl", __LINE__);
    XmlObjPtr<XmlObject> top = body_->takeTop();
    if (top && withContent) body_->readContent();
    return top;
}

void SaxParserImpl::parseChildContent(SmartPtr<XmlObject> element) {
    if (!element) throwEmptySmartPtr();
    body_->readContent();
}

bool SaxParserImpl::isCutOff() const noexcept { return body_->isCutOff(); }

}  // namespace VEXA
