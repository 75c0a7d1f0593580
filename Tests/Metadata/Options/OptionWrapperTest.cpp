#include "Interfaces/DB_VERSION_INFO.h"
#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Tests/Support/MemoryLog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <memory>
#include <string>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Uve::U8CString;
using WarningsCount = std::map<int, unsigned long>;
using WarningsTypes = std::map<std::string, int>;

template <class T>
T Read(IUVDBOptionSet& set, const char* name, T otherwise)
{
    CUVDBOptionWrapper::GetOptSetParam<T>(&set, name, otherwise);
    return otherwise;
}

template <class T>
int Write(IUVDBOptionSet& set, const char* name, const T& value)
{
    return CUVDBOptionWrapper::SetOptSetParam<T>(&set, name, value);
}

TEST(OptionSet, ArgumentsAreRefusedInOrder)
{
    struct SCase
    {
        const char *name, *typeName;
        int code;
    };
    constexpr SCase kCases[] = {
        {nullptr, nullptr, -3}, {"", nullptr, -4},  {"A", nullptr, -5},
        {"A", "", -6},          {nullptr, "i", -3}, {"", "i", -4},
    };
    UVDBOptionSet set;
    for (const SCase& c : kCases) {
        int number = 7;
        void* value = &number;
        EXPECT_EQ(set.GetOptValue(c.name, c.typeName, &value), c.code);
        EXPECT_EQ(value, &number) << "a refused call leaves the output alone";
        EXPECT_EQ(set.SetOptValue(c.name, c.typeName, &number), c.code);
    }
    EXPECT_TRUE(set.IsEmpty());
    EXPECT_FALSE(set.IsOptionValid(nullptr));
}

TEST(OptionSet, FirstTypeStays)
{
    UVDBOptionSet set;
    long number = 5;
    long other = 6;
    void* value = &other;
    EXPECT_EQ(set.GetOptValue("N", "l", &value), 1);
    EXPECT_EQ(value, nullptr);
    EXPECT_EQ(set.SetOptValue("N", "l", &number), 0);
    EXPECT_EQ(set.SetOptValue("N", "i", &other), -1);
    EXPECT_EQ(set.GetOptValue("N", "i", &value), -1);
    EXPECT_EQ(value, &number) << "lent in spite of the other type";
    EXPECT_EQ(set.SetOptValue("N", "l", &other), 0);
    EXPECT_EQ(set.GetOptValue("N", "l", &value), 0);
    EXPECT_EQ(value, &other);
    U8CString typeName = "old";
    EXPECT_FALSE(set.GetOptTypeName("M", typeName));
    EXPECT_EQ(typeName, "");
}

TEST(OptionSet, BodyMustBeText)
{
    UVDBOptionSet set;
    U8CString text = "old";
    EXPECT_EQ(set.get_BodyXML_Option(text), 1);
    EXPECT_EQ(text, "");
    Write(set, "BodyXML", U8CString("<a/>"));
    EXPECT_EQ(set.get_BodyXML_Option(text), 0);
    EXPECT_EQ(text, "<a/>");
    UVDBOptionSet numbers;
    Write(numbers, "BodyXML", 1);
    EXPECT_EQ(numbers.get_BodyXML_Option(text), -1);
    EXPECT_EQ(text, "");
}

// Keys are text that modules built apart from each other exchange.
TEST(OptionWrapper, TypeKeysAreTheCompilersNames)
{
    EXPECT_STREQ(UVDBOptionTypeKey<U8CString>(), "N3Uve9U8CStringE");
    EXPECT_STREQ(UVDBOptionTypeKey<UVOptionInfo>(), "12UVOptionInfo");
    EXPECT_STREQ(UVDBOptionTypeKey<DB_VERSION_INFO>(), "15DB_VERSION_INFO");
    EXPECT_STREQ(UVDBOptionTypeKey<unsigned long>(), "m");
}

