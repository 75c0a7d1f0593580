// The text of a parse tree as a queue of events, read ahead only as far as somebody asks. Nothing is built:
// an event says where in the text a tag or a run of characters stands. Positions and lengths are bytes.
//
// The reader takes the XML that trees are made of: elements and attributes with plain ASCII names, text,
// comments inside the root, the five predefined entities and character references, and one of the two
// declaration lines in front. Anything else (DOCTYPE, CDATA, processing instructions, name spaces ...) and
// anything that isn't well-formed is declined.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

// Thrown where the text holds something that the reader declines.
struct STreeDeclined
{};

enum class enTreeEvent : std::uint8_t
{
    Start,
    End,
    Leaf, // an element that holds nothing but one run of characters, or nothing: `extent` bytes behind its
          // tag
    Text,
    Comment, // its content, without the dashes
    Finish   // behind the root
};

struct STreeEvent
{
    // What is known of an element. Those about its content may be set later: see CTreeEvents::Knows.
    static constexpr std::uint8_t kHasItsName = 1;     // a child of the same name
    static constexpr std::uint8_t kHasLabeled = 2;     // a child that is a labeled statement
    static constexpr std::uint8_t kHasDelimiter = 4;   // a child that is a delimiter
    static constexpr std::uint8_t kHasCharacters = 8;  // its string value isn't empty
    static constexpr std::uint8_t kIsVerbatimTag = 16; // a serialiser would write the tag as it stands
    // Text, comment, a leaf's content: a serialiser would write it as it stands.
    static constexpr std::uint8_t kIsVerbatim = 32;
    static constexpr std::uint8_t kIsEmptyTag = 64; // "<a/>"

    std::uint64_t offset;
    std::uint32_t name;   // of an element, as CTreeEvents::Name takes it
    std::uint32_t length; // of the tag with its brackets, the characters, the comment's content
    // Leaf: see there. Start: events from here to the end event, 0 while that isn't read.
    std::uint32_t extent;
    enTreeEvent kind;
    std::uint8_t flags;
};

// The names that flattening treats specially; their numbers are the same for every text.
enum enTreeName : std::uint32_t
{
    kStatements,
    kBodyStatements,
    kDelimitedStatements,
    kDelimitedStatement,
    kLabeledStatement,
    kStatement,
    kDelimiter,
    kLabel,
    kFullStatement,
    kExpression,
    kConcatItemList,
    kAccumulateExpression,
    kMainSourceSection,
    kDataDivisionClause,
    kSpace,
    kTreeNameCount,
    kNoName = 0xFFFFFFFF
};

class CTreeEvents
{
public:
    // Borrows `text` for its own lifetime. What stands before every event that is still asked for may be
    // overwritten. Throws: STreeDeclined.
    explicit CTreeEvents(std::string_view text);

    // The event number `index`, counted from 0. Valid until the next call that reads ahead.
    // Throws: STreeDeclined.
    const STreeEvent& At(std::uint64_t index)
    {
        while (index >= m_End)
            ReadOn();
        return Stored(index);
    }

    // Reads until one of `flags` is set on the element at `index`, or its end is known.
    // Returns: true if one is set. Throws: STreeDeclined.
    bool Knows(std::uint64_t index, std::uint8_t flags);

    // The event behind the whole element at `index`. Throws: STreeDeclined.
    std::uint64_t Behind(std::uint64_t index);

    // Gives the memory of all events before `index` back; they aren't asked for again.
    void Forget(std::uint64_t index);

    std::string_view Name(std::uint32_t name) const { return m_Names[name]; }
    bool IsTerminal(std::uint32_t name) const { return m_Names[name].starts_with("T__"); }

    std::string_view Slice(std::uint64_t offset, std::uint64_t length) const
    {
        return m_Text.substr(offset, length);
    }

private:
    static constexpr unsigned kBlockBits = 12;
    static constexpr std::uint64_t kBlockMask = (std::uint64_t{1} << kBlockBits) - 1;

    struct SOpen
    {
        std::uint64_t index;
        std::uint32_t name;
        bool hasCharacters = false;
    };

    STreeEvent& Stored(std::uint64_t index)
    {
        return m_Blocks[(index >> kBlockBits) - m_FirstBlock][index & kBlockMask];
    }
    bool IsRetained(std::uint64_t index) const { return (index >> kBlockBits) >= m_FirstBlock; }
    // What becomes known of an element whose event may be forgotten already.
    void Mark(SOpen& open, std::uint8_t flags)
    {
        open.hasCharacters = open.hasCharacters || (flags & STreeEvent::kHasCharacters) != 0;
        if (IsRetained(open.index))
            Stored(open.index).flags |= flags;
    }
    void AppendText(std::size_t from, bool isVerbatim);
    STreeEvent& AppendElement(enTreeEvent kind, std::uint32_t name, std::uint8_t flags, std::size_t from,
                              std::size_t length);
    STreeEvent& Append(enTreeEvent kind, std::uint64_t offset, std::uint64_t length);
    std::uint32_t Intern(std::string_view name);

    void ReadProlog();
    void ReadOn();
    void ReadMarkup();
    void ReadStartTag();
    void ReadEndTag();
    void ReadComment();

    // Each steps over what it checks. Returns: true if a serialiser would write it as it stands.
    bool StepCharacters();
    bool StepAttributes();
    bool StepValue();
    bool StepReference();
    bool StepMultibyte();
    void StepBehindEndTag(std::uint32_t name);
    unsigned char Byte() const { return static_cast<unsigned char>(m_Text[m_At]); }
    bool IsAtEnd() const { return m_At == m_Text.size(); }
    void Demand(bool condition) const
    {
        if (!condition)
            throw STreeDeclined();
    }
    void StepBlanks();
    std::string_view StepName();

    std::string_view m_Text;
    std::size_t m_At = 0;
    bool m_IsRootRead = false;
    std::deque<std::unique_ptr<STreeEvent[]>> m_Blocks;
    std::uint64_t m_FirstBlock = 0;
    std::uint64_t m_End = 0; // events read
    std::vector<SOpen> m_Open;
    std::vector<std::string_view> m_AttributeNames; // of the tag at hand
    std::deque<std::string> m_NameTexts;
    std::vector<std::string_view> m_Names; // of m_NameTexts
    std::unordered_map<std::string_view, std::uint32_t> m_Numbers;
    // The name that was last met with each sum of length and outer letters, or kNoName. Saves the hash.
    std::vector<std::uint32_t> m_Recent;
};

// Whether an element of that name, and text that holds these characters, are of the plain form.
bool IsTreeName(std::string_view name);
bool IsTreeText(std::string_view text);

enum class enRun
{
    Text,
    Value,  // of an attribute: white space that isn't written as a reference becomes blanks
    Comment // nothing is a reference
};

// The characters that a run of a tree stands for, appended to `out`: references decoded, line ends as line
// feeds, what XML has no place for as "^": control characters, U+FFFE and U+FFFF.
void AppendCharacters(std::string_view run, enRun kind, std::string& out);

// The same as a serialiser writes it again.
void AppendSerialised(std::string_view run, enRun kind, std::string& out);

// Plain characters as a serialiser writes them into the value of an attribute.
void AppendEscapedValue(std::string_view characters, std::string& out);
