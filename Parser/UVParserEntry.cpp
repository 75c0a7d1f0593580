#include "Parser/UVParserEntry.h"

#include "Parser/UVParser.h"

extern "C" {

IUVDBSQLParser* pluginCreateInstanceIUVDBSQLParser()
{
    return new CUVDBSQLParser;
}

// Nothing in the library refers to the variable; without `used` a whole-program optimisation drops it.
__attribute__((section("boostdll"), used, visibility("default")))
IUVDBSQLParser* (*CreateInstanceIUVDBSQLParser)() = &pluginCreateInstanceIUVDBSQLParser;

} // extern "C"
