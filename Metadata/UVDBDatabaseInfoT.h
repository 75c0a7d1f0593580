#pragma once

#include "Catalogue/Identifiers/UVDBIdentifierTypes.h"
#include "Interfaces/IUVDBDatabaseInfo.h"
#include "Interfaces/IUVDBDatabaseSession.h"
#include "Interfaces/IUVDBObjectInfo.h"
#include "Interfaces/IUVDBTransformer.h"
#include "Interfaces/UVDBResults.h"
#include "Metadata/Options/OptionsHost.h"
#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Metadata/UVDBObjectInfo.h"
#include "Metadata/UVDBUnknownList.h"

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

// What a standalone database info and a session share: the registry of objects, the memory of query results,
// the creation of objects, the case of identifiers. `I` is the interface, `TObject` and `TColumn` the classes
// of the objects that it makes.
//
// Make it by UVDBMakeObject: the objects that it makes refer to it through its self reference. A deriving
// class answers what IUVDBDatabaseInfo2 leaves open, and overrides ExecuteDatabaseQuery if it has a database
// to ask. Texts are UTF-8; results are those of enUVDB_RESULT. Nothing throws but for want of memory, and
// what a deriving class or a transformer throws. No locks: one thread at a time.
//
// Objects. create_new_object makes one by the number of its type: a TColumn for UVDB_DBO_COLUMN, a table for
// UVDB_DBO_TABLE, a TObject for anything else. Each enters the registry under its option "ObjectID".
//
// The registry owns its objects, so an object in it doesn't own the info: its option "DatabaseInfo" only
// points there, and is emptied when the info dies. GetDatabaseInfo of the object gives a pointer that owns.
// An object that leaves the registry owns the info from then on.
//
// Query results. ExecuteQuery remembers by the text of the query, to the end of the info and without a bound.
//
// (The check of destructors doesn't see that the one here overrides that of I.)
template <class I, class TObject, class TColumn>
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor)
class CDatabaseInfoT : public OptionsHost<I>
{
public:
    ~CDatabaseInfoT() override;

    // Runs `query` in the database, past the memory. With `report` a failure goes to the log. ExecuteQuery
    // calls with an empty `result`, and remembers what a failed query leaves in it, too.
    // Returns: UVDB_OK, or the code of the failure; here UVDB_NOT_SUPPORTED, with `result` untouched.
    virtual int ExecuteDatabaseQuery(const char* query, Uve::U8CString& result, bool report);

    // Sets the case rule of plain and of quoted identifiers.
    // Returns: UVDB_OK; UVDB_ERROR if the option has a type that can't hold a number.
    virtual int SetIdentifierCase(long identifierCase);
    virtual int SetQuotedIdentifierCase(long identifierCase);

    // Takes an object out of the registry, which lets go of it.
    // Returns: UVDB_ERROR in every case, whether the number was registered or not.
    virtual int unset_ObjectId(int id);

    // The converter belongs to the host and must outlive this object.
    void set_IdentifierConverter(IUVDBIdentifierConverter* converter) { m_identifierConverter = converter; }

    int GetDatabaseName(char* dst, unsigned long size, unsigned long* length) override;
    int GetDbmsName(char* dst, unsigned long size, unsigned long* length) override;
    std::shared_ptr<IUVDBDatabaseSession> get_DatabaseSession() override;

    int get_IdentifierCase(long* out) override;
    int get_QuotedIdentifierCase(long* out) override;

    int ExecuteQuery(const char* query, Uve::U8CString& result, bool useCache) override;
    int TryExecuteQuery(const char* query, Uve::U8CString& result) override;
    int GetProcedureCallObject(PROCEDURE_CALL_OBJECT& call) override;
    int CallProcedure(PROCEDURE_CALL_OBJECT call, Uve::U8CString& result) override;

    int create_new_object(std::shared_ptr<IUVDBObjectInfo>& object, int type) override;
    int CreateObject(const char* typeName, const char* schema, const char* name,
                     unsigned short flags) override;

    int set_ObjectId(int id, std::shared_ptr<IUVDBObjectInfo> object) override;
    int get_ObjectId(int id, std::shared_ptr<IUVDBObjectInfo>& object) override;

    void addObjectRefID(double referId, double fkId) override;
    void clearReferObjectsID() override;
    std::vector<double> getReferObjectsID() override { return m_referObjectsID; }
    std::vector<double> getFkObjectsID() override { return m_fkObjectsID; }

