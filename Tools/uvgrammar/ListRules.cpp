#include "Tools/uvgrammar/ListRules.h"

#include <string_view>
#include <vector>

namespace {

constexpr int kEight = 8;

// Writes one symbol's rule after the other.
class CRuleWriter
{
public:
    explicit CRuleWriter(std::string_view node) : m_Node(node) {}

    void Begin(const std::string& symbol)
    {
        m_Text += symbol + '\n';
        m_IsFirst = true;
    }
    // Without a node the alternative passes on its one symbol.
    void Alternative(const std::vector<std::string>& symbols, bool makesNode = true)
    {
        m_Text += m_IsFirst ? "    :" : "    |";
        m_IsFirst = false;
        for (const std::string& symbol : symbols)
            m_Text.append(1, ' ').append(symbol);
        if (makesNode)
            m_Text.append(" { CREATE_NODE(")
                .append(m_Node)
                .append(", ")
                .append(std::to_string(symbols.size()))
                .append("); }");
        m_Text += '\n';
    }
    void End() { m_Text += "    ;\n"; }

    std::string Take() { return std::move(m_Text); }

private:
    std::string_view m_Node;
    std::string m_Text;
    bool m_IsFirst = true;
};

// `count` symbols with the separator between them, if there is one.
std::vector<std::string> Repeated(const std::string& symbol, const std::string& separator, int count)
{
    std::vector<std::string> symbols;
    for (int i = 0; i < count; ++i) {
        if (i > 0 && !separator.empty())
            symbols.push_back(separator);
        symbols.push_back(symbol);
    }
    return symbols;
}

std::vector<std::string> Joined(std::vector<std::string> symbols, const std::string& separator,
                                const std::string& last)
{
    if (!separator.empty() && !symbols.empty())
        symbols.push_back(separator);
    symbols.push_back(last);
    return symbols;
}

std::string ShortRules(const SListRule& list)
{
    CRuleWriter rules(list.node);
    rules.Begin(list.name);
    rules.Alternative({list.item});
    rules.Alternative(Joined({list.name}, list.separator, list.item));
    rules.End();
    return rules.Take();
}

// Chunks of eight items, and the chunks one after the other.
std::string FlatRules(const SListRule& list)
{
    const std::string chunks = list.name + "_chunks";
    const std::string chunk = list.name + "_chunk";
    const std::string part = list.name + "_part";
    CRuleWriter rules(list.node);
    rules.Begin(list.name);
    rules.Alternative({part}, false);
    rules.Alternative(Joined({chunks}, list.separator, part));
    if (list.hasTrailing)
        rules.Alternative({chunks, list.separator});
    rules.End();
    rules.Begin(chunks);
    rules.Alternative({chunk}, false);
    rules.Alternative(Joined({chunks}, list.separator, chunk));
    rules.End();
    rules.Begin(chunk);
    rules.Alternative(Repeated(list.item, list.separator, kEight));
    rules.End();
    rules.Begin(part);
    if (!list.last.empty())
        rules.Alternative({list.last});
    for (int count = 1; count <= kEight; ++count) {
        const std::vector<std::string> items = Repeated(list.item, list.separator, count);
        rules.Alternative(items);
        if (list.hasTrailing && count < kEight)
            rules.Alternative(Joined(items, "", list.separator));
        if (!list.last.empty() && count < kEight)
            rules.Alternative(Joined(items, list.separator, list.last));
    }
    rules.End();
    return rules.Take();
}

// Chunks of eight items, blocks of eight chunks, sections of eight blocks, and the sections one after the other.
// What doesn't fill one of them is a rest: up to seven whole ones and the rest of the next.
std::string DeepRules(const SListRule& list)
{
    const auto named = [&](const char* ending) { return list.name + ending; };
    struct SLevel
    {
        std::string part, whole, rest;
    };
    const SLevel kLevels[] = {
        {named("_block"), named("_section"), named("_section_rest")},
        {named("_chunk"), named("_block"), named("_block_rest")},
        {list.item, named("_chunk"), named("_chunk_rest")},
    };
    const std::string sections = named("_sections");
    const std::string& separator = list.separator;
    CRuleWriter rules(list.node);
    rules.Begin(list.name);
    rules.Alternative({sections}, false);
    rules.Alternative(Joined({sections}, separator, kLevels[0].rest));
    if (list.hasTrailing)
        rules.Alternative({sections, separator});
    rules.Alternative({kLevels[0].rest}, false);
    rules.End();
    rules.Begin(sections);
    rules.Alternative({kLevels[0].whole}, false);
    rules.Alternative(Joined({sections}, separator, kLevels[0].whole));
    rules.End();
    for (const SLevel& level : kLevels) {
        rules.Begin(level.whole);
        rules.Alternative(Repeated(level.part, separator, kEight));
        rules.End();
    }
    for (std::size_t i = 0; i + 1 < std::size(kLevels); ++i) {
        const SLevel& level = kLevels[i];
        const std::string& rest = kLevels[i + 1].rest;
        rules.Begin(level.rest);
        rules.Alternative({rest}, false);
        for (int count = 1; count < kEight; ++count) {
            const std::vector<std::string> parts = Repeated(level.part, separator, count);
            rules.Alternative(parts);
            rules.Alternative(Joined(parts, separator, rest));
            if (list.hasTrailing)
                rules.Alternative(Joined(parts, "", separator));
        }
        rules.End();
    }
    rules.Begin(kLevels[2].rest);
    if (!list.last.empty())
        rules.Alternative({list.last});
    for (int count = 1; count < kEight; ++count) {
        const std::vector<std::string> items = Repeated(list.item, separator, count);
        rules.Alternative(items);
        if (!list.last.empty())
            rules.Alternative(Joined(items, list.separator, list.last));
        if (list.hasTrailing)
            rules.Alternative(Joined(items, "", separator));
    }
    rules.End();
    return rules.Take();
}

} // namespace

std::string ListRules(const SListRule& list)
{
    SListRule whole = list;
    std::string rules;
    if (!list.error.empty()) {
        whole.item = list.name + "_item";
        rules = whole.item + "\n    : " + list.item + "\n    | error { CREATE_NODE_WITH_ERROR(" + list.error +
                ", 1, 0); }\n    ;\n";
    }
    if (list.isShort)
        return ShortRules(whole) + rules;
    return (list.isDeep ? DeepRules(whole) : FlatRules(whole)) + rules;
}

std::string PartsRules(const SPartsRule& parts)
{
    CRuleWriter rules(parts.node);
    std::string name = parts.name;
    if (parts.symbols.size() == 1) {
        rules.Begin(name);
        rules.Alternative({parts.symbols.front()}, false);
        rules.End();
    }
    for (std::size_t i = 0; i + 1 < parts.symbols.size(); ++i) {
        const std::string& symbol = parts.symbols[i];
        const std::string& next = parts.symbols[i + 1];
        const bool isLastPair = i + 2 == parts.symbols.size();
        const std::string rest = isLastPair ? next : std::string(parts.name).append("_from_").append(next);
        rules.Begin(name);
        rules.Alternative({symbol}, false);
        rules.Alternative({symbol, rest});
        rules.Alternative({rest}, false);
        rules.End();
        name = rest;
    }
    return rules.Take();
}
