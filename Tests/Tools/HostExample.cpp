#include "Catalogue/UVDBDatabaseKinds.h"
#include "Catalogue/UVDBHelpers.h"
#include "Interfaces/IUVDBErrorInfo.h"
#include "Interfaces/IUVDBSQLParser.h"
#include "Interfaces/UVDBResults.h"
#include "Metadata/UVDBDatabaseInfo.h"
#include "UVEnvironment/FileHelper.h"
#include "UVEnvironment/PluginHelpers.h"

#include <iostream>

int main(int argc, char** argv)
try {
    DB_VERSION_INFO version;
    version.db = UVDB_DB_POSTGRESQL;
    const auto info = std::make_shared<CUVDBDatabaseInfo>(version);

    const auto parser = PluginHelpers::CreateParser();
    parser->Load(GetParserModuleName(version));
    parser->set_DatabaseInfo(info);
    parser->Init("");

    int failures = 0;
    for (int i = 1; i < argc; ++i) {
        parser->set_Query(Uve::File::ReadAllText(argv[i]).c_str());
        Uve::U8CString tree;
        if (parser->Parse(false) >= UVDB_OK && parser->get_SQLTree(tree) == UVDB_OK &&
            !parser->IsParseHasErrors()) {
            std::cout << tree;
            continue;
        }
        ++failures;
        char description[1000] = "unexpected tokens";
        std::size_t length = 0;
        std::shared_ptr<IUVDBErrorInfo> error;
        parser->get_LastError(error);
        if (error && error->get_Description(nullptr, 0, &length) == UVDB_OK && length > 0)
            error->get_Description(description, sizeof(description), &length);
        std::cerr << argv[i] << ": " << description << '\n';
    }
    return failures;
} catch (const Uve::U8CString& message) { // how a grammar's tables are refused
    std::cerr << message << '\n';
    return 2;
} catch (const std::exception& e) {
    std::cerr << e.what() << '\n';
    return 2;
}
