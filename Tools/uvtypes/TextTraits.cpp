#include "Tools/uvtypes/TextTraits.h"

#include "Catalogue/Types/DataTypes/TypeMeaning.h"
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Catalogue/UVDBKindSet.h"
#include "Catalogue/UVDBRowConditions.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace uvtypes {

using UVDBMeaning::enTypeFamily;

namespace {

constexpr enUVDB_LENGTH_UNIT kBytes = UVDB_LENGTH_UNIT_BYTES;
constexpr enUVDB_LENGTH_UNIT kCharacters = UVDB_LENGTH_UNIT_CHARACTERS;
constexpr enCharacters kUnicode = enCharacters::Unicode;
constexpr enCharacters kCodePage = enCharacters::CodePage;
constexpr enCharacters kUnknown = enCharacters::Unknown;

constexpr std::uint64_t kAse = UVDB_SYBASE_ADAPTIVE_SERVER_ENTERPRISE;
constexpr std::uint64_t kForZ = UVDB_DB2_UDB_FOR_zOS_AND_OS390;
constexpr std::uint64_t kForI = UVDB_DB2_UDB_FOR_AS400_AND_iSERIES;

constexpr CKindSet kMySqlKin{UVDB_DB_MySQL, UVDB_DB_SingleStoreDB, UVDB_DB_GBASE};
constexpr CKindSet kPostgresKin{UVDB_DB_POSTGRESQL, UVDB_DB_ENTERPRISEDB, UVDB_DB_GREENPLUM,
                                UVDB_DB_VPOSTGRES};

enum class enTexts
{
    All,
    National,
    Plain
};

struct STraitsRow
{
    CKindSet kinds;
    std::uint64_t subType;
    enTexts texts;
    std::string_view word; // in the name; empty: in any
    STextTraits traits;
};

// The first that fits counts. Databases without a row leave both to the installation.
// clang-format off
constexpr STraitsRow kTraits[] = {
//   kinds                     subtype      texts              word       unit         characters
    {{UVDB_DB_MSSQL},          kAnySubType, enTexts::National, "",        {kCharacters, kUnicode}},
    {{UVDB_DB_MSSQL},          kAnySubType, enTexts::Plain,    "",        {kBytes,      kCodePage}},
    {{UVDB_DB_SYBASE},         kAse,        enTexts::National, "UNI",     {kCharacters, kUnicode}},
    {{UVDB_DB_SYBASE},         kAse,        enTexts::National, "",        {kCharacters, kCodePage}},
    {{UVDB_DB_SYBASE},         kAnySubType, enTexts::National, "",        {kCharacters, kUnicode}},
    {{UVDB_DB_SYBASE},         kAnySubType, enTexts::Plain,    "",        {kBytes,      kCodePage}},
    {{UVDB_DB_ORA},            kAnySubType, enTexts::National, "",        {kCharacters, kUnicode}},
    {{UVDB_DB_ORA},            kAnySubType, enTexts::Plain,    "",        {kBytes,      kUnicode}},
    {{UVDB_DB_DB2},            kAnySubType, enTexts::National, "",        {kCharacters, kUnicode}},
    {{UVDB_DB_DB2},            kForZ,       enTexts::Plain,    "",        {kBytes,      kCodePage}},
    {{UVDB_DB_DB2},            kForI,       enTexts::Plain,    "",        {kBytes,      kCodePage}},
    {{UVDB_DB_DB2},            kAnySubType, enTexts::Plain,    "",        {kBytes,      kUnicode}},
    {kMySqlKin,                kAnySubType, enTexts::All,      "TEXT",    {kBytes,      kUnicode}},
    {kMySqlKin,                kAnySubType, enTexts::All,      "",        {kCharacters, kUnicode}},
    {kPostgresKin,             kAnySubType, enTexts::All,      "",        {kCharacters, kUnicode}},
    {{UVDB_DB_REDSHIFT},       kAnySubType, enTexts::All,      "",        {kBytes,      kUnicode}},
    {{UVDB_DB_VERTICA_ANALYTIC_DATABASE}, kAnySubType, enTexts::All, "",  {kBytes,      kUnicode}},
    {{UVDB_DB_NETEZZA},        kAnySubType, enTexts::National, "",        {kCharacters, kUnicode}},
    {{UVDB_DB_NETEZZA},        kAnySubType, enTexts::Plain,    "",        {kBytes,      kCodePage}},
    {{UVDB_DB_TERADATA},       kAnySubType, enTexts::All,      "UNICODE", {kCharacters, kUnicode}},
    {{UVDB_DB_TERADATA},       kAnySubType, enTexts::National, "",        {kCharacters, kUnicode}},
    {{UVDB_DB_TERADATA},       kAnySubType, enTexts::Plain,    "",        {kCharacters, kCodePage}},
    {{UVDB_DB_SAP_HANA},       kAnySubType, enTexts::National, "",        {kCharacters, kUnicode}},
    {{UVDB_DB_SAP_HANA},       kAnySubType, enTexts::Plain,    "",        {kBytes,      kCodePage}},
    {{UVDB_DB_SPLICE_MACHINE, UVDB_DB_NUODB, UVDB_DB_ACCESS},
                               kAnySubType, enTexts::All,      "",        {kCharacters, kUnicode}},
    {{UVDB_DB_FIREBIRD, UVDB_DB_INTERBASE},
                               kAnySubType, enTexts::All,      "",        {kCharacters, kUnknown}},
    {{UVDB_DB_INFORMIX},       kAnySubType, enTexts::All,      "",        {kBytes,      kUnknown}},
};
// clang-format on

bool Fits(enTexts texts, enTypeFamily family)
{
    return texts == enTexts::All || (texts == enTexts::National) == (family == enTypeFamily::NationalText);
}

enCharacters CharactersOf(std::string_view characterSet)
{
    for (const std::string_view unicode : {"UTF", "UCS", "UNICODE", "1208", "1200", "13488"})
        if (characterSet.starts_with(unicode))
            return enCharacters::Unicode;
    return enCharacters::CodePage;
}

} // namespace

STextTraits TextTraitsOf(DB_VERSION_INFO version, const SDataTypeParams& row, const STypeText& type)
{
    const enTypeFamily family = MeaningOfInternalType(row.uvdbType).family;
    const auto* const found = std::find_if(std::begin(kTraits), std::end(kTraits), [&](const STraitsRow& t) {
        return t.kinds.Has(version.db) && FitsSubType(t.subType, version.subType) && Fits(t.texts, family) &&
               std::string_view(row.name).find(t.word) != std::string_view::npos;
    });
    STextTraits traits = found == std::end(kTraits) ? STextTraits() : found->traits;
    if (type.lengthUnit != UVDB_LENGTH_UNIT_NOT_TOLD)
        traits.unit = type.lengthUnit;
    if (!type.characterSet.empty())
        traits.characters = CharactersOf(type.characterSet.c_str());
    return traits;
}

} // namespace uvtypes
