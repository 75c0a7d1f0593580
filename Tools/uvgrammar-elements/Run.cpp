#include "Tools/uvgrammar-elements/Run.h"

#include "Tools/Support/ToolExitCodes.h"
#include "Tools/Support/ToolFiles.h"
#include "Tools/uvgrammar-elements/ElementsReport.h"

#include <filesystem>

namespace uvelements {

int Run(const SCommandLine& line, CToolMessages& messages)
{
    if (line.isHelp) {
        WriteStandardOutput(HelpText());
        return kToolClean;
    }
    const uvscore::SLanguageSources sources = uvscore::FindLanguageSources(line.language);
    SNodeRules rules;
    ReadNodeRules(sources, messages, rules);
    if (messages.ErrorCount() > 0) {
        messages.Error("grammar " + sources.name + " refused");
        return kToolFindings;
    }
    SLanguageElements elements{sources.name, DescribeElements(rules), FindExamples(line.language)};
    // What is left of a text after a mistake doesn't show how an element looks.
    for (const STreeElement& element : elements.tree.elements)
        if (const auto found = elements.examples.find(element.name);
            found != elements.examples.end() && found->second.hasMistake && !element.isOfErrors)
            elements.examples.erase(found);
    const std::string text = line.isJson ? ElementsJson(elements) : ElementsPage(elements);
    if (line.isCheck) {
        if (std::filesystem::exists(line.output) && ReadWholeFile(line.output) == text)
            return kToolClean;
        messages.Error(line.output + " isn't what the sources of " + sources.name +
                       " say; write it anew without --check");
        return kToolFindings;
    }
    if (line.output.empty())
        WriteStandardOutput(text);
    else
        WriteWholeFile(line.output, text);
    return kToolClean;
}

} // namespace uvelements
