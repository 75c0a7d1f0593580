#pragma once

#include <cstdint>
#include <iterator>

// The names that flattening treats specially; their numbers are the same in every tree.
namespace TreeNames {

enum enTreeName : std::uint32_t
{
    kStatements,
    kBodyStatements,
    kDelimitedStatements,
    kDelimitedStatement,
    kLabeledStatement,
    kStatement,
    kDelimiter,
    kLabel,
    kFullStatement,
    kExpression,
    kConcatItemList,
    kAccumulateExpression,
    kMainSourceSection,
    kDataDivisionClause,
    kSpace, // the last: no other name beyond it is special
    kTreeNameCount,
    kNoName = 0xFFFFFFFF
};

inline constexpr const char* kTreeNames[] = {
    "pl_sql_statements",
    "body_pl_sql_statements",
    "delimited_pl_sql_statements",
    "delimited_pl_sql_statement",
    "labeled_pl_sql_statement",
    "pl_sql_statement",
    "pl_sql_statement_delimiter",
    "pl_sql_statement_label",
    "full_pl_sql_statement",
    "expression",
    "CONCAT_item_list",
    "accumulate_expression",
    "main_source_section",
    "program_data_division_clause",
    "T__SPACE",
};
static_assert(std::size(kTreeNames) == kTreeNameCount);

} // namespace TreeNames
