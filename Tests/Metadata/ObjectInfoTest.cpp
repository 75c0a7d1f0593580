#include "Interfaces/IUVDBDatabaseInfo.h"
#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Metadata/UVDBColumnInfo.h"
#include "Metadata/UVDBObjectInfo.h"
#include "Metadata/UVDBObjectText.h"
#include "Metadata/UVDBUnknownList.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <string_view>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Uve::U8CString;

std::shared_ptr<CPlainObjectInfo> MakeObject(const char* name = "")
{
    auto object = UVDBMakeObject<CPlainObjectInfo>();
    object->set_ObjectName(name);
    return object;
}

// The weight of an edge, or -1 if there is none.
int Weight(const std::shared_ptr<IUVDBObjectInfo>& from, const std::shared_ptr<IUVDBObjectInfo>& to)
{
    int weight = 0;
    return from->RefObjects_GetWeight(to, weight) == 0 ? weight : -1;
}

// The reference graph of two objects, released at the end in spite of its circles.
class References : public testing::Test
{
protected:
    void TearDown() override
    {
        a->RefObjects_clear();
        b->RefObjects_clear();
    }
    const std::shared_ptr<IUVDBObjectInfo> a = MakeObject("a");
    const std::shared_ptr<IUVDBObjectInfo> b = MakeObject("b");
};

TEST_F(References, OneEdgeOfAPairStays)
{
    struct SCase
    {
        int present; // weight of b to a, -1 for none
        int inserted, aToB, bToA;
    };
    constexpr SCase kCases[] = {
        {-1, 5, 5, -1}, {3, 5, -1, 3}, {5, 3, 3, -1}, {4, 4, 4, -1}, {-1, 0, 0, -1}, {0, -2, -2, -1},
    };
    for (const SCase& c : kCases) {
        SCOPED_TRACE(testing::Message() << c.present << ' ' << c.inserted);
        a->RefObjects_clear();
        b->RefObjects_clear();
        if (c.present >= 0)
            b->RefObjects_insert(a, c.present);
        EXPECT_EQ(a->RefObjects_insert(b, c.inserted), 0);
        EXPECT_EQ(a->get_RefObjects().contains(b), c.bToA == -1);
        EXPECT_EQ(b->get_BackRefObjects().contains(a), c.bToA == -1);
        EXPECT_EQ(b->get_RefObjects().contains(a), c.bToA != -1);
        EXPECT_EQ(a->get_BackRefObjects().contains(b), c.bToA != -1);
        EXPECT_EQ(Weight(a, b), c.aToB);
        EXPECT_EQ(Weight(b, a), c.bToA);
    }
}

TEST_F(References, ExcludedTargetHasNoWeightButStays)
{
    a->RefObjects_insert(b, 3);
    a->RefObjects_insert(b, 7);
    a->RefObjects_insert(b, 2);
    EXPECT_EQ(Weight(a, b), 7) << "an edge never gets lighter";
    CUVDBOptionWrapper::SetParam(b, "Exclude", true);
    EXPECT_EQ(Weight(a, b), -1);
    EXPECT_TRUE(a->get_RefObjects().contains(b));
    a->RefObjects_insert(b, 2);
    CUVDBOptionWrapper::SetParam(b, "Exclude", false);
    EXPECT_EQ(Weight(a, b), 2) << "the greater weight was not to be seen";
}

TEST_F(References, BadReferencesChangeNothing)
{
    EXPECT_EQ(a->RefObjects_insert(a, 5), 0);
    EXPECT_EQ(a->RefObjects_insert(nullptr, 5), -4);
    EXPECT_EQ(a->RefObjects_erase(nullptr), -4);
    EXPECT_EQ(a->RefObjects_erase(b), 0);
    EXPECT_THAT(a->get_RefObjects(), IsEmpty());
    EXPECT_THAT(a->get_BackRefObjects(), IsEmpty());
    CPlainObjectInfo unheld;
    EXPECT_EQ(unheld.RefObjects_insert(b, 5), -1);
    EXPECT_THAT(b->get_BackRefObjects(), IsEmpty());
}

