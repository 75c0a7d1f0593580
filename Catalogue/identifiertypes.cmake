# Names: the kinds of objects, what a valid name is in each database, and the texts around them.
set(uv_identifier_sources
    ReservedWords/Access.cpp
    ReservedWords/Ants.cpp
    ReservedWords/Asa.cpp
    ReservedWords/Ase.cpp
    ReservedWords/CSharp.cpp
    ReservedWords/Db2.cpp
    ReservedWords/EnterpriseDbPpas.cpp
    ReservedWords/EnterpriseDbPpss.cpp
    ReservedWords/Firebird.cpp
    ReservedWords/GBase.cpp
    ReservedWords/Greenplum.cpp
    ReservedWords/HiRdb.cpp
    ReservedWords/HpNonStop.cpp
    ReservedWords/Ingres.cpp
    ReservedWords/InterBase.cpp
    ReservedWords/MariaDb.cpp
    ReservedWords/MySql.cpp
    ReservedWords/Neoview.cpp
    ReservedWords/NuoDb.cpp
    ReservedWords/Oracle.cpp
    ReservedWords/Paradox.cpp
    ReservedWords/Pervasive.cpp
    ReservedWords/PostgreSql.cpp
    ReservedWords/Progress.cpp
    ReservedWords/Redshift.cpp
    ReservedWords/SapHana.cpp
    ReservedWords/SeaBase.cpp
    ReservedWords/Solid.cpp
    ReservedWords/SpliceMachine.cpp
    ReservedWords/SqlServer.cpp
    ReservedWords/Sqr.cpp
    ReservedWords/Teradata.cpp
    ReservedWords/VPostgres.cpp
    ReservedWords/Vertica.cpp
    UVDBIdentifierCase.cpp
    UVDBIdentifierCharacters.cpp
    UVDBIdentifierMarks.cpp
    UVDBIdentifierSizes.cpp
    UVDBIdentifierSplit.cpp
    UVDBIdentifierTexts.cpp
    UVDBIdentifierTypes.cpp
    UVDBQueryNames.cpp
    UVDBRegExp.cpp
    UVDBReservedWords.cpp
    UVDBTextHelpers.cpp
    UVDBVersionComment.cpp
)
set(uv_identifier_headers
    ReservedWords/ReservedWordList.h
    ReservedWords/ReservedWords.h
    UVDBAsciiCase.h
    UVDBIdentifierTraits.h
    UVDBIdentifierTypes.h
    UVDBKindSet.h
    UVDBObjectTypeSet.h
    UVDBQueryNames.h
    UVDBRegExp.h
    UVDBReservedWords.h
    UVDBRowConditions.h
    UVDBTextHelpers.h
    UVDBVersionComment.h
)

# Regular expressions. The target is made by whoever includes this file, so its link waits for the folder's end.
find_path(PCRE_INCLUDE_DIR pcre.h REQUIRED)
find_library(PCRE_LIBRARY pcre REQUIRED)
add_library(uv_pcre INTERFACE)
target_include_directories(uv_pcre SYSTEM INTERFACE ${PCRE_INCLUDE_DIR})
target_link_libraries(uv_pcre INTERFACE ${PCRE_LIBRARY})
cmake_language(DEFER CALL target_link_libraries uv_catalogue PUBLIC uv_pcre)
