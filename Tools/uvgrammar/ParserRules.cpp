#include "Tools/uvgrammar/ParserRules.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr std::array<std::string_view, 4> kOwnDirectives = {"%include", "%list", "%replace", "%without"};

bool IsOwnDirective(std::string_view word)
{
    return std::find(kOwnDirectives.begin(), kOwnDirectives.end(), word) != kOwnDirectives.end();
}

} // namespace

std::string QuotedName(std::string_view word)
{
    if (word.size() < 3 || word.front() != '"' || word.back() != '"')
        return {};
    return std::string(word.substr(1, word.size() - 2));
}

CRulesReader::CRulesReader(const CSourceFile& file, std::size_t begin, CToolMessages& messages)
    : m_File(file), m_Words(file.Text(), begin), m_Messages(messages)
{}

void CRulesReader::Error(std::size_t offset, const std::string& text)
{
    m_Messages.Write(enSeverity::Error, m_File.PlaceAt(offset), text);
}

// A name begins a rule where a colon follows it, with or without a name for its value between them.
bool CRulesReader::BeginsRule(const SBisonWord& word) const
{
    if (word.kind != enBisonWord::Name)
        return false;
    CBisonReader ahead(m_File.Text(), word.end);
    SBisonWord next = ahead.Next();
    if (next.kind == enBisonWord::Tag)
        next = ahead.Next();
    return next.kind == enBisonWord::Colon;
}

std::size_t CRulesReader::Read(std::vector<SRuleItem>& items,
                               const std::function<void(std::size_t, const std::string&)>& include)
{
    while (true) {
        const SBisonWord word = m_Words.Next();
        if (word.kind == enBisonWord::End || word.kind == enBisonWord::Sections)
            return word.begin;
        SRuleItem item;
        item.file = &m_File;
        item.begin = word.begin;
        if (BeginsRule(word)) {
            item.left = TextOf(word);
            ReadRule(std::move(item), items);
        } else if (word.kind == enBisonWord::Directive && m_Words.TextOf(word) == "%include") {
            const std::string name = QuotedName(m_Words.TextOf(m_Words.Next()));
            if (name.empty())
                Error(word.begin, "%include takes one path in quotes");
            else
                include(word.begin, name);
        } else if (word.kind == enBisonWord::Directive && IsOwnDirective(m_Words.TextOf(word)))
            ReadDirective(items, word);
        else
            SkipRest(std::move(item), items);
    }
}

// What belongs to bison ends at a semicolon or before the next rule.
void CRulesReader::SkipRest(SRuleItem item, std::vector<SRuleItem>& items)
{
    while (true) {
        const SBisonWord next = m_Words.Peek();
        if (next.kind == enBisonWord::End || next.kind == enBisonWord::Sections || BeginsRule(next) ||
            (next.kind == enBisonWord::Directive && IsOwnDirective(m_Words.TextOf(next)))) {
            item.end = next.begin;
            break;
        }
        m_Words.Next();
        if (next.kind == enBisonWord::Semicolon) {
            item.end = next.end;
            break;
        }
    }
    items.push_back(std::move(item));
}

void CRulesReader::ReadDirective(std::vector<SRuleItem>& items, const SBisonWord& directive)
{
    const std::string name = TextOf(directive);
    SRuleItem item;
    item.file = &m_File;
    SBisonWord word = m_Words.Next();
    item.begin = word.begin;
    item.replaces = name == "%replace";
    bool isList = name == "%list";
    if (item.replaces && m_Words.TextOf(word) == "%list") {
        isList = true;
        word = m_Words.Next();
    }
    if (!BeginsRule(word)) {
        Error(directive.begin, name + " is followed by a rule");
        return;
    }
    item.left = TextOf(word);
    if (isList)
        return ReadList(std::move(item), items);
    const std::size_t before = items.size();
    ReadRule(std::move(item), items);
    if (name == "%without")
        items[before].kind = enRuleItem::Without;
}

