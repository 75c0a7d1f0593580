#include "Metadata/UVDBDataTypeInfo.h"
#include "Metadata/UVDBOptionWrapper.h"

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
        unsigned long purpose;
        long length;
        long precision;
    };
    const SCase kCases[] = {
        // size minScale maxScale purpose length precision
        {10, {}, {}, 0, 10, kNone},    {10, {}, {}, 1, kNone, 10},  {10, {}, {}, 2, kNone, kNone},
        {10, 0, {}, 0, kNone, 10},     {10, {}, 2, 0, kNone, 10},   {10, {}, 0, 1, kNone, 10},
        {{}, {}, {}, 0, kNone, kNone}, {{}, 0, 2, 1, kNone, kNone},
    };
    for (const SCase& c : kCases) {
        SCOPED_TRACE(testing::Message() << c.size.value_or(kNone) << ' ' << c.purpose);
        CDataTypeInfo type;
        type.Facts().columnSize = c.size;
        type.Facts().minScale = c.minScale;
        type.Facts().maxScale = c.maxScale;
        type.Facts().columnSizePurpose = c.purpose;
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