TEST(OptionWrapper, TextBecomesTheTypeOfTheOption)
{
    struct SCase
    {
        const char* text;
        bool truth;
        int number;
        unsigned long wide;
        double fraction;
    };
    constexpr SCase kCases[] = {
        {"1", true, 1, 1, 1},        {"yes", true, 0, 0, 0},
        {"true", false, 0, 0, 0},    {"-1", false, -1, ~0ul, -1},
        {"2.75", false, 2, 2, 2.75}, {"4294967298", false, 2, 4294967298, 4294967298},
        {"", false, 0, 0, 0},
    };
    for (const SCase& c : kCases) {
        SCOPED_TRACE(c.text);
        UVDBOptionSet set;
        Write(set, "B", true);
        Write(set, "I", 3);
        Write(set, "M", 3ul);
        Write(set, "Y", 3ull);
        Write(set, "D", 3.5);
        for (const char* name : {"B", "I", "M", "Y", "D"})
            EXPECT_EQ(Write(set, name, U8CString(c.text)), 0);
        EXPECT_EQ(Read(set, "B", !c.truth), c.truth);
        EXPECT_EQ(Read(set, "I", 3), c.number);
        EXPECT_EQ(Read(set, "M", 3ul), c.wide);
        EXPECT_EQ(Read(set, "Y", 3ull), c.wide);
        EXPECT_EQ(Read(set, "D", 3.5), c.fraction);
        // and the other way, when a text is read as a type
        UVDBOptionSet texts;
        Write(texts, "T", U8CString(c.text));
        EXPECT_EQ(Read(texts, "T", !c.truth), c.truth);
        EXPECT_EQ(Read(texts, "T", 3), c.number);
        EXPECT_EQ(Read(texts, "T", 3ul), c.wide);
        EXPECT_EQ(Read(texts, "T", 3.5), c.fraction);
    }
}

TEST(OptionWrapper, ScalarsReadAsText)
{
    UVDBOptionSet set;
    Write(set, "B", true);
    Write(set, "U", std::numeric_limits<unsigned int>::max());
    Write(set, "L", std::numeric_limits<long>::min());
    Write(set, "M", std::numeric_limits<unsigned long>::max());
    Write(set, "Y", std::numeric_limits<unsigned long long>::max());
    Write(set, "D", 1234567890123.75);
    EXPECT_EQ(Read(set, "B", U8CString()), "1");
    EXPECT_EQ(Read(set, "U", U8CString()), "-1");
    EXPECT_EQ(Read(set, "L", U8CString()), "-9223372036854775808");
    EXPECT_EQ(Read(set, "M", U8CString()), "18446744073709551615");
    EXPECT_EQ(Read(set, "Y", U8CString()), "18446744073709551615");
    EXPECT_EQ(Read(set, "D", U8CString()), "1234567890124");
    EXPECT_EQ(Read(set, "D", 0l), 1234567890124) << "scalars meet in the text";
    EXPECT_EQ(Write(set, "L", true), 0);
    EXPECT_EQ(Read(set, "L", 0l), 1);
}

TEST(OptionWrapper, DefaultsStandInForAbsentOptions)
{
    Write(GetDefaultsValues(), "OptionWrapperTest.default", 5);
    UVDBOptionSet set;
    EXPECT_EQ(Read(set, "OptionWrapperTest.default", 1), 5);
    {
        const CLogCapture log;
        EXPECT_EQ(Read(set, "OptionWrapperTest.default", U8CString()), "5") << "of another type";
        EXPECT_THAT(log.Lines(), ElementsAre("\nFAILED to get default value for option "
                                             "OptionWrapperTest.default (result: -1)"));
    }
    Write(set, "OptionWrapperTest.default", 9);
    EXPECT_EQ(Read(set, "OptionWrapperTest.default", 1), 9);
}

