#include <gtest/gtest.h>

#include <thread>
#include <tuple>

#include "tests/xml/Library.h"
#include "vexa/support/core/Limits.h"

namespace VEXA::Testing {
namespace {

const Box& asBox(const XmlObjPtr<XmlObject>& object) { return static_cast<const Box&>(*object); }
const Book& bookAt(const Box& box, std::size_t index) { return static_cast<const Book&>(*box.items[index]); }
const Item& lastIn(const Box& box) { return *box.items[box.items.size() - 1]; }

TEST(Parser, MakesAnElementInOrder) {
    events.clear();
    read(box("<book name='b' x='1'/><label name='l'/>", "name='a' xmlns:o='urn:other' o:tag='t'"));
    EXPECT_EQ(events,
              "initialize, name ; "  // before the attributes are set
              "unrecognized urn:other|tag=t; initialize, name ; unrecognized |x=1; finalize b; "
              "initialize, name ; finalize a; ");
}

TEST(Parser, KeepsOrderParentsAndPlaces) {
    const auto top = read(
        "<lib:box xmlns:lib='urn:library'\n lib:name='outer'>\n  <lib:book name='1'/><lib:box/>\n"
        "  <lib:book name='2'/></lib:box>");
    const Box& outer = asBox(top);
    ASSERT_EQ(outer.items.size(), 3U);
    EXPECT_EQ(outer.name->toUtf8(), "outer") << "a prefixed attribute means the same";
    EXPECT_TRUE(outer.items[0]->isA(Book::typeID()));
    EXPECT_TRUE(outer.items[1]->isA(Box::typeID()));
    EXPECT_TRUE(outer.items[1]->isKindOf(Item::typeID()));
    EXPECT_FALSE(outer.items[1]->isKindOf(Book::typeID()));
    EXPECT_EQ(outer.items[2]->getParent(), &outer);
    EXPECT_EQ(outer.getPlace(), (SourcePlace{1, 1}));
    EXPECT_EQ(outer.items[1]->getPlace(), (SourcePlace{3, 23}));
    EXPECT_EQ(outer.items[2]->getPlace(), (SourcePlace{4, 3}));
}

TEST(Parser, InheritsAttributes) {
    // size, depth and whether the size is given, of the last book
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"<box><book/></box>", "8 0", "no ancestor carries a value: the defaults"},
        {"<box><book size='3'/></box>", "3 0 given", "its own value"},
        {"<box size='5'><book/></box>", "5 0", "an ancestor that does not register the name carries it too"},
        {"<box size='5'><book size='8'/></box>", "8 0 given", "an explicit default stops inheritance"},
        {"<box depth='5'><book/></box>", "8 0", "an ancestor that keeps the name to itself is passed over"},
        {"<box size='5'><box size='6'><box><book/></box></box></box>", "6 0", "the nearest ancestor wins"},
        {"<box size='5'><box size='6'/><book/></box>", "5 0", "a sibling's value ends with the sibling"},
        {"<box size='5'><book size='6'/><book/></box>", "5 0", "also where it hands nothing on"},
    };
    for (const auto& [text, expected, why] : cases) {
        const auto top = read(std::string(text).insert(4, " xmlns='urn:library'"));
        const Item* item = &asBox(top);
        while (item->isA(Box::typeID())) item = &lastIn(static_cast<const Box&>(*item));
        const auto& book = static_cast<const Book&>(*item);
        const std::string found =
            ValueTraits<Length>::print(*book.size) + " " + ValueTraits<Length>::print(*book.depth);
        EXPECT_EQ(found + (book.size.isGiven() ? " given" : ""), expected) << why;
    }
    ReadOptions plain;
    plain.inherit = false;
    EXPECT_EQ(bookAt(asBox(read(box("<book/>", "size='5'"), plain)), 0).size->getNumber(), 8);
}

TEST(Parser, WritingOneValueChangesNoOther) {
    const auto top = read(box("<book/><book/>", "size='5'"));
    auto& first = const_cast<Book&>(bookAt(asBox(top), 0));
    first.size.setValue(Length(9));
    first.depth.setValue(Length(7));
    EXPECT_EQ(bookAt(asBox(top), 1).size->getNumber(), 5) << "shared with the ancestor";
    EXPECT_EQ(bookAt(asBox(top), 1).depth->getNumber(), 0) << "shared with every default";
}

struct Problem {
    std::string document;
    const char *problems, *message, *why;
};

