// Declarations of host variables and types in the "$" notation.
#include "Preparation/ESQLPatterns.h"

#include <algorithm>
#include <array>

namespace Esql {

namespace {

bool IsNameCharacter(char character)
{
    const char lower = Lower(character);
    return (lower >= 'a' && lower <= 'z') || (character >= '0' && character <= '9') || character == '_' ||
           static_cast<unsigned char>(character) > 127;
}

std::size_t NameEnd(std::string_view text, std::size_t at)
{
    while (at < text.size() && IsNameCharacter(text[at]))
        ++at;
    return at;
}

// The places where a declaration may end: a hit is the shortest text up to one of them, but a declaration
// with braces goes on after them. Braces inside of braces aren't looked at, so these end at the first "}".
class CDeclarationEnds
{
public:
    CDeclarationEnds(std::string_view text, const CTypeNames& types)
        : m_Text(text), m_Types(types), m_Semicolon(text, ';'), m_Open(text, '{'), m_Close(text, '}'),
          m_Bar(text, '|'), m_Caret(text, '^'), m_Quote(text, '\''), m_Return(text, '\r'),
          m_LineFeed(text, '\n')
    {}

    // The place after the ";" of the declaration that "$" at `dollar` begins; kNowhere if it begins none.
    std::size_t Declaration(std::size_t dollar)
    {
        const std::size_t word = SkipSpace(m_Text, dollar + 1);
        m_TypeCount = 0;
        if (BeginsWithWord(m_Text, word, "parameter"))
            AddTypeAt(SkipSpace(m_Text, word + 9));
        AddTypeAt(word);
        const auto last = m_TypeEnds.begin() + static_cast<std::ptrdiff_t>(m_TypeCount);

        for (auto type = m_TypeEnds.begin(); type != last; ++type) {
            const std::size_t semicolon = m_Semicolon.From(*type);
            if (semicolon != kNowhere && semicolon < m_Open.From(*type))
                return semicolon + 1;
        }
        for (auto type = m_TypeEnds.begin(); type != last; ++type) {
            const std::size_t open = m_Open.From(*type);
            if (open != kNowhere && open < m_Return.From(*type) && open < m_LineFeed.From(*type))
                if (const std::size_t end = BehindBraces(open); end != kNowhere)
                    return end;
        }
        if (const std::size_t end = StructOverLines(word); end != kNowhere)
            return end;
        if (BeginsWithBuiltInType(m_Text, word))
            return Behind(m_Semicolon.From(word));
        return kNowhere;
    }

    // The same for a "$typedef" of one of the starting types.
    std::size_t PlainTypedef(std::size_t dollar)
    {
        const std::size_t word = SkipSpace(m_Text, dollar + 1);
        if (!BeginsWithWord(m_Text, word, "typedef"))
            return kNowhere;
        const std::size_t type = SkipSpace(m_Text, word + 7);
        const std::size_t typeEnd = NameEnd(m_Text, type);
        if (SkipSpace(m_Text, typeEnd) > typeEnd && IsStartingType(m_Text.substr(type, typeEnd - type)))
            return PlainTypedefFrom(typeEnd);
        const std::size_t binary = BinaryTypeEnd(m_Text, type);
        if (binary == kNowhere)
            return kNowhere;
        // more white space has to stand after the type's own
        const std::size_t blanks = SkipSpace(m_Text, binary);
        const std::size_t quoted = QuotedEnd(blanks);
        if (quoted != kNowhere && SkipSpace(m_Text, quoted) - quoted > 1)
            if (const std::size_t end = PlainTypedefFrom(quoted); end != kNowhere)
                return end;
        return blanks - binary > 1 ? PlainTypedefFrom(blanks) : kNowhere;
    }

    // The same for a "$typedef struct" without a name of its own, or with a starting type for it.
    std::size_t StructTypedef(std::size_t dollar)
    {
        std::size_t at = SkipSpace(m_Text, dollar + 1);
        for (const std::string_view word : {"typedef", "struct"}) {
            if (!BeginsWith(m_Text, at, word))
                return kNowhere;
            at = SkipSpace(m_Text, at + word.size());
        }
        const std::size_t nameEnd = NameEnd(m_Text, at);
        if (IsStartingType(m_Text.substr(at, nameEnd - at))) {
            at = SkipSpace(m_Text, nameEnd);
        } else if (const std::size_t binary = BinaryTypeEnd(m_Text, at); binary != kNowhere) {
            at = SkipSpace(m_Text, binary);
            if (const std::size_t quoted = QuotedEnd(at); quoted != kNowhere)
                at = SkipSpace(m_Text, quoted);
        }
        return at < m_Text.size() && m_Text[at] == '{' ? BehindBraces(at) : kNowhere;
    }

private:
    // Adds where the rest of a declaration begins, if a type stands at `at`. The name of a type may count as
    // part of the rest, since it holds nothing that ends one.
    void AddTypeAt(std::size_t at)
    {
        if (const std::size_t binary = BinaryTypeEnd(m_Text, at); binary != kNowhere) {
            const std::size_t blanks = SkipSpace(m_Text, binary);
            if (const std::size_t quoted = QuotedEnd(blanks); quoted != kNowhere)
                m_TypeEnds[m_TypeCount++] = SkipSpace(m_Text, quoted);
            m_TypeEnds[m_TypeCount++] = blanks;
        }
        if (m_Types.BeginsAt(m_Text, at))
            m_TypeEnds[m_TypeCount++] = at;
    }