    int MakeDepend(const char* stylesheet, int objectId) override;

    int GetObjectsFromCache(long objectType, const char* database, const char* schema, const char* name,
                            std::shared_ptr<IUVDBObjectList>& list, unsigned long flags) override;
    int GetObjectsFromCache(std::shared_ptr<IUVDBObjectList>& list, long objectType) override;
    int GetObjectsFromCache(std::shared_ptr<IUVDBObjectList>& list, long objectType, bool all) override;

    IUVDBIdentifierConverter* GetIdentifierConverter() override { return m_identifierConverter; }

private:
    // Sets the option "DatabaseInfo" of an object that was made here.
    void PointBack(const std::shared_ptr<IUVDBObjectInfo>& object,
                   const std::shared_ptr<IUVDBDatabaseInfo2>& info);
    int GiveCaseOption(const char* option, long* out);
    static bool IsOfType(const std::shared_ptr<IUVDBObjectInfo>& object, long objectType);
    static bool NeedsConversion(const std::shared_ptr<IUVDBObjectInfo>& object);
    template <class Predicate>
    void ListObjects(std::shared_ptr<IUVDBObjectList>& list, Predicate isWanted) const;

    std::map<int, std::shared_ptr<IUVDBObjectInfo>> m_objects;
    std::map<Uve::U8CString, Uve::U8CString> m_queryResults;
    std::vector<double> m_referObjectsID;
    std::vector<double> m_fkObjectsID;
    Uve::U8CString m_makeDependStylesheet;
    IUVDBIdentifierConverter* m_identifierConverter = nullptr;
};

template <class I, class TObject, class TColumn>
int CDatabaseInfoT<I, TObject, TColumn>::ExecuteDatabaseQuery(const char*, Uve::U8CString&, bool)
{
    return UVDB_NOT_SUPPORTED;
}

template <class I, class TObject, class TColumn>
int CDatabaseInfoT<I, TObject, TColumn>::SetIdentifierCase(long identifierCase)
{
    return CUVDBOptionWrapper::SetParam(this, "IdentifierCase", static_cast<int>(identifierCase));
}

template <class I, class TObject, class TColumn>
int CDatabaseInfoT<I, TObject, TColumn>::SetQuotedIdentifierCase(long identifierCase)
{
    return CUVDBOptionWrapper::SetParam(this, "QuotedIdentifierCase", static_cast<int>(identifierCase));
}

template <class I, class TObject, class TColumn>
int CDatabaseInfoT<I, TObject, TColumn>::unset_ObjectId(int id)
{
    if (const auto entry = m_objects.find(id); entry != m_objects.end()) {
        PointBack(entry->second, this->template cast<IUVDBDatabaseInfo2>());
        m_objects.erase(entry);
    }
    return UVDB_ERROR;
}

template <class I, class TObject, class TColumn>
CDatabaseInfoT<I, TObject, TColumn>::~CDatabaseInfoT()
{
    for (const auto& entry : m_objects)
        PointBack(entry.second, nullptr);
}

template <class I, class TObject, class TColumn>
void CDatabaseInfoT<I, TObject, TColumn>::PointBack(const std::shared_ptr<IUVDBObjectInfo>& object,
                                                    const std::shared_ptr<IUVDBDatabaseInfo2>& info)
{
    constexpr const char* kOption = "DatabaseInfo";
    std::shared_ptr<IUVDBDatabaseInfo2> present;
    if (object && CUVDBOptionWrapper::GetParam(object, kOption, present) && present.get() == this)
        CUVDBOptionWrapper::SetParam(object, kOption, info);
}

template <class I, class TObject, class TColumn>
int CDatabaseInfoT<I, TObject, TColumn>::GetDatabaseName(char* dst, unsigned long size, unsigned long* length)
{
    return this->get_DatabaseName(dst, size, length);
}

template <class I, class TObject, class TColumn>
int CDatabaseInfoT<I, TObject, TColumn>::GetDbmsName(char* dst, unsigned long size, unsigned long* length)
{
    return this->get_DbmsName(dst, size, length);
}

template <class I, class TObject, class TColumn>
std::shared_ptr<IUVDBDatabaseSession> CDatabaseInfoT<I, TObject, TColumn>::get_DatabaseSession()
{
    return this->template cast<IUVDBDatabaseSession>();
}

