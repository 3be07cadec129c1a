#include <expat.h>

#include <algorithm>
#include <exception>
#include <limits>

#include "vexa/support/core/Limits.h"
#include "vexa/support/core/QuotedText.h"
#include "vexa/support/xml/PlaceCounter.h"
#include "vexa/support/xml/XmlTokenizer.h"

namespace VEXA {
namespace {

constexpr char kSeparator = '\n';  // between namespace and name: no name can hold it
constexpr std::size_t kBlockSize = 64 * 1024;
constexpr std::size_t kSliceSize = 256U << 20;  // expat counts bytes of one call in int

constexpr const char* kNotUtf8 =
    "bytes that are no UTF-8 (save the document as UTF-8, or begin it with a line such as <?xml version=\"1.0\" "
    "encoding=\"ISO-8859-1\"?>)";

constexpr const char* kNoElement =
    "something other than an element stands before the top one (take it out; a chart document starts with <root …>)";
constexpr const char* kTwoHyphens = "two hyphens inside a comment (write one, or a dash)";

/// What expat's commoner errors mean for the writer of the document.
const char* describe(XML_Error error) noexcept {
    switch (error) {
        case XML_ERROR_SYNTAX:
            return kNoElement;
        case XML_ERROR_NO_ELEMENTS:
            return "the document ends before its elements are closed (close each with </name> or />)";
        case XML_ERROR_UNCLOSED_TOKEN:
            return "the document ends inside a tag, a comment or a value";
        case XML_ERROR_TAG_MISMATCH:
            return "this end tag does not belong to the element that is open (close that one first, with </name> or "
                   "/>)";
        case XML_ERROR_INVALID_TOKEN:
            return "a character that may not stand here (write & as &amp;, < as &lt;, and put values in quotes)";
        case XML_ERROR_DUPLICATE_ATTRIBUTE:
            return "an attribute is given twice";
        case XML_ERROR_UNDEFINED_ENTITY:
            return "an unknown entity (only &amp; &lt; &gt; &quot; &apos; and &#number; exist)";
        case XML_ERROR_BAD_CHAR_REF:
            return "an &#number; that is no character of XML (&#9; &#10; &#13; and most from &#32; on are)";
        case XML_ERROR_UNCLOSED_CDATA_SECTION:
            return "the document ends inside <![CDATA[ (close it with ]]>)";
        case XML_ERROR_XML_DECL:
            return "the <?xml …?> line is not well-formed (write <?xml version=\"1.0\" encoding=\"UTF-8\"?>)";
        case XML_ERROR_INCORRECT_ENCODING:
            return "the document is not in the encoding that its <?xml …?> line names (correct the name)";
        case XML_ERROR_UNBOUND_PREFIX:
            return "a prefix without its declaration (xmlns:prefix=\"…\")";
        case XML_ERROR_UNDECLARING_PREFIX:
            return "a prefix is declared as nothing (give xmlns:prefix its namespace)";
        case XML_ERROR_JUNK_AFTER_DOC_ELEMENT:
            return "something follows the end of the top element";
        case XML_ERROR_MISPLACED_XML_PI:
            return "the <?xml …?> line is not at the very beginning";
        case XML_ERROR_PARTIAL_CHAR:
            return "the document ends inside a character";
        default:
            return XML_ErrorString(error);
    }
}

/// Whether two hyphens at the end of a text stand in a comment that they do not begin.
bool endsInComment(std::string_view text) noexcept {
    const std::size_t comment = text.rfind("<!--");
    return comment != std::string_view::npos && text.substr(comment + 2).find("--", 2) == text.size() - comment - 4;
}

/// ASCII is UTF-8 too. Names of encodings have no case.
bool isUtf8(std::string_view encoding) noexcept {
    const auto is = [encoding](std::string_view lowerCase) {
        return std::ranges::equal(encoding, lowerCase,
                                  [](char a, char b) { return (a >= 'A' && a <= 'Z' ? a + 32 : a) == b; });
    };
    return is("utf-8") || is("us-ascii");
}

class ExpatTokenizer final : public XmlTokenizer {
public:
    ExpatTokenizer(SmartPtr<IO::Stream> stream, const String& encoding, XmlTokenHandler& handler)
        : stream_(std::move(stream)), handler_(handler), encoding_(encoding.toUtf8()), whole_(stream_->takeRest()) {
        isUtf8_ = encoding_.empty() || isUtf8(encoding_);
        uncounted_ = whole_.value_or(std::string_view());
        parser_.reset(XML_ParserCreateNS(encoding_.empty() ? nullptr : encoding_.c_str(), kSeparator));
        if (!parser_) throw std::bad_alloc();
        XML_Parser const p = parser_.get();
        XML_SetUserData(p, this);
        XML_SetElementHandler(p, &onStart, &onEnd);
        XML_SetCharacterDataHandler(p, &onText);
        XML_SetStartDoctypeDeclHandler(p, &onDoctype);
        XML_SetXmlDeclHandler(p, &onDeclaration);
        XML_SetStartNamespaceDeclHandler(p, &onNamespace);
        XML_SetCommentHandler(p, [](void* self, const XML_Char*) { of(self).guard([](auto& t) { t.checkSize(); }); });
        XML_SetProcessingInstructionHandler(
            p, [](void* self, const XML_Char*, const XML_Char*) { of(self).guard([](auto& t) { t.checkSize(); }); });
    }

