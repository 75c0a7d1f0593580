#include "Tools/uvgrammar-score/Statements.h"

#include "Tools/uvparse/MarkupScanner.h"
#include "Tools/uvparse/TreeText.h"

#include <algorithm>

namespace uvscore {

namespace {

using uvparse::enFinding;
using uvparse::enMarkup;
using uvparse::SFinding;
using uvparse::SMarkup;

constexpr std::string_view kBlanks = " \t\r\n\f";
constexpr char kDataLinkEscape = '\x10';

// Bytes of a character by its first one.
std::size_t CharacterSize(char first)
{
    const auto byte = static_cast<unsigned char>(first);
    return byte < 0xC0 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
}

// Steps through a text as the characters of its tree come. Flattening keeps every character but form feeds, though it
// may write it otherwise: a line end, a control character.
class CTextFollower
{
public:
    explicit CTextFollower(std::string_view text) : m_Text(text) {}

    std::size_t GetOffset() const { return m_Offset; }
    bool IsAtEnd()
    {
        SkipFormFeeds();
        return m_Offset == m_Text.size() && !m_IsBeyond;
    }

    // Where the next character of the tree stands.
    std::size_t NextOffset()
    {
        SkipFormFeeds();
        return m_Offset;
    }

    // `content` is text between tags, as it stands there.
    void Follow(std::string_view content)
    {
        while (!content.empty()) {
            std::size_t taken = CharacterSize(content.front());
            if (content.front() == '&')
                taken = std::min(content.find(';'), content.size() - 1) + 1;
            SkipFormFeeds();
            if (m_Offset >= m_Text.size()) {
                m_IsBeyond = true;
                return;
            }
            if (m_Text[m_Offset] == kDataLinkEscape && content.starts_with(uvparse::kDataLinkEscapeWord))
                taken = uvparse::kDataLinkEscapeWord.size();
            if (m_Text[m_Offset] == '\r' && content.front() == '\n' &&
                m_Text.substr(m_Offset).starts_with("\r\n"))
                ++m_Offset;
            m_Offset = std::min(m_Offset + CharacterSize(m_Text[m_Offset]), m_Text.size());
            content.remove_prefix(std::min(taken, content.size()));
        }
    }

private:
    void SkipFormFeeds()
    {
        while (m_Offset < m_Text.size() && m_Text[m_Offset] == '\f')
            ++m_Offset;
    }

    std::string_view m_Text;
    std::size_t m_Offset = 0;
    bool m_IsBeyond = false; // the tree has more text than this one
};

// Walks a tree: hands out its tags, and the place of each token.
class CPlacedTree
{
public:
    CPlacedTree(std::string_view tree, std::string_view text)
        : m_Tree(tree.substr(0, tree.find_last_not_of(kBlanks) + 1)), m_Scanner(m_Tree), m_Follower(text)
    {}

    // The next start or end of an element. At the end of a token its text has been passed.
    bool Next(SMarkup& markup)
    {
        while (m_Scanner.Next(markup)) {
            if (markup.kind == enMarkup::Text) {
                if (m_Depth > 0)
                    m_Follower.Follow(markup.text);
                continue;
            }
            if (markup.kind == enMarkup::Start)
                ++m_Depth;
            else if (markup.kind == enMarkup::End)
                --m_Depth;
            if (markup.kind != enMarkup::Other)
                return true;
        }
        return false;
    }

