#include "vexa/schema/ContentModel.h"

#include <algorithm>

namespace VEXA {

namespace {

using Names = std::vector<std::string_view>;

/// What must hold for the ids in an element.
struct Constraint {
    std::string_view element;
    std::string_view definition;
};
constexpr Constraint kConstraints[] = {
    {"root", R"(<xs:unique name="gradient-ids">
<xs:selector xpath="vx:defs/vx:linear-gradient | vx:defs/vx:radial-gradient"/>
<xs:field xpath="@id"/>
</xs:unique>
)"},
    {"spider", R"(<xs:unique name="spider-axis-ids">
<xs:selector xpath="vx:spider-axis"/>
<xs:field xpath="@id"/>
</xs:unique>
<xs:keyref name="spider-axis-id-references" refer="vx:spider-axis-ids">
<xs:selector xpath="vx:spider-serie/vx:spider-data-point"/>
<xs:field xpath="@axis-id"/>
</xs:keyref>
)"},
};

Names childrenOf(const ElementEntry& element, bool areLists) {
    Names names;
    for (const ChildEntry& child : element.children) {
        if (child.isList == areLists) names.push_back(child.name);
    }
    return names;
}

bool isRequired(const ElementEntry& element, std::string_view child) {
    return std::ranges::find(element.children, child, &ChildEntry::name)->isRequired;
}

std::string listsModel(const Names& lists) {
    std::string model = "<xs:choice minOccurs=\"0\" maxOccurs=\"unbounded\">\n";
    for (const std::string_view name : lists) model += elementDeclaration(name);
    return model + "</xs:choice>\n";
}

std::string singlesModel(const ElementEntry& element, const Names& singles) {
    std::string model = "<xs:all>\n";
    for (const std::string_view name : singles) {
        model += elementDeclaration(name, isRequired(element, name) ? "" : " minOccurs=\"0\"");
    }
    return model + "</xs:all>\n";
}

/// Any number of the lists' elements, then perhaps one of `singles`, and so on with those that are left: XML Schema 1.0
/// has no shorter way to say "in any order, but these once". It grows with the factorial of their number.
std::string mixedModel(const ElementEntry& element, const Names& singles) {
    std::string model =
        "<xs:group ref=\"vx:" + std::string(element.name) + "-lists\" minOccurs=\"0\" maxOccurs=\"unbounded\"/>\n";
    if (singles.empty()) return model;
    const bool mustGoOn = std::ranges::any_of(singles, [&](auto name) { return isRequired(element, name); });
    model += mustGoOn ? "<xs:choice>\n" : "<xs:choice minOccurs=\"0\">\n";
    for (const std::string_view single : singles) {
        Names rest = singles;
        std::erase(rest, single);
        model += "<xs:sequence>\n" + elementDeclaration(single) + mixedModel(element, rest) + "</xs:sequence>\n";
    }
    return model + "</xs:choice>\n";
}

}  // namespace

std::string contentModel(const ElementEntry& element) {
    const Names lists = childrenOf(element, true);
    const Names singles = childrenOf(element, false);
    if (!lists.empty() && !singles.empty())
        return "<xs:sequence>\n" + mixedModel(element, singles) + "</xs:sequence>\n";
    if (!lists.empty()) return listsModel(lists);
    if (!singles.empty()) return singlesModel(element, singles);
    return "<xs:sequence>\n<xs:element ref=\"vx:nothing\" minOccurs=\"0\"/>\n</xs:sequence>\n";
}

std::string contentGroup(const ElementEntry& element) {
    const Names lists = childrenOf(element, true);
    if (lists.empty() || lists.size() == element.children.size()) return {};
    std::string group = "<xs:group name=\"" + std::string(element.name) + "-lists\">\n<xs:choice>\n";
    for (const std::string_view name : lists) group += elementDeclaration(name);
    return group + "</xs:choice>\n</xs:group>\n";
}

std::string elementDeclaration(std::string_view name, std::string_view occurrence) {
    const std::string text(name);
    const std::string tag = "<xs:element name=\"" + text + "\" type=\"vx:" + text + '"' + std::string(occurrence);
    const auto* const constraint = std::ranges::find(kConstraints, name, &Constraint::element);
    if (constraint == std::end(kConstraints)) return tag + "/>\n";
    return tag + ">\n" + std::string(constraint->definition) + "</xs:element>\n";
}

// Empty content in XML Schema has no room for blanks, content of elements has: of one that cannot be.
std::string nothingDeclaration() {
    return R"(<xs:element name="nothing" abstract="true">
<xs:annotation><xs:documentation>Stands for no element, where none may stand.</xs:documentation></xs:annotation>
</xs:element>
)";
}

}  // namespace VEXA
