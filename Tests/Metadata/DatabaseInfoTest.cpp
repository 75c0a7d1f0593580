#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Metadata/UVDBDatabaseInfo.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Uve::U8CString;
using Texts = std::vector<std::string>;

std::shared_ptr<CUVDBDatabaseInfo> MakeInfo()
{
    return UVDBMakeObject<CUVDBDatabaseInfo>(DB_VERSION_INFO{});
}

int NumberOf(const std::shared_ptr<IUVDBObjectInfo>& object)
{
    int number = 0;
    CUVDBOptionWrapper::GetParam(object, "ObjectID", number);
    return number;
}

Texts NamesIn(const std::shared_ptr<IUVDBObjectList>& list)
{
    Texts names;
    for (std::shared_ptr<IUVDBObject> item; list->get_Next(item) == 0;)
        names.push_back(item->cast<IUVDBObjectInfo>()->get_ObjectName());
    return names;
}

TEST(DatabaseInfo, VersionIsTheOneSetLast)
{
    CUVDBDatabaseInfo info(4, 1, 12, 50, 7);
    DB_VERSION_INFO version;
    EXPECT_EQ(info.get_DbmsVersion(&version), 0);
    EXPECT_EQ(version.db, 4u);
    EXPECT_EQ(version.subType, 1u);
    EXPECT_EQ(version.reserved1, 7u);
    EXPECT_EQ(version.reserved2, ~0ul);
    EXPECT_EQ(version.db2, 60u);
    EXPECT_EQ(info.GetMajorVersion() * 100 + info.GetMinorVersion(), 1250u);

    version.db2 = 9;
    info.SetDbmsType(version);
    EXPECT_EQ(info.get_DbmsVersion().db2, 9u);
    info.SetDbmsType(8, ~0ul, 15, 0, ~0ul);
    EXPECT_EQ(info.GetDbmsType(), 8u);
    EXPECT_EQ(info.get_DbmsVersion().db2, 60u) << "the second group doesn't survive";
    EXPECT_EQ(info.get_DbmsVersion(nullptr), -4);
}

TEST(DatabaseInfo, NewObjectsAreOfTheClassOfTheirType)
{
    const auto info = MakeInfo();
    for (const int type : {0, 2, 12, 17, 29, 4711, -1}) {
        SCOPED_TRACE(type);
        std::shared_ptr<IUVDBObjectInfo> object;
        EXPECT_EQ(info->create_new_object(object, type), 0);
        EXPECT_EQ(object->cast<CColumnInfoBase>() != nullptr, type == 17);
        EXPECT_EQ((object->cast<CObjectInfoT<0, IUVDBObjectInfo>>() != nullptr), type == 0);
        EXPECT_EQ(object->cast<CPlainObjectInfo>() != nullptr, type != 17 && type != 0);
        EXPECT_EQ(object->GetDatabaseInfo(), info);
        std::shared_ptr<IUVDBObjectInfo> registered;
        EXPECT_EQ(info->get_ObjectId(NumberOf(object), registered), 0);
        EXPECT_EQ(registered, object);
    }
}

TEST(DatabaseInfo, RegistryAnswersByNumber)
{
    const auto info = MakeInfo();
    std::shared_ptr<IUVDBObjectInfo> object;
    info->create_new_object(object, 2);
    const int number = NumberOf(object);
    EXPECT_EQ(info->set_ObjectId(number, nullptr), 0);
    std::shared_ptr<IUVDBObjectInfo> found;
    EXPECT_EQ(info->get_ObjectId(number, found), 0) << "an empty pointer doesn't overwrite";
    EXPECT_EQ(info->unset_ObjectId(number), -1);
    EXPECT_EQ(info->unset_ObjectId(number), -1);
    EXPECT_EQ(info->get_ObjectId(number, found), 100);
    EXPECT_EQ(found, nullptr);
}

