#include "Catalogue/UVDBDatabaseKinds.h"
#include "Interfaces/IUVDBSQLParser.h"
#include "Metadata/UVDBDatabaseInfo.h"
#include "UVEnvironment/PluginHelpers.h"

#include <iostream>

int main()
try {
    DB_VERSION_INFO version;
    version.db = UVDB_DB_POSTGRESQL;
    const auto parser = PluginHelpers::CreateParser();
    parser->Load("PostgreSQL");
    parser->set_DatabaseInfo(std::make_shared<CUVDBDatabaseInfo>(version));
    parser->Init("");
    parser->set_Query("select 'every byte' -- comes back\n from the, tree;");
    Uve::U8CString tree;
    if (parser->Parse(false) == 0 && parser->get_SQLTree(tree) == 0)
        std::cout << tree;
} catch (const Uve::U8CString& message) { // a grammar that can't be loaded
    std::cerr << message << '\n';
    return 2;
}
