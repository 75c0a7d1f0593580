# The tables of the characters, generated from one release of the Unicode Character Database. Another release would
# change what names become, so it is named here and not left to the machine.
set(uv_unicode_release 15.0.0)
find_path(UV_UNICODE_DATA_DIR UnicodeData.txt PATHS /usr/share/unicode REQUIRED NO_DEFAULT_PATH)
set(uv_unicode_files "")
foreach(name IN ITEMS CaseFolding DerivedNormalizationProps SpecialCasing UnicodeData)
    list(APPEND uv_unicode_files ${UV_UNICODE_DATA_DIR}/${name}.txt)
endforeach()
add_custom_command(
    OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/UVEUnicodeTables.cpp
    COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/generate_unicode_tables.py
            --ucd ${UV_UNICODE_DATA_DIR} --release ${uv_unicode_release}
            ${CMAKE_CURRENT_BINARY_DIR}/UVEUnicodeTables.cpp
    DEPENDS generate_unicode_tables.py ${uv_unicode_files}
    COMMENT "Generating the character tables"
    VERBATIM)

set(uv_string_sources
    UVECharacter.cpp
    UVERawString.cpp
    UVEString.cpp
    UVEU8String.cpp
    UVEU8StringView.cpp
    UVEUnicode.cpp
    UVEUnicodeNormalize.cpp
    UVEUnicodeString.cpp
    UVEUnicodeStringEdit.cpp
    UVEUnicodeStringScan.cpp
    ${CMAKE_CURRENT_BINARY_DIR}/UVEUnicodeTables.cpp
    UVEUtf8Search.cpp)
set(uv_string_headers
    UVECharacter.h
    UVEExport.h
    UVERawString.h
    UVEString.h
    UVEU8String.h
    UVEU8StringView.h
    UVEUnicode.h
    UVEUnicodeString.h
    UVEUnicodeTables.h
    UVEUtf8Search.h)
