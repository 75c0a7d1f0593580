#include "Metadata/UVDBObjectInfo.h"

#include "Catalogue/Identifiers/UVDBIdentifierTypes.h"
#include "Interfaces/IUVDBDatabaseInfo.h"
#include "Interfaces/UVDBResults.h"
#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Metadata/UVDBObjectID.h"
#include "Metadata/UVDBObjectText.h"

#include <string>

template <int id, class I>
CObjectInfoBaseT<id, I>::CObjectInfoBaseT()
{
    const int number = UVDBGetNextObjectID();
    CUVDBOptionWrapper::SetParam(this, "ObjectID", number);
    m_xmlAttributes["id"] = std::to_string(number);
    CUVDBOptionWrapper::SetParam(this, "XMLName", Uve::U8CString(UVDBIdentifierTypeToString(id)));
}

template <int id, class I>
int CObjectInfoBaseT<id, I>::get_DatabaseName(char* dst, unsigned long size, unsigned long* length)
{
    return UVDBCopyTextToBuffer(m_databaseName, dst, size, length);
}

template <int id, class I>
int CObjectInfoBaseT<id, I>::get_SchemaName(char* dst, unsigned long size, unsigned long* length)
{
    return UVDBCopyTextToBuffer(m_schemaName, dst, size, length);
}

template <int id, class I>
int CObjectInfoBaseT<id, I>::get_ObjectName(char* dst, unsigned long size, unsigned long* length)
{
    return UVDBCopyTextToBuffer(m_objectName, dst, size, length);
}

template <int id, class I>
int CObjectInfoBaseT<id, I>::get_TypeName(char* dst, unsigned long size, unsigned long* length)
{
    return UVDBCopyTextToBuffer(m_typeName, dst, size, length);
}

template <int id, class I>
int CObjectInfoBaseT<id, I>::set_DatabaseName(const char* text)
{
    m_databaseName = text;
    return UVDB_OK;
}

template <int id, class I>
int CObjectInfoBaseT<id, I>::set_SchemaName(const char* text)
{
    m_schemaName = text;
    return UVDB_OK;
}

template <int id, class I>
int CObjectInfoBaseT<id, I>::set_ObjectName(const char* text)
{
    m_objectName = NameText(text);
    return UVDB_OK;
}

template <int id, class I>
int CObjectInfoBaseT<id, I>::set_TypeName(const char* text)
{
    m_typeName = NameText(text);
    return UVDB_OK;
}

template <int id, class I>
Uve::U8CString CObjectInfoBaseT<id, I>::NameText(const char* text)
{
    Uve::U8CString name = text;
    Uve::U8CString replaceSymbols;
    CUVDBOptionWrapper::GetParam(this, "REPLACE_NON_EN_SYMBOLS", replaceSymbols);
    if (replaceSymbols.CollateNoCase("yes") == 0)
        ReplaceRussSym(name);
    return name;
}

template <int id, class I>
int CObjectInfoBaseT<id, I>::Set_XMLAttributes_attrib(const char* name, const char* value)
{
    if (!name)
        return UVDB_INVALID_ARGUMENT;
    CUVDBOptionWrapper::SetParam(this, "NeedDepend", true);
    Uve::U8CString& attribute = m_xmlAttributes[name];
    if (value)
        attribute = value;
    m_xmlAttributes["NeedDepend"] = "1";
    return UVDB_OK;
}

template <int id, class I>
int CObjectInfoBaseT<id, I>::Get_XMLAttributes_attrib(const char* name, char* dst, unsigned long size,
                                                      unsigned long* length)
{
    const auto attribute = m_xmlAttributes.find(name);
    return attribute == m_xmlAttributes.end() ? UVDB_NO_DATA
                                              : UVDBCopyTextToBuffer(attribute->second, dst, size, length);
}