TEST(Parser, CollectsEveryProblemWithItsPlaceAndTellsWhatWouldDo) {
    const std::string ebcdic = "<?xml version='1.0' encoding='EBCDIC-9'?><box xmlns='urn:library'/>";
    const Problem cases[] = {
        {box("<book size='big'/>"), "1:27: error 3003; ", "book: attribute \"size\": \"big\" is not a length",
         "a value"},
        {box("<book size='1,5 PX'/>"), "1:27: error 34100; ", "did you mean \"1.5px\"?", "a value nearly right"},
        {box("\n <boook/>"), "2:2: warning 3005; ",
         "unknown element \"boook\" in \"box\" is skipped; did you mean \"book\"?", "a near name"},
        {box("<book size='1' Size='2'/>"), "1:27: warning 3007; ", "did you mean \"size\"?", "of an attribute"},
        {box("<zzzzzzzzz/><book qqqqqqqqqqq='1'/>"), "1:27: warning 3004; 1:39: warning 3006; ", "", "no near name"},
        {box("<bok><book size='big'/></bok>"), "1:27: warning 3005; ", "", "in an unknown element nothing is read"},
        {box("<book><label/></book>"), "1:33: warning 3018; ",
         "element \"label\" may not stand in \"book\" and is skipped; write it inside <box>", "in a wrong place"},
        {box("<book l:size='4' size='big' xmlns:l='urn:library'/><book size='4' l:size='5' xmlns:l='urn:library'/>"),
         "1:27: warning 3019; 1:78: warning 3019; ", "", "with and without prefix the first counts, whatever it is"},
        {box("", "size='4' l:size='big' xmlns:l='urn:library'"), "1:1: warning 3019; ", "", "also where handed on"},
        {box("<book size='4' o:size='5' xmlns:o='urn:other'/>"), "", "", "another vocabulary's attribute"},
        {box("<label/><label/>"), "1:35: warning 3008; ", "", "a second child where one is allowed"},
        {box(" a <book/> b"), "1:27: warning 3009; ", "", "text, told once for an element"},
        {box(" \n\t "), "", "", "blank text is layout"},
        {box("<book xmlns=''/>"), "1:27: warning 3016; ", "", "a known name outside the namespace"},
        {box("<book xmlns='urn:lib'/>"), "1:27: warning 34101; ", "in the namespace \"urn:lib\"",
         "a known name outside"},
        {box("<book size='a'/><book size='b'/>\n<bok/></bx>"),
         "1:27: error 3003; 1:43: error 3003; 2:1: warning 3005; 2:9: error 3017; ", "", "one run finds all"},
        {box("<book>"), "1:35: error 3017; ", "<book> of line 1 is open", "an end tag that fails"},
        {"<book2 xmlns='urn:library'/>", "1:1: error 3002; ", "", "an unknown top element"},
        {"<box/>", "1:1: error 3016; ", "xmlns=\"urn:library\"", "the top element without its namespace"},
        {"<box xmlns='urn:lib'/>", "1:1: error 34101; ",
         "in the namespace \"urn:lib\" and not in that of charts; write xmlns=\"urn:library\"", "in another one"},
        {"<!DOCTYPE box [<!ENTITY a 'b'>]><box xmlns='urn:library'/>", "1:15: error 3001; ", "", "no entities"},
        {ebcdic, "1:31: error 3015; ", "encoding \"EBCDIC-9\" is unknown", "encodings"},
        {"<?xml version='1.0' encoding='UTF-16'?><box/>", "1:31: error 3000; ", "", "known, but not so"},
        {"<box xmlns='urn:library'/><box/>", "1:27: error 3000; ", "", "two top elements"},
        {"<p:box/>", "1:1: error 3000; ", "", "a prefix without declaration"},
        {"hello", "1:1: error 3000; ", "document starts with <", "no XML"},
        {"{\"box\": []}", "1:1: error 3000; ", "document starts with <", "another format"},
        {"<!-- a -- b --><box/>", "1:10: error 3000; ", "two hyphens inside a comment", "a rule of comments"},
        {box("<!-- a --><book name='b--<c'/>"), "1:52: error 3017; ", "write & as &amp;, < as &lt;", "no comment"},
        {box("<book name='&#0;'/>"), "1:39: error 3017; ", "&#9;", "a character that XML has not"},
        {"<?xml encoding='UTF-8'?><box/>", "1:7: error 3000; ", "write <?xml version=\"1.0\" encoding=\"UTF-8\"?>", ""},
        {" \n<!-- nothing -->", "", "", "a stream without element: that is the caller's to tell"},
    };
    for (const Problem& c : cases) {
        const Collector found = told(c.document);
        EXPECT_EQ(found.problems, c.problems) << c.why << "\n" << c.document;
        EXPECT_NE(found.message.find(c.message), std::string::npos) << found.message;
    }
}

