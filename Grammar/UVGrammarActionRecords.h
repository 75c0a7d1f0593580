// The actions of a scanner or a parser as the engine takes them in: flat arrays, whose records ascend by rule
// and whose operations stand in the order in which they run. They never change, so copies share them.
#pragma once

#include "Grammar/Runtime/TableImage.h"
#include "Grammar/UVGrammarKeeper.h"
#include "Grammar/UVGrammarKeywords.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

class CActionRecords
{
public:
    struct SRecord
    {
        std::int32_t rule = 0;
        std::uint32_t first = 0; // of its operations
        std::uint32_t count = 0; // 0: a rule without operations
    };
    struct SOperation
    {
        std::uint32_t keyword = 0; // an enGrammarKeyword
        std::uint32_t first = 0;   // of its operands, as many as the keyword has

        enGrammarKeyword Keyword() const { return static_cast<enGrammarKeyword>(keyword); }
    };

    CActionRecords() = default;
    explicit CActionRecords(const CActionsMap& actions);

    void WriteTo(CTableImageWriter& image) const;
    // Returns: false, and is left as it was, if the image holds something else.
    [[nodiscard]] bool ReadFrom(CTableImageReader& image);

    std::size_t Count() const { return m_Records.count; }
    const SRecord& Record(std::size_t index) const { return m_Records[index]; }
    const SOperation& Operation(std::size_t index) const { return m_Operations[index]; }
    // Lives as long as the records.
    std::string_view Operand(const SOperation& operation, std::size_t index) const;

    // There is a record of this rule.
    bool Has(int rule) const;
    // There is a record of this rule or a later one.
    bool HasFrom(int rule) const;

private:
    struct SOperand
    {
        std::uint32_t at = 0; // byte of the texts
        std::uint32_t length = 0;
    };

    bool IsSound() const;
    std::size_t LowerBound(int rule) const;

    STable<SRecord> m_Records;
    STable<SOperation> m_Operations;
    STable<SOperand> m_Operands;
    STable<char> m_Texts;
};
