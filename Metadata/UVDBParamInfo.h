#pragma once

#include "Interfaces/UVDBResults.h"
#include "Metadata/UVDBObjectText.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <memory>
#include <utility>

class IUVDBDatabaseSession;

// Values that a session reads of the parameters of procedures and triggers and of the columns of views, in
// the words and numbers of its database. A reader derives from the record and fills it before it hands it on;
// everybody else gets.
//
// Texts come in the buffer form of IUVDBObjectInfo, numbers with UVDB_OK, or UVDB_INVALID_ARGUMENT for a null
// output argument. What the database didn't tell is an empty text or 0. A record shares its session.
class CSessionRecord
{
public:
    const std::shared_ptr<IUVDBDatabaseSession>& get_Session() const { return m_session; }

protected:
    explicit CSessionRecord(std::shared_ptr<IUVDBDatabaseSession> session) : m_session(std::move(session)) {}
    ~CSessionRecord() = default;

    static int GiveNumber(long number, long* out)
    {
        if (!out)
            return UVDB_INVALID_ARGUMENT;
        *out = number;
        return UVDB_OK;
    }

private:
    std::shared_ptr<IUVDBDatabaseSession> m_session;
};

// A parameter of a procedure or a function.
class CStoredProcedureParamInfo : public CSessionRecord
{
public:
    explicit CStoredProcedureParamInfo(std::shared_ptr<IUVDBDatabaseSession> session)
        : CSessionRecord(std::move(session))
    {}

    int get_ParamType(long* out) const { return GiveNumber(m_type, out); }
    int get_ParamName(char* dst, unsigned long size, unsigned long* length) const
    {
        return UVDBCopyTextToBuffer(m_name, dst, size, length);
    }
    int get_ParamFieldType(char* dst, unsigned long size, unsigned long* length) const
    {
        return UVDBCopyTextToBuffer(m_fieldType, dst, size, length);
    }
    int get_ParamFieldLength(long* out) const { return GiveNumber(m_fieldLength, out); }
    int get_ParamFieldPrecision(long* out) const { return GiveNumber(m_fieldPrecision, out); }
    int get_ParamFieldScale(long* out) const { return GiveNumber(m_fieldScale, out); }
    int get_CharacterSetId(long* out) const { return GiveNumber(m_characterSetId, out); }
    int getColumn_name(char* dst, unsigned long size, unsigned long* length) const
    {
        return UVDBCopyTextToBuffer(m_columnName, dst, size, length);
    }
    int getTable_name(char* dst, unsigned long size, unsigned long* length) const
    {
        return UVDBCopyTextToBuffer(m_tableName, dst, size, length);
    }
    int getDefault_value(char* dst, unsigned long size, unsigned long* length) const
    {
        return UVDBCopyTextToBuffer(m_defaultValue, dst, size, length);
    }

protected:
    long m_type = 0;
    Uve::U8CString m_name;
    Uve::U8CString m_fieldType;
    long m_fieldLength = 0;
    long m_fieldPrecision = 0;
    long m_fieldScale = 0;
    long m_characterSetId = 0;
    Uve::U8CString m_columnName;
    Uve::U8CString m_tableName;
    Uve::U8CString m_defaultValue;
};

// What a trigger is attached to, and when it runs.
class CTriggerParamInfo : public CSessionRecord
{
public:
    explicit CTriggerParamInfo(std::shared_ptr<IUVDBDatabaseSession> session)
        : CSessionRecord(std::move(session))
    {}

    int get_ParamTriggerName(char* dst, unsigned long size, unsigned long* length) const
    {
        return UVDBCopyTextToBuffer(m_triggerName, dst, size, length);
    }
    int get_ParamRelationTable(char* dst, unsigned long size, unsigned long* length) const
    {
        return UVDBCopyTextToBuffer(m_relationTable, dst, size, length);
    }
    int get_ParamTriggerType(char* dst, unsigned long size, unsigned long* length) const
    {
        return UVDBCopyTextToBuffer(m_triggerType, dst, size, length);
    }
    int get_ParamTriggerPosition(char* dst, unsigned long size, unsigned long* length) const
    {
        return UVDBCopyTextToBuffer(m_triggerPosition, dst, size, length);
    }
    int get_ParamRelationSchema(Uve::U8CString& out) const
    {
        out = m_relationSchema;
        return UVDB_OK;
    }
    int get_Param_condition_timing(char* dst, unsigned long size, unsigned long* length) const
    {
        return UVDBCopyTextToBuffer(m_conditionTiming, dst, size, length);
    }
    int get_Param_event_manipulation(char* dst, unsigned long size, unsigned long* length) const
    {
        return UVDBCopyTextToBuffer(m_eventManipulation, dst, size, length);
    }
    int get_Param_event_object_table(char* dst, unsigned long size, unsigned long* length) const
    {
        return UVDBCopyTextToBuffer(m_eventObjectTable, dst, size, length);
    }
    int get_Param_action_orientation(char* dst, unsigned long size, unsigned long* length) const
    {
        return UVDBCopyTextToBuffer(m_actionOrientation, dst, size, length);
    }

protected:
    Uve::U8CString m_triggerName;
    Uve::U8CString m_relationTable;
    Uve::U8CString m_triggerType;
    Uve::U8CString m_triggerPosition;
    Uve::U8CString m_relationSchema;
    Uve::U8CString m_conditionTiming;
    Uve::U8CString m_eventManipulation;
    Uve::U8CString m_eventObjectTable;
    Uve::U8CString m_actionOrientation;
};

// A column of a view.
class CViewColumnInfo : public CSessionRecord
{
public:
    explicit CViewColumnInfo(std::shared_ptr<IUVDBDatabaseSession> session)
        : CSessionRecord(std::move(session))
    {}

    int get_ColumnName(char* dst, unsigned long size, unsigned long* length) const
    {
        return UVDBCopyTextToBuffer(m_columnName, dst, size, length);
    }

protected:
    Uve::U8CString m_columnName;
};
