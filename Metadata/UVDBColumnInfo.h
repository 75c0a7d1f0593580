#pragma once

#include "Interfaces/IUVDBColumnInfo.h"
#include "Interfaces/UVDBResults.h"
#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Metadata/UVDBDataTypeInfo.h"
#include "Metadata/UVDBObjectInfo.h"
#include "Metadata/UVDBObjectText.h"

#include <memory>
#include <utility>

class IUVDBDatabaseSession;

// The facts of a column as a database tells them, in its own words: UTF-8, carried and never interpreted
// here. Texts that it didn't tell are empty, numbers 0.
struct SColumnFacts
{
    Uve::U8CString columnName;
    Uve::U8CString defaultValue;
    Uve::U8CString defaultValueType;
    Uve::U8CString defaultColumnType;
    Uve::U8CString identityGenerated;
    Uve::U8CString identityCycl;
    Uve::U8CString dataTypeInfo;
    Uve::U8CString nestedName;
    Uve::U8CString timeDimension;
    Uve::U8CString virtualText;
    Uve::U8CString collation;
    Uve::U8CString genType;
    Uve::U8CString genExpression;
    Uve::U8CString computedColumn;
    Uve::U8CString characterSet;
    Uve::U8CString generatedAlways;
    Uve::U8CString identityGeneration;
    Uve::U8CString description;
    Uve::U8CString format;
    Uve::U8CString displayOrder;
    Uve::U8CString decimals;
    Uve::U8CString maxWidth;
    long arrayExtent = 0;
    long computed = 0;
};

// A column, with a data type of the class `TDataType`. A database info makes it (create_new_object, for the
// type number UVDB_DBO_COLUMN); whoever reads it from a database then fills its facts and sets its data type,
// and only after that hands it on. Through IUVDBColumnInfo others read the facts, texts in buffer form; of
// the facts they can change the name and the text of the data type.
//
// Nothing throws but for want of memory. No locks: an object belongs to one thread at a time.
template <class TDataType>
class CColumnInfoT : public CObjectInfoT<17, IUVDBColumnInfo>
{
public:
    // Shares the session that the column is read on; empty without a connection.
    explicit CColumnInfoT(std::shared_ptr<IUVDBDatabaseSession> session) : m_session(std::move(session)) {}

    // For the reader that fills them. They live as long as the object.
    SColumnFacts& Facts() { return m_facts; }
    // Shares the data type, which others may have as well; empty until it is set.
    void set_DataType(std::shared_ptr<TDataType> dataType) { m_dataType = std::move(dataType); }
    const std::shared_ptr<IUVDBDatabaseSession>& get_Session() const { return m_session; }

