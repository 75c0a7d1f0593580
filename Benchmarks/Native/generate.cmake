# cmake -DLEXER=x.l -DPARSER=x.y -DOUTPUT=dir -DFLEX=flex -DBISON=bison -P generate.cmake
# Makes C++ out of a language's sources. The sources are written for the engine and have no code of their own: what
# makes them compile is put before and after.
file(MAKE_DIRECTORY ${OUTPUT})

file(READ ${LEXER} text)
string(REGEX REPLACE "%option outfile=[^\n]*" "%option outfile=\"NativeLexer.cpp\" nounput noinput" text "${text}")
file(WRITE ${OUTPUT}/NativeLexer.l "%{\n#include \"Benchmarks/Native/LexerPrologue.h\"\n%}\n${text}"
     "#include \"Benchmarks/Native/LexerEpilogue.h\"\n")

file(READ ${PARSER} text)
string(REPLACE "%define api.value.type {int}" "%define api.value.type {NativeValue}" text "${text}")
file(WRITE ${OUTPUT}/NativeParser.y
     "%code requires {\n#include \"Benchmarks/Native/NativeSupport.h\"\n}\n"
     "%code {\n#include \"Benchmarks/Native/ParserPrologue.h\"\n}\n${text}")

foreach(command "${FLEX};NativeLexer.l"
                "${BISON};-Wno-other;--header=NativeParser.h;-o;NativeParser.cpp;NativeParser.y")
    execute_process(COMMAND ${command} WORKING_DIRECTORY ${OUTPUT} RESULT_VARIABLE result ERROR_VARIABLE errors)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${command}: ${errors}")
    endif()
endforeach()
