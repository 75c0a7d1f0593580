// What a run came to, kept for a later one to compare with.
#pragma once

#include "Tools/uvgrammar-score/ScoredFile.h"

#include <cstddef>
#include <string>
#include <vector>

namespace uvscore {

// The file's form, in lines:
//     "uvgrammar score 1" tab language
//     { "file" tab path tab hash { LF ("+" | "-") begin tab size tab hash } }
// "+" is a clean statement. Hashes are hexadecimal. For example
//     uvgrammar score 1	PostgreSQL
//     file	a.sql	9c1185a5c5e9fc54
//     +0	9	cbf29ce484222325
std::string SavedText(const std::string& language, const std::vector<SScoredFile>& files);

// Of each statement no more than what is kept.
// Throws: CToolFailure if the file can't be read, is of another form or another language.
std::vector<SScoredFile> ReadSavedScore(const std::string& path, const std::string& language);

struct SComparison
{
    struct SPlace
    {
        std::string place; // file and line
        std::string text;
    };

    std::size_t better = 0; // statements
    std::vector<SPlace> worse;
    std::size_t cleanBefore = 0; // in the files that both runs have
    std::size_t cleanNow = 0;
    std::size_t statementsBefore = 0;
    std::size_t statementsNow = 0;
    std::size_t newFiles = 0;
    std::size_t missingFiles = 0;
};

// A statement got worse that was clean, and now one fails in its place; in a file that was changed since, one of the
// same text. Better is the opposite.
SComparison CompareScores(const std::vector<SScoredFile>& before, const std::vector<SScoredFile>& now);

std::string ComparisonText(const SComparison& comparison, std::size_t mostShown);

} // namespace uvscore