TEST(Parser, ThrowsTheFirstErrorWithoutAMonitor) {
    Collector log;
    const LogScope scope(log);
    try {
        read(box("<bok/>\n<book size='big'/><book size='huge'/>"));
        FAIL();
    } catch (const Exception& e) {
        EXPECT_EQ(e.getCode(), 3003);
        EXPECT_EQ(e.getPlace(), (SourcePlace{2, 1}));
    }
    EXPECT_EQ(log.problems, "1:27: warning 3005; 2:1: error 3003; ");
    log.problems.clear();
    EXPECT_THROW(read(box("<book>")), Exception);
    EXPECT_EQ(log.problems, "1:35: error 3017; ") << "what is logged is what is thrown";
}

TEST(Parser, TreatsUnknownElementsAsAsked) {
    ReadOptions options;
    options.unrecognized = UnrecognizedElementTreatment::SkipSilently;
    EXPECT_EQ(told(box("<zzz/>"), options).problems, "");
    options.unrecognized = UnrecognizedElementTreatment::Refuse;
    EXPECT_EQ(told(box("<zzz/>"), options).problems, "1:27: error 3004; ");
}

TEST(Parser, HandsTextToObjectsWhenAsked) {
    events.clear();
    ReadOptions options;
    options.collectText = true;
    read(box("a<book/>b &lt;"), options);
    EXPECT_NE(events.find("; text a; "), std::string::npos) << events;
}

std::string utf16(const std::string& ascii, bool bigEndian) {
    std::string bytes = bigEndian ? "\xFE\xFF" : "\xFF\xFE";
    for (const char c : ascii) bytes += bigEndian ? std::string({'\0', c}) : std::string({c, '\0'});
    return bytes;
}

