#include "Metadata/UVDBDatabaseInfo.h"

#include "Interfaces/UVDBResults.h"

template class CDatabaseInfoT<IUVDBDatabaseInfo2, CPlainObjectInfo, CColumnInfoBase>;

CUVDBDatabaseInfo::CUVDBDatabaseInfo(DB_VERSION_INFO version) : m_version(version) {}

CUVDBDatabaseInfo::CUVDBDatabaseInfo(unsigned long db, unsigned long subType, unsigned long majorVersion,
                                     unsigned long minorVersion, unsigned long reserved1)
{
    SetDbmsType(db, subType, majorVersion, minorVersion, reserved1);
}

void CUVDBDatabaseInfo::SetDbmsType(DB_VERSION_INFO version)
{
    m_version = version;
}

void CUVDBDatabaseInfo::SetDbmsType(unsigned long db, unsigned long subType, unsigned long majorVersion,
                                    unsigned long minorVersion, unsigned long reserved1)
{
    DB_VERSION_INFO version;
    version.db = db;
    version.subType = subType;
    version.major = majorVersion;
    version.minor = minorVersion;
    version.reserved1 = reserved1;
    m_version = version;
}

int CUVDBDatabaseInfo::get_DbmsVersion(DB_VERSION_INFO* version)
{
    if (!version)
        return UVDB_INVALID_ARGUMENT;
    *version = m_version;
    return UVDB_OK;
}

int CUVDBDatabaseInfo::get_DataSourceName(char*, unsigned long, unsigned long*)
{
    return UVDB_NOT_SUPPORTED;
}

int CUVDBDatabaseInfo::get_DataDriverName(char*, unsigned long, unsigned long*)
{
    return UVDB_NOT_SUPPORTED;
}

int CUVDBDatabaseInfo::get_DriverVersion(char*, unsigned long, unsigned long*)
{
    return UVDB_NOT_SUPPORTED;
}

int CUVDBDatabaseInfo::get_OdbcVersion(char*, unsigned long, unsigned long*)
{
    return UVDB_NOT_SUPPORTED;
}

int CUVDBDatabaseInfo::get_DatabaseName(char*, unsigned long, unsigned long*)
{
    return UVDB_NOT_SUPPORTED;
}

int CUVDBDatabaseInfo::get_CatalogName(char*, unsigned long, unsigned long*)
{
    return UVDB_NOT_SUPPORTED;
}

int CUVDBDatabaseInfo::get_DbmsName(char*, unsigned long, unsigned long*)
{
    return UVDB_NOT_SUPPORTED;
}

int CUVDBDatabaseInfo::get_DbmsVersionString(char*, unsigned long, unsigned long*)
{
    return UVDB_NOT_SUPPORTED;
}

int CUVDBDatabaseInfo::get_IdentifierQuoteChar(char*, unsigned long, unsigned long*)
{
    return UVDB_NOT_SUPPORTED;
}

int CUVDBDatabaseInfo::get_DefaultSchema(char*, unsigned long, unsigned long*)
{
    return UVDB_NOT_SUPPORTED;
}

int CUVDBDatabaseInfo::get_DataTypes(std::shared_ptr<IUVDBObjectList>& types)
{
    types.reset();
    return UVDB_NOT_SUPPORTED;
}

std::shared_ptr<IUVDBTransformer> CUVDBDatabaseInfo::GetTransformer(unsigned int)
{
    return nullptr;
}

std::shared_ptr<IUVDBTransformer> CUVDBDatabaseInfo::CreateMakeDependTransformer()
{
    return nullptr;
}

std::shared_ptr<IUVDBTransformer> CUVDBDatabaseInfo::CreateObjectTransformer()
{
    return nullptr;
}

int CUVDBDatabaseInfo::AddObjectsToCache(long, const char*, const char*, const char*,
                                         std::shared_ptr<IUVDBObjectList>)
{
    return UVDB_NOT_SUPPORTED;
}

int CUVDBDatabaseInfo::get_Objects(long, const char*, const char*, const char*,
                                   std::shared_ptr<IUVDBObjectList>& list)
{
    list.reset();
    return UVDB_NOT_SUPPORTED;
}

int CUVDBDatabaseInfo::get_Objects(long, std::shared_ptr<IUVDBObjectList>& list)
{
    list.reset();
    return UVDB_NOT_SUPPORTED;
}

int CUVDBDatabaseInfo::AddIdentifierTarget(long, const char*, const char*, const char*, const char*,
                                           const char*)
{
    return UVDB_NOT_SUPPORTED;
}

int CUVDBDatabaseInfo::AddTableTarget(const char*, const char*, const char*)
{
    return UVDB_NOT_SUPPORTED;
}

Uve::U8CString CUVDBDatabaseInfo::GetTableTarget(const char*)
{
    return {};
}

bool CUVDBDatabaseInfo::MapFromManyTables(const char*)
{
    return false;
}

int CUVDBDatabaseInfo::GetIdentifierTarget(long, const char*, const char*, const char*, const char*,
                                           Uve::U8CString& target)
{
    target.clear();
    return UVDB_NOT_SUPPORTED;
}

int CUVDBDatabaseInfo::AddIdentifierType(const char*, const char*)
{
    return UVDB_NOT_SUPPORTED;
}

int CUVDBDatabaseInfo::GetIdentifierType(const char*, Uve::U8CString& type)
{
    type.clear();
    return UVDB_NOT_SUPPORTED;
}

int CUVDBDatabaseInfo::getDataModelForAnOutside(std::weak_ptr<IDataModelForAnOutside>& model)
{
    model.reset();
    return UVDB_NOT_SUPPORTED;
}
