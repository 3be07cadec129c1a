// Documents of registered elements, attributes and values, changed element by element, painted as a display list and
// as SVG.

#include <algorithm>
#include <cstring>

#include "fuzz/support/DocumentPainting.h"
#include "fuzz/support/Fault.h"
#include "fuzz/support/PictureFaults.h"
#include "fuzz/targets/TreeMutator.h"

using namespace VEXA::Fuzz;

namespace {

constexpr int kMalformedXml[] = {3000, 3017};

std::size_t copied(const std::vector<std::uint8_t>& tree, std::uint8_t* out, std::size_t most) {
    const std::size_t size = std::min(tree.size(), most);
    if (size != 0) std::memcpy(out, tree.data(), size);
    return size;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string document = documentOf({data, size});
    const Painting list = paint(document, &displayListSurface);
    expectNoFault(list.fault);
    expect(std::ranges::find(kMalformedXml, list.refusal) == std::end(kMalformedXml), "the tree is no XML");
    expectNoFault(displayListFault(list.bytes));
    const Painting svg = paint(document, &svgSurface);
    expect(svg.refusal == list.refusal, "a document is refused on one surface and painted on the other");
    if (svg.refusal == 0) expectNoFault(svgFault(svg.bytes));
    return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t most, unsigned seed) {
    return copied(mutatedTree({data, size}, seed), data, most);
}

extern "C" std::size_t LLVMFuzzerCustomCrossOver(const std::uint8_t* data, std::size_t size, const std::uint8_t* other,
                                                 std::size_t otherSize, std::uint8_t* out, std::size_t most,
                                                 unsigned seed) {
    return copied(crossedTree({data, size}, {other, otherSize}, seed), out, most);
}