void CRulesReader::ReadRule(SRuleItem item, std::vector<SRuleItem>& items)
{
    item.kind = enRuleItem::Rule;
    SBisonWord mark = m_Words.Next();
    if (mark.kind == enBisonWord::Tag)
        mark = m_Words.Next();
    while (true) {
        SAlternative alternative;
        alternative.mark = mark.begin;
        alternative.begin = alternative.end = mark.end;
        ReadAlternative(alternative);
        item.end = alternative.end;
        item.alternatives.push_back(std::move(alternative));
        mark = m_Words.Peek();
        if (mark.kind != enBisonWord::Bar)
            break;
        m_Words.Next();
    }
    if (mark.kind == enBisonWord::Semicolon) {
        m_Words.Next();
        item.end = mark.end;
    }
    items.push_back(std::move(item));
}

void CRulesReader::ReadAlternative(SAlternative& alternative)
{
    while (true) {
        const SBisonWord word = m_Words.Peek();
        switch (word.kind) {
        case enBisonWord::End:
        case enBisonWord::Sections:
        case enBisonWord::Bar:
        case enBisonWord::Semicolon:
            return;
        case enBisonWord::Name:
            if (BeginsRule(word))
                return;
            alternative.symbols.push_back(TextOf(word));
            break;
        case enBisonWord::Text:
            alternative.symbols.push_back(TextOf(word));
            break;
        case enBisonWord::Code:
            alternative.actionBegin = word.begin;
            alternative.actionEnd = word.end;
            break;
        case enBisonWord::Directive:
            if (IsOwnDirective(m_Words.TextOf(word)))
                return;
            if (m_Words.TextOf(word) == "%words") {
                m_Words.Next();
                while (m_Words.Peek().kind == enBisonWord::Name && !BeginsRule(m_Words.Peek()))
                    alternative.groups.push_back(TextOf(m_Words.Next()));
                if (alternative.groups.empty() || !alternative.symbols.empty())
                    Error(word.begin, "%words stands alone in its alternative and takes names of groups");
                alternative.end = std::max(alternative.end, m_Words.Peek().begin);
                continue;
            }
            if (m_Words.TextOf(word) != "%empty") {
                m_Words.Next(); // its operand is no symbol of the rule
                alternative.end = m_Words.Peek().end;
            }
            break;
        default:
            break;
        }
        m_Words.Next();
        alternative.end = std::max(alternative.end, word.end);
    }
}

void CRulesReader::ReadList(SRuleItem item, std::vector<SRuleItem>& items)
{
    item.kind = enRuleItem::List;
    SListRule& list = item.list;
    list.name = list.node = item.left;
    SBisonWord word = m_Words.Next();
    if (word.kind == enBisonWord::Tag)
        word = m_Words.Next();
    list.item = TextOf(m_Words.Next());
    const std::pair<std::string_view, std::string*> kOperands[] = {
        {"%separator", &list.separator},
        {"%last", &list.last},
        {"%error", &list.error},
        {"%node", &list.node},
    };
    const std::pair<std::string_view, bool*> kSwitches[] = {
        {"%trailing", &list.hasTrailing},
        {"%deep", &list.isDeep},
    };
    const auto named = [&](const auto& entry) { return entry.first == m_Words.TextOf(word); };
    for (word = m_Words.Next(); word.kind == enBisonWord::Directive; word = m_Words.Next()) {
        const auto operand = std::find_if(std::begin(kOperands), std::end(kOperands), named);
        const auto choice = std::find_if(std::begin(kSwitches), std::end(kSwitches), named);
        if (operand != std::end(kOperands) && m_Words.Peek().kind == enBisonWord::Name)
            *operand->second = TextOf(m_Words.Next());
        else if (choice != std::end(kSwitches))
            *choice->second = true;
        else
            Error(
                word.begin,
                "a list takes %separator TOKEN, %trailing, %last SYMBOL, %error NODE, %deep and %node NODE");
    }
    item.end = word.end;
    if (word.kind != enBisonWord::Semicolon)
        Error(word.begin, "a list names one symbol, and ends at a semicolon");
    if (list.hasTrailing && !list.last.empty())
        Error(item.begin, "a list with another last item doesn't end in a separator");
    if (list.separator.empty() && list.hasTrailing)
        Error(item.begin, "a list without a separator can't end in one");
    items.push_back(std::move(item));
}
