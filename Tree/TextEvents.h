// The events of a tree that is XML text.
//
// The reader takes the XML that trees are made of: elements and attributes with plain ASCII names, text,
// comments inside the root, the five predefined entities and character references, and one of the declaration
// lines in front. Anything else (DOCTYPE, CDATA, processing instructions, name spaces ...) and anything that
// isn't well-formed is declined.
#pragma once

#include "Tree/TextBlock.h"
#include "Tree/TreeAttributes.h"
#include "Tree/TreeEvents.h"
#include "Tree/TreeNames.h"

#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

// Thrown where the text holds something that the reader declines.
struct STreeDeclined
{};

class CTextEvents final : public CTreeEvents
{
public:
    // Borrows `text` for its own lifetime.
    // Throws: STreeDeclined, as all that reads on.
    explicit CTextEvents(std::string_view text);

    // Reads until one of `flags` is set on the element at `index`, or its end is known.
    // Returns: true if one is set.
    bool Knows(std::uint64_t index, std::uint8_t flags);

    // Of an element, by the number that its events bear.
    std::string_view Name(std::uint32_t name) const { return m_Names[name]; }
    bool IsTerminal(std::uint32_t name) const { return m_Names[name].starts_with("T__"); }

    // What a serialiser writes: a whole leaf, a start tag without its closing bracket, an end tag, the
    // characters of a text or a leaf, a comment.
    void WriteLeaf(const STreeEvent& event, CTextBlock& out);
    void WriteStart(const STreeEvent& event, CTextBlock& out);
    void WriteEnd(std::uint32_t name, CTextBlock& out) const;
    void WriteCharacters(const STreeEvent& event, CTextBlock& out);
    void WriteComment(const STreeEvent& event, CTextBlock& out);

    TreeAttributes Attributes(const STreeEvent& event) const
    {
        return ReadAttributes(m_Text.substr(event.offset, event.length));
    }
    // The characters that a text or a leaf stands for.
    void AppendCharactersOf(const STreeEvent& event, std::string& out) const;

private:
    struct SOpen
    {
        std::uint64_t index;
        std::uint32_t name;
        bool hasCharacters = false;
    };

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
    STreeEvent& AppendEvent(enTreeEvent kind, std::uint64_t offset, std::uint64_t length);
    std::uint32_t Intern(std::string_view name);
    std::string_view Characters(const STreeEvent& event) const;

    void ReadProlog();
    void ReadOn() override;
    void ReadMarkup();
    void ReadStartTag();
    void ReadEndTag();
    void ReadComment();

    // Each steps over what it checks.
    // Returns: true if a serialiser would write it as it stands.
    bool StepCharacters();
    bool StepAttributes();
    bool StepValue();
    bool StepReference();
    bool StepMultibyte();
    void StepOverEndTag(std::uint32_t name);
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
    std::vector<SOpen> m_Open;
    std::vector<std::string_view> m_AttributeNames; // of the tag at hand
    std::deque<std::string> m_NameTexts;
    std::vector<std::string_view> m_Names; // of m_NameTexts
    std::unordered_map<std::string_view, std::uint32_t> m_Numbers;
    // The name that was last met with each sum of length and outer letters, or kNoName. Saves the hash.
    std::vector<std::uint32_t> m_Recent;
    std::string m_Piece; // of text that is written otherwise than it was read
};