    void run() override {
        XML_Status status = XML_STATUS_OK;
        if (paused_) {
            paused_ = false;
            status = XML_ResumeParser(parser_.get());
        }
        while (afterCall(status)) status = feed();
    }

    void pause() noexcept override { XML_StopParser(parser_.get(), XML_TRUE); }

    SourcePlace getPlace() override {
        if (!usesCounter()) return expatsPlace();
        const auto index = static_cast<std::uint64_t>(std::max<XML_Index>(XML_GetCurrentByteIndex(parser_.get()), 0));
        while (counted_.fed() < index && !uncounted_.empty()) feedCounter();
        return usesCounter() && index <= counted_.fed() ? counted_.at(index) : expatsPlace();
    }

private:
    struct Free {
        void operator()(XML_Parser parser) const noexcept { XML_ParserFree(parser); }
    };

    static ExpatTokenizer& of(void* self) noexcept { return *static_cast<ExpatTokenizer*>(self); }
    static std::uint32_t saturate(XML_Size value) noexcept {
        return static_cast<std::uint32_t>(std::min<XML_Size>(value, std::numeric_limits<std::uint32_t>::max()));
    }

    bool usesCounter() const noexcept { return isUtf8_ && counted_.isUsable(); }

    /// Right for every encoding, but expat counts character by character.
    SourcePlace expatsPlace() const noexcept {
        return {saturate(XML_GetCurrentLineNumber(parser_.get())),
                saturate(XML_GetCurrentColumnNumber(parser_.get()) + 1)};
    }

    /// A document in memory is counted as it is read, block by block.
    void feedCounter() {
        const std::string_view block = uncounted_.substr(0, kBlockSize);
        uncounted_.remove_prefix(block.size());
        counted_.feed(block);
    }

    /// True when more input is to be fed. Throws what a handler threw, or what expat found.
    bool afterCall(XML_Status status) {
        if (failure_) std::rethrow_exception(std::exchange(failure_, nullptr));
        if (status == XML_STATUS_SUSPENDED) {
            paused_ = true;
            return false;
        }
        if (status == XML_STATUS_ERROR) return failed();
        if (lastFed_) finished_ = true;
        return !finished_;
    }

    bool failed() {
        finished_ = true;
        const XML_Error error = XML_GetErrorCode(parser_.get());
        if (error == XML_ERROR_NO_ELEMENTS && !sawElement_) return false;
        if (error == XML_ERROR_NO_MEMORY) throw std::bad_alloc();
        if (error == XML_ERROR_UNKNOWN_ENCODING) {
            raise(Exception(3015, {quoteForMessage(String(encoding_))}), "ExpatTokenizer", __LINE__, getPlace());
        }
        const char* const what = error == XML_ERROR_INVALID_TOKEN ? describeToken() : describe(error);
        raise(handler_.malformed(String(what)), "ExpatTokenizer", __LINE__, getPlace());
    }

    /// What is wrong with the tag or text that expat has stopped at.
    const char* describeToken() const {
        int at = 0;
        int size = 0;
        const char* const input = XML_GetInputContext(parser_.get(), &at, &size);
        if (!isUtf8_ || input == nullptr) return describe(XML_ERROR_INVALID_TOKEN);
        const std::string_view context(input, static_cast<std::size_t>(size));
        const std::string_view rest = context.substr(static_cast<std::size_t>(at));
        const std::string_view token = rest.substr(0, rest.find('>'));
        if (String(token).toUtf8() != token) return kNotUtf8;
        if (endsInComment(context.substr(0, context.size() - rest.size()))) return kTwoHyphens;
        return sawElement_ || rest.starts_with('<') ? describe(XML_ERROR_INVALID_TOKEN) : kNoElement;
    }

    XML_Status feed() { return whole_ ? feedWhole() : feedBlock(); }

    XML_Status feedWhole() {
        const std::string_view slice = whole_->substr(0, kSliceSize);
        whole_->remove_prefix(slice.size());
        lastFed_ = whole_->empty();
        return XML_Parse(parser_.get(), slice.data(), static_cast<int>(slice.size()), lastFed_ ? 1 : 0);
    }

