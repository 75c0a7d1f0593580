// From a flex file and a bison file to the table directory of a language.
#pragma once

#include "Tools/Support/ToolExitCodes.h"
#include "Tools/Support/ToolMessages.h"
#include "Tools/uvgrammar/Generators.h"
#include "Tools/uvgrammar/GrammarSource.h"

#include <cstdint>
#include <memory>
#include <string>

struct SGrammarBuild
{
    std::string lexerPath;
    std::string parserPath;
    std::string outputPath;   // the language's directory
    std::string name;         // of the language
    std::string depfilePath;  // takes the names of all files that were read, for make or ninja; empty: none
    std::string expandedPath; // takes the two sources as flex and bison read them; empty: they aren't kept
    bool isStyled = false;    // nodes whose names don't keep to the style are refused
    bool explainsConflicts = false; // by texts that have two meanings, which may take a minute to find
};

// A grammar as the generators read it, and what they made of it. The files themselves are gone.
struct SGeneratedGrammar
{
    CGrammarSource scanner;
    CGrammarSource parser;
    SGeneratedFiles files = {};
};

// Of what flex and bison read: sources with one checksum give the same tables.
std::uint32_t SourcesChecksum(const CGrammarSource& scanner, const CGrammarSource& parser);

// Writes the tables, unless the grammar is refused; then the directory stays as it was.
// Returns: kToolClean, or kToolFindings with the reasons in `messages`. `report` takes the counts as text; `generated`,
//          unless null, takes what the tables were made of, if they are written.
// Throws:  CToolFailure if the work couldn't be done.
enToolExit BuildGrammar(const SGrammarBuild& build, CToolMessages& messages, std::string& report,
                        std::unique_ptr<const SGeneratedGrammar>* generated = nullptr);
