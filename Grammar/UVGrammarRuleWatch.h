#pragma once

#include "Grammar/UVGrammarKeywords.h"

#include <cstddef>
#include <cstdint>
#include <vector>

// The rules of a grammar that texts have used, by their numbers in the tables, ascending. The scanner's own rules for
// the end of a text aren't among them.
struct SUsedRules
{
    std::vector<int> scanner;
    std::vector<int> parser;
};

// In the place of a keyword: the operation of a rule that is being waited for.
inline constexpr auto kWatchedRule = static_cast<enGrammarKeyword>(kGrammarKeywordCount);

// Tells which of an interpreter's rules are used, and costs nothing while nobody asks: a rule that is waited for has one
// operation in the place of its own, which gives those back and runs them. What has its own again was used.
//
// TRule has the range of its operations in `first` and `count`, TOperation has `keyword`.
// Borrows: the rules and operations as they were compiled, in which nothing may move but by this object.
template <class TRule, class TOperation>
class CRuleWatch
{
public:
    CRuleWatch(std::vector<TRule>& rules, std::vector<TOperation>& operations)
        : m_Rules(rules), m_Operations(operations)
    {}
    CRuleWatch(const CRuleWatch&) = delete;
    CRuleWatch& operator=(const CRuleWatch&) = delete;

    // The rules are about to be compiled anew.
    void Forget()
    {
        m_Own.clear();
        m_IsOn = false;
    }

    // Waits for every rule, whether it was used before or not; or for none.
    // Throws: std::bad_alloc; everything is as before then.
    void Set(bool on)
    {
        if (m_IsOn)
            m_Rules = m_Own; // of the same size
        m_IsOn = false;
        if (!on)
            return;
        if (m_Own.empty()) {
            const std::size_t first = m_Operations.size();
            m_Operations.resize(first + m_Rules.size());
            m_Own = m_Rules;
            m_First = first;
        }
        for (std::size_t number = 0; number < m_Rules.size(); ++number) {
            m_Operations[m_First + number].keyword = kWatchedRule;
            m_Rules[number].first = static_cast<std::uint32_t>(m_First + number);
            m_Rules[number].count = 1;
        }
        m_IsOn = true;
    }

    // Gives the operations back that `watched` stands for.
    // Returns: the rule's number.
    int Release(const TOperation& watched)
    {
        const std::size_t number = static_cast<std::size_t>(&watched - m_Operations.data()) - m_First;
        m_Rules[number] = m_Own[number];
        return static_cast<int>(number);
    }

    // Those since Set.
    std::vector<int> Used() const
    {
        std::vector<int> used;
        for (std::size_t number = 0; m_IsOn && number < m_Rules.size(); ++number)
            if (m_Rules[number].first != m_First + number)
                used.push_back(static_cast<int>(number));
        return used;
    }

private:
    std::vector<TRule>& m_Rules;
    std::vector<TOperation>& m_Operations;
    std::vector<TRule> m_Own; // as they were compiled; empty until they are first watched
    std::size_t m_First = 0;  // of the operations that wait, one for each rule
    bool m_IsOn = false;
};