TEST(OptionWrapper, StructuresTravelAsTheyAre)
{
    UVDBOptionSet set;
    Write(set, "WARNINGS_COUNT", WarningsCount{{0, 3}});
    Write(set, "WARNINGS_COUNT", WarningsCount{{0, 3}, {6, 1}});
    Write(set, "WARNINGS_TYPES", WarningsTypes{{"x", 2}});
    Write(set, "VERSION", DB_VERSION_INFO{.db = 8, .major = 15});
    EXPECT_EQ(Read(set, "WARNINGS_COUNT", WarningsCount()), (WarningsCount{{0, 3}, {6, 1}}));
    EXPECT_EQ(Read(set, "WARNINGS_TYPES", WarningsTypes()), (WarningsTypes{{"x", 2}}));
    EXPECT_EQ(Read(set, "VERSION", DB_VERSION_INFO()).major, 15u);
    EXPECT_EQ(Read(set, "VERSION", DB_VERSION_INFO()).db2, 60u);
}

// Every refusal names itself in the trace, and leaves both sides as they were.
TEST(OptionWrapper, ImpossibleConversionsAreTraced)
{
    UVDBOptionSet set;
    Write(set, "MAP", WarningsCount{{1, 2}});
    Write(set, "TEXT", U8CString("12"));
    Write(set, "NUMBER", 12);
    const std::string mapKey = UVDBOptionTypeKey<WarningsCount>();
    CLogCapture log;
    const auto trace = [&log] {
        std::string text = log.Text();
        log.Clear();
        return text;
    };

    EXPECT_EQ(Read(set, "MAP", U8CString("kept")), "kept");
    EXPECT_EQ(trace(), "\nFAILED to get typed option. Unsupported option type (value type: " + mapKey + ")");
    EXPECT_EQ(Read(set, "TEXT", WarningsCount{{7, 7}}), (WarningsCount{{7, 7}}));
    EXPECT_EQ(trace(), "\nFAILED to get str option. Unsupported option type (type: " + mapKey + ")");
    EXPECT_EQ(Read(set, "NUMBER", WarningsCount{{7, 7}}), (WarningsCount{{7, 7}}));
    EXPECT_EQ(trace(), "\nFAILED to get str option. Unsupported option type (type: " + mapKey + ")");
    EXPECT_EQ(Write(set, "MAP", U8CString("x")), -1);
    EXPECT_EQ(trace(), "\nFAILED to set str option. Unsupported option type (type: " + mapKey + ")");
    EXPECT_EQ(Write(set, "TEXT", WarningsCount()), -1);
    EXPECT_EQ(trace(), "\nFAILED to set typed option. Unsupported option type (value type: " + mapKey + ")");
    EXPECT_EQ(Write(set, "", 1), -1);
    EXPECT_EQ(trace(), "\nFAILED to set option  (type: i, result: -4)");
    EXPECT_EQ(Read(set, "", 1), 1);
    EXPECT_EQ(trace(), "\nFAILED to get option  (result: -4)");
    EXPECT_EQ(Read(set, "TEXT", U8CString()), "12");
    EXPECT_EQ(Read(set, "MAP", WarningsCount()), (WarningsCount{{1, 2}}));
}

TEST(OptionWrapper, MissingObjectsAreTraced)
{
    const CLogCapture log;
    int number = 4;
    EXPECT_FALSE(CUVDBOptionWrapper::GetOptSetParam(nullptr, "N", number));
    EXPECT_EQ(CUVDBOptionWrapper::SetOptSetParam(nullptr, "N", number), -1);
    const std::shared_ptr<UVDBOptionSet> none;
    EXPECT_FALSE(CUVDBOptionWrapper::GetParam(none, "N", number));
    EXPECT_FALSE(CUVDBOptionWrapper::GetStrParam(none, "N", number));
    EXPECT_EQ(CUVDBOptionWrapper::SetParam(none, "N", number), -1);
    EXPECT_EQ(number, 4);
    const std::string type = UVDBOptionTypeKey<std::shared_ptr<UVDBOptionSet>>();
    EXPECT_THAT(log.Lines(),
                ElementsAre("\nFAILED to get option N (pObject is NULL)",
                            "\nFAILED to set option N (pObject is NULL)",
                            "\nFAILED to get param. Unsupported object type (type: " + type + ")",
                            "\nFAILED to get str param. Unsupported object type (type: " + type + ")",
                            "\nFAILED to set param. Unsupported object type (type: " + type + ")"));
}

