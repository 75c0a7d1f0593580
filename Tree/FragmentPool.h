#pragma once

#include "Tree/ElementNames.h"
#include "Tree/LargeMemory.h"
#include "Tree/TreeEvents.h"
#include "Tree/TreeNames.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Note: fragments
// The tree under construction is a list of fragments, each one piece of the XML text to come: a start tag, an
// end tag, a token, a stretch of source between tokens. Lists are spliced, never copied, so a reduction costs
// its children and not their text. A fragment doesn't hold text: it names an element by number and its source
// by position, and the final pass writes both straight into the result, escaping on the way.
//
// Fragments are addressed by number, not by pointer: half the size, and the list of a long script is what a
// parse spends its memory on.
//
// Note: plain trees
// Flattening reads the fragments as they are, if they are what a raw tree's text has to be: elements properly
// nested, texts of whole characters. And it asks of an element what it will hold before it comes to that.
// Both is known where an element gets a child, so it is noted there: the marks in the parent's start tag, and
// in the pool whether all was in order. A tree that isn't plain goes on as text.

using FragmentRef = std::uint32_t;
constexpr FragmentRef kNoFragment = 0;

enum class enFragment : std::uint32_t
{
    Open,      // <name>
    Close,     // </name>
    Empty,     // <name></name>
    Space,     // source between tokens
    Token,     // a token whose text is its source
    TokenText, // a token whose text an action has replaced
};

struct SFragment
{
    FragmentRef next;
    std::uint32_t info; // kind in the low 3 bits, 2 bits of marks, a bit of a child, element number above

    static constexpr unsigned kMarkShift = 3;
    static constexpr std::uint32_t kIsChild = 1u << 5;
    static constexpr unsigned kElementShift = 6;
    static std::uint32_t Info(enFragment kind, std::uint32_t element)
    {
        return static_cast<std::uint32_t>(kind) | element << kElementShift;
    }

    enFragment Kind() const { return static_cast<enFragment>(info & 7); }
    std::uint32_t Element() const { return info >> kElementShift; }
    // Of STreeEvent's flags kHasItsName and kHasLabeled, in a start tag.
    std::uint8_t Marks() const { return static_cast<std::uint8_t>(info >> kMarkShift & 3); }
    void Mark(std::uint32_t marks) { info |= marks << kMarkShift; }
};

struct SSpaceFragment : SFragment
{
    std::uint32_t start;  // byte offset in the query
    std::uint32_t length; // bytes
};

struct STokenFragment : SFragment
{
    std::uint32_t start; // byte offset in the query; for TokenText the number of the replaced text
    std::uint32_t length;
    std::uint32_t line; // 1-based
    std::int32_t pos;
};

// Owns the fragments of one parse. They go by Release or with the pool, or one by one by Drop; the element
// names stay, and so does the memory of a parse of usual size, for the next one.
class CFragmentPool
{
public:
    CElementNames& Names() { return m_names; }
    const CElementNames& Names() const { return m_names; }

    FragmentRef NewTag(enFragment kind, std::uint32_t element);
    FragmentRef NewSpace(std::uint32_t start, std::uint32_t length);
    FragmentRef NewToken(std::uint32_t element, std::uint32_t start, std::uint32_t length, std::uint32_t line,
                         std::int32_t pos);
    // A token with a text of its own, which is copied.
    FragmentRef NewTokenText(std::uint32_t element, std::string_view text, std::uint32_t line,
                             std::int32_t pos);

    SFragment& operator[](FragmentRef fragment) { return *reinterpret_cast<SFragment*>(Unit(fragment)); }
    const SFragment& operator[](FragmentRef fragment) const
    {
        return *reinterpret_cast<const SFragment*>(Unit(fragment));
    }
    // Fetches what a walk along a list will most probably come to: lists follow the memory, but for the tags
    // of what holds much.
    void FetchAhead(FragmentRef fragment) const { __builtin_prefetch(Unit(fragment) + kFetchUnits); }

    const std::string& Text(std::uint32_t number) const { return m_texts[number]; }
    const std::vector<std::string>& Texts() const { return m_texts; }

    // ---- See the note on plain trees ----

    // Says that the finished element that begins with `child` is put into an element named `parent`.
    // Returns: the marks that it brings its parent.
    std::uint32_t TakeChild(std::uint32_t parent, FragmentRef child);
    // Says that a fragment stands for this slice of the query, which ends in a NUL.
    void TakeSlice(const char* query, std::size_t start, std::size_t length)
    {
        if (IsInsideCharacter(query[start]) || IsInsideCharacter(query[start + length])) [[unlikely]]
            m_isPlain = false;
    }
    // Whether all was in order since the last Release: no element was put into two others or is a space that
    // holds elements, no character was cut, no token was given a text that is none.
    bool IsPlain() const { return m_isPlain; }

    // How many fragments were made since the last Release.
    std::size_t Count() const { return m_count; }
    // At least the bytes of their markup, and few more: what the source adds to them isn't counted.
    std::size_t MarkupBytes() const { return m_markupBytes; }

