#include "Catalogue/Types/UVDBTypeConverting.h"
#include "Catalogue/Types/UVDBTypeFormat.h"
#include "Catalogue/Types/UVDBTypeRules.h"
#include "Catalogue/Types/UVDBTypeText.h"
#include "Catalogue/UVDBDatabaseKinds.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <string>

// Any text as a type: read, corrected, written and mapped. The first two bytes choose source and target. What
// comes out is never longer than the text and the names of the tables account for, and a text that was
// refused says why.

namespace {

constexpr DB_VERSION_INFO kDatabases[] = {
    {.db = UVDB_DB_ORA},
    {.db = UVDB_DB_MSSQL},
    {.db = UVDB_DB_MSSQL, .major = 8},
    {.db = UVDB_DB_MySQL},
    {.db = UVDB_DB_SingleStoreDB},
    {.db = UVDB_DB_POSTGRESQL},
    {.db = UVDB_DB_DB2},
    {.db = UVDB_DB_DB2, .subType = UVDB_DB2_UDB_FOR_zOS_AND_OS390},
    {.db = UVDB_DB_DB2, .subType = UVDB_DB2_UDB_FOR_AS400_AND_iSERIES},
    {.db = UVDB_DB_SYBASE, .subType = UVDB_SYBASE_ADAPTIVE_SERVER_ENTERPRISE},
    {.db = UVDB_DB_INFORMIX},
    {.db = UVDB_DB_TERADATA},
    {.db = UVDB_DB_HIRDB},
    {.db = UVDB_DB_PERVASIVE},
    {.db = UVDB_DB_JAVA},
    {.db = UVDB_DB_COMMON},
};

// Digits, words and parentheses that a name can get; special characters may become entities of six bytes.
constexpr std::size_t kRoom = 400;

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

const DB_VERSION_INFO& Database(std::uint8_t choice)
{
    return kDatabases[choice % std::size(kDatabases)];
}

void DriveRaw(const DB_VERSION_INFO& source, const DB_VERSION_INFO& target, const std::string& text)
{
    const std::size_t limit = 2 * text.size() + kRoom;
    Uve::U8CString name = text;
    STypeNumbers numbers;
    numbers.hasSize = text.size() % 2 != 0;
    PreFormatDBMSDataType(source, name, numbers, -1);
    Require(name.size() <= limit);
    Require(FormatDBMSDataType(target, text.c_str(), static_cast<long>(numbers.size), numbers.scale,
                               numbers.leadingPrecision, -1)
                .size() <= limit);
    Require(FormatDBMSDataType(target, text.c_str(), 1, 2, 3, 4, 5, 0, 6, text.c_str()).size() <=
            30 * text.size() + kRoom);
    Require(GetArrayDataType(text).size() <= text.size());
    Require(ConvertDataType(source, target, {.name = text.c_str()}).text.size() <= limit);

    const STypeRuleResult result =
        ApplyTypeRule(source, target, {.name = text.c_str()},
                      {.name = text.c_str(), .target = text.c_str(), .keepParameters = numbers.hasSize});
    Require(result.targetText.size() <= 30 * text.size() + kRoom);
}

void DriveRead(const DB_VERSION_INFO& source, const DB_VERSION_INFO& target, const std::string& text)
{
    STypeText type = ReadTypeText(source, text);
    Require(type.error.empty() != type.name.empty());
    Require(type.error.size() <= kMaxTypeNameBytes + kRoom);
    Require(type.name.size() <= 2 * kMaxTypeNameBytes + kRoom);
    if (!type.error.empty())
        return;
    CompleteTypeNumbers(source, type);
    STypeTrail trail;
    const SSourceType sourceType = SourceTypeOf(source, type);
    const STargetType result = ConvertDataType(source, target, sourceType, &trail);
    Require(!result.text.empty());
    Require(result.text.size() <= type.name.size() + kRoom);
    Require(ConvertDataType(source, target, sourceType).text == result.text);
    FormatDBMSDataType(source, type.name.c_str(), static_cast<long>(type.numbers.size), type.numbers.scale,
                       type.numbers.leadingPrecision, type.uvdbType);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 2)
        return 0;
    const std::string text(reinterpret_cast<const char*>(data + 2), size - 2);
    DriveRaw(Database(data[0]), Database(data[1]), text);
    DriveRead(Database(data[0]), Database(data[1]), text);
    return 0;
}
