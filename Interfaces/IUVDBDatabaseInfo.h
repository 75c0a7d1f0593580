#pragma once

#include "Interfaces/DB_VERSION_INFO.h"
#include "Interfaces/IUVDBList.h"
#include "Interfaces/IUVDBObject.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <iosfwd>
#include <memory>
#include <vector>

class IDataModelForAnOutside;
class IUVDBDatabaseSession;
class IUVDBIdentifierConverter;
class IUVDBObjectInfo;
class IUVDBTransformer;

using IUVDBObjectList = IUVDBList<std::shared_ptr<IUVDBObject>>;

// A procedure call that a database plug-in prepares and runs. What it holds is the plug-in's own affair;
// copies share it.
struct PROCEDURE_CALL_OBJECT
{
    std::shared_ptr<void> content;
};

// The database or source language at hand, as the option set that parsers and converters read.
//
// Text getters use the buffer form of IUVDBObjectInfo. Operations return UVDB_OK unless they say otherwise;
// UVDB_NOT_SUPPORTED where a database info without a connection can't answer.
class IUVDBDatabaseInfo : public IUVDBObject
{
public:
    // Returns: UVDB_INVALID_ARGUMENT for a null `version`.
    virtual int get_DbmsVersion(DB_VERSION_INFO* version) = 0;
    virtual DB_VERSION_INFO get_DbmsVersion() = 0;

