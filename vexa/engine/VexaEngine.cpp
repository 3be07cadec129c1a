#include "vexa/engine/VexaEngine.h"

#include "vexa/engine/ChartDescription.h"
#include "vexa/engine/ClassList.h"
#include "vexa/support/core/Log.h"
#include "vexa/support/xml/SaxParserImpl.h"

namespace VEXA {

namespace {

[[noreturn]] void refuseTopElement(const XmlObject& top) {
    const String found = top.getTypeInfo()->getElementName();
    raise(UnreacheableCodeException("the top element is \"" + found + "\"; put it into a <root xmlns=\"" +
                                    String(chartNamespace().uri) + "\">"),
          "VexaEngine", 34, top.getPlace());
}

}  // namespace

XmlObjPtr<VexaRoot> VexaEngine::loadStream(SmartPtr<IO::Stream> stream) {
    const WarningLimitScope limit;
    registerAll();
    const auto parser = make<SaxParserImpl>(UnrecognizedElementTreatment::SkipWithWarning, /*inheritAttributes*/ true,
                                            /*monitor*/ nullptr, /*collectText*/ false, /*encoding*/ String());
    parser->startParsing(std::move(stream));
    const XmlObjPtr<XmlObject> top = parser->parseNextChild(nullptr, /*withContent*/ false);
    if (!top->isA(VexaRoot::typeID())) refuseTopElement(*top);
    XmlObjPtr<VexaRoot> root(static_cast<VexaRoot*>(top.get()));
    parser->parseChildContent(root);
    return root;
}

void VexaEngine::render(SmartPtr<IO::Stream> stream, SmartPtr<RenderContext> context) {
    const WarningLimitScope limit;
    loadStream(std::move(stream))->render(std::move(context), kReferenceWidth, kReferenceHeight);
}

void VexaEngine::renderPage(SmartPtr<IO::Stream> stream, SmartPtr<RenderContext> context) {
    const WarningLimitScope limit;
    const XmlObjPtr<VexaRoot> root = loadStream(std::move(stream));
    context->setDocumentInfo(describeChart(*root));
    context->beginDocument();
    context->beginPage({root->getWidth(kReferenceWidth), root->getHeight(kReferenceHeight)});
    root->render(context, kReferenceWidth, kReferenceHeight);
    context->endPage();
    context->endDocument();
}

}  // namespace VEXA
