#include "Preparation/MacroTokenStore.h"

#include <functional>

// With a sanitizer each token is a block of its own, so that a use after its end of life is seen.
#if defined(__SANITIZE_ADDRESS__)
#define UV_SEPARATE_TOKENS 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define UV_SEPARATE_TOKENS 1
#endif
#endif

namespace MacroPreprocessorChecker::internal {

// ---- TokenPool ----

#ifdef UV_SEPARATE_TOKENS

TokenPool::~TokenPool()
{
    delete m_Free;
}

void TokenPool::AddBlock()
{
    m_Free = new Token;
    m_Free->next = nullptr;
}

void TokenPool::Give(Token* first, Token* last)
{
    while (first != last)
        delete std::exchange(first, first->next);
    delete last;
}

#else

namespace {

constexpr std::size_t kBlockTokens = 512;

} // namespace

TokenPool::~TokenPool() = default;

void TokenPool::AddBlock()
{
    m_Blocks.push_back(std::make_unique_for_overwrite<Token[]>(kBlockTokens));
    Token* const block = m_Blocks.back().get();
    for (std::size_t i = 0; i + 1 < kBlockTokens; ++i)
        block[i].next = &block[i + 1];
    block[kBlockTokens - 1].next = nullptr;
    m_Free = block;
}

void TokenPool::Give(Token* first, Token* last)
{
    last->next = m_Free;
    m_Free = first;
}

#endif

// ---- NameTable ----

NameTable::NameTable() : m_Entries(1), m_Slots(1024) {}

std::uint32_t NameTable::Number(std::string_view name)
{
    const std::size_t hash = std::hash<std::string_view>{}(name);
    const std::size_t slot = SlotOf(name, hash);
    if (m_Slots[slot] != 0)
        return m_Slots[slot];
    const auto number = static_cast<std::uint32_t>(m_Entries.size());
    m_Entries.push_back({name, hash});
    m_Slots[slot] = number;
    if (m_Entries.size() * 2 > m_Slots.size())
        Grow();
    return number;
}

std::uint32_t NameTable::Find(std::string_view name) const
{
    return m_Slots[SlotOf(name, std::hash<std::string_view>{}(name))];
}

// The slot of a name, or the free one where it belongs.
std::size_t NameTable::SlotOf(std::string_view name, std::size_t hash) const
{
    const std::size_t mask = m_Slots.size() - 1;
    std::size_t slot = hash & mask;
    while (m_Slots[slot] != 0) {
        const SEntry& entry = m_Entries[m_Slots[slot]];
        if (entry.hash == hash && entry.name == name)
            break;
        slot = (slot + 1) & mask;
    }
    return slot;
}

void NameTable::Grow()
{
    m_Slots.assign(m_Slots.size() * 2, 0);
    const std::size_t mask = m_Slots.size() - 1;
    for (std::uint32_t number = 1; number < m_Entries.size(); ++number) {
        std::size_t slot = m_Entries[number].hash & mask;
        while (m_Slots[slot] != 0)
            slot = (slot + 1) & mask;
        m_Slots[slot] = number;
    }
}

} // namespace MacroPreprocessorChecker::internal