// Registry and objects would otherwise keep each other for ever.
TEST(DatabaseInfo, ObjectsInTheRegistryDontKeepTheInfoAlive)
{
    auto info = MakeInfo();
    const std::weak_ptr<CUVDBDatabaseInfo> watched = info;
    std::shared_ptr<IUVDBObjectInfo> registered;
    std::shared_ptr<IUVDBObjectInfo> replaced;
    std::shared_ptr<IUVDBObjectInfo> unset;
    for (auto* const object : {&registered, &replaced, &unset})
        info->create_new_object(*object, 2);
    info->unset_ObjectId(NumberOf(unset));
    EXPECT_EQ(unset->GetDatabaseInfo(), info);
    info->set_ObjectId(NumberOf(replaced), registered);
    auto owner = registered->GetDatabaseInfo();

    info.reset();
    owner.reset();
    EXPECT_FALSE(watched.expired()) << "the two objects outside the registry own it";
    unset.reset();
    replaced.reset();
    EXPECT_TRUE(watched.expired());
    EXPECT_EQ(registered->GetDatabaseInfo(), nullptr);
}

TEST(DatabaseInfo, CreatedObjectCarriesItsNameAndType)
{
    const auto info = MakeInfo();
    for (unsigned short flags = 0; flags < 4; ++flags) {
        SCOPED_TRACE(flags);
        const int number = info->CreateObject("StoredProcedure", "s", "p", flags);
        std::shared_ptr<IUVDBObjectInfo> object;
        ASSERT_EQ(info->get_ObjectId(number, object), 0);
        EXPECT_EQ(object->get_SchemaName(), "s");
        EXPECT_EQ(object->get_ObjectName(), "p");
        U8CString xmlName;
        CUVDBOptionWrapper::GetParam(object, "XMLName", xmlName);
        EXPECT_EQ(xmlName, "StoredProcedure");
        bool isForTarget = false;
        EXPECT_EQ(CUVDBOptionWrapper::GetParam(object, "TargetObjectCreatedInTranslator", isForTarget),
                  flags & 1);
    }
    EXPECT_NE(info->CreateObject("View", "s", "p", 0), info->CreateObject("View", "s", "p", 0));
}

TEST(DatabaseInfo, RegistryIsListedByTypeOrNeed)
{
    const auto info = MakeInfo();
    const auto create = [&](const char* type, const char* name) {
        std::shared_ptr<IUVDBObjectInfo> object;
        info->get_ObjectId(info->CreateObject(type, "", name, 0), object);
        return object;
    };
    create("View", "v1");
    const auto v2 = create("View", "v2");
    const auto v3 = create("View", "v3");
    const auto v4 = create("View", "v4");
    const auto t1 = create("Table", "t1");
    create("DataType", "d1");
    create("no such type", "x1");
    CUVDBOptionWrapper::SetParam(v2, "NeedCreateDDL", U8CString("1"));
    CUVDBOptionWrapper::SetParam(v3, "NeedConvert", true);
    CUVDBOptionWrapper::SetParam(v4, "NeedCreateDDL", U8CString("yes"));
    CUVDBOptionWrapper::SetParam(t1, "NeedConvert", true);

    std::shared_ptr<IUVDBObjectList> list;
    const auto byType = [&](long type) {
        EXPECT_EQ(info->GetObjectsFromCache(list, type), 0);
        return NamesIn(list);
    };
    EXPECT_THAT(byType(2), ElementsAre("v1", "v2", "v3", "v4"));
    EXPECT_THAT(byType(32), ElementsAre("d1"))
        << "the text of a data type reads as another number than it is made of";
    EXPECT_THAT(byType(1), IsEmpty());
    EXPECT_THAT(byType(13), ElementsAre("x1")) << "what has no known type is a script";
    info->GetObjectsFromCache(list, 2, false);
    EXPECT_THAT(NamesIn(list), ElementsAre("v2", "v3"));
    info->GetObjectsFromCache(list, 2, true);
    EXPECT_THAT(NamesIn(list), ElementsAre("v1", "v2", "v3", "v4", "t1", "d1", "x1"));
    EXPECT_NE(info->GetObjectsFromCache(2, "", "", "v1", list, 0), 0);
    EXPECT_EQ(list, nullptr);
}

