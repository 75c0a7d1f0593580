// What a language makes of the text of a case.
#pragma once

#include "Tools/uvgrammar-score/ScoredFile.h"
#include "Tools/uvgrammar-test/CaseFile.h"

#include <map>
#include <string>

namespace uvtest {

struct SCaseResult
{
    std::string problem;  // why the case fails whatever it expects; empty: it doesn't
    TLines lines;         // the tree's outline, and the findings
    std::string coverage; // as the library tells it, where that was asked for
};

// Runs the cases of one language, each as if there were no other. An object serves one process: it loads the library.
class CCaseRunner
{
public:
    // `isCoverage`: the library is asked for the rules that each text uses.
    CCaseRunner(uvparse::SLanguage language, bool isCoverage)
        : m_Language(std::move(language)), m_IsCoverage(isCoverage)
    {}

    // `path`: of the case's file.
    // Throws: uvscore::CCannotWork if the language can't be loaded.
    SCaseResult Run(const SCase& one, const std::string& path);
    // What a file uses.
    // Throws: CToolFailure if it can't be read; uvscore::CCannotWork.
    std::string CoverageOf(const std::string& path) { return ParserWith({}).ParseFile(path).result.coverage; }

private:
    uvscore::CTextParser& ParserWith(const uvparse::TOptions& options);

    uvparse::SLanguage m_Language;
    bool m_IsCoverage;
    std::map<uvparse::TOptions, uvscore::CTextParser> m_Parsers; // by the options of their database info
};

// As a text that another process sends, and back again.
std::string WriteCaseResult(const SCaseResult& result);
SCaseResult ReadCaseResult(const std::string& text);

} // namespace uvtest
