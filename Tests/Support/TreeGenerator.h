// Random trees for the flattening: element names that have a role in it, in orders that the rules care about,
// with all that XML text can hold. The same choices give the same tree on every machine.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <span>
#include <string>
#include <string_view>

// Where the generator's decisions come from: a seed, or bytes that somebody else varies.
class CChoices
{
public:
    explicit CChoices(std::uint64_t seed) : m_Random(seed) {}
    explicit CChoices(std::span<const std::uint8_t> bytes) : m_Bytes(bytes), m_IsRandom(false) {}

    // 0 to `count` - 1. Bytes that are used up give 0, which is the plainest choice everywhere.
    std::size_t Below(std::size_t count);
    bool Once(std::size_t in) { return Below(in) == in - 1; }

private:
    std::mt19937_64 m_Random;
    std::span<const std::uint8_t> m_Bytes;
    bool m_IsRandom = true;
};

struct SGeneratedTree
{
    std::string text;
    // Nothing in it but elements, attributes, text and comments, well-formed: what a parse, or a flattening,
    // may give.
    bool isPlain = true;
};

class CTreeGenerator
{
public:
    explicit CTreeGenerator(CChoices choices) : m_Choices(std::move(choices)) {}

    // Some dozen elements. One in sixteen isn't plain.
    SGeneratedTree Tree();
    // A plain tree of at least `elements` elements, under "SQL".
    std::string LargeTree(std::size_t elements);

private:
    void Start(std::string_view name, bool hasAttributes = false);
    void End(std::string_view name);
    void Empty(std::string_view name);
    void Attributes();
    void AttributeValue();
    void Text(std::size_t pieces);
    void Comment();
    void Filler();
    void Element(std::string_view parent, int depth);
    void Content(std::string_view name, int depth);
    void Space();
    void Token(std::string_view name);
    void Macro(std::string_view parent);
    void Chain(std::string_view name, int depth);
    void Delimiter();
    void Statement(int depth);
    void LabeledStatement(int depth);
    void DelimitedStatement(int depth);
    void Body(int depth);
    void StatementList(int depth);
    void Damage();

    template <class T, std::size_t N>
    const T& Of(const T (&values)[N])
    {
        return values[m_Choices.Below(N)];
    }

    CChoices m_Choices;
    std::string m_strText;
    std::size_t m_nElements = 0;
    std::size_t m_nLimit = 0; // no new children beyond
    bool m_CanBeOdd = true;
    bool m_IsPlain = true;
};

// The tree of a script that holds a list of `items` items, as a grammar rule that begins (left-recursive) or
// ends with itself leaves it.
std::string ListTree(std::string_view list, std::size_t items, bool isLeftRecursive);
