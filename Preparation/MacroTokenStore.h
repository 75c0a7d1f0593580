// What the token lists of one run share: the memory of their tokens, the texts that these point into, and the
// names of macros and files. Whoever makes the store lets it outlive the lists.
#pragma once

#include "Preparation/MacroToken.h"

#include <cstddef>
#include <cstdint>
#include <forward_list>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace MacroPreprocessorChecker::internal {

using FileNames = std::vector<std::string>;

// Memory for tokens. A source of some megabytes is some millions of them; those that a run has done with are
// used again while they are still in the caches.
class TokenPool
{
public:
    TokenPool() = default;
    ~TokenPool();
    TokenPool(const TokenPool&) = delete;
    TokenPool& operator=(const TokenPool&) = delete;

    // A token whose members have no values yet.
    // Throws: std::bad_alloc.
    Token* Take()
    {
        if (m_Free == nullptr)
            AddBlock();
        Token* const token = m_Free;
        m_Free = token->next;
        return token;
    }

    // Takes back the tokens from `first` to `last`, which are linked by their `next`.
    void Give(Token* first, Token* last);

private:
    void AddBlock();

    Token* m_Free = nullptr; // linked by `next`
    std::vector<std::unique_ptr<Token[]>> m_Blocks;
};

// Names as numbers: each name has one, from 1, however often it stands in the texts of the run.
class NameTable
{
public:
    NameTable();

    // Borrows `name`, which outlives the table.
    std::uint32_t Number(std::string_view name);
    // 0 if the name has no number.
    std::uint32_t Find(std::string_view name) const;

private:
    struct SEntry
    {
        std::string_view name;
        std::size_t hash = 0;
    };

    std::size_t SlotOf(std::string_view name, std::size_t hash) const;
    void Grow();

    std::vector<SEntry> m_Entries;      // by number; the first is nobody's
    std::vector<std::uint32_t> m_Slots; // numbers, each at its hash or after it; 0: free. A power of two
};

class TokenStore
{
public:
    // Keeps a text as long as the store lives.
    std::string_view Keep(std::string text) { return m_Texts.emplace_front(std::move(text)); }

    // Empty if there is no such file.
    const std::string& FileName(const Location& location) const
    {
        static const std::string none;
        return location.fileIndex < files.size() ? files[location.fileIndex] : none;
    }

    FileNames files;
    NameTable names;
    TokenPool pool;

private:
    std::forward_list<std::string> m_Texts;
};

} // namespace MacroPreprocessorChecker::internal
