#include "Tools/uvgrammar/ParserRules.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr std::array<std::string_view, 5> kOwnDirectives = {"%include", "%list", "%parts", "%replace",
                                                            "%without"};

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

// A name begins a rule where a colon follows it. Between them may stand a name for its value, further names, and the action of
// alternatives that have none.
bool CRulesReader::BeginsRule(const SBisonWord& word) const
{
    if (word.kind != enBisonWord::Name)
        return false;
    CBisonReader ahead(m_File.Text(), word.end);
    SBisonWord next = ahead.Next();
    while (ahead.TextOf(next) == "," || next.kind == enBisonWord::Tag) {
        if (next.kind != enBisonWord::Tag && ahead.Next().kind != enBisonWord::Name)
            return false;
        next = ahead.Next();
    }
    if (next.kind == enBisonWord::Code)
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
    std::string form = name;
    if (item.replaces && (Is(word, "%list") || Is(word, "%parts"))) {
        form = TextOf(word);
        word = m_Words.Next();
    }
    item.left = TextOf(word);
    if (name == "%without" && word.kind == enBisonWord::Name &&
        m_Words.Peek().kind == enBisonWord::Semicolon) {
        item.kind = enRuleItem::Without;
        item.end = m_Words.Next().end;
        items.push_back(std::move(item));
        return;
    }
    if (!BeginsRule(word)) {
        Error(directive.begin, name + " is followed by a rule");
        return;
    }
    if (form == "%list" || form == "%parts") {
        if (m_Words.Peek().kind == enBisonWord::Tag)
            m_Words.Next();
        if (m_Words.Next().kind != enBisonWord::Colon)
            Error(word.begin, form + " has one name and a colon before what it is made of");
        return form == "%list" ? ReadList(std::move(item), items) : ReadPartsRule(std::move(item), items);
    }
    const std::size_t before = items.size();
    ReadRule(std::move(item), items);
    if (name == "%without")
        items[before].kind = enRuleItem::Without;
}

// Several names before the colon are several rules with the same alternatives.
void CRulesReader::ReadRule(SRuleItem item, std::vector<SRuleItem>& items)
{
    item.kind = enRuleItem::Rule;
    std::vector<SBisonWord> names;
    SBisonWord headAction;
    SBisonWord mark = m_Words.Next();
    for (; mark.kind != enBisonWord::Colon; mark = m_Words.Next()) {
        item.hasOwnHead = true;
        if (mark.kind == enBisonWord::Name)
            names.push_back(mark);
        else if (mark.kind == enBisonWord::Code)
            headAction = mark;
    }
    while (true) {
        for (SAlternative& alternative : ReadAlternative(mark, headAction)) {
            item.end = alternative.end;
            item.alternatives.push_back(std::move(alternative));
        }
        mark = m_Words.Peek();
        if (mark.kind != enBisonWord::Bar)
            break;
        m_Words.Next();
    }
    if (mark.kind == enBisonWord::Semicolon) {
        m_Words.Next();
        item.end = mark.end;
    }
    items.push_back(item);
    for (const SBisonWord& name : names) {
        item.begin = name.begin;
        item.left = TextOf(name);
        items.push_back(item);
    }
}

// Returns: more than one if parts may be left out or chosen; none if that is no rule.
std::vector<SAlternative> CRulesReader::ReadAlternative(const SBisonWord& mark, const SBisonWord& headAction)
{
    constexpr std::size_t kLimit = 64;
    SAlternative alternative;
    alternative.mark = mark.begin;
    alternative.begin = alternative.end = mark.end;
    AlternativeParts parts;
    ReadParts(alternative, parts, false);
    if (alternative.actionBegin == alternative.actionEnd && headAction.kind == enBisonWord::Code) {
        alternative.actionBegin = headAction.begin;
        alternative.actionEnd = headAction.end;
        alternative.isWrittenOut = true;
    }
    const SymbolSequences sequences = WrittenOut(parts, kLimit);
    const bool isPlain = std::all_of(parts.begin(), parts.end(), [](const SAlternativePart& part) {
        return part.choices.empty() && !part.isOptional;
    });
    if (sequences.size() > kLimit)
        Error(mark.begin, "an alternative stands for no more than 64; make a rule of some of its parts");
    else if (!isPlain && sequences.front().empty())
        Error(mark.begin, "all of the alternative may be left out; an empty one is written with %empty");
    std::vector<SAlternative> alternatives;
    for (const std::vector<std::string>& symbols : sequences) {
        alternatives.push_back(alternative);
        alternatives.back().symbols = symbols;
        alternatives.back().isWrittenOut = alternative.isWrittenOut || !isPlain;
    }
    return alternatives;
}

