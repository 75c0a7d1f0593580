# Writes a source that defines one std::string_view for each text file.
#     cmake -DOUTPUT=<source> -DHEADER=<header that declares them> "-DTEXTS=<name>=<file>;..."
#           -P EmbedText.cmake
# A text stands in raw literals, cut in pieces, since compilers need to take no more than 64 KiB in one.

set(piece_length 16000)
set(source "// Generated from the files that it names.\n#include \"${HEADER}\"\n")
foreach(entry IN LISTS TEXTS)
    string(REGEX MATCH "^([^=]+)=(.+)$" matched "${entry}")
    set(name ${CMAKE_MATCH_1})
    set(path ${CMAKE_MATCH_2})
    get_filename_component(file_name ${path} NAME)
    file(READ "${path}" text)
    if(text MATCHES "\\)_text_\"")
        message(FATAL_ERROR "${path} holds the end of the literal that is to hold it")
    endif()
    file(SIZE "${path}" size)
    string(LENGTH "${text}" length)
    if(NOT length EQUAL size)
        message(FATAL_ERROR "${path} isn't plain text")
    endif()
    string(APPEND source "\n// ${file_name}\nconstexpr char ${name}Bytes[] =\n")
    set(at 0)
    while(at LESS length)
        string(SUBSTRING "${text}" ${at} ${piece_length} piece)
        string(APPEND source "R\"_text_(${piece})_text_\"\n")
        math(EXPR at "${at} + ${piece_length}")
    endwhile()
    string(APPEND source ";\nstatic_assert(sizeof ${name}Bytes == ${size} + 1);\n"
                         "constinit const std::string_view ${name}{${name}Bytes, sizeof ${name}Bytes - 1};\n")
endforeach()
file(WRITE "${OUTPUT}" "${source}")