TEST(ObjectReferences, ClearingThemLetsObjectsGo)
{
    std::weak_ptr<IUVDBObjectInfo> watched;
    {
        const std::shared_ptr<IUVDBObjectInfo> a = MakeObject();
        const std::shared_ptr<IUVDBObjectInfo> b = MakeObject();
        const std::shared_ptr<IUVDBObjectInfo> c = MakeObject();
        a->RefObjects_insert(b, 1);
        a->RefObjects_insert(c, 1);
        watched = b;
        a->RefObjects_clear();
        EXPECT_THAT(a->get_RefObjects(), IsEmpty());
        EXPECT_THAT(c->get_BackRefObjects(), IsEmpty());
    }
    EXPECT_TRUE(watched.expired());
}

TEST(ObjectInfo, NumberIsNewAndStandsInBothPlaces)
{
    const auto first = MakeObject();
    const auto second = MakeObject();
    int firstNumber = 0;
    int secondNumber = 0;
    CUVDBOptionWrapper::GetParam(first, "ObjectID", firstNumber);
    CUVDBOptionWrapper::GetParam(second, "ObjectID", secondNumber);
    EXPECT_EQ(secondNumber, firstNumber + 1);
    EXPECT_EQ(second->get_XMLAttributes()["id"], std::to_string(secondNumber));

    U8CString xmlName = "?";
    CUVDBOptionWrapper::GetParam(UVDBMakeObject<CColumnInfoBase>(nullptr), "XMLName", xmlName);
    EXPECT_EQ(xmlName, "Column");
    CUVDBOptionWrapper::GetParam(UVDBMakeObject<CDataTypeInfo>(), "XMLName", xmlName);
    EXPECT_EQ(xmlName, "DataType");
}

TEST(ObjectInfo, BufferFormCutsAndCounts)
{
    struct SCase
    {
        unsigned long size;
        const char* copied; // null: nothing
        unsigned long length;
    };
    constexpr SCase kCases[] = {
        {0, nullptr, 5},       {1, "", 0}, {4, "na\xC3", 3}, {5, "na\xC3\xAF", 4}, {6, "na\xC3\xAFv", 5},
        {9, "na\xC3\xAFv", 5},
    };
    // A buffer of '#' with the copied text and its terminator in front.
    const auto withRest = [](const char* copied) {
        std::string bytes = copied ? copied + std::string(1, '\0') : std::string();
        bytes.resize(16, '#');
        return bytes;
    };
    const auto object = MakeObject("na\xC3\xAFv");
    for (const SCase& c : kCases) {
        SCOPED_TRACE(c.size);
        char buffer[16];
        std::memset(buffer, '#', sizeof buffer);
        unsigned long length = 99;
        EXPECT_EQ(object->get_ObjectName(buffer, c.size, &length), 0);
        EXPECT_EQ(length, c.length);
        EXPECT_EQ(std::string_view(buffer, 16), withRest(c.copied));
    }
    unsigned long length = 99;
    EXPECT_EQ(object->get_ObjectName(nullptr, 0, nullptr), -1);
    EXPECT_EQ(object->get_ObjectName(nullptr, 0, &length), 0);
    EXPECT_EQ(length, 5u);
    EXPECT_EQ(object->get_ObjectName(nullptr, 3, &length), -4);
}

TEST(ObjectInfo, AttributesAskForDependencies)
{
    const auto object = MakeObject();
    char buffer[8];
    unsigned long length = 0;
    bool needDepend = false;
    EXPECT_FALSE(CUVDBOptionWrapper::GetParam(object, "NeedDepend", needDepend));
    EXPECT_EQ(object->Get_XMLAttributes_attrib("a", buffer, sizeof buffer, &length), 100);
    EXPECT_EQ(object->Set_XMLAttributes_attrib("a", nullptr), 0);
    EXPECT_EQ(object->Get_XMLAttributes_attrib("a", buffer, sizeof buffer, &length), 0);
    EXPECT_STREQ(buffer, "");
    object->Set_XMLAttributes_attrib("a", "x");
    object->Set_XMLAttributes_attrib("a", nullptr);
    EXPECT_EQ(object->get_XMLAttributes()["a"], "x") << "null doesn't overwrite";
    EXPECT_TRUE(CUVDBOptionWrapper::GetParam(object, "NeedDepend", needDepend));
    EXPECT_TRUE(needDepend);
    EXPECT_EQ(object->get_XMLAttributes()["NeedDepend"], "1");
    EXPECT_EQ(object->Set_XMLAttributes_attrib(nullptr, "x"), -4);
}