template <class I, class TObject, class TColumn>
int CDatabaseInfoT<I, TObject, TColumn>::GiveCaseOption(const char* option, long* out)
{
    if (!out)
        return UVDB_INVALID_ARGUMENT;
    int identifierCase = 0;
    if (!CUVDBOptionWrapper::GetParam(this, option, identifierCase))
        return UVDB_NOT_AVAILABLE;
    *out = identifierCase;
    return UVDB_OK;
}

template <class I, class TObject, class TColumn>
int CDatabaseInfoT<I, TObject, TColumn>::get_IdentifierCase(long* out)
{
    return GiveCaseOption("IdentifierCase", out);
}

template <class I, class TObject, class TColumn>
int CDatabaseInfoT<I, TObject, TColumn>::get_QuotedIdentifierCase(long* out)
{
    return GiveCaseOption("QuotedIdentifierCase", out);
}

template <class I, class TObject, class TColumn>
int CDatabaseInfoT<I, TObject, TColumn>::ExecuteQuery(const char* query, Uve::U8CString& result,
                                                      bool useCache)
{
    if (!query)
        return UVDB_INVALID_ARGUMENT;
    if (const auto known = m_queryResults.find(query); known != m_queryResults.end()) {
        result = known->second;
        return UVDB_OK;
    }
    // What is remembered of a failed query is its result, not what the caller had in the string before.
    result.clear();
    const int code = ExecuteDatabaseQuery(query, result, true);
    if (useCache)
        m_queryResults[query] = result;
    return code;
}

template <class I, class TObject, class TColumn>
int CDatabaseInfoT<I, TObject, TColumn>::TryExecuteQuery(const char* query, Uve::U8CString& result)
{
    return ExecuteDatabaseQuery(query, result, false);
}

template <class I, class TObject, class TColumn>
int CDatabaseInfoT<I, TObject, TColumn>::GetProcedureCallObject(PROCEDURE_CALL_OBJECT&)
{
    return UVDB_NOT_SUPPORTED;
}

template <class I, class TObject, class TColumn>
int CDatabaseInfoT<I, TObject, TColumn>::CallProcedure(PROCEDURE_CALL_OBJECT, Uve::U8CString& result)
{
    result.clear();
    return UVDB_NOT_SUPPORTED;
}

template <class I, class TObject, class TColumn>
int CDatabaseInfoT<I, TObject, TColumn>::create_new_object(std::shared_ptr<IUVDBObjectInfo>& object, int type)
{
    if (type == UVDB_DBO_COLUMN)
        object = UVDBMakeObject<TColumn>(get_DatabaseSession());
    else if (type == UVDB_DBO_TABLE)
        object = UVDBMakeObject<CObjectInfoT<UVDB_DBO_TABLE, IUVDBObjectInfo>>();
    else
        object = UVDBMakeObject<TObject>();
    CUVDBOptionWrapper::SetParam(object, "DatabaseInfo", this->template cast<IUVDBDatabaseInfo2>());
    int number = 0;
    if (CUVDBOptionWrapper::GetParam(object, "ObjectID", number))
        set_ObjectId(number, object);
    return UVDB_OK;
}

template <class I, class TObject, class TColumn>
int CDatabaseInfoT<I, TObject, TColumn>::CreateObject(const char* typeName, const char* schema,
                                                      const char* name, unsigned short flags)
{
    constexpr unsigned short kMadeForTarget = 1;

    std::shared_ptr<IUVDBObjectInfo> object;
    this->create_new_object(object, UVDBIdentifierStringToType(typeName));
    object->set_SchemaName(schema);
    object->set_ObjectName(name);
    CUVDBOptionWrapper::SetParam(object, "XMLName", Uve::U8CString(typeName));
    if (flags & kMadeForTarget)
        CUVDBOptionWrapper::SetParam(object, "TargetObjectCreatedInTranslator", true);
    int number = 0;
    CUVDBOptionWrapper::GetParam(object, "ObjectID", number);
    return number;
}

template <class I, class TObject, class TColumn>
int CDatabaseInfoT<I, TObject, TColumn>::set_ObjectId(int id, std::shared_ptr<IUVDBObjectInfo> object)
{
    if (!object)
        return UVDB_OK;
    std::shared_ptr<IUVDBObjectInfo>& entry = m_objects[id];
    PointBack(entry, this->template cast<IUVDBDatabaseInfo2>());
    // Points without owning.
    PointBack(object, std::shared_ptr<IUVDBDatabaseInfo2>(std::shared_ptr<void>(), this));
    entry = std::move(object);
    return UVDB_OK;
}

