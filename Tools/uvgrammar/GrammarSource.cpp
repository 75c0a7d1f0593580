#include "Tools/uvgrammar/GrammarSource.h"

SSourcePlace CGrammarSource::Place(int line, int column) const
{
    const CAssembledText::SOrigin* const origin = m_Text.OriginOf(line);
    if (origin == nullptr)
        return m_Files->Main().PlaceOfLine(0);
    return origin->file->PlaceOfLine(origin->line, origin->isWrittenOut ? 0 : column);
}

bool CGrammarSource::IsShared(int line) const
{
    const CAssembledText::SOrigin* const origin = m_Text.OriginOf(line);
    return origin != nullptr && m_Files->IsShared(*origin->file);
}

int CGrammarSource::ListOf(int line) const
{
    const CAssembledText::SOrigin* const origin = m_Text.OriginOf(line);
    return origin == nullptr ? 0 : origin->list;
}

const SSourcePlace* CGrammarSource::WordsOf(int line) const
{
    const CAssembledText::SOrigin* const origin = m_Text.OriginOf(line);
    return origin == nullptr || origin->words == 0 ? nullptr
                                                   : &m_Words[static_cast<std::size_t>(origin->words) - 1];
}
