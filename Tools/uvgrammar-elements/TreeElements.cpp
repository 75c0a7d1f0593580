#include "Tools/uvgrammar-elements/TreeElements.h"

#include <algorithm>
#include <array>
#include <map>
#include <string_view>
#include <tuple>

namespace uvelements {

namespace {

const std::string kRoot = "SQL";
const std::string kStatement = "pl_sql_statement";
const std::string kStatements = "pl_sql_statements";
const std::string kDelimitedList = "delimited_pl_sql_statements";
const std::string kBody = "body_pl_sql_statements";
const std::string kDelimited = "delimited_pl_sql_statement";
const std::string kLabeled = "labeled_pl_sql_statement";
const std::string kFull = "full_pl_sql_statement";
const std::string kLabel = "pl_sql_statement_label";
const std::string kDelimiter = "pl_sql_statement_delimiter";
constexpr std::string_view kDataDivision = "program_data_division_clause";
constexpr std::string_view kSection = "main_source_section";
constexpr std::array<std::string_view, 3> kNesting = {"expression", "CONCAT_item_list",
                                                      "accumulate_expression"};

bool IsNesting(std::string_view name)
{
    return std::ranges::find(kNesting, name) != kNesting.end();
}

std::string Unchanged(const std::string& name)
{
    return name;
}

// How the children of `parent` are named where they aren't items of a chain.
TShownName ShownIn(const std::string& parent)
{
    return [parent](const std::string& name) -> std::string {
        if (name == kBody)
            return kStatements;
        if (name == kDelimited || name == kLabeled || (name == kStatement && parent == kStatements))
            return kFull;
        // The statement before it has taken it.
        if (name == kDelimiter && parent == kBody)
            return {};
        return name;
    };
}

class CElements
{
public:
    explicit CElements(const SNodeRules& rules) : m_Rules(rules)
    {
        FindStandingRules();
        for (const SNodeRule& rule : rules.rules) {
            m_HasLabeled = m_HasLabeled || rule.node == kLabeled;
            m_HasDataDivision = m_HasDataDivision || rule.node == kDataDivision;
        }
    }

    STreeElements Describe()
    {
        // The outermost element of a tree holds the grammar's own and makes a chain of it.
        std::vector<std::size_t> roots;
        for (const SPiece& piece : PiecesOf(m_Rules, m_Rules.start))
            if (!piece.isToken)
                roots.push_back(piece.index);
        AddSource(kRoot, {.rules = roots, .opened = {kRoot}, .show = Unchanged}, kRoot, true);
        while (!m_Waiting.empty()) {
            const auto [name, isCopied, parent] = m_Waiting.back();
            m_Waiting.pop_back();
            if (isCopied)
                AddCopied(name);
            else
                AddShown(name, parent);
        }
        STreeElements described;
        for (auto& [name, sources] : m_Sources)
            described.elements.push_back(Element(name, sources));
        FindParents(described);
        SortBySource(described);
        FindClasses(described);
        return described;
    }

private:
    // A rule of a part that bears its construct's name makes no element where it always stands in the construct.
    void FindStandingRules()
    {
        m_IsStanding.resize(m_Rules.rules.size());
        for (const SNodeRule& rule : m_Rules.rules)
            for (std::size_t symbol : rule.right)
                for (const SPiece& piece : PiecesOf(m_Rules, symbol)) {
                    if (piece.isToken || rule.node.empty())
                        continue;
                    const std::string& name = m_Rules.rules[piece.index].node;
                    if (name != rule.node || IsNesting(name))
                        m_IsStanding[piece.index] = true;
                }
    }

    std::vector<std::size_t> RulesOf(const std::string& node) const
    {
        std::vector<std::size_t> found;
        for (std::size_t i = 0; i < m_Rules.rules.size(); ++i)
            if (m_IsStanding[i] && m_Rules.rules[i].node == node)
                found.push_back(i);
        return found;
    }

    std::vector<std::size_t> ChainsAmong(const std::vector<std::size_t>& rules) const
    {
        std::vector<std::size_t> found;
        std::ranges::copy_if(rules, std::back_inserter(found), [&](std::size_t i) {
            const SNodeRule& rule = m_Rules.rules[i];
            return std::ranges::any_of(rule.right, [&](std::size_t symbol) {
                return std::ranges::any_of(PiecesOf(m_Rules, symbol), [&](const SPiece& piece) {
                    return !piece.isToken && m_Rules.rules[piece.index].node == rule.node;
                });
            });
        });
        return found;
    }