    // Whether both stand in the same large piece of memory.
    static bool AreInOnePiece(FragmentRef a, FragmentRef b) { return a >> kChunkBits == b >> kChunkBits; }
    // Says that this fragment, or `count` in its piece of memory, aren't looked at any more. Once that is said
    // of all in it the piece goes back to the system; the last one stays.
    void Drop(FragmentRef fragment, std::uint32_t count = 1)
    {
        SChunk& chunk = m_chunks[fragment >> kChunkBits];
        chunk.count -= count;
        if (chunk.count == 0 && m_chunks.size() > kKeptChunks)
            chunk.memory.reset();
    }

    // Forgets all fragments.
    void Release() noexcept;

private:
    // A unit is 8 bytes; a chunk is one large page, and unit 0 of the first stands for "none".
    static constexpr unsigned kChunkBits = 18;
    static constexpr std::uint32_t kChunkUnits = 1u << kChunkBits;
    static constexpr std::uint32_t kChunkMask = kChunkUnits - 1;
    static_assert(kChunkUnits * sizeof(std::uint64_t) == kLargePageBytes);
    static constexpr std::size_t kFetchUnits = 64;
    static constexpr std::size_t kKeptChunks = 8; // some two megabytes of source

    struct SChunk
    {
        LargePage memory;
        std::uint32_t count = 0; // fragments in use, once the next chunk has begun
    };

    std::uint64_t* Unit(FragmentRef fragment) const
    {
        return static_cast<std::uint64_t*>(m_chunks[fragment >> kChunkBits].memory.get()) +
               (fragment & kChunkMask);
    }

    template <class T>
    T& Allocate(FragmentRef& fragment, enFragment kind, std::uint32_t element)
    {
        static_assert(sizeof(T) % sizeof(std::uint64_t) == 0);
        constexpr std::uint32_t kUnits = sizeof(T) / sizeof(std::uint64_t);
        if (m_used + kUnits > m_end)
            NewChunk();
        fragment = m_used;
        T* const made = new (m_free) T;
        m_used += kUnits;
        m_free += kUnits;
        ++m_count;
        made->next = kNoFragment;
        made->info = SFragment::Info(kind, element);
        return *made;
    }
    // Throws: std::length_error beyond 32 GiB of fragments.
    void NewChunk();
    static bool IsInsideCharacter(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

    CElementNames m_names;
    std::vector<SChunk> m_chunks;
    std::array<LargePage, kKeptChunks> m_kept; // for the chunk of that number
    std::vector<std::string> m_texts;
    std::uint32_t m_used = 0;        // next free unit
    std::uint64_t* m_free = nullptr; // the same in memory
    std::uint32_t m_end = 0;         // end of the last chunk
    std::size_t m_count = 0;
    std::size_t m_counted = 0; // in the chunks before the last
    std::size_t m_markupBytes = 0;
    bool m_isPlain = true;
};

inline FragmentRef CFragmentPool::NewTag(enFragment kind, std::uint32_t element)
{
    FragmentRef fragment = kNoFragment;
    Allocate<SFragment>(fragment, kind, element);
    if (element == TreeNames::kSpace) [[unlikely]]
        m_isPlain = false; // whether it will hold characters isn't marked
    // every start tag has its end tag, so half of a pair is counted for each
    m_markupBytes += m_names[element].close.size() << (kind == enFragment::Empty ? 1 : 0);
    return fragment;
}

inline FragmentRef CFragmentPool::NewSpace(std::uint32_t start, std::uint32_t length)
{
    FragmentRef fragment = kNoFragment;
    auto& made = Allocate<SSpaceFragment>(fragment, enFragment::Space, TreeNames::kSpace);
    made.start = start;
    made.length = length;
    m_markupBytes += kSpaceOpen.size() + kSpaceClose.size();
    return fragment;
}

inline FragmentRef CFragmentPool::NewToken(std::uint32_t element, std::uint32_t start, std::uint32_t length,
                                           std::uint32_t line, std::int32_t pos)
{
    FragmentRef fragment = kNoFragment;
    auto& made = Allocate<STokenFragment>(fragment, enFragment::Token, element);
    made.start = start;
    made.length = length;
    made.line = line;
    made.pos = pos;
    const SElementName& name = m_names[element];
    constexpr std::size_t kTokenEnd = 2; // quote and bracket
    m_markupBytes += name.tokenOpen.size() + kTokenPos.size() + kTokenEnd + name.close.size();
    m_markupBytes += line < 10000 && pos < 100 ? 6 : 2 * kMostDigits;
    return fragment;
}

inline std::uint32_t CFragmentPool::TakeChild(std::uint32_t parent, FragmentRef child)
{
    SFragment& first = (*this)[child];
    if ((first.info & SFragment::kIsChild) != 0) [[unlikely]]
        m_isPlain = false;
    first.info |= SFragment::kIsChild;
    const std::uint32_t element = first.Element();
    return (element == parent ? STreeEvent::kHasItsName : 0U) |
           (element == TreeNames::kLabeledStatement ? STreeEvent::kHasLabeled : 0U);
}

// Appends one list of fragments to another; both ends of each list are known, so the length doesn't matter.
inline void SpliceFragments(CFragmentPool& pool, FragmentRef& first, FragmentRef& last,
                            FragmentRef otherFirst, FragmentRef otherLast)
{
    if (otherFirst == kNoFragment)
        return;
    if (first == kNoFragment)
        first = otherFirst;
    else
        pool[last].next = otherFirst;
    last = otherLast;
}
