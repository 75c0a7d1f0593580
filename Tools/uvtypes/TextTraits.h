// How a database stores texts: what their lengths count, and which characters they hold.
#pragma once

#include "Catalogue/Types/DataTypes/DataTypeRow.h"
#include "Catalogue/Types/UVDBTypeText.h"
#include "Interfaces/DB_VERSION_INFO.h"

namespace uvtypes {

enum class enCharacters
{
    Unknown, // the installation decides
    Unicode,
    CodePage // those of one code page
};

struct STextTraits
{
    enUVDB_LENGTH_UNIT unit = UVDB_LENGTH_UNIT_NOT_TOLD;
    enCharacters characters = enCharacters::Unknown;
};

// Of a text type with its row. Without a word in the text it is what databases do unless told otherwise.
STextTraits TextTraitsOf(DB_VERSION_INFO version, const SDataTypeParams& row, const STypeText& type);

} // namespace uvtypes
