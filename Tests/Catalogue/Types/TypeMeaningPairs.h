// All that is mapped in the tests of type meaning: every type of every table at the edges of its sizes, and
// every target that differs from the others.
#pragma once

#include "Catalogue/Types/TypeMapping/MappingRegistry.h"
#include "Interfaces/DB_VERSION_INFO.h"
#include "Tests/Catalogue/Types/TypeFamilies.h"

#include <cstdint>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

namespace TypeMeaning {

// ---- Sources ----

// A type with its numbers, as a host hands it over.
struct SSourceCase
{
    DB_VERSION_INFO version{};
    std::string name{};
    long uvdbType = -1; // -1: to be found by the name
    unsigned long size = 0;
    long scale = 0;
    long leadingPrecision = 0;
    bool isPrecision = false;
    bool isSizeKnown = true; // otherwise the family alone counts
    STypeCapacity capacity{};
    long rowType = -1; // internal type of the row that the numbers lead to
};

std::string Describe(const SSourceCase& source);

// Of each table once, for databases that share one have the same types.
std::vector<SSourceCase> CollectSources();

// Returns: the text with its numbers.
std::string Convert(const SSourceCase& source, DB_VERSION_INFO target);

// ---- Targets ----

// A sheaf, and the table that reads what is made of it.
class CTarget
{
public:
    explicit CTarget(const SMappingSheafKey& key);

    DB_VERSION_INFO Where() const { return m_Version; }
    const SMappingSheaf* Sheaf() const { return m_Key.sheaf; }
    std::string Name() const;

    // What its tables have.
    bool HasTypes() const { return !m_Families.empty(); }
    bool HasFamily(enTypeFamily family) const { return m_Families.contains(family); }
    std::uint64_t LongestNational() const { return m_LongestNational; }
    bool HasLongNational() const { return m_HasLongNational; }
    long LongestTime() const { return m_LongestTime; } // digits after the second

    // What the target makes of `text`; of unknown family if it isn't a type there.
    const STypeCapacity& Read(const std::string& text);

private:
    void AddRow(const SDataTypeParams& row);
    STypeCapacity ReadNew(const std::string& text) const;

    SMappingSheafKey m_Key;
    DB_VERSION_INFO m_Version;
    DB_VERSION_INFO m_Reader; // whose table reads the texts
    std::set<enTypeFamily> m_Families;
    std::uint64_t m_LongestNational = 0;
    bool m_HasLongNational = false;
    long m_LongestTime = 0;
    std::unordered_map<std::string, STypeCapacity> m_Read;
};

// One of each sheaf with each table.
std::vector<CTarget> CollectTargets();

std::string SheafName(const SMappingSheaf& sheaf);

} // namespace TypeMeaning