// A database info whose queries are answered.
class CAnsweringInfo : public CUVDBDatabaseInfo
{
public:
    using CUVDBDatabaseInfo::CUVDBDatabaseInfo;
    int ExecuteDatabaseQuery(const char* query, U8CString& result, bool report) override
    {
        m_queries.push_back(std::string(query) + (report ? " reported" : ""));
        if (m_code == 0)
            result = "result " + std::to_string(m_queries.size());
        return m_code;
    }
    Texts m_queries;
    int m_code = 0;
};

TEST(DatabaseInfo, QueryResultsAreRemembered)
{
    CAnsweringInfo info{DB_VERSION_INFO{}};
    U8CString result;
    EXPECT_EQ(info.ExecuteQuery("q", result, false), 0);
    EXPECT_EQ(info.ExecuteQuery("q", result, true), 0);
    EXPECT_EQ(result, "result 2") << "nothing was remembered without the flag";
    EXPECT_EQ(info.ExecuteQuery("q", result, false), 0);
    EXPECT_EQ(result, "result 2");
    EXPECT_EQ(info.TryExecuteQuery("q", result), 0);
    EXPECT_EQ(result, "result 3") << "past the memory";
    EXPECT_THAT(info.m_queries, ElementsAre("q reported", "q reported", "q"));
    EXPECT_EQ(info.ExecuteQuery(nullptr, result, true), -4);

    info.m_code = -1;
    result = "of an earlier query";
    EXPECT_EQ(info.ExecuteQuery("bad", result, true), -1);
    result = "of an earlier query";
    EXPECT_EQ(info.ExecuteQuery("bad", result, true), 0) << "a failure is remembered too";
    EXPECT_EQ(result, "");
    EXPECT_EQ(MakeInfo()->ExecuteQuery("q", result, true), -3) << "not connected";
}

// Writes down what it is asked for, and fails where it is told to.
class CRecordingTransformer : public IUVDBTransformer
{
public:
    int Load(const char* stylesheet) override { return Note(std::string("load ") + stylesheet); }
    int SetParameter(const char* name, const char* value) override
    {
        return Note(std::string(name) + '=' + value);
    }
    bool Run() override { return Note("run") == 0; }

    Texts Steps() { return std::exchange(m_steps, {}); }
    std::string m_failing;

private:
    int Note(const std::string& step)
    {
        m_steps.push_back(step);
        return step == m_failing ? -1 : 0;
    }
    Texts m_steps;
};

class CTransformingInfo : public CUVDBDatabaseInfo
{
public:
    using CUVDBDatabaseInfo::CUVDBDatabaseInfo;
    std::shared_ptr<IUVDBTransformer> CreateMakeDependTransformer() override { return transformer; }
    const std::shared_ptr<CRecordingTransformer> transformer = std::make_shared<CRecordingTransformer>();
};

TEST(MakeDepend, StylesheetIsLoadedWhenItChanges)
{
    CTransformingInfo info{DB_VERSION_INFO{}};
    struct SCase
    {
        const char *stylesheet, *failing;
        int code;
        Texts steps;
    };
    const SCase kCases[] = {
        {"", "", 0, {"selected_object=5", "run"}},
        {"a", "load a", -1, {"load a"}},
        {nullptr, "", 0, {"selected_object=5", "run"}}, // what failed to load isn't stored
        {"a", "", 0, {"load a", "selected_object=5", "run"}},
        {"a", "", 0, {"selected_object=5", "run"}},
        {nullptr, "", 0, {"selected_object=5", "run"}},
        {"b", "selected_object=5", -1, {"load b", "selected_object=5"}},
        {"b", "run", -1, {"selected_object=5", "run"}},
        {"a", "", 0, {"load a", "selected_object=5", "run"}},
    };
    for (const SCase& c : kCases) {
        info.transformer->m_failing = c.failing;
        EXPECT_EQ(info.MakeDepend(c.stylesheet, 5), c.code);
        EXPECT_EQ(info.transformer->Steps(), c.steps);
    }
    EXPECT_EQ(MakeInfo()->MakeDepend("a", 5), 0) << "nothing to do without a transformer";
}

} // namespace