    // `raw`: the element in the raw tree whose children these are. Its children come to be shown, too.
    void AddSource(const std::string& shown, SContentSource source, const std::string& raw, bool isChain)
    {
        std::set<std::size_t> seen;
        std::vector<std::size_t> open = source.rules;
        while (!open.empty()) {
            const std::size_t rule = open.back();
            open.pop_back();
            if (!seen.insert(rule).second)
                continue;
            for (std::size_t symbol : m_Rules.rules[rule].right)
                for (const SPiece& piece : PiecesOf(m_Rules, symbol)) {
                    const std::string& name = NameOf(m_Rules, piece);
                    if (piece.isToken || source.barred.contains(name))
                        continue;
                    if (source.opened.contains(name))
                        open.push_back(piece.index);
                    else
                        Wait(name, isChain, raw);
                }
        }
        m_Sources[shown].push_back(std::move(source));
    }

    void Wait(const std::string& name, bool isCopied, const std::string& parent)
    {
        // Other parents make no difference.
        const bool counts = !isCopied && (parent == kBody || parent == kStatements);
        const std::tuple key{name, isCopied, counts ? parent : std::string()};
        if (m_Seen.insert(key).second)
            m_Waiting.push_back(key);
    }

    // The element itself stays, elements of its own name in it dissolve.
    void AddCopied(const std::string& name)
    {
        std::set<std::string> opened;
        if (!IsNesting(name))
            opened.insert(name);
        // A body that is an item of a chain isn't walked through as one, the bodies in it are.
        const bool isBody = name == kBody;
        const SContentSource source{
            .rules = RulesOf(name), .opened = opened, .show = ShownIn(isBody ? std::string() : name)};
        AddSource(name, source, name, false);
        if (isBody)
            AddSource(name, source, {}, false);
    }

    void AddShown(const std::string& name, const std::string& parent)
    {
        if (name == kBody)
            return AddSource(kStatements, {.rules = RulesOf(name), .opened = {kBody}, .show = ShownIn(kBody)},
                             kBody, false);
        if (name == kDelimited)
            return AddDelimited(parent == kBody);
        if (name == kLabeled) {
            AddEmpty(kDelimiter);
            return AddSource(kFull,
                             {.rules = RulesOf(name), .show = ShownIn(kLabeled), .after = {kDelimiter}},
                             kLabeled, false);
        }
        if (name == kStatement && parent == kStatements) {
            AddEmpty(kLabel);
            AddEmpty(kDelimiter);
            AddSource(kFull, {.before = {kLabel, kStatement}, .after = {kDelimiter}}, kStatement, false);
            return AddCopied(name);
        }
        if (IsNesting(name) || name == kSection || !HoldsStatements(name))
            return AddCopied(name);
        // Items of a chain stay as they are; a list without one has its statements wrapped.
        std::vector<std::size_t> rules = RulesOf(name);
        std::vector<std::size_t> chains = ChainsAmong(rules);
        if (!chains.empty())
            AddSource(name, {.rules = std::move(chains), .opened = {name}, .show = Unchanged}, name, true);
        std::set<std::string> opened;
        if (name == kStatements)
            opened.insert(kDelimitedList);
        AddSource(name,
                  {.rules = std::move(rules), .opened = opened, .barred = {name}, .show = ShownIn(name)},
                  name, false);
    }

    // Chains of other elements come to the same however they are opened.
    bool HoldsStatements(const std::string& name) const
    {
        return std::ranges::any_of(m_Rules.rules, [&](const SNodeRule& rule) {
            return rule.node == name && std::ranges::any_of(rule.right, [&](std::size_t symbol) {
                       return std::ranges::any_of(PiecesOf(m_Rules, symbol), [&](const SPiece& piece) {
                           const std::string& child = NameOf(m_Rules, piece);
                           return ShownIn(name)(child) != child || child == kDelimitedList;
                       });
                   });
        });
    }

