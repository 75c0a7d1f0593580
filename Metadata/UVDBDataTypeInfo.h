#pragma once

#include "Interfaces/DB_VERSION_INFO.h"
#include "Metadata/UVDBObjectInfo.h"

#include <memory>
#include <optional>

class IUVDBDatabaseSession;

// The facts of a data type as a database tells them. Those that can be missing are empty then.
struct SDataTypeFacts
{
    std::shared_ptr<IUVDBDatabaseSession> session;
    Uve::U8CString typeName;
    Uve::U8CString originalTypeName;
    Uve::U8CString createParams;
    long dataType = -1; // internal number, -1 until it is known
    std::optional<long> columnSize;
    std::optional<long> minScale;
    std::optional<long> maxScale;
    bool isPrecScaleFixed = false;
    bool isUnsigned = false;
    bool isUnsignedValid = false;
    std::optional<long> leadingPrecision;
    long odbcType = 0;
    int userType = 0;
    Uve::U8CString arrayType;
};

// A data type. Whoever reads it from a database fills its facts.
class CDataTypeInfo : public CObjectInfoT<1, IUVDBDataTypeInfo>
{
public:
    CDataTypeInfo() = default;
    explicit CDataTypeInfo(std::shared_ptr<IUVDBDatabaseSession> session);

    SDataTypeFacts& Facts() { return m_facts; }

    int get_TypeName(char* dst, unsigned long size, unsigned long* length) override;
    Uve::U8CString get_TypeName() override { return m_facts.typeName; }
    int set_TypeName(const char* text) override;

    int get_DataType(long* out) override;
    int get_OriginalTypeName(char* dst, unsigned long size, unsigned long* length) override;
    int get_Length(long* out) override;
    int set_Length(long length) override;
    int get_Precision(long* out) override;
    int get_MinScale(long* out) override;
    int get_MaxScale(long* out) override;
    int set_MaxScale(long scale) override;
    int IsPrecScaleFixed(bool* out) override;
    int get_CreateParams(char* dst, unsigned long size, unsigned long* length) override;
    int IsUnsigned(bool* out) override;
    int get_LeadingPrecision(long* out) override;
    int GetUserType() override { return m_facts.userType; }
    int get_ArrayType(char* dst, unsigned long size, unsigned long* length) override;

    // The internal number as it is known. -1 if nobody knows.
    virtual long GetDataType();
    // The same; a number that isn't known yet is found by name, sizes and ODBC number in the types of that
    // database, and kept.
    virtual long GetDataType(DB_VERSION_INFO version);

    // Whether the column size is a length, or a precision. Never both.
    bool IsLengthValid() const;
    bool IsPrecisionValid() const;

    // Whether it is known if the type has a sign.
    bool IsUnsignedValid() const;

private:
    bool HasScale() const { return m_facts.minScale || m_facts.maxScale; }

    SDataTypeFacts m_facts;
};
