#include "Catalogue/Types/UVDBDataTypeElement.h"

#include "Catalogue/Types/TypeMapping/MappingSheaf.h"
#include "Catalogue/Types/UVDBDataTypes.h"
#include "Catalogue/Types/UVDBTypeFormat.h"
#include "Interfaces/IUVDBColumnInfo.h"
#include "Interfaces/UVDBResults.h"
#include "Metadata/Options/UVDBOptionTypes.h"
#include "UVEnvironment/UVEXmlText.h"

#include <string>
#include <string_view>

using Uve::U8CString;

namespace {

const char* YesOrNo(bool value)
{
    return value ? "Yes" : "No";
}

// The facts of a type as they are printed.
struct SPrintedType
{
    U8CString name;
    const char* internalName;
    U8CString createParams;
    U8CString completeName;
};

SPrintedType PrintType(const DB_VERSION_INFO& version, const SDataTypeElement& type, long mode)
{
    SPrintedType printed{type.name, GetUVDBDataTypeName(type.uvdbType), type.createParams, {}};
    if (mode != UVDB_TYPE_NAME_AS_WRITTEN)
        printed.name.MakeUpper();
    printed.createParams.MakeUpper();
    const long size = type.precision ? *type.precision : type.length.value_or(0);
    const long scale = type.minScale ? *type.minScale : type.maxScale.value_or(0);
    printed.completeName = FormatDBMSDataType(version, printed.name.c_str(), size, scale,
                                              type.leadingPrecision.value_or(0), type.uvdbType);
    return printed;
}

void AppendFact(U8CString& text, const char* before, const U8CString& value, const char* after)
{
    text.append(before).append(value).append(after);
}

void AppendFact(U8CString& text, const char* before, long value, const char* after)
{
    text.append(before).append(std::to_string(value)).append(after);
}

// The text of an option; empty if it isn't there or no text.
U8CString TextOption(IUVDBObjectInfo& object, const char* name)
{
    void* value = nullptr;
    if (object.GetOptValue(name, UVDBOptionTypeKey<U8CString>(), &value) != UVDB_OPTION_FOUND || !value)
        return {};
    return *static_cast<const U8CString*>(value);
}

U8CString ArrayTypeOf(IUVDBDataTypeInfo& type)
{
    unsigned long length = 0;
    if (type.get_ArrayType(nullptr, 0, &length) != UVDB_OK || length == 0)
        return {};
    std::string text(length + 1, '\0');
    if (type.get_ArrayType(text.data(), text.size(), &length) != UVDB_OK)
        return {};
    text.resize(length);
    return text;
}

// The array type of a column or a parameter: its option, or what its data type knows.
U8CString ArrayTypeOf(const std::shared_ptr<IUVDBObjectInfo>& object)
{
    if (!object)
        return {};
    if (U8CString text = TextOption(*object, "ARRAY_TYPE"); !text.empty())
        return text;
    auto type = std::dynamic_pointer_cast<IUVDBDataTypeInfo>(object);
    if (const auto column = std::dynamic_pointer_cast<IUVDBColumnInfo>(object))
        column->get_DataType(type);
    return type ? ArrayTypeOf(*type) : U8CString();
}

SDataTypeElement TypeOf(const char* name, long uvdbType, long length, bool hasPrecision, long precision,
                        bool hasLeadingPrecision, long leadingPrecision, bool hasScale, long scale,
                        bool hasFixed, long fixed, bool isFixed, bool hasLength, bool isUnsignedValid,
                        bool isUnsigned, const char* createParams)
{
    const auto given = [](bool isGiven, auto value) { return isGiven ? std::optional(value) : std::nullopt; };
    return {.name = name ? name : "",
            .uvdbType = uvdbType,
            .length = given(hasLength, length),
            .precision = given(hasPrecision, precision),
            .leadingPrecision = given(hasLeadingPrecision, leadingPrecision),
            .minScale = given(hasScale, scale),
            .maxScale = given(hasFixed, fixed),
            .isFixed = isFixed,
            .isUnsigned = given(isUnsignedValid, isUnsigned),
            .createParams = createParams ? createParams : ""};
}

} // namespace

