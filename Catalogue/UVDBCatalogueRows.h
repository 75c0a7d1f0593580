// The rows of the database catalogue as literals. CDbInfo converts them once; nobody else reads them.
#pragma once

#include <cstdint>
#include <span>

struct SDbInfoLiteral
{
    std::int64_t resourceIndex = -1;
    std::uint64_t db = 0;
    std::uint64_t keySubType = 0;       // subtype of the row's key
    std::uint64_t conditionSubType = 0; // subtype that the row answers for
    const char* shortName = "";
    const char* fullName = "";
    const char* wzdName = "";
    const char* visibleName = "";
    const char* defaultExtension = "";
};

// In table order. Every search takes its first hit.
extern const std::span<const SDbInfoLiteral> kCatalogueRows;