    // The option "ColumnName" stands for a name that is empty, and isn't changed by set_ColumnName.
    int get_ColumnName(char* dst, unsigned long size, unsigned long* length) override
    {
        Uve::U8CString name = m_facts.columnName;
        if (name.empty())
            CUVDBOptionWrapper::GetParam(this, "ColumnName", name);
        return UVDBCopyTextToBuffer(name, dst, size, length);
    }
    int set_ColumnName(const char* name) override
    {
        if (name)
            m_facts.columnName = name;
        return UVDB_OK;
    }
    int get_DataType(std::shared_ptr<IUVDBDataTypeInfo>& out) override
    {
        out = m_dataType;
        return UVDB_OK;
    }
    int get_DefaultValue(char* dst, unsigned long size, unsigned long* length) override
    {
        return UVDBCopyTextToBuffer(m_facts.defaultValue, dst, size, length);
    }
    int get_DefaultValueType(char* dst, unsigned long size, unsigned long* length) override
    {
        return UVDBCopyTextToBuffer(m_facts.defaultValueType, dst, size, length);
    }
    int get_DefaultColumnType(char* dst, unsigned long size, unsigned long* length) override
    {
        return UVDBCopyTextToBuffer(m_facts.defaultColumnType, dst, size, length);
    }
    int get_IdentityGenerated(char* dst, unsigned long size, unsigned long* length) override
    {
        return UVDBCopyTextToBuffer(m_facts.identityGenerated, dst, size, length);
    }
    int get_IdentityCycl(char* dst, unsigned long size, unsigned long* length) override
    {
        return UVDBCopyTextToBuffer(m_facts.identityCycl, dst, size, length);
    }
    int get_DataTypeInfo(char* dst, unsigned long size, unsigned long* length) override
    {
        return UVDBCopyTextToBuffer(m_facts.dataTypeInfo, dst, size, length);
    }
    int set_DataTypeInfo(const char* text) override
    {
        m_facts.dataTypeInfo = text;
        return UVDB_OK;
    }
    int get_NestedName(char* dst, unsigned long size, unsigned long* length) override
    {
        return UVDBCopyTextToBuffer(m_facts.nestedName, dst, size, length);
    }
    int get_TimeDimension(char* dst, unsigned long size, unsigned long* length) override
    {
        return UVDBCopyTextToBuffer(m_facts.timeDimension, dst, size, length);
    }
    int get_Virtual(char* dst, unsigned long size, unsigned long* length) override
    {
        return UVDBCopyTextToBuffer(m_facts.virtualText, dst, size, length);
    }
    int get_Collation(char* dst, unsigned long size, unsigned long* length) override
    {
        return UVDBCopyTextToBuffer(m_facts.collation, dst, size, length);
    }
    int get_GenType(char* dst, unsigned long size, unsigned long* length) override
    {
        return UVDBCopyTextToBuffer(m_facts.genType, dst, size, length);
    }
    int get_GenExpression(char* dst, unsigned long size, unsigned long* length) override
    {
        return UVDBCopyTextToBuffer(m_facts.genExpression, dst, size, length);
    }
    int get_ArrayExtent(long* out) override { return GiveNumber(m_facts.arrayExtent, out); }
    int get_Computed(long* out) override { return GiveNumber(m_facts.computed, out); }
    int get_ComputedColumn(char* dst, unsigned long size, unsigned long* length) override
    {
        return UVDBCopyTextToBuffer(m_facts.computedColumn, dst, size, length);
    }
    int get_CharacterSet(char* dst, unsigned long size, unsigned long* length) override
    {
        return UVDBCopyTextToBuffer(m_facts.characterSet, dst, size, length);
    }
    int get_GeneratedAlways(char* dst, unsigned long size, unsigned long* length) override
    {
        return UVDBCopyTextToBuffer(m_facts.generatedAlways, dst, size, length);
    }
    int get_IdentityGeneration(char* dst, unsigned long size, unsigned long* length) override
    {
        return UVDBCopyTextToBuffer(m_facts.identityGeneration, dst, size, length);
    }
    int get_Description(char* dst, unsigned long size, unsigned long* length) override
    {
        return UVDBCopyTextToBuffer(m_facts.description, dst, size, length);
    }
    int get_Format(char* dst, unsigned long size, unsigned long* length) override
    {
        return UVDBCopyTextToBuffer(m_facts.format, dst, size, length);
    }
    int get_DisplayOrder(char* dst, unsigned long size, unsigned long* length) override
    {
        return UVDBCopyTextToBuffer(m_facts.displayOrder, dst, size, length);
    }
    int get_Decimals(char* dst, unsigned long size, unsigned long* length) override
    {
        return UVDBCopyTextToBuffer(m_facts.decimals, dst, size, length);
    }
    int get_MaxWidth(char* dst, unsigned long size, unsigned long* length) override
    {
        return UVDBCopyTextToBuffer(m_facts.maxWidth, dst, size, length);
    }

private:
    // Returns: UVDB_OK; UVDB_INVALID_ARGUMENT for a null `out`.
    static int GiveNumber(long number, long* out)
    {
        if (!out)
            return UVDB_INVALID_ARGUMENT;
        *out = number;
        return UVDB_OK;
    }

    std::shared_ptr<IUVDBDatabaseSession> m_session;
    std::shared_ptr<TDataType> m_dataType;
    SColumnFacts m_facts;
};

// The column that a database info makes.
class CColumnInfoBase : public CColumnInfoT<CDataTypeInfo>
{
public:
    using CColumnInfoT::CColumnInfoT;
};
