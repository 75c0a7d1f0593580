// ANTs Data Server 3, a server of the SQL-92 language: the reserved words of SQL-92.
#include "Catalogue/Identifiers/ReservedWords/ReservedWords.h"
#include "Catalogue/Identifiers/ReservedWords/Sql92Words.h"

constinit const std::span<const std::string_view> kAntsReservedWords{UVDBRows::kSql92Words};
