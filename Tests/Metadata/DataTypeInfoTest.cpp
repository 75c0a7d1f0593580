#include "Catalogue/UVDBDatabaseKinds.h"
#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Metadata/UVDBDataTypeInfo.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

constexpr long kNone = -999;

long Get(CDataTypeInfo& type, int (IUVDBDataTypeInfo::*getter)(long*))
{
    long value = kNone;
    const int code = (type.*getter)(&value);
    EXPECT_EQ(code, value == kNone ? 300 : 0);
    EXPECT_EQ((type.*getter)(nullptr), value == kNone ? 300 : -4) << "availability is tested first";
    return value;
}

TEST(DataTypeInfo, SizeIsALengthOrAPrecision)
{
    struct SCase
    {
        std::optional<long> size;
        std::optional<long> minScale;
        std::optional<long> maxScale;
        long length;
        long precision;
    };
    const SCase kCases[] = {
        // size minScale maxScale length precision
        {10, {}, {}, 10, kNone},    {10, 0, {}, kNone, 10},   {10, {}, 2, kNone, 10},
        {{}, {}, {}, kNone, kNone}, {{}, 0, 2, kNone, kNone},
    };
    for (const SCase& c : kCases) {
        SCOPED_TRACE(testing::Message() << c.size.value_or(kNone) << ' ' << c.minScale.value_or(kNone));
        CDataTypeInfo type;
        type.Facts().columnSize = c.size;
        type.Facts().minScale = c.minScale;
        type.Facts().maxScale = c.maxScale;
        EXPECT_EQ(Get(type, &IUVDBDataTypeInfo::get_Length), c.length);
        EXPECT_EQ(Get(type, &IUVDBDataTypeInfo::get_Precision), c.precision);
        EXPECT_EQ(Get(type, &IUVDBDataTypeInfo::get_MinScale), c.minScale.value_or(kNone));
        EXPECT_EQ(Get(type, &IUVDBDataTypeInfo::get_MaxScale), c.maxScale.value_or(kNone));
        EXPECT_EQ(Get(type, &IUVDBDataTypeInfo::get_LeadingPrecision), kNone);
    }
}

TEST(DataTypeInfo, SettingAValueMakesItAvailable)
{
    CDataTypeInfo type;
    type.set_Length(0);
    EXPECT_EQ(Get(type, &IUVDBDataTypeInfo::get_Length), 0);
    type.set_MaxScale(-84);
    EXPECT_EQ(Get(type, &IUVDBDataTypeInfo::get_Length), kNone) << "a scale makes the size a precision";
    EXPECT_EQ(Get(type, &IUVDBDataTypeInfo::get_Precision), 0);
    EXPECT_EQ(Get(type, &IUVDBDataTypeInfo::get_MaxScale), -84);
}

TEST(DataTypeInfo, FourTypesHaveNoSignByNature)
{
    for (long number = 36; number <= 43; ++number) {
        SCOPED_TRACE(number);
        const bool isUnsignedType = number >= 38 && number <= 41;
        CDataTypeInfo type;
        type.Facts().dataType = number;
        bool isUnsigned = !isUnsignedType;
        EXPECT_EQ(type.IsUnsigned(&isUnsigned), 0);
        EXPECT_EQ(isUnsigned, isUnsignedType);
        EXPECT_EQ(type.IsUnsignedValid(), isUnsignedType);
        type.Facts().isUnsigned = true;
        type.Facts().isUnsignedValid = true;
        type.IsUnsigned(&isUnsigned);
        EXPECT_TRUE(isUnsigned && type.IsUnsignedValid());
    }
}

TEST(DataTypeInfo, UnknownNumberIsFoundInTheTypesOfTheDatabaseAndKept)
{
    constexpr DB_VERSION_INFO kOracle{.db = UVDB_DB_ORA};
    constexpr long kSqlVarchar = 12;

    CDataTypeInfo number;
    number.Facts().typeName = "NUMBER";
    number.Facts().columnSize = 18;
    number.Facts().minScale = 0;
    number.Facts().maxScale = 0;
    EXPECT_EQ(number.GetDataType(), -1);
    EXPECT_EQ(number.GetDataType(kOracle), 37);
    number.Facts().columnSize = 38;
    EXPECT_EQ(number.GetDataType(kOracle), 37) << "kept, though the size is another one now";
    EXPECT_EQ(number.GetDataType(), 37);

    CDataTypeInfo fraction;
    fraction.Facts().typeName = "NUMBER";
    fraction.Facts().columnSize = 18;
    fraction.Facts().maxScale = 2;
    EXPECT_EQ(fraction.GetDataType(kOracle), 25) << "the largest scale counts";

    CDataTypeInfo unknown;
    unknown.Facts().typeName = "NOSUCH";
    EXPECT_EQ(unknown.GetDataType(kOracle), -1);
    unknown.Facts().odbcType = kSqlVarchar;
    EXPECT_EQ(unknown.GetDataType(kOracle), 1) << "a number that wasn't found is asked for again";
}

TEST(DataTypeInfo, TypeNameIsItsOwnThroughEveryGetter)
{
    CDataTypeInfo type;
    CUVDBOptionWrapper::SetParam(&type, "REPLACE_NON_EN_SYMBOLS", Uve::U8CString("yes"));
    type.set_TypeName("\xD0\xA1HAR");
    char buffer[16];
    unsigned long length = 0;
    type.get_TypeName(buffer, sizeof buffer, &length);
    EXPECT_STREQ(buffer, "C\xA1HAR");
    EXPECT_EQ(type.get_TypeName(), buffer);
    EXPECT_EQ(type.Facts().typeName, buffer);
}

} // namespace
