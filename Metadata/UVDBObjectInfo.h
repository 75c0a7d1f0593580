#pragma once

#include "Interfaces/IUVDBColumnInfo.h"
#include "Interfaces/IUVDBDataTypeInfo.h"
#include "Interfaces/IUVDBObjectInfo.h"
#include "Metadata/Options/OptionsHost.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <list>
#include <map>
#include <memory>
#include <set>
#include <vector>

// What all objects have. `id` is the number of the object's type, `I` its interface.
//
// Each object takes the next number when it is made and keeps it: the int option "ObjectID" and the XML
// attribute "id". The option "XMLName" starts as the text of the type. Make objects by UVDBMakeObject, or
// give them their self reference: the reference operations need it.
template <int id, class I>
class CObjectInfoBaseT : public OptionsHost<I>
{
public:
    CObjectInfoBaseT();

    int get_DatabaseName(char* dst, unsigned long size, unsigned long* length) override;
    int get_SchemaName(char* dst, unsigned long size, unsigned long* length) override;
    int get_ObjectName(char* dst, unsigned long size, unsigned long* length) override;
    int get_TypeName(char* dst, unsigned long size, unsigned long* length) override;
    Uve::U8CString get_DatabaseName() override { return m_databaseName; }
    Uve::U8CString get_SchemaName() override { return m_schemaName; }
    Uve::U8CString get_ObjectName() override { return m_objectName; }
    Uve::U8CString get_TypeName() override { return m_typeName; }
    int set_DatabaseName(const char* text) override;
    int set_SchemaName(const char* text) override;
    int set_ObjectName(const char* text) override;
    int set_TypeName(const char* text) override;

    int Set_XMLAttributes_attrib(const char* name, const char* value) override;
    int Get_XMLAttributes_attrib(const char* name, char* dst, unsigned long size,
                                 unsigned long* length) override;
    std::shared_ptr<IUVDBDatabaseInfo2> GetDatabaseInfo() override;
    std::map<Uve::U8CString, Uve::U8CString>& get_XMLAttributes() override { return m_xmlAttributes; }

    std::set<std::shared_ptr<IUVDBObjectInfo>>& get_RefObjects() override { return m_refObjects; }
    std::set<std::shared_ptr<IUVDBObjectInfo>>& get_BackRefObjects() override { return m_backRefObjects; }
    int RefObjects_erase(std::shared_ptr<IUVDBObjectInfo> ref) override;
    int RefObjects_insert(std::shared_ptr<IUVDBObjectInfo> ref, int weight) override;
    int RefObjects_GetWeight(std::shared_ptr<IUVDBObjectInfo> ref, int& weight) override;
    int RefObjects_clear() override;

    int ChildObjects_insert(std::shared_ptr<IUVDBObjectInfo> child) override;
    std::vector<std::shared_ptr<IUVDBObjectInfo>>& get_ChildObjects() override { return m_childObjects; }

    void clear_ConvErrors() override { m_convErrors.clear(); }
    void add_ConvError(const Uve::U8CString& text) override { m_convErrors.push_back(text); }
    std::list<Uve::U8CString>& get_ConvErrors() override { return m_convErrors; }
    void clear_ConvWarnings() override { m_convWarnings.clear(); }
    void add_ConvWarning(const Uve::U8CString& text) override { m_convWarnings.push_back(text); }
    std::list<Uve::U8CString>& get_ConvWarnings() override { return m_convWarnings; }
    void clear_ConvInfos() override { m_convInfos.clear(); }
    void add_ConvInfo(const Uve::U8CString& text) override { m_convInfos.push_back(text); }
    std::list<Uve::U8CString>& get_ConvInfos() override { return m_convInfos; }

    // An object without a body is an answer too.
    // Returns: 0 in every case; `text` is empty without the option.
    int get_BodyXML_Option(Uve::U8CString& text) override;

    // The source text of the object: UTF-8, read in buffer form, copied when it is set.
    // Returns: as IUVDBObjectInfo's getters and setters; IsBodyEncrypted UVDB_OK, or UVDB_INVALID_ARGUMENT
    //          for a null `out`.
    virtual int get_Body(char* dst, unsigned long size, unsigned long* length);
    virtual int set_Body(const char* text);
    virtual int IsBodyEncrypted(bool* out);

    void set_BodyEncrypted(bool isEncrypted) { m_isBodyEncrypted = isEncrypted; }

protected:
    // `text` as a name of this object: see set_ObjectName.
    Uve::U8CString NameText(const char* text);

private:
    std::list<Uve::U8CString> m_convErrors;
    std::list<Uve::U8CString> m_convWarnings;
    std::list<Uve::U8CString> m_convInfos;
    Uve::U8CString m_body;
    bool m_isBodyEncrypted = false;
    Uve::U8CString m_databaseName;
    Uve::U8CString m_schemaName;
    Uve::U8CString m_objectName;
    Uve::U8CString m_typeName;
    std::map<Uve::U8CString, Uve::U8CString> m_xmlAttributes;
    std::set<std::shared_ptr<IUVDBObjectInfo>> m_refObjects;
    std::map<std::shared_ptr<IUVDBObjectInfo>, int> m_refWeights;
    std::set<std::shared_ptr<IUVDBObjectInfo>> m_backRefObjects;
    std::vector<std::shared_ptr<IUVDBObjectInfo>> m_childObjects;
};

extern template class CObjectInfoBaseT<0, IUVDBObjectInfo>;
extern template class CObjectInfoBaseT<1, IUVDBDataTypeInfo>;
extern template class CObjectInfoBaseT<17, IUVDBColumnInfo>;
extern template class CObjectInfoBaseT<29, IUVDBObjectInfo>;

// Exists for tables (0), data types (1), columns (17) and objects of any kind (29).
template <int id, class I>
class CObjectInfoT : public CObjectInfoBaseT<id, I>
{};

// An object of any kind. Which one, its option "XMLName" tells.
class CPlainObjectInfo : public CObjectInfoT<29, IUVDBObjectInfo>
{};
