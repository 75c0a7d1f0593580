#include "Tools/uvgrammar-elements/Content.h"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

namespace uvelements {

namespace {

struct SCount
{
    bool isOptional = false;
    bool isMany = false;

    bool operator==(const SCount&) const = default;
};

using TCounts = std::map<std::string, SCount>;
// Nothing: it can't be made of any text.
using TMaybeCounts = std::optional<TCounts>;

// Either the one or the other.
void Join(TMaybeCounts& counts, const TMaybeCounts& other)
{
    if (!other)
        return;
    if (!counts) {
        counts = other;
        return;
    }
    for (auto& [name, count] : *counts)
        if (!other->contains(name))
            count.isOptional = true;
    for (const auto& [name, count] : *other) {
        const auto [known, isNew] = counts->emplace(name, SCount{true, count.isMany});
        if (!isNew) {
            known->second.isOptional = known->second.isOptional || count.isOptional;
            known->second.isMany = known->second.isMany || count.isMany;
        }
    }
}

// The one after the other.
void Add(TCounts& counts, const TCounts& other)
{
    for (const auto& [name, count] : other) {
        const auto [known, isNew] = counts.emplace(name, count);
        if (!isNew)
            known->second = {known->second.isOptional && count.isOptional, true};
    }
}

// What one symbol of a rule may be.
struct SSlot
{
    std::vector<std::string> names;  // in the order of the rules
    bool mayBeNothing = false;       // what is made of it isn't shown
    std::vector<std::size_t> opened; // rules whose nodes dissolve
};

// The rules of one source that stand for the element's content.
class CSourceContent
{
public:
    CSourceContent(const SNodeRules& rules, const SContentSource& source) : m_Rules(rules), m_Source(source)
    {
        for (std::size_t rule : source.rules)
            Prepare(rule);
    }

    TMaybeCounts Counts(const TShownName& label, bool isClean) const
    {
        std::map<std::size_t, TMaybeCounts> known;
        std::map<std::size_t, std::vector<TMaybeCounts>> fixed;
        for (const auto& [rule, slots] : m_Slots)
            for (const SSlot& slot : slots)
                fixed[rule].push_back(Labelled(slot, label));
        for (bool hasChanged = true; hasChanged;) {
            hasChanged = false;
            for (const auto& [rule, slots] : m_Slots) {
                if (isClean && m_Rules.rules[rule].hasError)
                    continue;
                TMaybeCounts sum = TCounts{};
                for (std::size_t i = 0; i < slots.size() && sum; ++i) {
                    TMaybeCounts slot = fixed[rule][i];
                    for (std::size_t inner : slots[i].opened)
                        Join(slot, known[inner]);
                    if (slot)
                        Add(*sum, *slot);
                    else
                        sum.reset();
                }
                TMaybeCounts& last = known[rule];
                if (last != sum) {
                    last = std::move(sum);
                    hasChanged = true;
                }
            }
        }
        TMaybeCounts counts;
        if (m_Source.rules.empty())
            counts = TCounts{};
        for (std::size_t rule : m_Source.rules)
            Join(counts, known[rule]);
        for (const auto* const added : {&m_Source.before, &m_Source.after})
            for (const std::string& name : *added)
                if (counts)
                    Add(*counts, {{label(name), {}}});
        return counts;
    }

    // Calls `met` with each two names that can stand in one element, the earlier one first.
    template <class Met>
    void EachPair(bool isClean, const Met& met) const
    {
        const std::map<std::size_t, std::set<std::string>> names = NamesOfRules();
        std::set<std::string> all;
        for (const auto& [rule, slots] : m_Slots) {
            if (isClean && m_Rules.rules[rule].hasError)
                continue;
            std::vector<std::set<std::string>> sets;
            for (const SSlot& slot : slots) {
                std::set<std::string> one(slot.names.begin(), slot.names.end());
                for (std::size_t inner : slot.opened)
                    one.insert(names.at(inner).begin(), names.at(inner).end());
                for (const auto& earlier : sets)
                    for (const std::string& a : earlier)
                        for (const std::string& b : one)
                            met(a, b);
                all.insert(one.begin(), one.end());
                sets.push_back(std::move(one));
            }
        }
        std::vector<std::string> added = m_Source.before;
        added.insert(added.end(), m_Source.after.begin(), m_Source.after.end());
        for (std::size_t i = 0; i < added.size(); ++i)
            for (std::size_t j = i + 1; j < added.size(); ++j)
                met(added[i], added[j]);
        for (const std::string& name : all) {
            for (const std::string& a : m_Source.before)
                met(a, name);
            for (const std::string& b : m_Source.after)
                met(name, b);
        }
    }