template <int id, class I>
std::shared_ptr<IUVDBDatabaseInfo2> CObjectInfoBaseT<id, I>::GetDatabaseInfo()
{
    std::shared_ptr<IUVDBDatabaseInfo2> databaseInfo;
    CUVDBOptionWrapper::GetParam(this, "DatabaseInfo", databaseInfo);
    // The option may point without owning.
    if (databaseInfo)
        if (auto owning = databaseInfo->template cast<IUVDBDatabaseInfo2>())
            return owning;
    return databaseInfo;
}

template <int id, class I>
int CObjectInfoBaseT<id, I>::RefObjects_erase(std::shared_ptr<IUVDBObjectInfo> ref)
{
    if (!ref)
        return UVDB_INVALID_ARGUMENT;
    m_refWeights.erase(ref);
    m_refObjects.erase(ref);
    ref->get_BackRefObjects().erase(this->template cast<IUVDBObjectInfo>());
    return UVDB_OK;
}

template <int id, class I>
int CObjectInfoBaseT<id, I>::RefObjects_insert(std::shared_ptr<IUVDBObjectInfo> ref, int weight)
{
    if (!ref)
        return UVDB_INVALID_ARGUMENT;
    const auto self = this->template cast<IUVDBObjectInfo>();
    if (!self)
        return UVDB_ERROR;
    if (ref == self)
        return UVDB_OK;
    int present = 0;
    if (ref->RefObjects_GetWeight(self, present) == UVDB_OK) {
        if (present < weight)
            return UVDB_OK;
        ref->RefObjects_erase(self);
    }
    m_refObjects.insert(ref);
    if (RefObjects_GetWeight(ref, present) == UVDB_OK && present > weight)
        weight = present;
    m_refWeights[ref] = weight;
    ref->get_BackRefObjects().insert(self);
    return UVDB_OK;
}

template <int id, class I>
int CObjectInfoBaseT<id, I>::RefObjects_GetWeight(std::shared_ptr<IUVDBObjectInfo> ref, int& weight)
{
    const auto present = m_refWeights.find(ref);
    if (present == m_refWeights.end())
        return UVDB_NO_DATA;
    bool isExcluded = false;
    CUVDBOptionWrapper::GetParam(ref, "Exclude", isExcluded);
    if (isExcluded)
        return UVDB_NO_DATA;
    weight = present->second;
    return UVDB_OK;
}

template <int id, class I>
int CObjectInfoBaseT<id, I>::RefObjects_clear()
{
    // Erasing may release the last owner of this object's edges, so it works on a copy.
    for (const auto& ref : std::set(m_refObjects))
        RefObjects_erase(ref);
    return UVDB_OK;
}

template <int id, class I>
int CObjectInfoBaseT<id, I>::ChildObjects_insert(std::shared_ptr<IUVDBObjectInfo> child)
{
    if (!child)
        return UVDB_INVALID_ARGUMENT;
    m_childObjects.push_back(std::move(child));
    return UVDB_OK;
}

template <int id, class I>
int CObjectInfoBaseT<id, I>::get_BodyXML_Option(Uve::U8CString& text)
{
    OptionsHost<I>::get_BodyXML_Option(text);
    return 0;
}

template <int id, class I>
int CObjectInfoBaseT<id, I>::get_Body(char* dst, unsigned long size, unsigned long* length)
{
    return UVDBCopyTextToBuffer(m_body, dst, size, length);
}

template <int id, class I>
int CObjectInfoBaseT<id, I>::set_Body(const char* text)
{
    m_body = text;
    return UVDB_OK;
}

template <int id, class I>
int CObjectInfoBaseT<id, I>::IsBodyEncrypted(bool* out)
{
    if (!out)
        return UVDB_INVALID_ARGUMENT;
    *out = m_isBodyEncrypted;
    return UVDB_OK;
}

template class CObjectInfoBaseT<UVDB_DBO_TABLE, IUVDBObjectInfo>;
template class CObjectInfoBaseT<UVDB_DBO_DATA_TYPE, IUVDBDataTypeInfo>;
template class CObjectInfoBaseT<UVDB_DBO_COLUMN, IUVDBColumnInfo>;
template class CObjectInfoBaseT<UVDB_DBO_OBJECT, IUVDBObjectInfo>;
