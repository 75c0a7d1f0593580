// A text and what a parse has made of it so far: a value that grows step by step.
#pragma once

#include "Grammar/UVGrammarLexer.h"
#include "Grammar/UVGrammarParser.h"
#include "Grammar/UVGrammarRuleWatch.h"
#include "Interfaces/IUVDBErrorInfo.h"
#include "Parser/ParseResult.h"
#include "Preparation/PreparedText.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

// What one attempt at the text has found. Places are bytes of the prepared text.
struct SParseFindings
{
    CParseResult result;                       // the tree, raw and then flattened, or the coloring map
    std::vector<SUnexpectedToken> unexpected;  // in order of arrival
    std::vector<SDiscardedText> discarded;     // ascending and apart; only if the host asked for LOST_TEXT
    std::optional<SUnfinishedText> unfinished; // what the text left open at its end
    SUsedRules usedRules;                      // of the grammar; only if the host asked for COVERAGE
};

struct SParsedText
{
    Uve::U8CString text;                    // the host's; from the preparation on, the prepared text
    std::vector<std::uint32_t> sourceLines; // of the prepared text; empty if no pass kept them
    const char* preparedBy = "";            // the name of the pass
    // Of the first attempt: the second one prepares a prepared text.
    std::vector<SPreparationNote> notes;
    SParseFindings findings; // of the attempt that stands
    std::shared_ptr<IUVDBErrorInfo> error;
    bool isOutOfMemory = false; // whatever else the error says
};