    template <class Met>
    void EachSlot(const Met& met) const
    {
        for (const auto& [rule, slots] : m_Slots)
            for (const SSlot& slot : slots)
                met(slot.names);
    }

    // Each name once, as a reader of the rules comes upon it.
    void AppendNames(std::vector<std::string>& names) const
    {
        const auto append = [&](const std::string& name) {
            if (std::ranges::find(names, name) == names.end())
                names.push_back(name);
        };
        std::ranges::for_each(m_Source.before, append);
        std::set<std::size_t> seen;
        for (std::size_t rule : m_Source.rules)
            VisitRule(rule, seen, append);
        std::ranges::for_each(m_Source.after, append);
    }

private:
    void Prepare(std::size_t rule)
    {
        if (m_Slots.contains(rule))
            return;
        m_Slots[rule];
        std::vector<SSlot> slots;
        for (std::size_t symbol : m_Rules.rules[rule].right) {
            SSlot slot;
            for (const SPiece& piece : PiecesOf(m_Rules, symbol)) {
                const std::string& name = NameOf(m_Rules, piece);
                if (!piece.isToken && m_Source.barred.contains(name))
                    continue;
                if (!piece.isToken && m_Source.opened.contains(name)) {
                    slot.opened.push_back(piece.index);
                    continue;
                }
                const std::string shown = m_Source.show(name);
                slot.mayBeNothing = slot.mayBeNothing || shown.empty();
                if (!shown.empty() && std::ranges::find(slot.names, shown) == slot.names.end())
                    slot.names.push_back(shown);
            }
            for (std::size_t inner : slot.opened)
                Prepare(inner);
            slots.push_back(std::move(slot));
        }
        m_Slots[rule] = std::move(slots);
    }

    static TMaybeCounts Labelled(const SSlot& slot, const TShownName& label)
    {
        TMaybeCounts counts;
        if (slot.mayBeNothing)
            counts = TCounts{};
        for (const std::string& name : slot.names)
            Join(counts, TCounts{{label(name), {}}});
        return counts;
    }

    std::map<std::size_t, std::set<std::string>> NamesOfRules() const
    {
        std::map<std::size_t, std::set<std::string>> names;
        for (const auto& [rule, slots] : m_Slots)
            for (const SSlot& slot : slots)
                names[rule].insert(slot.names.begin(), slot.names.end());
        for (bool hasChanged = true; hasChanged;) {
            hasChanged = false;
            for (const auto& [rule, slots] : m_Slots) {
                std::set<std::string>& all = names[rule];
                const std::size_t before = all.size();
                for (const SSlot& slot : slots)
                    for (std::size_t inner : slot.opened)
                        all.insert(names[inner].begin(), names[inner].end());
                hasChanged = hasChanged || all.size() != before;
            }
        }
        return names;
    }

    template <class Visit>
    void VisitRule(std::size_t rule, std::set<std::size_t>& seen, const Visit& visit) const
    {
        if (!seen.insert(rule).second)
            return;
        for (const SSlot& slot : m_Slots.at(rule)) {
            std::ranges::for_each(slot.names, visit);
            for (std::size_t inner : slot.opened)
                VisitRule(inner, seen, visit);
        }
    }

    const SNodeRules& m_Rules;
    const SContentSource& m_Source;
    std::map<std::size_t, std::vector<SSlot>> m_Slots; // by rule
};

class CContent
{
public:
    CContent(const SNodeRules& rules, const std::vector<SContentSource>& sources)
    {
        for (const SContentSource& source : sources)
            m_Sources.emplace_back(rules, source);
    }

