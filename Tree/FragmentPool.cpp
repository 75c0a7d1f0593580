#include "Tree/FragmentPool.h"

#include "Tree/TreeCharacters.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace {

constexpr std::size_t kMostEscapedBytes = 6; // a quote as its entity

} // namespace

void CFragmentPool::NewChunk()
{
    if (m_chunks.size() == std::size_t{1} << (32 - kChunkBits))
        throw std::length_error("the text has more tokens than one tree can hold");
    const std::size_t number = m_chunks.size();
    SChunk& chunk = m_chunks.emplace_back();
    if (number < kKeptChunks)
        chunk.memory = std::move(m_kept[number]);
    if (!chunk.memory)
        try {
            chunk.memory = NewLargePage(number > 0); // most texts fill a part of the first alone
        } catch (...) {
            m_chunks.pop_back();
            throw;
        }
    if (number > 0)
        m_chunks[number - 1].count = static_cast<std::uint32_t>(m_count - m_counted);
    m_counted = m_count;
    m_used = static_cast<std::uint32_t>((m_chunks.size() - 1) << kChunkBits);
    m_end = m_used +
            (kChunkUnits - 1); // the last unit stays free, so that the end of the last chunk has a number
    if (m_chunks.size() == 1)
        m_used = 1;
    m_free = Unit(m_used);
}

FragmentRef CFragmentPool::NewTokenText(std::uint32_t element, std::string_view text, std::uint32_t line,
                                        std::int32_t pos)
{
    const auto number = static_cast<std::uint32_t>(m_texts.size());
    m_texts.emplace_back(text);
    m_isPlain = m_isPlain && IsTreeText(text);
    m_markupBytes += text.size() * kMostEscapedBytes;
    const FragmentRef fragment =
        NewToken(element, number, static_cast<std::uint32_t>(text.size()), line, pos);
    (*this)[fragment].info = SFragment::Info(enFragment::TokenText, element);
    return fragment;
}

void CFragmentPool::Release() noexcept
{
    for (std::size_t number = 0; number < std::min(m_chunks.size(), kKeptChunks); ++number)
        m_kept[number] = std::move(m_chunks[number].memory);
    m_chunks.clear();
    m_texts = {};
    m_used = 0;
    m_free = nullptr;
    m_end = 0;
    m_count = 0;
    m_counted = 0;
    m_markupBytes = 0;
    m_isPlain = true;
}