TEST(Parser, ReadsEncodingsAndCountsCharactersHoweverTheyCome) {
    const std::string latin1 = "<?xml version='1.0' encoding='ISO-8859-1'?>\n";
    std::string many;
    for (int i = 0; i < 2000; ++i) many += "<book name='" + std::to_string(i) + "' size='2'/>\n";
    struct {
        std::string document;
        SourcePlace place;  // of the last book
        const char *name, *why;
    } const cases[] = {
        {box("<book/>"), {1, 27}, "", "columns count from 1"},
        {box("\n\n  <book/>"), {3, 3}, "", "line feeds"},
        {box("\r\n\r\n  <book/>"), {3, 3}, "", "line ends of two characters are one"},
        {box("\r\n\n\r <book/>"), {4, 2}, "", "carriage returns alone, and all of them"},
        {box("<!--\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80--><book/>"), {1, 37}, "", "characters, not bytes"},
        {box("<!--\xC3\xA9-->\n<!--\xC3\xA9\xC3\xA9--><book/>"), {2, 10}, "", "of this line only"},
        {"\xEF\xBB\xBF" + box("<book name='\xC3\xA9'/>"), {1, 27}, "\xC3\xA9", "a byte order mark is no column"},
        {utf16(box("\n <book name='Ab'/>"), true), {2, 2}, "Ab", "two bytes a character"},
        {utf16(box("\n <book name='Ab'/>"), false), {2, 2}, "Ab", "the other way round"},
        {latin1 + box("<!--\xE9\xE9--><book name='\xE9'/>"), {2, 36}, "\xC3\xA9", "one byte a character"},
        {box(std::string(200'000, ' ') + "\n<book/>"), {2, 1}, "", "over many blocks"},
        {box(std::string(200'000, ' ') + "<book/>"), {1, 200'027}, "", "in one line"},
        {box(many), {2000, 1}, "1999", "every element anywhere in a block"},
    };
    for (const auto& c : cases) {
        for (const std::size_t step : {0, 1, 7, 100'000, 1'000'000}) {
            const auto top = step == 0 ? read(c.document) : readFrom(make<TrickleStream>(c.document, step));
            const Item& last = lastIn(asBox(top));
            EXPECT_EQ(last.getPlace(), c.place) << c.why << ", by " << step;
            EXPECT_EQ(last.name->toUtf8(), c.name) << c.why << ", by " << step;
        }
    }
    ReadOptions options;
    options.encoding = "ISO-8859-1";
    EXPECT_EQ(asBox(read(box("", "name='\xE9'"), options)).name->toUtf8(), "\xC3\xA9") << "as the caller says";
    EXPECT_THROW(read(box("", "name='\xE9'")), Exception) << "no UTF-8";
    EXPECT_THROW(read("<?xml version='1.0' encoding='latin-9'?>" + box("")), Exception);
}

TEST(Parser, FailsCleanlyWhereverTheDocumentIsCut) {
    const std::string document = box("<book name='&amp;\xC3\xA9' size='1'/><box><label name='x'/></box><!-- c -->");
    for (std::size_t n = 1; n < document.size(); ++n) {
        EXPECT_THROW(read(document.substr(0, n)), Exception) << "cut at " << n;
        EXPECT_THROW(readFrom(make<TrickleStream>(document.substr(0, n), 3)), Exception) << "cut at " << n;
    }
}

TEST(Parser, PassesAnObjectsExceptionOn) { EXPECT_THROW(read(box("<label name='explode'/>")), std::runtime_error); }

TEST(Parser, ObjectsMayOutliveTheirTree) {
    XmlObjPtr<Item> book;
    TXmlAttribute<String> name(DefaultStringAttribute);
    {
        const auto top = read(box("<box><book name='a long name, kept on the heap' size='4'/></box>", "depth='3'"));
        book = static_cast<const Box&>(*asBox(top).items[0]).items[0];
        name = book->name;
        EXPECT_NE(book->getParent(), nullptr);
    }
    EXPECT_EQ(book->getParent(), nullptr) << "no dangling parent";
    EXPECT_EQ(static_cast<const Book&>(*book).size->getNumber(), 4);
    book = nullptr;
    EXPECT_EQ(name->toUtf8(), "a long name, kept on the heap");
}

TEST(Parser, TreesMayBeFreedOnAnotherThread) {
    std::string content;
    for (int i = 0; i < 3000; ++i) content += "<book name='" + std::to_string(i) + "'/>";
    for (int round = 0; round < 4; ++round) {
        XmlObjPtr<XmlObject> top = read(box(content));
        std::thread([tree = std::move(top)]() mutable { tree = nullptr; }).join();
    }
    std::thread([&] { EXPECT_EQ(asBox(read(box(content))).items.size(), 3000U); }).join();
}

TEST(Records, KnowTheirClass) {
    registerLibrary();
    const auto* const record = Book::getTypeInfoInstance();
    EXPECT_EQ(record->getElementName().toUtf8(), "book");
    EXPECT_EQ(XmlObjectFactory::instance().findTypeInfo({"urn:library", "book"}), record);
    EXPECT_EQ(XmlObjectFactory::instance().findTypeInfo({"urn:other", "book"}), nullptr);
    EXPECT_EQ(record->getParentTypeInfo(), Item::getTypeInfoInstance());
    EXPECT_EQ(record->attributes().front().getName(), "name") << "ancestors' attributes come first";
    EXPECT_TRUE(record->createObject()->isA(Book::typeID()));
    EXPECT_THROW(Item::getTypeInfoInstance()->createObject(), Exception) << "an abstract class";
}

TEST(Records, SetDefaultsOverWhatWasGiven) {
    const auto top = read(box("<book name='n' size='3'/>"));
    auto& book = const_cast<Book&>(bookAt(asBox(top), 0));
    Book::getTypeInfoInstance()->setAttributeDefaults(book);
    EXPECT_TRUE(book.name->isEmpty());
    EXPECT_EQ(book.size->getNumber(), 8);
    EXPECT_FALSE(book.size.isGiven());
}

// Limits: each stops an attack, told in Limits.h.

int codeOf(const std::string& document) {
    try {
        read(document);
    } catch (const Exception& e) {
        return e.getCode();
    }
    return 0;
}

std::string repeat(const std::string& text, std::size_t count) {
    std::string all;
    all.reserve(text.size() * count);
    for (std::size_t i = 0; i < count; ++i) all += text;
    return all;
}

// Each level of a recursion would take some hundred bytes of a stack of 8 MB.
TEST(Tree, OfAnyDepthIsFreedAtOnce) {
    registerLibrary();
    constexpr int kDepth = 1'000'000;
    auto top = make<Box>();
    SmartPtr<Box> open = top;
    for (int level = 0; level < kDepth; ++level) {
        auto inner = make<Box>();
        inner->setParent(open.get());
        if (level % 2 == 0) {
            open->items.add(inner);
        } else {
            open->label = inner;
        }
        open = inner;
    }
    EXPECT_NE(open->getParent(), nullptr);
    top = nullptr;
    EXPECT_EQ(open->getParent(), nullptr) << "all above the one that is held are gone";
    EXPECT_EQ(open->referenceCount(), 1U);
}

TEST(Limits, OfDocuments) {
    const auto nested = [](std::size_t depth) { return box(repeat("<box>", depth - 1) + repeat("</box>", depth - 1)); };
    const auto many = [](std::size_t count, const char* prefix) {
        std::string attributes;
        for (std::size_t i = 0; i < count; ++i) attributes += " " + std::string(prefix) + std::to_string(i) + "='u'";
        return box("", attributes);
    };
    const std::string huge(Limits::kTagBytes + 200'000, 'x');
    Collector quiet;
    const LogScope scope(quiet);
    EXPECT_EQ(codeOf(nested(Limits::kNestingDepth)), 0);
    EXPECT_EQ(codeOf(nested(Limits::kNestingDepth + 1)), 3010);
    EXPECT_EQ(codeOf(box("<z>" + repeat("<box>", Limits::kNestingDepth))), 3010) << "skipped elements count";
    EXPECT_EQ(codeOf(many(Limits::kAttributes - 1, "a")), 0) << "the namespace is the last one";
    EXPECT_EQ(codeOf(many(Limits::kAttributes, "a")), 3011);
    EXPECT_EQ(codeOf(many(Limits::kAttributes, "xmlns:a")), 3011) << "declarations count";
    EXPECT_EQ(codeOf(box("<z>" + repeat("<y/>", Limits::kElements) + "</z>")), 3012);
    EXPECT_EQ(codeOf(box("<book name='" + huge + "'/>")), 3013);
    EXPECT_EQ(codeOf(box("<!--" + huge + "-->")), 3013);
    EXPECT_THROW(readFrom(make<TrickleStream>(box("<!--" + huge), std::size_t{1} << 20)), Exception);
}

TEST(Limits, Warnings) {
    Collector collector;
    const LogScope scope(collector);
    read(box(repeat("<z/>", 1000)));
    EXPECT_EQ(collector.count, Limits::kWarnings + 1);
    EXPECT_TRUE(collector.problems.ends_with("3014; "));
}

/// Takes three problems of a kind.
class Impatient final : public ISAXParserMonitor {
public:
    void report(const LogRecord& problem) override { codes += std::to_string(problem.code) + " "; }
    std::size_t getLimit() const noexcept override { return 3; }
    void leaveOut(Severity severity) override { ++leftOut[static_cast<std::size_t>(severity)]; }
    std::string codes;
    std::size_t leftOut[3] = {};
};

TEST(Limits, AMonitorSaysHowMuchItTakes) {
    Impatient monitor;
    ReadOptions options;
    options.monitor = &monitor;
    read(box(repeat("<zzz/>", 4) + repeat("<book zzz=''/>", 2) + repeat("<book size='a'/>", 5)), options);
    EXPECT_EQ(monitor.codes, "3004 3004 3004 3014 3003 3003 3003 ");
    EXPECT_EQ(monitor.leftOut[static_cast<std::size_t>(Severity::Warning)], 3U) << "unknown elements and attributes";
    EXPECT_EQ(monitor.leftOut[static_cast<std::size_t>(Severity::Error)], 2U) << "each counts for itself";
}

TEST(Parser, SaysWhetherItReadToTheEnd) {
    const std::pair<std::string, bool> cases[] = {
        {box(""), false}, {box("<book size='a'/>"), false}, {box("<book>"), true}, {"<box/>", false}, {"", false}};
    for (const auto& [document, isCutOff] : cases) {
        Collector collector;
        registerLibrary();
        SaxParserImpl parser(UnrecognizedElementTreatment::SkipWithWarning, true, &collector, false, "");
        parser.startParsing(make<IO::MemoryStream>(document));
        const auto top = parser.parseNextChild(nullptr, true);
        EXPECT_EQ(parser.isCutOff(), isCutOff) << document;
    }
}

}  // namespace
}  // namespace VEXA::Testing