    std::vector<SChild> Children()
    {
        const TShownName same = [](const std::string& name) { return name; };
        const TMaybeCounts all = Counts(same, false);
        if (!all)
            return {};
        TMaybeCounts clean = Counts(same, true);
        m_IsClean = clean.has_value();
        if (!clean)
            clean = all;
        FindSharedSlots();
        FindPairs();
        const std::vector<std::string> order = Order();

        for (const std::string& name : order)
            if (clean->contains(name))
                (clean->at(name).isMany ? m_Repeated : m_Single).push_back(name);
        std::vector<std::vector<std::string>> groups = Components(m_Repeated);
        for (const std::vector<std::string>& group : RequiredChoices())
            groups.push_back(group);
        const std::vector<SCount> counts = CountsOf(groups);

        std::vector<SChild> children;
        for (const std::string& name : order) {
            const auto group = std::ranges::find_if(groups, [&](const std::vector<std::string>& one) {
                return std::ranges::find(one, name) != one.end();
            });
            if (group == groups.end()) {
                children.push_back({{name}, true, all->at(name).isMany, true});
            } else if (group->front() == name) {
                const SCount& count = counts[static_cast<std::size_t>(group - groups.begin())];
                children.push_back({*group, count.isOptional, count.isMany, false});
            }
        }
        return children;
    }

private:
    TMaybeCounts Counts(const TShownName& label, bool isClean) const
    {
        TMaybeCounts counts;
        for (const CSourceContent& source : m_Sources)
            Join(counts, source.Counts(label, isClean));
        return counts;
    }

    // How often any of a group occurs.
    std::vector<SCount> CountsOf(const std::vector<std::vector<std::string>>& groups) const
    {
        std::map<std::string, std::string> labels;
        for (const auto& group : groups)
            for (const std::string& name : group)
                labels.emplace(name, group.front());
        const TMaybeCounts counts = Counts(
            [&](const std::string& name) {
                const auto label = labels.find(name);
                return label == labels.end() ? name : label->second;
            },
            m_IsClean);
        std::vector<SCount> found;
        found.reserve(groups.size());
        for (const auto& group : groups)
            found.push_back(counts->at(group.front()));
        return found;
    }

    // Names that are alternatives of one symbol somewhere.
    void FindSharedSlots()
    {
        int slot = 0;
        for (const CSourceContent& source : m_Sources)
            source.EachSlot([&](const std::vector<std::string>& names) {
                ++slot;
                for (const std::string& name : names)
                    m_SlotsOf[name].insert(slot);
            });
    }

    bool ShareSlot(const std::string& a, const std::string& b) const
    {
        const auto first = m_SlotsOf.find(a);
        const auto second = m_SlotsOf.find(b);
        if (first == m_SlotsOf.end() || second == m_SlotsOf.end())
            return false;
        return std::ranges::any_of(first->second, [&](int slot) { return second->second.contains(slot); });
    }

    void FindPairs()
    {
        for (const CSourceContent& source : m_Sources) {
            source.EachPair(m_IsClean,
                            [&](const std::string& a, const std::string& b) { m_Pairs.emplace(a, b); });
            source.EachPair(false,
                            [&](const std::string& a, const std::string& b) { m_PairsOfAll.emplace(a, b); });
        }
    }

    // The next name is the first that nothing has to come before; where things stand in any order, the first.
    std::vector<std::string> Order() const
    {
        std::vector<std::string> names;
        for (const CSourceContent& source : m_Sources)
            source.AppendNames(names);
        const auto stands = [&](const std::string& a, const std::string& b) {
            return m_PairsOfAll.contains({a, b}) && !m_PairsOfAll.contains({b, a});
        };
        std::vector<std::string> order;
        while (!names.empty()) {
            auto next = std::ranges::find_if(names, [&](const std::string& name) {
                return std::ranges::none_of(names,
                                            [&](const std::string& other) { return stands(other, name); });
            });
            if (next == names.end())
                next = names.begin();
            order.push_back(*next);
            names.erase(next);
        }
        return order;
    }

    std::vector<std::vector<std::string>> Components(std::vector<std::string> names) const
    {
        std::vector<std::vector<std::string>> components;
        while (!names.empty()) {
            std::vector<std::string> component{names.front()};
            names.erase(names.begin());
            for (std::size_t i = 0; i < component.size(); ++i)
                for (auto name = names.begin(); name != names.end();) {
                    if (ShareSlot(component[i], *name)) {
                        component.push_back(*name);
                        name = names.erase(name);
                    } else {
                        ++name;
                    }
                }
            components.push_back(std::move(component));
        }
        return components;
    }

