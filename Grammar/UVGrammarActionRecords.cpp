#include "Grammar/UVGrammarActionRecords.h"

#include <algorithm>
#include <utility>
#include <vector>

CActionRecords::CActionRecords(const CActionsMap& actions)
{
    std::vector<SRecord> records;
    std::vector<SOperation> operations;
    std::vector<SOperand> operands;
    std::vector<char> texts;
    for (const auto& [rule, record] : actions) {
        const auto first = static_cast<std::uint32_t>(operations.size());
        for (const auto& [key, words] : *record) {
            const SGrammarKeyword* const keyword =
                FindGrammarKeyword(std::string_view(key).substr(0, key.find('#')));
            if (!keyword || !words)
                continue; // the mark of a record without operations
            operations.push_back(
                {static_cast<std::uint32_t>(keyword->keyword), static_cast<std::uint32_t>(operands.size())});
            for (const std::string& word : *words) {
                operands.push_back(
                    {static_cast<std::uint32_t>(texts.size()), static_cast<std::uint32_t>(word.size())});
                texts.insert(texts.end(), word.begin(), word.end());
            }
        }
        records.push_back({rule, first, static_cast<std::uint32_t>(operations.size()) - first});
    }
    m_Records = STable<SRecord>(std::move(records));
    m_Operations = STable<SOperation>(std::move(operations));
    m_Operands = STable<SOperand>(std::move(operands));
    m_Texts = STable<char>(std::move(texts));
}

void CActionRecords::WriteTo(CTableImageWriter& image) const
{
    image.Add(m_Records);
    image.Add(m_Operations);
    image.Add(m_Operands);
    image.Add(m_Texts);
}

bool CActionRecords::ReadFrom(CTableImageReader& image)
{
    CActionRecords read;
    if (!image.Take(read.m_Records) || !image.Take(read.m_Operations) || !image.Take(read.m_Operands) ||
        !image.Take(read.m_Texts) || !read.IsSound())
        return false;
    *this = std::move(read);
    return true;
}

bool CActionRecords::IsSound() const
{
    const auto isWithin = [](std::size_t first, std::size_t count, std::size_t size) {
        return first <= size && count <= size - first;
    };
    for (std::size_t i = 0; i < m_Records.count; ++i)
        if (!isWithin(m_Records[i].first, m_Records[i].count, m_Operations.count) ||
            (i > 0 && m_Records[i].rule <= m_Records[i - 1].rule))
            return false;
    for (std::size_t i = 0; i < m_Operations.count; ++i)
        if (m_Operations[i].keyword >= kGrammarKeywordCount ||
            !isWithin(m_Operations[i].first,
                      static_cast<std::size_t>(GetGrammarKeyword(m_Operations[i].Keyword()).operands),
                      m_Operands.count))
            return false;
    for (std::size_t i = 0; i < m_Operands.count; ++i)
        if (!isWithin(m_Operands[i].at, m_Operands[i].length, m_Texts.count))
            return false;
    return true;
}

std::string_view CActionRecords::Operand(const SOperation& operation, std::size_t index) const
{
    const SOperand& operand = m_Operands[operation.first + index];
    return {m_Texts.values.get() + operand.at, operand.length};
}

std::size_t CActionRecords::LowerBound(int rule) const
{
    const SRecord* const begin = m_Records.values.get();
    const SRecord* const found =
        std::lower_bound(begin, begin + m_Records.count, rule,
                         [](const SRecord& record, int wanted) { return record.rule < wanted; });
    return static_cast<std::size_t>(found - begin);
}

bool CActionRecords::Has(int rule) const
{
    const std::size_t at = LowerBound(rule);
    return at < m_Records.count && m_Records[at].rule == rule;
}

bool CActionRecords::HasFrom(int rule) const
{
    return LowerBound(rule) < m_Records.count;
}
