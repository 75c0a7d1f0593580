#include "Tools/uvgrammar/EndRules.h"

#include "Tools/uvgrammar/ActionText.h"
#include "Tools/uvgrammar/GrammarChecks.h"

#include <algorithm>
#include <cctype>
#include <set>
#include <sstream>

namespace {

// The names that lines such as "%s NAME OTHER" of the source's first section declare.
std::set<std::string> InclusiveConditions(const std::string& text)
{
    std::set<std::string> names;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line) && !line.starts_with("%%");) {
        std::istringstream words(line);
        std::string word;
        if (!line.starts_with('%') || !(words >> word) || (word != "%s" && word != "%S" && word != "%start"))
            continue;
        while (words >> word && !word.starts_with("/*"))
            names.insert(word);
    }
    return names;
}

} // namespace

bool IsEndOfText(std::string_view action)
{
    std::string plain(action);
    std::erase_if(plain, [](unsigned char c) { return std::isspace(c) != 0; });
    return plain == "{yyterminate();}";
}

std::string EndRecords(const CGrammarSource& source, const SGeneratedFiles& files,
                       const std::map<std::string, int>& startConditions)
{
    std::set<std::string> ends = InclusiveConditions(source.Text());
    ends.insert("INITIAL");
    for (const SEndOfFileAction& action : ReadScannerActions(files.lexerText).endsOfFile)
        if (IsEndOfText(action.body))
            ends.insert(action.condition);
    std::set<int> rules;
    const int endOfBuffer = DefinedNumber(files.lexerText, "YY_END_OF_BUFFER");
    for (const std::string& name : ends)
        if (const auto condition = startConditions.find(name); condition != startConditions.end())
            rules.insert(endOfBuffer + condition->second + 1);
    std::string records;
    for (const int rule : rules)
        records += std::to_string(rule) + " \n";
    return records;
}