template <class I, class TObject, class TColumn>
int CDatabaseInfoT<I, TObject, TColumn>::get_ObjectId(int id, std::shared_ptr<IUVDBObjectInfo>& object)
{
    object.reset();
    const auto found = m_objects.find(id);
    if (found == m_objects.end())
        return UVDB_NO_DATA;
    object = found->second;
    return UVDB_OK;
}

template <class I, class TObject, class TColumn>
void CDatabaseInfoT<I, TObject, TColumn>::addObjectRefID(double referId, double fkId)
{
    m_referObjectsID.push_back(referId);
    m_fkObjectsID.push_back(fkId);
}

template <class I, class TObject, class TColumn>
void CDatabaseInfoT<I, TObject, TColumn>::clearReferObjectsID()
{
    m_referObjectsID.clear();
    m_fkObjectsID.clear();
}

template <class I, class TObject, class TColumn>
int CDatabaseInfoT<I, TObject, TColumn>::MakeDepend(const char* stylesheet, int objectId)
{
    const std::shared_ptr<IUVDBTransformer> transformer = this->CreateMakeDependTransformer();
    if (!transformer)
        return UVDB_OK;
    const Uve::U8CString wanted =
        stylesheet && *stylesheet ? Uve::U8CString(stylesheet) : m_makeDependStylesheet;
    if (wanted != m_makeDependStylesheet) {
        if (transformer->Load(wanted.c_str()) != UVDB_OK)
            return UVDB_ERROR;
        m_makeDependStylesheet = wanted;
    }
    if (transformer->SetParameter("selected_object", std::to_string(objectId).c_str()) != UVDB_OK)
        return UVDB_ERROR;
    return transformer->Run() ? UVDB_OK : UVDB_ERROR;
}

template <class I, class TObject, class TColumn>
int CDatabaseInfoT<I, TObject, TColumn>::GetObjectsFromCache(long, const char*, const char*, const char*,
                                                             std::shared_ptr<IUVDBObjectList>& list,
                                                             unsigned long)
{
    list.reset();
    return UVDB_NOT_SUPPORTED;
}

template <class I, class TObject, class TColumn>
int CDatabaseInfoT<I, TObject, TColumn>::GetObjectsFromCache(std::shared_ptr<IUVDBObjectList>& list,
                                                             long objectType)
{
    ListObjects(list, [&](const auto& object) { return IsOfType(object, objectType); });
    return UVDB_OK;
}

template <class I, class TObject, class TColumn>
int CDatabaseInfoT<I, TObject, TColumn>::GetObjectsFromCache(std::shared_ptr<IUVDBObjectList>& list,
                                                             long objectType, bool all)
{
    ListObjects(list, [&](const auto& object) {
        return all || (IsOfType(object, objectType) && NeedsConversion(object));
    });
    return UVDB_OK;
}

template <class I, class TObject, class TColumn>
bool CDatabaseInfoT<I, TObject, TColumn>::IsOfType(const std::shared_ptr<IUVDBObjectInfo>& object,
                                                   long objectType)
{
    Uve::U8CString typeName;
    return CUVDBOptionWrapper::GetParam(object, "XMLName", typeName) &&
           UVDBIdentifierStringToType(typeName) == objectType;
}

template <class I, class TObject, class TColumn>
bool CDatabaseInfoT<I, TObject, TColumn>::NeedsConversion(const std::shared_ptr<IUVDBObjectInfo>& object)
{
    Uve::U8CString needCreateDdl;
    CUVDBOptionWrapper::GetParam(object, "NeedCreateDDL", needCreateDdl);
    bool needConvert = false;
    CUVDBOptionWrapper::GetParam(object, "NeedConvert", needConvert);
    return needCreateDdl == "1" || needConvert;
}

template <class I, class TObject, class TColumn>
template <class Predicate>
void CDatabaseInfoT<I, TObject, TColumn>::ListObjects(std::shared_ptr<IUVDBObjectList>& list,
                                                      Predicate isWanted) const
{
    list = std::make_shared<CUVDBUnknownList>();
    for (const auto& [number, object] : m_objects)
        if (isWanted(object))
            list->Add(object);
}
