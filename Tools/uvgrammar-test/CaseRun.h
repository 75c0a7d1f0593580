// What a language makes of the text of a case.
#pragma once

#include "Tools/uvgrammar-score/ScoredFile.h"
#include "Tools/uvgrammar-test/CaseFile.h"

#include <map>
#include <string>

namespace uvtest {

struct SCaseResult
{
    std::string problem; // why the case fails whatever it expects; empty: it doesn't
    TLines lines;        // the tree's outline, and the findings
};

// Runs the cases of one language, each as if there were no other. An object serves one process: it loads the library.
class CCaseRunner
{
public:
    explicit CCaseRunner(uvparse::SLanguage language) : m_Language(std::move(language)) {}

    // `path`: of the case's file.
    // Throws: uvscore::CCannotWork if the language can't be loaded.
    SCaseResult Run(const SCase& one, const std::string& path);

private:
    uvparse::SLanguage m_Language;
    std::map<uvparse::TOptions, uvscore::CTextParser> m_Parsers; // by the options of their database info
};

// As a text that another process sends, and back again.
std::string WriteCaseResult(const SCaseResult& result);
SCaseResult ReadCaseResult(const std::string& text);

} // namespace uvtest
