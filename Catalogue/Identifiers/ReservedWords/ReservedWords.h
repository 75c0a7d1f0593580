// The lists of reserved words, one for each database or language that has one; equal lists are one.
#pragma once

#include <span>
#include <string_view>

extern const std::span<const std::string_view> kAccessReservedWords;
extern const std::span<const std::string_view> kAntsReservedWords;
extern const std::span<const std::string_view> kAsaReservedWords;
extern const std::span<const std::string_view> kAseReservedWords;
extern const std::span<const std::string_view> kCSharpReservedWords;
extern const std::span<const std::string_view> kDb2ReservedWords;
extern const std::span<const std::string_view> kEnterpriseDbPpasReservedWords;
extern const std::span<const std::string_view> kFirebirdReservedWords;
extern const std::span<const std::string_view> kGBaseReservedWords;
extern const std::span<const std::string_view> kGreenplumReservedWords;
extern const std::span<const std::string_view> kHiRdbReservedWords;
extern const std::span<const std::string_view> kHpNonStopReservedWords;
extern const std::span<const std::string_view> kIngresReservedWords;
extern const std::span<const std::string_view> kInterBaseReservedWords;
extern const std::span<const std::string_view> kMariaDbReservedWords;
extern const std::span<const std::string_view> kMySqlReservedWords;
extern const std::span<const std::string_view> kNeoviewReservedWords;
extern const std::span<const std::string_view> kNuoDbReservedWords;
extern const std::span<const std::string_view> kOracleReservedWords;
extern const std::span<const std::string_view> kParadoxReservedWords;
extern const std::span<const std::string_view> kPervasiveReservedWords;
extern const std::span<const std::string_view> kPostgreSql9ReservedWords;
extern const std::span<const std::string_view> kPostgreSqlReservedWords;
extern const std::span<const std::string_view> kProgressReservedWords;
extern const std::span<const std::string_view> kRedshiftReservedWords;
extern const std::span<const std::string_view> kSapHanaReservedWords;
extern const std::span<const std::string_view> kSeaBaseReservedWords;
extern const std::span<const std::string_view> kSolidReservedWords;
extern const std::span<const std::string_view> kSpliceMachineReservedWords;
extern const std::span<const std::string_view> kSqlServerReservedWords;
extern const std::span<const std::string_view> kSqrReservedWords;
extern const std::span<const std::string_view> kTeradataReservedWords;
extern const std::span<const std::string_view> kVerticaReservedWords;