    XML_Status feedBlock() {
        // What expat has not handled yet is one unfinished token, held in memory.
        const XML_Index handled = std::max<XML_Index>(XML_GetCurrentByteIndex(parser_.get()), 0);
        if (fed_ > static_cast<std::size_t>(handled) + Limits::kTagBytes + kBlockSize) tooLong();
        void* const buffer = XML_GetBuffer(parser_.get(), kBlockSize);
        if (buffer == nullptr) throw std::bad_alloc();
        const std::size_t size = readBlock(static_cast<char*>(buffer));
        fed_ += size;
        lastFed_ = size == 0;
        if (usesCounter()) {
            counted_.at(static_cast<std::uint64_t>(handled));
            counted_.feed({static_cast<const char*>(buffer), size});
        }
        return XML_ParseBuffer(parser_.get(), static_cast<int>(size), lastFed_ ? 1 : 0);
    }

    /// The first block holds a whole byte order mark, however little the stream gives at a time.
    std::size_t readBlock(char* buffer) {
        constexpr std::size_t kLongestMark = 4;
        std::size_t size = stream_->read(buffer, kBlockSize);
        while (fed_ == 0 && size > 0 && size < kLongestMark) {
            const std::size_t more = stream_->read(buffer + size, kBlockSize - size);
            if (more == 0) break;
            size += more;
        }
        return size;
    }

    [[noreturn]] void tooLong() {
        raise(Exception(3013, {std::int64_t{Limits::kTagBytes}}), "ExpatTokenizer", __LINE__, getPlace());
    }
    void checkSize() {
        if (static_cast<std::size_t>(XML_GetCurrentByteCount(parser_.get())) > Limits::kTagBytes) tooLong();
    }

    /// Exceptions may not cross expat's frames: they wait here until expat has returned.
    template <class Action>
    void guard(Action action) noexcept {
        if (failure_) return;
        try {
            action(*this);
        } catch (...) {
            failure_ = std::current_exception();
            XML_StopParser(parser_.get(), XML_FALSE);
        }
    }

    void declare(const char* encoding) {
        if (!encoding_.empty()) return;  // the override wins
        encoding_ = encoding;
        isUtf8_ = isUtf8(encoding_);
    }

    static XmlNameToken split(const char* name) noexcept {
        const std::string_view text(name);
        const std::size_t at = text.find(kSeparator);
        if (at == std::string_view::npos) return {{}, text};
        return {text.substr(0, at), text.substr(at + 1)};
    }

    void start(const char* name, const char** attributes) {
        sawElement_ = true;
        checkSize();
        attributes_.clear();
        for (; *attributes != nullptr; attributes += 2) {
            attributes_.push_back({split(attributes[0]), std::string_view(attributes[1])});
        }
        if (attributes_.size() + namespaces_ > Limits::kAttributes) {
            raise(Exception(3011, {quoteForMessage(String(split(name).local)), std::int64_t{Limits::kAttributes}}),
                  "ExpatTokenizer", __LINE__, getPlace());
        }
        namespaces_ = 0;
        handler_.startElement(split(name), attributes_);
    }

    static void onStart(void* self, const XML_Char* name, const XML_Char** attributes) {
        of(self).guard([&](auto& t) { t.start(name, attributes); });
    }
    static void onEnd(void* self, const XML_Char*) {
        of(self).guard([](auto& t) { t.handler_.endElement(); });
    }
    static void onText(void* self, const XML_Char* text, int length) {
        of(self).guard([&](auto& t) { t.handler_.text({text, static_cast<std::size_t>(length)}); });
    }
    static void onDeclaration(void* self, const XML_Char*, const XML_Char* encoding, int) {
        if (encoding != nullptr) of(self).guard([&](auto& t) { t.declare(encoding); });
    }
    static void onNamespace(void* self, const XML_Char*, const XML_Char*) { ++of(self).namespaces_; }
    static void onDoctype(void* self, const XML_Char*, const XML_Char*, const XML_Char*, int) {
        of(self).guard([](auto& t) { raise(Exception(3001), "ExpatTokenizer", __LINE__, t.getPlace()); });
    }

    SmartPtr<IO::Stream> stream_;
    PlaceCounter counted_;
    std::string_view uncounted_;  // what the counter has not seen of a document that lies in memory
    bool isUtf8_ = true;
    XmlTokenHandler& handler_;
    std::string encoding_;                   // given by the caller, else declared by the document
    std::optional<std::string_view> whole_;  // what is left of a document that lies in memory
    std::unique_ptr<std::remove_pointer_t<XML_Parser>, Free> parser_;
    Vector<XmlAttributeToken> attributes_;
    std::exception_ptr failure_;
    std::size_t fed_ = 0;
    std::size_t namespaces_ = 0;  // declared on the tag being read
    bool lastFed_ = false;
    bool paused_ = false;
    bool finished_ = false;
    bool sawElement_ = false;
};

}  // namespace

std::unique_ptr<XmlTokenizer> XmlTokenizer::make(SmartPtr<IO::Stream> stream, const String& encoding,
                                                 XmlTokenHandler& handler) {
    return std::make_unique<ExpatTokenizer>(std::move(stream), encoding, handler);
}

}  // namespace VEXA