TEST(OptionWrapper, TextFormsOfTruthAndNumbers)
{
    UVDBOptionSet set;
    EXPECT_EQ(CUVDBOptionWrapper::SetOptSetStrParam(&set, "T", true), 0);
    EXPECT_EQ(Read(set, "T", U8CString()), "1");
    bool truth = false;
    EXPECT_TRUE(CUVDBOptionWrapper::GetOptSetStrParam(&set, "T", truth));
    EXPECT_TRUE(truth);
    EXPECT_FALSE(CUVDBOptionWrapper::GetOptSetStrParam(&set, "NOWHERE", truth));
    EXPECT_TRUE(truth);

    Write(set, "N", U8CString("0x10"));
    long number = 3;
    EXPECT_TRUE(CUVDBOptionWrapper::GetOptSetStrParamT(&set, "N", number,
                                                       CUVDBOptionWrapper::GetOptSetParam<U8CString>));
    EXPECT_EQ(number, 0) << "decimal only";
    double fraction = 0;
    Write(set, "F", U8CString("2.5"));
    EXPECT_TRUE(CUVDBOptionWrapper::GetStrParam(&set, "F", fraction));
    EXPECT_EQ(fraction, 2.5);
}

// A value that tells how many of its kind there are.
struct SCounted
{
    SCounted() { ++s_alive; }
    SCounted(const SCounted&) { ++s_alive; }
    SCounted& operator=(const SCounted&) = default;
    ~SCounted() { --s_alive; }
    static inline int s_alive = 0;
};

TEST(OptionWrapper, ValueKeepsItsPlaceAndDiesWithTheSet)
{
    {
        UVDBOptionSet set;
        void* first = nullptr;
        void* second = nullptr;
        Write(set, "T", U8CString("a text"));
        set.GetOptValue("T", UVDBOptionTypeKey<U8CString>(), &first);
        Write(set, "T", U8CString("another text too long for the string's own room"));
        set.GetOptValue("T", UVDBOptionTypeKey<U8CString>(), &second);
        EXPECT_EQ(first, second);

        Write(set, "C", SCounted());
        Write(set, "C", SCounted());
        EXPECT_EQ(SCounted::s_alive, 1);
        // What a host stores by itself stays the host's, and what it replaces stays good for who was lent it.
        SCounted own;
        set.SetOptValue("C", UVDBOptionTypeKey<SCounted>(), &own);
        EXPECT_EQ(SCounted::s_alive, 2);
    }
    EXPECT_EQ(SCounted::s_alive, 0);
}

// Another module's set, which knows the operations of the interface and no more.
class CForeignSet : public IUVDBOptionSet
{
public:
    int GetOptValue(const char*, const char*, void** value) override
    {
        *value = m_value;
        return m_value ? UVDB_OPTION_FOUND : UVDB_OPTION_ABSENT;
    }
    int SetOptValue(const char*, const char*, const void* value) override
    {
        m_value = const_cast<void*>(value);
        return UVDB_OPTION_FOUND;
    }
    bool IsOptionValid(const char*) override { return m_value != nullptr; }
    bool GetOptTypeName(const char*, U8CString&) override { return false; }
    bool IsEmpty() override { return m_value == nullptr; }
    int get_BodyXML_Option(U8CString&) override { return 1; }

private:
    void* m_value = nullptr;
};

TEST(OptionWrapper, ValueOfASetThatOwnsNothingIsNeverReleased)
{
    void* value = nullptr;
    {
        CForeignSet set;
        EXPECT_EQ(Write(set, "C", SCounted()), 0);
        set.GetOptValue("C", UVDBOptionTypeKey<SCounted>(), &value);
    }
    EXPECT_NE(value, nullptr);
    EXPECT_EQ(SCounted::s_alive, 1);
    SCounted::s_alive = 0;
}

} // namespace
