// The data type tables, one for each database or group of languages whose tables are equal.
#pragma once

#include "Catalogue/Types/DataTypes/DataTypeTable.h"

extern const SDataTypeTable kAccessDataTypes;
extern const SDataTypeTable kAdabasDataTypes;
extern const SDataTypeTable kAnsiDataTypes;
extern const SDataTypeTable kAntsDataTypes;
extern const SDataTypeTable kCSharpDataTypes;
extern const SDataTypeTable kCacheDataTypes;
extern const SDataTypeTable kCppDataTypes;
extern const SDataTypeTable kDb2DataTypes;
extern const SDataTypeTable kDb2ForIDataTypes;
extern const SDataTypeTable kFirebirdDataTypes;
extern const SDataTypeTable kGBaseDataTypes;
extern const SDataTypeTable kGuptaSalDataTypes;
extern const SDataTypeTable kHiRdbDataTypes;
extern const SDataTypeTable kHpNonStopDataTypes;
extern const SDataTypeTable kInformixDataTypes;
extern const SDataTypeTable kInformix4GlDataTypes;
extern const SDataTypeTable kInterBaseDataTypes;
extern const SDataTypeTable kJavaDataTypes;
extern const SDataTypeTable kLanguageDataTypes;
extern const SDataTypeTable kMariaDbDataTypes;
extern const SDataTypeTable kMySqlDataTypes;
extern const SDataTypeTable kNeoviewDataTypes;
extern const SDataTypeTable kNetezzaDataTypes;
extern const SDataTypeTable kNuoDbDataTypes;
extern const SDataTypeTable kOpenEdgeDataTypes;
extern const SDataTypeTable kOracleDataTypes;
extern const SDataTypeTable kPervasiveDataTypes;
extern const SDataTypeTable kPostgreSqlDataTypes;
extern const SDataTypeTable kPostgreSqlForkDataTypes;
extern const SDataTypeTable kProgressDataTypes;
extern const SDataTypeTable kRedshiftDataTypes;
extern const SDataTypeTable kSapHanaDataTypes;
extern const SDataTypeTable kSasDataTypes;
extern const SDataTypeTable kSeaBaseDataTypes;
extern const SDataTypeTable kSnowflakeDataTypes;
extern const SDataTypeTable kSpliceMachineDataTypes;
extern const SDataTypeTable kSqlBaseDataTypes;
extern const SDataTypeTable kSqlServerDataTypes;
extern const SDataTypeTable kSybaseDataTypes;
extern const SDataTypeTable kSybaseAseDataTypes;
extern const SDataTypeTable kTeradataDataTypes;
extern const SDataTypeTable kVbNetDataTypes;
extern const SDataTypeTable kVerticaDataTypes;
extern const SDataTypeTable kVisualBasicDataTypes;