U8CString FormatDataTypeInfo(const std::shared_ptr<IUVDBObjectInfo>& objectInfo, DB_VERSION_INFO version,
                             const SDataTypeElement& type, long mode)
{
    const SPrintedType printed = PrintType(version, type, mode);
    U8CString text;
    AppendFact(text, "<DataType name=\"", UVDBEscapeXML(printed.name), "\"");
    AppendFact(text, " type=\"", UVDBEscapeXML(printed.internalName), "\"");
    if (type.precision) {
        AppendFact(text, " precision=\"", *type.precision, "\"");
        if (type.minScale || type.maxScale) {
            AppendFact(text, " minScale=\"", type.minScale.value_or(0), "\"");
            AppendFact(text, " maxScale=\"", type.maxScale.value_or(0), "\"");
        }
        AppendFact(text, " fixedPrecScale=\"", YesOrNo(type.isFixed), "\"");
    } else if (type.length)
        AppendFact(text, " length=\"", *type.length, "\"");
    if (type.leadingPrecision)
        AppendFact(text, " leading_precision=\"", *type.leadingPrecision, "\"");
    if (!printed.createParams.empty())
        AppendFact(text, " createParams=\"", UVDBEscapeXML(printed.createParams), "\"");
    if (type.isUnsigned)
        AppendFact(text, " unsigned=\"", YesOrNo(*type.isUnsigned), "\"");
    AppendFact(text, " completeName=\"", UVDBEscapeXML(printed.completeName), "\"");
    if (const U8CString arrayType = ArrayTypeOf(objectInfo); !arrayType.empty()) {
        const long size = type.precision ? *type.precision : type.length.value_or(0);
        AppendFact(
            text, " array_type=\"",
            UVDBEscapeXML(FormatDBMSDataType(version, arrayType.c_str(), size, type.minScale.value_or(0),
                                             type.leadingPrecision.value_or(0), type.uvdbType)),
            "\"");
    }
    if (type.userType && *type.userType != 0)
        AppendFact(text, " UserType=\"", *type.userType, "\"");
    text += "/>";
    return text;
}

U8CString FormatDataTypeInfo(const std::shared_ptr<IUVDBObjectInfo>& objectInfo, DB_VERSION_INFO version,
                             const char* name, long uvdbType, long length, bool hasPrecision, long precision,
                             bool hasLeadingPrecision, long leadingPrecision, bool hasScale, long scale,
                             bool hasFixed, long fixed, bool isFixed, bool hasLength, bool isUnsignedValid,
                             bool isUnsigned, long mode, const char* createParams, long userType)
{
    SDataTypeElement type = TypeOf(name, uvdbType, length, hasPrecision, precision, hasLeadingPrecision,
                                   leadingPrecision, hasScale, scale, hasFixed, fixed, isFixed, hasLength,
                                   isUnsignedValid, isUnsigned, createParams);
    type.userType = userType;
    return FormatDataTypeInfo(objectInfo, version, type, mode);
}

U8CString FormatDataTypeInfoStr(const std::shared_ptr<IUVDBObjectInfo>& /*objectInfo*/,
                                DB_VERSION_INFO version, const char* name, long uvdbType, long length,
                                bool hasPrecision, long precision, bool hasLeadingPrecision,
                                long leadingPrecision, bool hasScale, long scale, bool hasFixed, long fixed,
                                bool isFixed, bool hasLength, bool isUnsignedValid, bool isUnsigned,
                                const char* createParams)
{
    const SDataTypeElement type = TypeOf(name, uvdbType, length, hasPrecision, precision, hasLeadingPrecision,
                                         leadingPrecision, hasScale, scale, hasFixed, fixed, isFixed,
                                         hasLength, isUnsignedValid, isUnsigned, createParams);
    const SPrintedType printed = PrintType(version, type, -1);
    U8CString text;
    AppendFact(text, "__DATATYPE_NAME__", printed.name, "");
    AppendFact(text, "__TYPE__", printed.internalName, "");
    if (type.precision) {
        AppendFact(text, "__PERCISION__", *type.precision, "");
        if (type.minScale || type.maxScale) {
            AppendFact(text, "__MIN_SCALE__", type.minScale.value_or(0), "");
            AppendFact(text, "__MAX_SCALE__", type.maxScale.value_or(0), "");
        }
        AppendFact(text, "__FIXED_PREC_SCALE__", YesOrNo(type.isFixed), "");
    } else if (type.length)
        AppendFact(text, "__LENGHT__", *type.length, "");
    if (type.leadingPrecision)
        AppendFact(text, "__LEADING_PRECISION__", *type.leadingPrecision, "");
    if (!printed.createParams.empty())
        AppendFact(text, "__CREATE_PARAMS__", printed.createParams, "");
    if (type.isUnsigned)
        AppendFact(text, "__UNSIGNED__", YesOrNo(*type.isUnsigned), "");
    AppendFact(text, "__COMPLETE_NAME__", printed.completeName, "");
    return text;
}

void AddDataTypeInfo(DB_VERSION_INFO version, const SUVDBToDBMSDataType& row, U8CString& out)
{
    const SDataTypeParams& known = GetDBMSDataTypeParams(version, row.name, static_cast<long>(row.uvdbType));
    SDataTypeElement type{.name = row.name,
                          .uvdbType = static_cast<long>(row.uvdbType),
                          .isFixed = known.isPrecScaleFixed,
                          .createParams = known.createParams};
    if (known.columnSizePurpose == UVDB_SIZE_IS_PRECISION)
        type.precision = static_cast<long>(row.columnSize);
    else if (known.columnSizePurpose == UVDB_SIZE_IS_LENGTH)
        type.length = static_cast<long>(row.columnSize);
    if (known.isLeadingPrecisionValid)
        type.leadingPrecision = row.leadingPrecision;
    if (known.isScaleValid) {
        type.minScale = row.minScale;
        type.maxScale = row.maxScale;
    }
    out += FormatDataTypeInfo(nullptr, version, type, -1);
}
