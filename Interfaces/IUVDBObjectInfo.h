#pragma once

#include "Interfaces/IUVDBObject.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <list>
#include <map>
#include <memory>
#include <set>
#include <vector>

class IUVDBDatabaseInfo2;

// Any object of a database: a table, a view, a procedure. It carries names, XML attributes, weighted
// references to other objects, children, and the messages that its conversion gave.
//
// The text getters with three arguments ("buffer form") take a buffer of `size` bytes and store the text's
// length in `*length`, in bytes, without its terminator. `size` 0 asks for the length alone and leaves `dst`
// untouched. A buffer too small gets the first `size` - 1 bytes and a terminator, and `*length` becomes
// `size` - 1.
// Returns: UVDB_OK; UVDB_ERROR for a null `length`, and then nothing is written.
//
// The collections are handed out by reference: they belong to the object and change with it.
class IUVDBObjectInfo : public IUVDBObject
{
public:
    virtual int get_DatabaseName(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_SchemaName(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_ObjectName(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_TypeName(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual Uve::U8CString get_DatabaseName() = 0;
    virtual Uve::U8CString get_SchemaName() = 0;
    virtual Uve::U8CString get_ObjectName() = 0;
    virtual Uve::U8CString get_TypeName() = 0;

    // Copy the text; a null one is the empty text. When the option "REPLACE_NON_EN_SYMBOLS" reads "yes",
    // object and type name go through ReplaceRussSym first.
    // Returns: UVDB_OK.
    virtual int set_DatabaseName(const char* text) = 0;
    virtual int set_SchemaName(const char* text) = 0;
    virtual int set_ObjectName(const char* text) = 0;
    virtual int set_TypeName(const char* text) = 0;

    // Makes the attribute `name` and gives it the text `value`, unless that is null. Sets the bool option
    // "NeedDepend" and the attribute of that name ("1") besides.
    // Returns: UVDB_OK; UVDB_INVALID_ARGUMENT for a null `name`.
    virtual int Set_XMLAttributes_attrib(const char* name, const char* value) = 0;

    // Buffer form for one attribute.
    // Returns: also UVDB_NO_DATA when there is no such attribute.
    virtual int Get_XMLAttributes_attrib(const char* name, char* dst, unsigned long size,
                                         unsigned long* length) = 0;

    // The database info that made this object, from the option "DatabaseInfo"; empty if there is none any
    // more. The option's own pointer doesn't keep it alive.
    virtual std::shared_ptr<IUVDBDatabaseInfo2> GetDatabaseInfo() = 0;

    virtual std::map<Uve::U8CString, Uve::U8CString>& get_XMLAttributes() = 0;

    // The objects that this one refers to, and those that refer to it, ordered by pointer. Use the operations
    // below to change them; they keep both ends of an edge.
    virtual std::set<std::shared_ptr<IUVDBObjectInfo>>& get_RefObjects() = 0;
    virtual std::set<std::shared_ptr<IUVDBObjectInfo>>& get_BackRefObjects() = 0;

    // Removes the edge to `ref`, at both ends.
    // Returns: UVDB_OK, also when there was none; UVDB_INVALID_ARGUMENT for an empty pointer.
    virtual int RefObjects_erase(std::shared_ptr<IUVDBObjectInfo> ref) = 0;

    // Adds an edge to `ref`. Two objects never refer to each other: of two opposite edges the one with the
    // smaller weight stays, of equal ones the newer. A weight that is there already never gets smaller.
    // Returns: UVDB_OK, also when nothing was added; UVDB_INVALID_ARGUMENT for an empty pointer; UVDB_ERROR
    //          for an object without its self reference.
    virtual int RefObjects_insert(std::shared_ptr<IUVDBObjectInfo> ref, int weight) = 0;

    // Returns: UVDB_OK; UVDB_NO_DATA, with `weight` untouched, if `ref` isn't referenced or its bool option
    //          "Exclude" is true.
    virtual int RefObjects_GetWeight(std::shared_ptr<IUVDBObjectInfo> ref, int& weight) = 0;

    // Removes all edges that start here. Objects share each other through their edges, so this is what lets a
    // group of them go.
    // Returns: UVDB_OK.
    virtual int RefObjects_clear() = 0;

    // Shares `child` and puts it after the other children.
    // Returns: UVDB_OK; UVDB_INVALID_ARGUMENT for an empty pointer.
    virtual int ChildObjects_insert(std::shared_ptr<IUVDBObjectInfo> child) = 0;
    virtual std::vector<std::shared_ptr<IUVDBObjectInfo>>& get_ChildObjects() = 0;

    virtual void clear_ConvErrors() = 0;
    virtual void add_ConvError(const Uve::U8CString& text) = 0;
    virtual std::list<Uve::U8CString>& get_ConvErrors() = 0;
    virtual void clear_ConvWarnings() = 0;
    virtual void add_ConvWarning(const Uve::U8CString& text) = 0;
    virtual std::list<Uve::U8CString>& get_ConvWarnings() = 0;
    virtual void clear_ConvInfos() = 0;
    virtual void add_ConvInfo(const Uve::U8CString& text) = 0;
    virtual std::list<Uve::U8CString>& get_ConvInfos() = 0;
};
