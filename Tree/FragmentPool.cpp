#include "Tree/FragmentPool.h"

#include <stdexcept>

namespace {

constexpr std::size_t kMostEscapedBytes = 6; // a quote as its entity

} // namespace

void CFragmentPool::NewChunk()
{
    if (m_chunks.size() == std::size_t{1} << (32 - kChunkBits))
        throw std::length_error("the text has more tokens than one tree can hold");
    m_chunks.push_back(std::make_unique_for_overwrite<std::uint64_t[]>(kChunkUnits));
    m_used = static_cast<std::uint32_t>((m_chunks.size() - 1) << kChunkBits);
    m_end = m_used +
            (kChunkUnits - 1); // the last unit stays free, so that the end of the last chunk has a number
    if (m_chunks.size() == 1)
        m_used = 1;
}

FragmentRef CFragmentPool::NewTokenText(std::uint32_t element, std::string_view text, std::uint32_t line,
                                        std::int32_t pos)
{
    const auto number = static_cast<std::uint32_t>(m_texts.size());
    m_texts.emplace_back(text);
    m_markupBytes += text.size() * kMostEscapedBytes;
    const FragmentRef fragment =
        NewToken(element, number, static_cast<std::uint32_t>(text.size()), line, pos);
    (*this)[fragment].info = static_cast<std::uint32_t>(enFragment::TokenText) | element << 3;
    return fragment;
}

void CFragmentPool::Release()
{
    m_chunks.clear();
    m_chunks.shrink_to_fit();
    m_texts.clear();
    m_texts.shrink_to_fit();
    m_used = 0;
    m_end = 0;
    m_count = 0;
    m_markupBytes = 0;
}
