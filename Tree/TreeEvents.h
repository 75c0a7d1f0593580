// A parse tree as a queue of events, read ahead only as far as somebody asks. Nothing is built: an event says
// where its source has a tag or a run of characters. What reads them is told at CTextEvents, for XML text,
// and at CFragmentEvents, for fragments.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

enum class enTreeEvent : std::uint8_t
{
    Start,
    End,
    Leaf, // an element that holds nothing but one run of characters, or nothing
    Text,
    Comment,
    Finish // after the root
};

struct STreeEvent
{
    // What is known of an element. In events of a text, those about its content may be set later: see
    // CTextEvents::Knows.
    static constexpr std::uint8_t kHasItsName = 1;     // a child of the same name
    static constexpr std::uint8_t kHasLabeled = 2;     // a child that is a labeled statement
    static constexpr std::uint8_t kHasCharacters = 4;  // its string value isn't empty
    static constexpr std::uint8_t kIsVerbatimTag = 16; // a serialiser would write the tag as it stands
    // Text, comment, a leaf's content: a serialiser would write it as it stands.
    static constexpr std::uint8_t kIsVerbatim = 32;
    static constexpr std::uint8_t kIsEmptyTag = 64; // "<a/>"

    // Text: bytes before the tag with its brackets, the characters, the comment's content; `length` is how
    // long that is. Fragments: the fragment; no length.
    std::uint64_t offset;
    std::uint32_t name; // of an element
    std::uint32_t length;
    // Leaf: bytes of its characters. Start: events from here to the end event, 0 while that isn't read.
    std::uint32_t extent;
    enTreeEvent kind;
    std::uint8_t flags;
};

// The queue. What reads derives from it and says how one event follows the other.
class CTreeEvents
{
public:
    CTreeEvents(const CTreeEvents&) = delete;
    CTreeEvents& operator=(const CTreeEvents&) = delete;

    // The event number `index`, counted from 0. Valid until the next call that reads ahead.
    // Throws: as the reader does.
    const STreeEvent& At(std::uint64_t index)
    {
        while (index >= m_End)
            ReadOn();
        return Stored(index);
    }

    // The event after the whole element at `index`.
    std::uint64_t After(std::uint64_t index)
    {
        if (At(index).kind != enTreeEvent::Start)
            return index + 1;
        while (Stored(index).extent == 0)
            ReadOn();
        return index + Stored(index).extent + 1;
    }

    // Events before `index` aren't asked for again: their memory is free for others.
    void Forget(std::uint64_t index)
    {
        while ((index >> kBlockBits) > m_FirstBlock) {
            Forgotten(Block(m_FirstBlock));
            ++m_FirstBlock;
        }
    }

protected:
    static constexpr unsigned kBlockBits = 12;
    static constexpr std::uint64_t kBlockMask = (std::uint64_t{1} << kBlockBits) - 1;

    CTreeEvents() : m_Ring(kFirstBlocks) {}
    ~CTreeEvents() = default;

    // Appends at least one event.
    virtual void ReadOn() = 0;
    // A block of events, kBlockMask + 1 of them, is about to go.
    virtual void Forgotten(const STreeEvent* /*events*/) {}

    // A new event, to be filled.
    STreeEvent& Append()
    {
        if ((m_End & kBlockMask) == 0)
            NewBlock();
        return Stored(m_End++);
    }
    STreeEvent& Stored(std::uint64_t index) { return Block(index >> kBlockBits)[index & kBlockMask]; }
    bool IsRetained(std::uint64_t index) const { return (index >> kBlockBits) >= m_FirstBlock; }
    std::uint64_t End() const { return m_End; } // events read

private:
    static constexpr std::size_t kFirstBlocks = 4; // a power of two, as all sizes of the ring

    STreeEvent* Block(std::uint64_t number) { return m_Ring[number & m_RingMask].get(); }
    void NewBlock();

    // Block `number` stands at its number modulo the size.
    std::vector<std::unique_ptr<STreeEvent[]>> m_Ring;
    std::uint64_t m_RingMask = kFirstBlocks - 1;
    std::uint64_t m_FirstBlock = 0;
    std::uint64_t m_End = 0;
};