    // The place after a quoted text at `at` that white space follows.
    std::size_t QuotedEnd(std::size_t at)
    {
        if (at >= m_Text.size() || m_Text[at] != '\'')
            return kNowhere;
        const std::size_t end = Behind(m_Quote.From(at + 1));
        return end < m_Text.size() && IsSpace(m_Text[end]) ? end : kNowhere;
    }

    std::size_t PlainTypedefFrom(std::size_t at)
    {
        const std::size_t end = m_Semicolon.From(at);
        const bool isPlain = end < m_Open.From(at) && end < m_Bar.From(at) && end < m_Caret.From(at);
        return isPlain ? end + 1 : kNowhere;
    }

    std::size_t StructOverLines(std::size_t at)
    {
        if (BeginsWith(m_Text, at, "typedef"))
            at = SkipSpace(m_Text, at + 7);
        if (!BeginsWith(m_Text, at, "struct"))
            return kNowhere;
        const std::size_t open = m_Open.From(at);
        return open < m_Semicolon.From(at) ? BehindBraces(open) : kNowhere;
    }

    std::size_t BehindBraces(std::size_t open)
    {
        const std::size_t close = m_Close.From(open + 1);
        return close == kNowhere ? kNowhere : Behind(m_Semicolon.From(close + 1));
    }

    static std::size_t Behind(std::size_t at) { return at == kNowhere ? kNowhere : at + 1; }

    std::string_view m_Text;
    const CTypeNames& m_Types;
    CNextOf m_Semicolon;
    CNextOf m_Open;
    CNextOf m_Close;
    CNextOf m_Bar;
    CNextOf m_Caret;
    CNextOf m_Quote;
    CNextOf m_Return;
    CNextOf m_LineFeed;
    std::array<std::size_t, 6> m_TypeEnds{};
    std::size_t m_TypeCount = 0;
};

} // namespace

void AddDeclaratorNames(std::string_view text, std::size_t from, std::size_t end, const CComments& comments,
                        std::vector<std::string>& names)
{
    const std::size_t known = names.size();
    std::string name;
    int depth = 0;
    bool isPointer = false; // the name is the one after "(*"
    for (std::size_t at = from; at < end; ++at) {
        const char character = text[at];
        if (comments.Contains(at))
            continue;
        if (IsNameCharacter(character)) {
            const std::size_t nameEnd = NameEnd(text.substr(0, end), at);
            const bool isFunction = depth == 1 && !isPointer && [&] {
                std::size_t before = at;
                while (before > from && (IsSpace(text[before - 1]) || text[before - 1] == '*'))
                    --before;
                return before > from && text[before - 1] == '(' &&
                       text.substr(before, at - before).find('*') != kNowhere;
            }();
            if (isFunction || (depth == 0 && !isPointer)) {
                name.assign(text.substr(at, std::min(nameEnd - at, CTypeNames::kLongestName + 1)));
                isPointer = isFunction;
            }
            at = nameEnd - 1;
        } else if (character == '(' || character == '[') {
            ++depth;
        } else if (character == ')' || character == ']') {
            --depth;
        } else if (character == '}' || (character == ',' && depth <= 0)) {
            if (character == '}') {
                names.resize(known);
                depth = 0;
            } else {
                names.push_back(name);
            }
            name.clear();
            isPointer = false;
        }
    }
    names.push_back(name);
}

std::vector<std::string> FindTypeNames(std::string_view text, const CComments& comments)
{
    const CTypeNames startingTypes;
    CDeclarationEnds ends(text, startingTypes);
    std::vector<std::string> names;
    for (const auto find : {&CDeclarationEnds::PlainTypedef, &CDeclarationEnds::StructTypedef}) {
        std::size_t behind = 0;
        for (std::size_t dollar = text.find('$'); dollar != kNowhere; dollar = text.find('$', behind)) {
            const std::size_t end = comments.Contains(dollar) ? kNowhere : (ends.*find)(dollar);
            behind = end == kNowhere ? dollar + 1 : end;
            if (end == kNowhere)
                continue;
            AddDeclaratorNames(text, dollar + 1, end - 1, comments, names);
        }
    }
    return names;
}

std::vector<SDeclaration> FindDeclarations(std::string_view text, const CComments& comments,
                                           const CTypeNames& types)
{
    std::vector<SDeclaration> declarations;
    const std::vector<SSpan> statements = FindStatements(text, comments);
    const std::vector<SSpan> sections = FindDeclareSections(text, comments);
    CSpanCursor statement(statements);
    CSpanCursor section(sections);
    CDeclarationEnds ends(text, types);
    std::size_t behind = 0;
    for (std::size_t dollar = text.find('$'); dollar != kNowhere; dollar = text.find('$', behind)) {
        behind = dollar + 1;
        if (comments.Contains(dollar) || statement.IsInside(dollar))
            continue;
        // a type of the source may begin like a word of the table
        if (ClassifyDollar(text.substr(dollar + 1)) != enDollar::Nothing &&
            BinaryTypeEnd(text, SkipSpace(text, dollar + 1)) == kNowhere)
            continue;
        const std::size_t end = ends.Declaration(dollar);
        if (end == kNowhere)
            continue;
        declarations.push_back({dollar, end, section.IsInside(dollar)});
        behind = end;
    }
    return declarations;
}

} // namespace Esql
