#pragma once

#include "Interfaces/IUVDBDatabaseInfo.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <memory>

class ILog;
class IProfiler;
class IUVDBErrorInfo;

// A database info with a connection, or with what passes for one. A database plug-in implements it.
//
// Calling order: the texts and set_Log, Connect, then queries and objects, Disconnect. A query is OpenQuery,
// then FetchRow and the fields of the row until there is none, then CloseQuery; one at a time. A session
// serves one thread at a time.
//
// Texts are copied, and a null one is the empty text. Text getters use the buffer form of IUVDBObjectInfo.
// Operations return UVDB_OK unless they say otherwise; UVDB_ERROR for a failure of the connection, and
// get_LastError then tells more.
class IUVDBDatabaseSession : public IUVDBDatabaseInfo2
{
public:
    virtual int set_ServerName(const char* text) = 0;
    virtual int set_DatabaseName(const char* text) = 0;
    virtual int set_CatalogName(const char* text) = 0;
    virtual int set_UserName(const char* text) = 0;
    virtual int get_UserName(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int set_Password(const char* text) = 0;
    virtual int get_Password(char* dst, unsigned long size, unsigned long* length) = 0;

    // An empty connection string stands for the one that the texts above make.
    virtual int Connect(const char* connectionString) = 0;
    virtual int Disconnect() = 0;

    // Share the host's log and profiler.
    virtual int set_Log(std::shared_ptr<ILog> log) = 0;
    virtual int set_Profiler(std::shared_ptr<IProfiler> profiler) = 0;

    // Shares the error of the last operation that failed, empty if none did.
    virtual int get_LastError(std::shared_ptr<IUVDBErrorInfo>& out) = 0;
    virtual int set_LastError(std::shared_ptr<IUVDBErrorInfo> error) = 0;

    // The session watches the model, and the host owns it.
    virtual int set_DataModelForAnOutside(std::weak_ptr<IDataModelForAnOutside> model) = 0;

    // Runs a statement that gives no result.
    virtual int ExecuteDirect(const char* statement) = 0;

    // What the database calls its tables, schemas, procedures and catalogs.
    virtual int get_DbmsTableTerm(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_DbmsSchemaTerm(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_DbmsProcedureTerm(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_DbmsCatalogTerm(char* dst, unsigned long size, unsigned long* length) = 0;

    virtual int Commit() = 0;
    virtual int Rollback() = 0;

    // Ends the query that is running on this session.
    virtual int Cancel() = 0;

    virtual int GetDriverDescription(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int SetCurCatalog(const char* catalog) = 0;

    // Whether get_Objects reads and keeps whole types at once.
    virtual int SetPrecacheObjects(bool precache) = 0;

    // Sets a parameter of the plug-in's catalogue queries.
    virtual int InjectQueryBuilderParam(const char* name, const char* value) = 0;

    // Columns count from 0. Values are UTF-8, copied.
    virtual int OpenQuery(const char* query) = 0;
    virtual int FetchRow() = 0; // UVDB_NO_DATA after the last row
    virtual int get_FieldCount(unsigned long* count) = 0;
    virtual int get_FieldName(unsigned long index, Uve::U8CString& name) = 0;
    virtual int get_FieldValue(unsigned long index, Uve::U8CString& value) = 0; // UVDB_NOT_AVAILABLE for NULL
    virtual int CloseQuery() = 0;

    // Whether the queries trim blanks off the texts they read.
    virtual bool get_TrimBlankSpaces() = 0;
    virtual void set_TrimBlankSpaces(bool trim) = 0;

    virtual int get_DSN(char* dst, unsigned long size, unsigned long* length) = 0;

    // Forgets who is connected to what.
    virtual int ResetConnectionInfo() = 0;

    virtual int get_ConnectionString(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual bool IsConnected() = 0;
};