TEST(ObjectInfo, CyrillicLookalikesAreReplacedOnRequest)
{
    struct SCase
    {
        std::string_view text;
        std::string_view replaced;
    };
    constexpr SCase kCases[] = {
        {"\xD0\x90\xD0\xA1\xD0\xB0\xD0\x81", "A\x90"
                                             "C\xA1"
                                             "a\xB0"
                                             "c\x81"},
        {"\xD0\x91x", "\xD0\x91x"},
        {"\xD0", "\xD0"},
        {"x\xD0", "x\xD0"},
        {"\xD0\xD0\x90", "\xD0"
                         "A\x90"},
        {"", ""},
    };
    for (const SCase& c : kCases) {
        U8CString text(c.text);
        ReplaceRussSym(text);
        EXPECT_EQ(text, c.replaced);
    }

    const auto object = MakeObject("\xD0\x90");
    EXPECT_EQ(object->get_ObjectName(), "\xD0\x90") << "not asked for";
    CUVDBOptionWrapper::SetParam(object, "REPLACE_NON_EN_SYMBOLS", U8CString("Yes"));
    object->set_ObjectName("\xD0\x90");
    object->set_TypeName("\xD0\x90");
    object->set_SchemaName("\xD0\x90");
    EXPECT_EQ(object->get_ObjectName(), "A\x90");
    EXPECT_EQ(object->get_TypeName(), "A\x90");
    EXPECT_EQ(object->get_SchemaName(), "\xD0\x90");
}

TEST(ColumnInfo, OptionStandsInForTheName)
{
    const auto column = UVDBMakeObject<CColumnInfoBase>(nullptr);
    char buffer[8];
    unsigned long length = 0;
    CUVDBOptionWrapper::SetParam(column, "ColumnName", U8CString("option"));
    column->get_ColumnName(buffer, sizeof buffer, &length);
    EXPECT_STREQ(buffer, "option");
    column->set_ColumnName("own");
    column->set_ColumnName(nullptr);
    column->get_ColumnName(buffer, sizeof buffer, &length);
    EXPECT_STREQ(buffer, "own");
}

TEST(UnknownList, KeepsOrderAndEachObjectOnce)
{
    CUVDBUnknownList list;
    const auto a = MakeObject("a");
    const auto b = MakeObject("b");
    const auto names = [&list] {
        std::vector<std::string> result;
        for (std::shared_ptr<IUVDBObject> item; list.get_Next(item) == 0;)
            result.push_back(item->cast<IUVDBObjectInfo>()->get_ObjectName());
        return result;
    };
    list.Add(b);
    list.Add(a);
    EXPECT_EQ(list.Add(b), 0);
    EXPECT_EQ(list.Add(nullptr), -4);
    long length = 0;
    EXPECT_EQ(list.get_Length(&length), 0);
    EXPECT_EQ(length, 2);
    EXPECT_EQ(list.get_Length(nullptr), -4);
    EXPECT_THAT(names(), ElementsAre("b", "a"));
    std::shared_ptr<IUVDBObject> untouched = a;
    EXPECT_EQ(list.get_Next(untouched), 100);
    EXPECT_EQ(untouched, a);
    list.Reset();
    EXPECT_THAT(names(), ElementsAre("b", "a"));
    list.Clear();
    EXPECT_THAT(names(), IsEmpty());
    list.Add(b);
    EXPECT_THAT(names(), ElementsAre("b")) << "cleared, it is a new object again";
}

} // namespace
