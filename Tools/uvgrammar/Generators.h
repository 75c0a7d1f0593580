// Running flex and bison. Their messages come out as the tool's own, with the name of the source as it was
// given.
#pragma once

#include "Tools/Support/ToolMessages.h"
#include "Tools/uvgrammar/GrammarSource.h"

#include <string>
#include <string_view>

// The texts that the generators wrote. The names matter to the readers of table files: only the scanner's
// contain "Lexer".
struct SGeneratedFiles
{
    std::string lexerPath;       // flex's C file
    std::string lexerHeaderPath; // with the numbers of the start conditions
    std::string parserPath;      // bison's C file, cleaned for the extractor of actions
    std::string lexerText;
    std::string parserText;   // as bison wrote it
    std::string parserReport; // bison's report
};

// What the generators said of a grammar that they refused has been written to `messages`; the files are of no
// use then.
// Throws: CToolFailure if a generator isn't there or its files can't be read or written.
void RunFlex(const CGrammarSource& source, const std::string& folder, SGeneratedFiles& files,
             CToolMessages& messages);
// `explains`: all conflicts are told, not only a few, and texts that show them as far as bison finds them in a minute.
void RunBison(const CGrammarSource& source, const std::string& folder, SGeneratedFiles& files,
              CToolMessages& messages, bool explains = false);

// The %define of lr.default-reduction in a bison source; line 0 if there is none, and bison is told to take
// "consistent".
struct SDefaultReduction
{
    int line = 0;
    std::string value;
};
SDefaultReduction FindDefaultReduction(std::string_view source);

// bison's C text without what would mislead the extractor: the symbols of the rule after "case 5:", which
// may look like code, bison's own rows in the enumeration of tokens, and the comments there.
std::string CleanParserText(const std::string& text);
