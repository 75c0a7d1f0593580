#pragma once

#include "Interfaces/DB_VERSION_INFO.h"
#include "Metadata/UVDBColumnInfo.h"
#include "Metadata/UVDBDatabaseInfoT.h"
#include "Metadata/UVDBObjectInfo.h"

#include <iosfwd>
#include <memory>

extern template class CDatabaseInfoT<IUVDBDatabaseInfo2, CPlainObjectInfo, CColumnInfoBase>;

// A database info without a connection: a host makes one for a source language and puts its options on it.
//
//     auto info = UVDBMakeObject<CUVDBDatabaseInfo>(version);
//     CUVDBOptionWrapper::SetParam(info, "API_SOURCE_DB", Uve::U8CString("ESQLC"));
//
// What only a connection can know is UVDB_NOT_SUPPORTED, with empty lists and texts.
class CUVDBDatabaseInfo : public CDatabaseInfoT<IUVDBDatabaseInfo2, CPlainObjectInfo, CColumnInfoBase>
{
public:
    explicit CUVDBDatabaseInfo(DB_VERSION_INFO version);
    CUVDBDatabaseInfo(unsigned long db, unsigned long subType, unsigned long majorVersion,
                      unsigned long minorVersion, unsigned long reserved1);

    // The form with numbers empties the second group of words.
    void SetDbmsType(DB_VERSION_INFO version);
    void SetDbmsType(unsigned long db, unsigned long subType, unsigned long majorVersion,
                     unsigned long minorVersion, unsigned long reserved1);
    unsigned long GetDbmsType() const { return m_version.db; }
    unsigned long GetMajorVersion() const { return m_version.major; }
    unsigned long GetMinorVersion() const { return m_version.minor; }

    int get_DbmsVersion(DB_VERSION_INFO* version) override;
    DB_VERSION_INFO get_DbmsVersion() override { return m_version; }

    int get_DataSourceName(char* dst, unsigned long size, unsigned long* length) override;
    int get_DataDriverName(char* dst, unsigned long size, unsigned long* length) override;
    int get_DriverVersion(char* dst, unsigned long size, unsigned long* length) override;
    int get_OdbcVersion(char* dst, unsigned long size, unsigned long* length) override;
    int get_DatabaseName(char* dst, unsigned long size, unsigned long* length) override;
    int get_CatalogName(char* dst, unsigned long size, unsigned long* length) override;
    int get_DbmsName(char* dst, unsigned long size, unsigned long* length) override;
    int get_DbmsVersionString(char* dst, unsigned long size, unsigned long* length) override;
    int get_DataTypes(std::shared_ptr<IUVDBObjectList>& types) override;
    int get_IdentifierQuoteChar(char* dst, unsigned long size, unsigned long* length) override;
    int get_DefaultSchema(char* dst, unsigned long size, unsigned long* length) override;

    std::shared_ptr<IUVDBTransformer> GetTransformer(unsigned int index) override;
    std::shared_ptr<IUVDBTransformer> CreateMakeDependTransformer() override;
    std::shared_ptr<IUVDBTransformer> CreateObjectTransformer() override;
    void ReleaseTransformers() override {}

    void SetInputStream(std::shared_ptr<std::istream>) override {}
    std::shared_ptr<std::istream> GetInputStream() override { return nullptr; }
    void SetOutputStream(std::shared_ptr<std::ostream>) override {}
    std::shared_ptr<std::ostream> GetOutputStream() override { return nullptr; }
    void SetSimulateType(Uve::U8CString) override {}

    int AddObjectsToCache(long objectType, const char* database, const char* schema, const char* name,
                          std::shared_ptr<IUVDBObjectList> list) override;
    int get_Objects(long objectType, const char* schema, const char* parent, const char* name,
                    std::shared_ptr<IUVDBObjectList>& list) override;
    int get_Objects(long objectType, std::shared_ptr<IUVDBObjectList>& list) override;

    int AddIdentifierTarget(long objectType, const char* database, const char* schema, const char* table,
                            const char* name, const char* target) override;
    int AddTableTarget(const char* schema, const char* table, const char* target) override;
    Uve::U8CString GetTableTarget(const char* target) override;
    bool MapFromManyTables(const char* target) override;
    int GetIdentifierTarget(long objectType, const char* database, const char* schema, const char* table,
                            const char* name, Uve::U8CString& target) override;
    int AddIdentifierType(const char* name, const char* type) override;
    int GetIdentifierType(const char* name, Uve::U8CString& type) override;

    int getDataModelForAnOutside(std::weak_ptr<IDataModelForAnOutside>& model) override;

private:
    DB_VERSION_INFO m_version;
};