    virtual int GetDatabaseName(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int GetDbmsName(char* dst, unsigned long size, unsigned long* length) = 0;

    // This object as a session; empty if it has no connection.
    virtual std::shared_ptr<IUVDBDatabaseSession> get_DatabaseSession() = 0;
};

// Adds what a connection knows, a registry of objects by number, and a memory of query results.
//
// Texts and queries are UTF-8. Types of objects are numbers of enUVDB_DATABASE_OBJECT. The registry shares
// its objects, and an object in it doesn't keep the info alive. No locks: one thread at a time.
class IUVDBDatabaseInfo2 : public IUVDBDatabaseInfo
{
public:
    virtual int get_DataSourceName(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_DataDriverName(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_DriverVersion(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_OdbcVersion(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_DatabaseName(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_CatalogName(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_DbmsName(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_DbmsVersionString(char* dst, unsigned long size, unsigned long* length) = 0;

    // Shares the list of the database's data types. `types` is empty unless the result is UVDB_OK.
    virtual int get_DataTypes(std::shared_ptr<IUVDBObjectList>& types) = 0;

    // The case rule of plain identifiers, from the int option "IdentifierCase".
    // Returns: UVDB_NOT_AVAILABLE, with `*out` untouched, when the option isn't there; UVDB_INVALID_ARGUMENT
    //          for a null `out`.
    virtual int get_IdentifierCase(long* out) = 0;

    virtual int get_IdentifierQuoteChar(char* dst, unsigned long size, unsigned long* length) = 0;

    // Runs `query`, or gives the result that was remembered under the same text; the memory is asked whatever
    // `useCache` says. With `useCache` the result of a query that was run is remembered, a failed one too.
    // Returns: the code of the query; UVDB_INVALID_ARGUMENT for a null `query`.
    virtual int ExecuteQuery(const char* query, Uve::U8CString& result, bool useCache) = 0;

    // Runs `query` past the memory, and quietly: a failure is an answer here.
    virtual int TryExecuteQuery(const char* query, Uve::U8CString& result) = 0;

    virtual int GetProcedureCallObject(PROCEDURE_CALL_OBJECT& call) = 0;

    // `result` is empty unless the result is UVDB_OK.
    virtual int CallProcedure(PROCEDURE_CALL_OBJECT call, Uve::U8CString& result) = 0;

    // As get_IdentifierCase, for quoted identifiers, from the int option "QuotedIdentifierCase".
    virtual int get_QuotedIdentifierCase(long* out) = 0;

    virtual int get_DefaultSchema(char* dst, unsigned long size, unsigned long* length) = 0;

    // Share a transformer of the plug-in; empty if it has none.
    virtual std::shared_ptr<IUVDBTransformer> GetTransformer(unsigned int index) = 0;
    virtual std::shared_ptr<IUVDBTransformer> CreateMakeDependTransformer() = 0;
    virtual std::shared_ptr<IUVDBTransformer> CreateObjectTransformer() = 0;
    virtual void ReleaseTransformers() = 0;

    // Makes an object of the type number `type`, enters it in the registry and gives it the option
    // "DatabaseInfo". The caller and the registry share it.
    virtual int create_new_object(std::shared_ptr<IUVDBObjectInfo>& object, int type) = 0;

    // Makes an object by the text of its type, or finds one that a session knows already. With bit 0 of
    // `flags` it is marked as created for the target.
    // Returns: the object's number.
    virtual int CreateObject(const char* typeName, const char* schema, const char* name,
                             unsigned short flags) = 0;

    // What these are for is the plug-in's affair. A database info without a connection drops what it is given
    // and gives null.
    virtual void SetInputStream(std::shared_ptr<std::istream> stream) = 0;
    virtual std::shared_ptr<std::istream> GetInputStream() = 0;
    virtual void SetOutputStream(std::shared_ptr<std::ostream> stream) = 0;
    virtual std::shared_ptr<std::ostream> GetOutputStream() = 0;
    virtual void SetSimulateType(Uve::U8CString typeName) = 0;

    // Shares `object` under the number `id`, in the place of an earlier one; an empty pointer changes
    // nothing.
    virtual int set_ObjectId(int id, std::shared_ptr<IUVDBObjectInfo> object) = 0;

    // Returns: UVDB_NO_DATA, with `object` empty, for a number that isn't registered.
    virtual int get_ObjectId(int id, std::shared_ptr<IUVDBObjectInfo>& object) = 0;

    // Pairs of object numbers: an object, and what its foreign keys refer to. The getters give the two
    // columns.
    virtual void addObjectRefID(double referId, double fkId) = 0;
    virtual void clearReferObjectsID() = 0;
    virtual std::vector<double> getReferObjectsID() = 0;
    virtual std::vector<double> getFkObjectsID() = 0;

    // Runs the plug-in's dependency stylesheet for one object. A null or empty `stylesheet` means the one of
    // the last call.
    // Returns: UVDB_OK, also without a transformer; UVDB_ERROR if the stylesheet couldn't be loaded or run.
    virtual int MakeDepend(const char* stylesheet, int objectId) = 0;

    // Shares `list` as all objects of that type, schema and name. Names may be "%".
    virtual int AddObjectsToCache(long objectType, const char* database, const char* schema, const char* name,
                                  std::shared_ptr<IUVDBObjectList> list) = 0;

    // Reads objects from the database. `parent` is the table's name for the types that belong to a table, and
    // empty for others; names may be "%". `list` is empty unless the result is UVDB_OK.
    virtual int get_Objects(long objectType, const char* schema, const char* parent, const char* name,
                            std::shared_ptr<IUVDBObjectList>& list) = 0;
    virtual int get_Objects(long objectType, std::shared_ptr<IUVDBObjectList>& list) = 0;

    // Shares a list that AddObjectsToCache was given, rewound. With bit 16 of `flags` the cache is passed by.
    // Returns: UVDB_OK for a hit; any other code, with `list` empty, for a miss.
    virtual int GetObjectsFromCache(long objectType, const char* database, const char* schema,
                                    const char* name, std::shared_ptr<IUVDBObjectList>& list,
                                    unsigned long flags) = 0;

    // New lists of what the registry holds, by number: the objects of a type; with `all` every object,
    // without it those of the type whose option "NeedCreateDDL" reads "1" or whose bool option "NeedConvert"
    // is true.
    virtual int GetObjectsFromCache(std::shared_ptr<IUVDBObjectList>& list, long objectType) = 0;
    virtual int GetObjectsFromCache(std::shared_ptr<IUVDBObjectList>& list, long objectType, bool all) = 0;

    // What became of names in the target. A later entry replaces an earlier one.
    // GetIdentifierTarget and GetIdentifierType return UVDB_NO_DATA, with an empty text, for an unknown name.
    virtual int AddIdentifierTarget(long objectType, const char* database, const char* schema,
                                    const char* table, const char* name, const char* target) = 0;
    virtual int AddTableTarget(const char* schema, const char* table, const char* target) = 0;

    // The first source table, as schema, dot, table, that became `target`; empty if none did.
    virtual Uve::U8CString GetTableTarget(const char* target) = 0;

    // Whether more than one source table became `target`.
    virtual bool MapFromManyTables(const char* target) = 0;

    virtual int GetIdentifierTarget(long objectType, const char* database, const char* schema,
                                    const char* table, const char* name, Uve::U8CString& target) = 0;
    virtual int AddIdentifierType(const char* name, const char* type) = 0;
    virtual int GetIdentifierType(const char* name, Uve::U8CString& type) = 0;

    // The host's identifier converter, which the database info doesn't own; null if there is none.
    virtual IUVDBIdentifierConverter* GetIdentifierConverter() = 0;

    // Gives the host's data model, expired if there is none.
    virtual int getDataModelForAnOutside(std::weak_ptr<IDataModelForAnOutside>& model) = 0;
};