    void AddDelimited(bool isOfBody)
    {
        const std::vector<std::size_t> rules = RulesOf(kDelimited);
        SContentSource source{
            .rules = rules, .barred = {kLabeled}, .show = ShownIn(kDelimited), .before = {kLabel}};
        AddEmpty(kLabel);
        if (isOfBody || m_HasDataDivision) {
            AddEmpty(kDelimiter);
            if (!isOfBody)
                AddSource(kFull, source, kDelimited, false);
            source.after = {kDelimiter};
        }
        if (m_HasLabeled) {
            SContentSource labeled = source;
            labeled.barred.clear();
            labeled.before.clear();
            labeled.opened = {kLabeled};
            AddSource(kFull, labeled, kDelimited, false);
        }
        AddSource(kFull, source, kDelimited, false);
    }

    // Flattening puts an empty one where the text has none.
    void AddEmpty(const std::string& name) { AddSource(name, {}, name, false); }

    // A rule that ends in its own symbol makes a list only if nothing else is passed on for it: a prefix does the same.
    bool MakesList(const SNodeRule& rule) const
    {
        if (rule.right.size() < 2)
            return false;
        const std::vector<std::size_t>& rules = m_Rules.rulesOf[rule.left];
        return rule.isOfList || rule.right.front() == rule.left ||
               (rule.right.back() == rule.left && std::ranges::all_of(rules, [&](std::size_t i) {
                    return m_Rules.rules[i].node == rule.node;
                }));
    }

    bool IsList(const std::string& raw) const
    {
        return !IsNesting(raw) && std::ranges::any_of(m_Rules.rules, [&](const SNodeRule& rule) {
            return rule.node == raw && MakesList(rule);
        });
    }

    STreeElement Element(const std::string& name, const std::vector<SContentSource>& sources) const
    {
        STreeElement element;
        element.name = name;
        element.children = ContentOf(m_Rules, sources);
        std::set<std::size_t> made;
        for (const SContentSource& source : sources)
            made.insert(source.rules.begin(), source.rules.end());
        element.isOfErrors = !made.empty();
        for (std::size_t i : made) {
            const SNodeRule& rule = m_Rules.rules[i];
            element.isOfErrors = element.isOfErrors && rule.hasError;
            const SRulePlace place{rule.file, rule.line};
            if (std::ranges::find(element.places, place) == element.places.end())
                element.places.push_back(place);
            element.isList = element.isList || IsList(rule.node);
        }
        return element;
    }

    static void FindParents(STreeElements& described)
    {
        std::map<std::string, std::set<std::string>> parents;
        for (const STreeElement& element : described.elements)
            for (const SChild& child : element.children)
                for (const std::string& name : child.names)
                    parents[name].insert(element.name);
        for (STreeElement& element : described.elements)
            element.parents.assign(parents[element.name].begin(), parents[element.name].end());
    }

    // By the first rule of each; what flattening alone makes comes first.
    void SortBySource(STreeElements& described) const
    {
        std::map<std::string, std::size_t> first;
        for (const auto& [name, sources] : m_Sources)
            for (const SContentSource& source : sources)
                for (std::size_t rule : source.rules) {
                    const auto [known, isNew] = first.emplace(name, rule);
                    known->second = std::min(known->second, rule);
                }
        std::ranges::stable_sort(described.elements, {}, [&](const STreeElement& element) {
            const auto rule = first.find(element.name);
            return rule == first.end() ? 0 : rule->second + 1;
        });
    }

    void FindClasses(STreeElements& described) const
    {
        std::set<std::size_t> seen;
        for (const SNodeRule& rule : m_Rules.rules) {
            if (!seen.insert(rule.left).second)
                continue;
            SElementClass made{m_Rules.symbols[rule.left], {}};
            for (const SPiece& piece : PiecesOf(m_Rules, rule.left)) {
                const std::string& name = NameOf(m_Rules, piece);
                if (std::ranges::find(made.names, name) == made.names.end())
                    made.names.push_back(name);
            }
            if (made.names.size() > 1)
                described.classes.push_back(std::move(made));
        }
    }

    const SNodeRules& m_Rules;
    std::vector<bool> m_IsStanding; // by rule
    bool m_HasLabeled = false;
    bool m_HasDataDivision = false;
    std::map<std::string, std::vector<SContentSource>> m_Sources; // by the name that is shown
    std::set<std::tuple<std::string, bool, std::string>> m_Seen;
    std::vector<std::tuple<std::string, bool, std::string>> m_Waiting;
};

} // namespace

STreeElements DescribeElements(const SNodeRules& rules)
{
    return CElements(rules).Describe();
}

} // namespace uvelements