    static bool IsToken(const std::string& name) { return name.starts_with("T__"); }

    bool ExcludesAll(const std::vector<std::string>& group, const std::string& name) const
    {
        return std::ranges::none_of(group, [&](const std::string& one) {
            return m_Pairs.contains({one, name}) || m_Pairs.contains({name, one});
        });
    }

    // Names that exclude each other. `isOfAKind`: nodes and tokens are together only as alternatives of one symbol.
    std::vector<std::vector<std::string>> Choices(const std::vector<std::string>& names, bool isOfAKind) const
    {
        std::vector<std::vector<std::string>> choices;
        for (const std::string& name : names) {
            const auto choice = std::ranges::find_if(choices, [&](const std::vector<std::string>& group) {
                return ExcludesAll(group, name) &&
                       (!isOfAKind || std::ranges::any_of(group, [&](const std::string& one) {
                           return IsToken(one) == IsToken(name) || ShareSlot(one, name);
                       }));
            });
            if (choice == choices.end())
                choices.push_back({name});
            else
                choice->push_back(name);
        }
        return choices;
    }

    // Moves those of the choices of which there is always one to `groups`, and leaves the rest in `names`.
    void TakeRequired(const std::vector<std::vector<std::string>>& choices, std::vector<std::string>& names,
                      std::vector<std::vector<std::string>>& groups) const
    {
        const std::vector<SCount> counts = CountsOf(choices);
        for (std::size_t i = 0; i < choices.size(); ++i) {
            if (counts[i].isOptional)
                continue;
            groups.push_back(choices[i]);
            std::erase_if(names, [&](const std::string& name) {
                return std::ranges::find(choices[i], name) != choices[i].end();
            });
        }
    }

    // Single names that exclude each other make a choice if there is always one of them; otherwise only those that are
    // alternatives of one symbol do.
    std::vector<std::vector<std::string>> RequiredChoices() const
    {
        std::vector<std::vector<std::string>> groups;
        std::vector<std::string> rest = m_Single;
        TakeRequired(Choices(rest, true), rest, groups);
        TakeRequired(Choices(rest, false), rest, groups);
        for (const std::vector<std::string>& component : Components(rest))
            for (std::vector<std::string>& choice : Choices(component, true))
                groups.push_back(std::move(choice));
        return groups;
    }

    std::vector<CSourceContent> m_Sources;
    bool m_IsClean = true;
    std::vector<std::string> m_Single;
    std::vector<std::string> m_Repeated;
    std::map<std::string, std::set<int>> m_SlotsOf;
    std::set<std::pair<std::string, std::string>> m_Pairs; // that stand in one element, the earlier first
    std::set<std::pair<std::string, std::string>> m_PairsOfAll; // with rules over `error`
};

void AppendPieces(const SNodeRules& rules, std::size_t symbol, std::set<std::size_t>& seen,
                  std::vector<SPiece>& pieces)
{
    if (!seen.insert(symbol).second)
        return;
    if (rules.IsToken(symbol)) {
        pieces.push_back({true, symbol});
        return;
    }
    for (std::size_t rule : rules.rulesOf[symbol]) {
        if (!rules.rules[rule].node.empty())
            pieces.push_back({false, rule});
        else if (!rules.rules[rule].right.empty())
            AppendPieces(rules, rules.rules[rule].right.front(), seen, pieces);
    }
}

} // namespace

std::vector<SChild> ContentOf(const SNodeRules& rules, const std::vector<SContentSource>& sources)
{
    return CContent(rules, sources).Children();
}

std::vector<SPiece> PiecesOf(const SNodeRules& rules, std::size_t symbol)
{
    std::set<std::size_t> seen;
    std::vector<SPiece> pieces;
    AppendPieces(rules, symbol, seen, pieces);
    return pieces;
}

const std::string& NameOf(const SNodeRules& rules, const SPiece& piece)
{
    return piece.isToken ? rules.symbols[piece.index] : rules.rules[piece.index].node;
}

} // namespace uvelements