bool CRulesReader::EndsParts(const SBisonWord& word) const
{
    switch (word.kind) {
    case enBisonWord::End:
    case enBisonWord::Sections:
    case enBisonWord::Bar:
    case enBisonWord::Semicolon:
        return true;
    case enBisonWord::Name:
        return BeginsRule(word);
    case enBisonWord::Directive:
        return IsOwnDirective(m_Words.TextOf(word));
    default:
        return Is(word, ")");
    }
}

void CRulesReader::ReadParts(SAlternative& alternative, AlternativeParts& parts, bool isInBrackets)
{
    while (true) {
        const SBisonWord word = m_Words.Peek();
        if (EndsParts(word) && (isInBrackets || !Is(word, ")")))
            return;
        m_Words.Next();
        alternative.end = std::max(alternative.end, word.end);
        if (word.kind == enBisonWord::Name || word.kind == enBisonWord::Text)
            parts.push_back({TextOf(word), {}, false});
        else if (Is(word, "("))
            ReadBrackets(alternative, parts);
        else if (Is(word, "?") && !parts.empty())
            parts.back().isOptional = true;
        else if (word.kind == enBisonWord::Tag || Is(word, "%empty"))
            continue;
        else if (isInBrackets || Is(word, "?") || Is(word, ")"))
            Error(word.begin, std::string("'").append(m_Words.TextOf(word)).append("' can't stand here"));
        else if (word.kind == enBisonWord::Code) {
            alternative.actionBegin = word.begin;
            alternative.actionEnd = word.end;
        } else if (Is(word, "%words")) {
            if (!parts.empty())
                Error(word.begin, "%words stands alone in its alternative");
            ReadWords(alternative, word);
        } else if (word.kind == enBisonWord::Directive) {
            const SBisonWord operand = m_Words.Next(); // no symbol of the rule
            alternative.precedence = TextOf(word) + ' ' + TextOf(operand);
            alternative.end = operand.end;
        }
    }
}

void CRulesReader::ReadBrackets(SAlternative& alternative, AlternativeParts& parts)
{
    SAlternativePart brackets;
    const std::size_t begin = m_Words.Peek().begin;
    SBisonWord mark;
    do {
        ReadParts(alternative, brackets.choices.emplace_back(), true);
        if (brackets.choices.back().empty())
            Error(begin, "a choice in brackets holds nothing; '?' after the bracket allows to leave it out");
        mark = m_Words.Next();
    } while (mark.kind == enBisonWord::Bar);
    alternative.end = mark.end;
    if (!Is(mark, ")"))
        Error(begin, "the bracket is never closed");
    parts.push_back(std::move(brackets));
}

void CRulesReader::ReadWords(SAlternative& alternative, const SBisonWord& directive)
{
    while (m_Words.Peek().kind == enBisonWord::Name && !BeginsRule(m_Words.Peek()))
        alternative.groups.push_back(TextOf(m_Words.Next()));
    if (alternative.groups.empty())
        Error(directive.begin, "%words takes names of groups");
    alternative.end = std::max(alternative.end, m_Words.Peek().begin);
}

void CRulesReader::ReadList(SRuleItem item, std::vector<SRuleItem>& items)
{
    item.kind = enRuleItem::List;
    SListRule& list = item.list;
    list.name = list.node = item.left;
    SBisonWord word;
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
        {"%short", &list.isShort},
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
            Error(word.begin, "a list takes %separator TOKEN, %trailing, %last SYMBOL, %error NODE, %deep, "
                              "%short and %node NODE");
    }
    item.end = word.end;
    if (word.kind != enBisonWord::Semicolon)
        Error(word.begin, "a list names one symbol, and ends at a semicolon");
    if (list.hasTrailing && !list.last.empty())
        Error(item.begin, "a list with another last item doesn't end in a separator");
    if (list.separator.empty() && list.hasTrailing)
        Error(item.begin, "a list without a separator can't end in one");
    if (list.isShort && (list.isDeep || list.hasTrailing || !list.last.empty()))
        Error(item.begin, "a short list takes %separator, %error and %node alone");
    items.push_back(std::move(item));
}

void CRulesReader::ReadPartsRule(SRuleItem item, std::vector<SRuleItem>& items)
{
    item.kind = enRuleItem::Parts;
    SPartsRule& parts = item.parts;
    parts.name = parts.node = item.left;
    SBisonWord word = m_Words.Next();
    for (; word.kind == enBisonWord::Name; word = m_Words.Next())
        parts.symbols.push_back(TextOf(word));
    if (Is(word, "%node") && m_Words.Peek().kind == enBisonWord::Name) {
        parts.node = TextOf(m_Words.Next());
        word = m_Words.Next();
    }
    item.end = word.end;
    if (parts.symbols.size() < 2 || word.kind != enBisonWord::Semicolon)
        Error(word.begin, "%parts takes two symbols or more and %node NODE, and ends at a semicolon");
    items.push_back(std::move(item));
}
