// What a grammar must keep to so that the engine loses no text and parses what the author meant. The checks
// compare the author's actions with the tables as loaded back and write their findings as messages.
#pragma once

#include "Tools/Support/ToolMessages.h"
#include "Tools/uvgrammar/ActionText.h"
#include "Tools/uvgrammar/Generators.h"
#include "Tools/uvgrammar/GrammarSource.h"
#include "Tools/uvgrammar/LoadBack.h"
#include "Tools/uvgrammar/ParserReport.h"

#include <set>
#include <string>
#include <string_view>

// Before the tables are written: whether the generated texts are of the form that table files need.
void CheckScannerForm(const CGrammarSource& source, const SGeneratedFiles& files, CToolMessages& messages);
void CheckParserForm(const CGrammarSource& source, const SGeneratedFiles& files, CToolMessages& messages);

// Actions, start conditions and tokens of the scanner. `used` takes the tokens that its rules make.
void CheckScannerRules(const CGrammarSource& source, const SGeneratedFiles& files,
                       const SLoadedTables& tables, CToolMessages& messages, std::set<std::string>& used);
// Rules that no text can match, and text that no rule matches.
void CheckScannerReach(const CGrammarSource& source, const SGeneratedFiles& files,
                       const SLoadedTables& tables, CToolMessages& messages);

void CheckParserRules(const CGrammarSource& source, const SGeneratedFiles& files, const SParserReport& report,
                      const SLoadedTables& tables, CToolMessages& messages);

// Whether the names of nodes keep to what rules are written against: their form, those of lists, and an element of its own
// for each statement.
void CheckStyle(const CGrammarSource& source, const SGeneratedFiles& files, const SParserReport& report,
                CToolMessages& messages);

// ---- Shared by the checks ----

// The statements of an action, with a message for each that can't be read; compared with the record that the
// engine will run in its place. Actions come in the order of their rules: `isStored` is true before the
// first, and false from one on that can't be read, since the records after it are lost with it.
SActionStatements CheckAction(const SActionCase& action, const CActionsMap& loaded,
                              const CGrammarSource& source, CToolMessages& messages, bool& isStored);

// Names of tokens and nodes become names of XML elements.
bool IsElementName(std::string_view name);

// True if the word is a decimal number.
bool IsNumber(std::string_view word);

// The value of "#define <name> <number>" in generated text, -1 without it.
int DefinedNumber(std::string_view text, std::string_view name);
