// The libraries of the family by name. A host includes the interface that it wants and asks for an object:
//
//     #include "Interfaces/IUVDBSQLParser.h"
//     std::shared_ptr<IUVDBSQLParser> parser = PluginHelpers::CreateParser();
//
// The operations are templates only so that the other interfaces may stay incomplete; leave the argument
// alone.
// Throws: std::runtime_error with the library's name and the reason.
#pragma once

#include "UVEnvironment/UVEDll.h"

#include <memory>
#include <string>

class IUVDBManager2;
class IUVDBSQLTranslator;
class IUVDBSQLConverter2;
class IDataExporterManager;
class ITableStatisticExporterManager;
class IUVDBSQLParser;
class IUVDBSQLPreprocessor;

class PluginHelpers
{
public:
    // `kind` 0 is the one manager there is.
    template <class T = IUVDBManager2>
    static std::shared_ptr<T> CreateDatabaseManager(int kind)
    {
        if (kind != 0)
            throw std::runtime_error("Unknown kind of database manager: " + std::to_string(kind) + ".");
        return Create<T>("libUVDBOdbc.so", "CreateInstanceUVDBOdbc", "' library: ");
    }

    template <class T = IUVDBSQLTranslator>
    static std::shared_ptr<T> CreateTranslator()
    {
        return Create<T>("libUVDBSQLTranslator.so", "CreateInstanceIUVDBSQLTranslator");
    }

    template <class T = IUVDBSQLConverter2>
    static std::shared_ptr<T> CreateConverter()
    {
        return Create<T>("libUVDBSQLConverter.so", "CreateInstanceIUVDBSQLConverter2");
    }

    template <class T = IDataExporterManager>
    static std::shared_ptr<T> CreateExporterManager()
    {
        return Create<T>("libUVDataProcessor.so", "CreateInstanceIDataExporterManager");
    }

    template <class T = ITableStatisticExporterManager>
    static std::shared_ptr<T> CreateTableStatisticManager()
    {
        return Create<T>("libUVDataProcessor.so", "CreateInstanceITableStatisticExporterManager");
    }

    // A host may have its parser from another module of the same entry.
    template <class T = IUVDBSQLParser>
    static std::shared_ptr<T> CreateParser(const std::string& library = "libUVParser.so")
    {
        return Create<T>(library, "CreateInstanceIUVDBSQLParser");
    }

    template <class T = IUVDBSQLPreprocessor>
    static std::shared_ptr<T> CreatePreprocessor()
    {
        return Create<T>("libUVDBSQLTranslator.so", "CreateInstancePatternPreprocessor");
    }

private:
    template <class T>
    static std::shared_ptr<T> Create(const std::string& library, const char* symbol,
                                     const char* wording = "': ")
    {
        try {
            return Uve::DLL::createInstance<T>(library, symbol);
        } catch (const std::exception& e) {
            throw std::runtime_error("Unable to load '" + library + wording + e.what() + ".");
        }
    }
};
