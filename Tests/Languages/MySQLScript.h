// Scripts of MySQL cut into what a server can be asked about, by the language's own tree.
#pragma once

#include "Tools/uvgrammar-score/CleanStatements.h"
#include "Tools/uvgrammar-score/ScoredFile.h"
#include "Tools/uvgrammar-score/Statements.h"

#include <cstddef>
#include <string>
#include <vector>

struct SScriptStatement
{
    uvscore::SStatement statement;
    std::vector<uvscore::STokenPlace> tokens; // of the statement with its delimiter
    std::size_t begin = 0; // bytes of the prepared text: with the comments before it, which may run
    std::string text;      // without a delimiter, as the server gets it
    std::string delimiter; // unless it is a semicolon, or one that `text` can do without

    // A command of the client, which no server is asked.
    bool IsOfClient() const;
    // Of a routine, trigger or event with a body.
    bool HasBody() const;
    // A script of it alone.
    std::string AloneText(const std::string& changed) const;
    // What AloneText puts before the text.
    std::size_t AloneOffset() const;
};

// Borrows: the tree, for the names of the tokens.
std::vector<SScriptStatement> CutMySqlScript(const uvscore::SParsedText& parsed);
