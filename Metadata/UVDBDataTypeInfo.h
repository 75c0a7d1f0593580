#pragma once

#include "Interfaces/DB_VERSION_INFO.h"
#include "Metadata/UVDBObjectInfo.h"

#include <memory>
#include <optional>

class IUVDBDatabaseSession;

// The facts of a data type as a database tells them. What it doesn't tell stays as it is here. Texts are
// UTF-8; sizes and scales count characters or digits, as the database counts them.
struct SDataTypeFacts
{
    std::shared_ptr<IUVDBDatabaseSession> session; // where the type was read; empty without a connection
    Uve::U8CString typeName;                       // by which tables of types are asked
    Uve::U8CString originalTypeName;               // as the database spelled it
    Uve::U8CString createParams;                   // names of the parameters, separated by commas
    long dataType = -1;                            // internal number, -1 until it is known
    std::optional<long> columnSize;                // a length or a precision, see IsLengthValid
    std::optional<long> minScale;                  // digits after the point
    std::optional<long> maxScale;
    bool isPrecScaleFixed = false;        // precision and scale are the type's own
    bool isUnsigned = false;              // asked only where the internal type leaves it open
    bool isUnsignedValid = false;         // the database has told isUnsigned
    std::optional<long> leadingPrecision; // digits of an interval's first field
    long odbcType = 0;                    // ODBC's number, for types whose name no table knows
    int userType = 0;                     // a number of the plug-in's for a type that a user defined
    Uve::U8CString arrayType;
};

// A data type, by itself or as a column has it. Whoever reads it from a database makes it by UVDBMakeObject
// and fills its facts; others read it through IUVDBDataTypeInfo, which says what the getters return. Of the
// setters the name, the length and the largest scale change a fact, the last two also one that was missing.
//
// Calling order: fill the facts, then GetDataType(version), then the rest. The internal number decides what
// the column size means and whether there is a sign; before it is known, the size of a type without a scale
// counts as a length.
//
// Nothing throws but for want of memory. No locks: an object belongs to one thread at a time.
class CDataTypeInfo : public CObjectInfoT<1, IUVDBDataTypeInfo>
{
public:
    CDataTypeInfo() = default;
    // Shares the session.
    explicit CDataTypeInfo(std::shared_ptr<IUVDBDatabaseSession> session);

    // For the reader that fills them. They live as long as the object.
    SDataTypeFacts& Facts() { return m_facts; }

    // The name among the facts, instead of the one that every object has.
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

    // Returns: the internal number as it is known, -1 as long as it isn't.
    virtual long GetDataType();
    // The same; a number that isn't known yet is found by name, sizes and ODBC number in the types of that
    // database, and kept, whatever version a later call names. A missing size or scale counts as 0.
    // Returns: -1 if the table of that database knows neither name nor ODBC number; the next call tries
    //          again.
    virtual long GetDataType(DB_VERSION_INFO version);

    // Whether the column size is a length, or a precision: never both, and neither without a size. With a
    // scale it is a precision, without one the internal type decides.
    bool IsLengthValid() const;
    bool IsPrecisionValid() const;

    // Whether it is known if the type has a sign.
    bool IsUnsignedValid() const;

private:
    bool HasScale() const { return m_facts.minScale || m_facts.maxScale; }

    SDataTypeFacts m_facts;
};
