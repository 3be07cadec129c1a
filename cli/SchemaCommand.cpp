#include "cli/SchemaCommand.h"

#include "cli/Messages.h"
#include "vexa/schema/ReferencePage.h"
#include "vexa/schema/XmlSchema.h"

namespace VEXA::Cli {

Answer describeDocuments(const SchemaOptions& options) {
    if (options.format == "xsd") return {makeXmlSchema()};
    if (options.format == "markdown") return {makeReferencePage()};
    return {"vexa schema: the format \"" + printable(options.format) +
                "\" is unknown; write xsd or markdown\nvexa schema --help tells how.\n",
            kWrongUsage};
}

}  // namespace VEXA::Cli
