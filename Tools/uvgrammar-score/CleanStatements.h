// The clean statements of a text: what experiments with texts start from.
#pragma once

#include "Tools/uvgrammar-score/ScoredFile.h"
#include "Tools/uvgrammar-score/Statements.h"

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace uvscore {

struct SCleanStatement
{
    std::size_t begin = 0; // bytes of the prepared text
    std::size_t end = 0;
    std::string form; // of its tree
    std::vector<STokenPlace> tokens;
};

// A file in the form that experiments change: the parser gets every byte of `prepared` as it stands there.
// Throws: CToolFailure if the file can't be read, or its preparation changes what it has prepared before.
SParsedText ParseForExperiments(CTextParser& parser, const std::string& path);

// In their order, and those alone that have a tree.
// Borrows: the tree, for the names of the tokens.
std::vector<SCleanStatement> FindCleanStatements(const SParsedText& text);

// A part of a tree without places and spaces: equal for texts that say the same.
std::string FormOf(std::string_view tree);

// How many samples each file gives so that all together are `samples` at most, by its number of statements. Where there are
// fewer statements than samples each gives one.
std::vector<std::size_t> ShareSamples(const std::vector<SScoredFile>& files, std::size_t samples);

// Numbers that are the same in every run: of one seed and one file.
class CChance
{
public:
    CChance(std::uint64_t seed, std::string_view path) : m_Engine(seed ^ HashOf(path)) {}
    // From 0 to `count`, which isn't 0.
    std::size_t Below(std::size_t count) { return static_cast<std::size_t>(m_Engine() % count); }

private:
    std::mt19937_64 m_Engine;
};

} // namespace uvscore