    std::size_t GetOffset() { return m_Follower.GetOffset(); }
    std::size_t NextOffset() { return m_Follower.NextOffset(); }
    // Whether the tree was read to its end, and the text with it.
    bool IsWhole() { return m_Scanner.IsAtEnd() && m_Depth == 0 && m_Follower.IsAtEnd(); }

private:
    std::string_view m_Tree;
    uvparse::CMarkupScanner m_Scanner;
    CTextFollower m_Follower;
    int m_Depth = 0;
};

struct SElement
{
    SStatement statement;
    bool hasToken = false;
    bool isDelimiterOnly = true;
};

// The outermost statement elements.
// Returns: false if the tree is of another text.
bool ReadElements(std::string_view tree, std::string_view prepared, std::vector<SElement>& elements)
{
    CPlacedTree walk(tree, prepared);
    std::size_t depth = 0; // of statement elements alone
    std::size_t delimiters = 0;
    bool isDecided = false;
    for (SMarkup markup; walk.Next(markup);) {
        const bool isStart = markup.kind == enMarkup::Start;
        const bool isEnd = markup.kind == enMarkup::End;
        if (uvparse::IsStatementElement(markup.name) && (isStart || isEnd)) {
            if (isStart && depth++ == 0) {
                elements.emplace_back();
                elements.back().statement.tree = markup.text;
                isDecided = false;
            } else if (isEnd && depth > 0 && --depth == 0) {
                std::string_view& own = elements.back().statement.tree;
                own = {own.data(),
                       static_cast<std::size_t>(markup.text.data() + markup.text.size() - own.data())};
            }
            continue;
        }
        if (depth == 0)
            continue;
        SElement& element = elements.back();
        if (markup.name == uvparse::kDelimiterElement && (isStart || isEnd))
            delimiters = isStart ? delimiters + 1 : delimiters - std::min<std::size_t>(delimiters, 1);
        else if (isStart && !isDecided && delimiters == 0 &&
                 (uvparse::IsTokenElement(markup.name) || markup.name == uvparse::kLostElement)) {
            isDecided = true;
            element.isDelimiterOnly = false;
            element.statement.isRead = uvparse::IsTokenElement(markup.name);
        }
        if (uvparse::IsTokenElement(markup.name) && isStart && !element.hasToken) {
            element.hasToken = true;
            element.statement.begin = walk.NextOffset();
        }
        if (uvparse::IsTokenElement(markup.name) && isEnd)
            element.statement.end = walk.GetOffset();
    }
    return walk.IsWhole();
}

SStatement WholeText(std::string_view tree, std::string_view prepared, std::size_t findings)
{
    SStatement whole;
    whole.begin = prepared.find_first_not_of(kBlanks);
    whole.end = prepared.find_last_not_of(kBlanks) + 1;
    whole.isRead = !tree.empty();
    whole.tree = tree;
    for (std::size_t i = 0; i < findings; ++i)
        whole.findings.push_back(i);
    return whole;
}

// Text that was lost between two statements is the next one where that is a mere delimiter, and otherwise one by itself.
void AddFindings(std::vector<SElement>& elements, const std::vector<SFinding>& findings)
{
    std::vector<std::size_t> order(findings.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = i;
    std::ranges::stable_sort(order, {}, [&](std::size_t i) { return findings[i].offset; });
    std::size_t at = 0;
    for (const std::size_t index : order) {
        const SFinding& finding = findings[index];
        while (at < elements.size() && elements[at].statement.end <= finding.offset)
            ++at;
        const bool isBefore = at == elements.size() || finding.offset < elements[at].statement.begin;
        // An unexpected end is that of the statement before, unless text was lost since.
        const bool isOfLast = isBefore && at > 0 && at == elements.size() && finding.length == 0;
        if (isOfLast) {
            elements[at - 1].statement.findings.push_back(index);
            continue;
        }
        if (isBefore && (at == elements.size() || !elements[at].isDelimiterOnly)) {
            SElement lost;
            lost.hasToken = true;
            lost.isDelimiterOnly = false;
            lost.statement.begin = finding.offset;
            lost.statement.end = std::max(finding.offset + finding.length, finding.offset + 1);
            elements.insert(elements.begin() + static_cast<std::ptrdiff_t>(at), lost);
        } else if (isBefore) {
            elements[at].statement.begin = finding.offset;
        }
        SStatement& statement = elements[at].statement;
        statement.findings.push_back(index);
        if (!statement.isRead && finding.kind == enFinding::SkippedText)
            statement.end = std::max(statement.end, finding.offset + finding.length);
    }
}

} // namespace

std::vector<SStatement> FindStatements(std::string_view tree, std::string_view prepared,
                                       const std::vector<SFinding>& findings)
{
    std::vector<SStatement> statements;
    if (prepared.find_first_not_of(kBlanks) == std::string_view::npos)
        return statements;
    std::vector<SElement> elements;
    if (tree.empty() || !ReadElements(tree, prepared, elements) || elements.empty()) {
        statements.push_back(WholeText(tree, prepared, findings.size()));
        return statements;
    }
    std::erase_if(elements, [](const SElement& element) { return !element.hasToken; });
    AddFindings(elements, findings);
    for (SElement& element : elements) {
        // A delimiter alone is an empty statement.
        if (!element.isDelimiterOnly || !element.statement.findings.empty())
            statements.push_back(std::move(element.statement));
    }
    return statements;
}

std::vector<STokenPlace> FindTokens(std::string_view tree, std::string_view prepared)
{
    std::vector<STokenPlace> tokens;
    CPlacedTree walk(tree, prepared);
    for (SMarkup markup; walk.Next(markup);) {
        if (!uvparse::IsTokenElement(markup.name))
            continue;
        if (markup.kind == enMarkup::Start)
            tokens.push_back({markup.name, walk.NextOffset(), walk.NextOffset()});
        else if (markup.kind == enMarkup::End && !tokens.empty())
            tokens.back().end = walk.GetOffset();
    }
    if (!walk.IsWhole())
        tokens.clear();
    return tokens;
}

} // namespace uvscore
