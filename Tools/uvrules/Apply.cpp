#include "Tools/uvrules/Apply.h"

#include "Stylesheets/XslTransform.h"
#include "Tools/Support/ToolExitCodes.h"
#include "Tools/Support/ToolFiles.h"
#include "Tools/Support/ToolMessages.h"
#include "Tools/uvrules/BadInput.h"
#include "Tools/uvrules/PackedFiles.h"
#include "Tools/uvrules/TraceText.h"
#include "UVEnvironment/UVEXml.h"

#include <libxml/tree.h>

#include <memory>
#include <string>

namespace uvrules {

namespace {

struct SDocumentFree
{
    void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
};

using DocumentOwner = std::unique_ptr<xmlDoc, SDocumentFree>;

void AddParameters(const SCommandLine& line, Uve::XslTransform& transform)
{
    for (const auto& [name, expression] : line.parameters)
        transform.addParam(name, expression);
    for (const auto& [name, path] : line.xmlParameters) {
        const Uve::u8string xml(ReadWholeFile(path));
        // The library would leave the parameter out.
        if (!DocumentOwner(Uve::XmlDocument::createDocumentXml(xml).doc()))
            throw CBadInput(path + ": isn't well-formed XML");
        transform.addParamXML(name, xml);
    }
}

} // namespace

int Apply(const SCommandLine& line, CToolMessages& messages)
{
    const std::string& stylesheetPath = line.operands[0];
    const std::string& treePath = line.operands[1];
    CTraceText trace;
    const std::string stylesheet = PlainContent(stylesheetPath, ReadWholeFile(stylesheetPath));
    const std::string tree = ReadWholeFile(treePath);

    Uve::XslTransform transform(stylesheet.data(), stylesheet.size());
    DocumentOwner result;
    if (!transform.HasError()) {
        AddParameters(line, transform);
        result.reset(transform.apply(tree.data(), tree.size()));
    }
    if (!result) {
        if (!trace.Write(messages, enSeverity::Error) && transform.HasError())
            messages.Error(MessageText(transform.GetErrorText().c_str()));
        messages.Error(stylesheetPath + " can't be applied to " + treePath);
        return kToolFindings;
    }
    trace.Write(messages, enSeverity::Note);
    const Uve::u8string text = Uve::XmlDocument::save(result.get(), false, false);
    WriteStandardOutput({text.data(), text.bytes()});
    return kToolClean;
}

} // namespace uvrules
