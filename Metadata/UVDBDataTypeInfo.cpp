#include "Metadata/UVDBDataTypeInfo.h"

#include "Catalogue/Types/UVDBDataTypes.h"
#include "Interfaces/UVDBResults.h"
#include "Metadata/UVDBObjectText.h"

#include <utility>

namespace {

template <class Value, class Out>
int GiveValue(const std::optional<Value>& value, Out* out)
{
    if (!value)
        return UVDB_NOT_AVAILABLE;
    if (!out)
        return UVDB_INVALID_ARGUMENT;
    *out = *value;
    return UVDB_OK;
}

// The internal types that have no sign by their nature.
bool IsUnsignedType(long dataType)
{
    enum : long
    {
        kTinyUnsigned = 38,
        kBigUnsigned = 41
    };
    return dataType >= kTinyUnsigned && dataType <= kBigUnsigned;
}

} // namespace

CDataTypeInfo::CDataTypeInfo(std::shared_ptr<IUVDBDatabaseSession> session)
{
    m_facts.session = std::move(session);
}

int CDataTypeInfo::get_TypeName(char* dst, unsigned long size, unsigned long* length)
{
    return UVDBCopyTextToBuffer(m_facts.typeName, dst, size, length);
}

int CDataTypeInfo::set_TypeName(const char* text)
{
    m_facts.typeName = NameText(text);
    return UVDB_OK;
}

int CDataTypeInfo::get_DataType(long* out)
{
    return GiveValue(std::optional(GetDataType()), out);
}

int CDataTypeInfo::get_OriginalTypeName(char* dst, unsigned long size, unsigned long* length)
{
    return UVDBCopyTextToBuffer(m_facts.originalTypeName, dst, size, length);
}

int CDataTypeInfo::get_Length(long* out)
{
    return IsLengthValid() ? GiveValue(m_facts.columnSize, out) : UVDB_NOT_AVAILABLE;
}

int CDataTypeInfo::set_Length(long length)
{
    m_facts.columnSize = length;
    return UVDB_OK;
}

int CDataTypeInfo::get_Precision(long* out)
{
    return IsPrecisionValid() ? GiveValue(m_facts.columnSize, out) : UVDB_NOT_AVAILABLE;
}

int CDataTypeInfo::get_MinScale(long* out)
{
    return GiveValue(m_facts.minScale, out);
}

int CDataTypeInfo::get_MaxScale(long* out)
{
    return GiveValue(m_facts.maxScale, out);
}

int CDataTypeInfo::set_MaxScale(long scale)
{
    m_facts.maxScale = scale;
    return UVDB_OK;
}

int CDataTypeInfo::IsPrecScaleFixed(bool* out)
{
    return GiveValue(std::optional(m_facts.isPrecScaleFixed), out);
}

int CDataTypeInfo::get_CreateParams(char* dst, unsigned long size, unsigned long* length)
{
    return UVDBCopyTextToBuffer(m_facts.createParams, dst, size, length);
}

int CDataTypeInfo::IsUnsigned(bool* out)
{
    return GiveValue(std::optional(IsUnsignedType(m_facts.dataType) || m_facts.isUnsigned), out);
}

int CDataTypeInfo::get_LeadingPrecision(long* out)
{
    return GiveValue(m_facts.leadingPrecision, out);
}

int CDataTypeInfo::get_ArrayType(char* dst, unsigned long size, unsigned long* length)
{
    return UVDBCopyTextToBuffer(m_facts.arrayType, dst, size, length);
}

long CDataTypeInfo::GetDataType()
{
    return m_facts.dataType;
}

long CDataTypeInfo::GetDataType(DB_VERSION_INFO version)
{
    if (m_facts.dataType == -1) {
        m_facts.dataType = ODBCToUVDBDataType(version, m_facts.odbcType, m_facts.typeName.c_str(),
                                              static_cast<unsigned long>(m_facts.columnSize.value_or(0)),
                                              m_facts.minScale.value_or(0), m_facts.maxScale.value_or(0));
    }
    return m_facts.dataType;
}

bool CDataTypeInfo::IsLengthValid() const
{
    return m_facts.columnSize && !HasScale() &&
           GetUVDBDataTypeColumnSizePurpose(m_facts.dataType) == UVDB_SIZE_IS_LENGTH;
}

bool CDataTypeInfo::IsPrecisionValid() const
{
    return m_facts.columnSize &&
           (HasScale() || GetUVDBDataTypeColumnSizePurpose(m_facts.dataType) == UVDB_SIZE_IS_PRECISION);
}

bool CDataTypeInfo::IsUnsignedValid() const
{
    return IsUnsignedType(m_facts.dataType) || m_facts.isUnsignedValid;
}
