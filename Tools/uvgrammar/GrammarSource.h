// What a generator reads: the source that its author named, with the fragments that it includes in their places and
// the tool's own forms written out.
#pragma once

#include "Tools/Support/ToolMessages.h"
#include "Tools/uvgrammar/AssembledText.h"
#include "Tools/uvgrammar/SourceFile.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class CGrammarSource
{
public:
    // `words`: the place of each %words.
    CGrammarSource(std::unique_ptr<const CSourceFiles> files, CAssembledText text, int lists = 0,
                   std::vector<SSourcePlace> words = {})
        : m_Files(std::move(files)), m_Text(std::move(text)), m_Lists(lists), m_Words(std::move(words))
    {}

    const std::string& Text() const { return m_Text.Text(); }

    // The author's place of a line of `Text`. Lines count from 1; 0, or one that the text doesn't have, gives the
    // source without a line.
    SSourcePlace Place(int line, int column = 0) const;
    // True if the line comes from a file that other languages use too.
    bool IsShared(int line) const;
    // The number of the written-out list that the line belongs to, from 1 on; 0 for any other line.
    int ListOf(int line) const;
    int ListCount() const { return m_Lists; }
    // The number after %warnings: as many are meant; nothing without it.
    std::optional<std::size_t> MeantWarnings() const { return m_MeantWarnings; }
    void SetMeantWarnings(std::size_t count) { m_MeantWarnings = count; }
    // The place of the %words that the line is an alternative of; null for any other line.
    const SSourcePlace* WordsOf(int line) const;

    // Every file that was read.
    std::vector<std::string> Paths() const { return m_Files->Paths(); }

private:
    std::unique_ptr<const CSourceFiles> m_Files;
    CAssembledText m_Text;
    int m_Lists;
    std::vector<SSourcePlace> m_Words;
    std::optional<std::size_t> m_MeantWarnings;
};
