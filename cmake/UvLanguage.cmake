# uv_add_language(NAME <parser name> LEXER <file.l> PARSER <file.y> [OUTPUT <directory>] [STYLE])
# The tables of a language, made by the project's own uvgrammar beside the programs, where a host finds them:
# ${CMAKE_BINARY_DIR}/bin/Grammar/<name>/. They are made anew when a source, a file that it includes, or the tool changes. The target
# language_<name> makes them; it is part of the target languages where there is one. With STYLE a grammar whose nodes have
# names that rules can't rely on is refused.
function(uv_add_language)
    cmake_parse_arguments(arg "STYLE" "NAME;LEXER;PARSER;OUTPUT" "" ${ARGN})
    if(NOT arg_NAME OR NOT arg_LEXER OR NOT arg_PARSER OR arg_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "uv_add_language takes NAME, LEXER and PARSER, and OUTPUT if it is another directory")
    endif()
    cmake_path(ABSOLUTE_PATH arg_LEXER BASE_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR} NORMALIZE)
    cmake_path(ABSOLUTE_PATH arg_PARSER BASE_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR} NORMALIZE)
    set(directory ${CMAKE_BINARY_DIR}/bin/Grammar/${arg_NAME})
    if(arg_OUTPUT)
        set(directory ${arg_OUTPUT})
    endif()

    # A table that was deleted or lost is made again too, so each of them is an output.
    set(tables ${directory}/manifest.txt)
    foreach(table actions defines accept base chk def NUL_trans nxt rule_can_match_eol acclist)
        list(APPEND tables ${directory}/Lexer/${table}.dat)
    endforeach()
    foreach(table actions defines const pact defact pgoto defgoto table check stos r1 r2 translate)
        list(APPEND tables ${directory}/Parser/${table}.dat)
    endforeach()
    add_custom_command(
        OUTPUT ${tables}
        COMMAND uvgrammar --lexer ${arg_LEXER} --parser ${arg_PARSER} --output ${directory} --name ${arg_NAME}
            --depfile ${CMAKE_CURRENT_BINARY_DIR}/${arg_NAME}.d $<$<BOOL:${arg_STYLE}>:--style>
        DEPFILE ${CMAKE_CURRENT_BINARY_DIR}/${arg_NAME}.d
        DEPENDS uvgrammar ${arg_LEXER} ${arg_PARSER}
        COMMENT "Making the tables of ${arg_NAME}"
        COMMAND_EXPAND_LISTS
        VERBATIM
    )
    add_custom_target(language_${arg_NAME} DEPENDS ${tables})
    if(TARGET languages)
        add_dependencies(languages language_${arg_NAME})
    endif()
endfunction()
