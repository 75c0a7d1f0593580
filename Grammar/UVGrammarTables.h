// Loading a language. Both of its parts are read first and proved then, so that a tool can say of a grammar's
// source what is wrong before the proof says it of the tables.
#pragma once

#include "Grammar/Runtime/ParserTables.h"
#include "Grammar/Runtime/ScannerTables.h"
#include "Grammar/UVGrammarActionRecords.h"
#include "Grammar/UVGrammarKeeper.h"

#include <map>
#include <memory>
#include <string>

// What the files of a scanner say, the folder "Lexer/".
struct SScannerFiles
{
    SScannerFiles() = default;
    SScannerFiles(const SScannerFiles&) = delete;
    SScannerFiles& operator=(const SScannerFiles&) = delete;
    ~SScannerFiles() { FreeActionsMap(actions); }

    std::string actionText, conditionText; // as they are stored
    CActionsMap actions;
    std::map<std::string, int> startConditions;
    std::shared_ptr<CScannerTables> tables = std::make_shared<CScannerTables>();
};

// What the files of a parser say, the folder "Parser/".
struct SParserFiles
{
    SParserFiles() = default;
    SParserFiles(const SParserFiles&) = delete;
    SParserFiles& operator=(const SParserFiles&) = delete;
    ~SParserFiles() { FreeActionsMap(actions); }

    std::string actionText, tokenText, constantText; // as they are stored
    CActionsMap actions;
    std::map<std::string, int> tokens;
    std::shared_ptr<CParserTables> tables = std::make_shared<CParserTables>(); // with their constants
};

// Read a part's folder, which ends in a slash, in the order in which its files are asked for.
// Throws: Uve::U8CString with the line for the log if a file is missing, can't be read, is shorter than it
//         claims, or isn't what the manifest of the language says.
void ReadScannerFiles(const std::string& directory, SScannerFiles& files);
void ReadParserFiles(const std::string& directory, SParserFiles& files);

// Prove what ReadScannerFiles and ReadParserFiles read: no text leads the engine out of the tables or into an
// action that it doesn't know, and with the binary tables of a generator no parse ends well without a tree.
// The scanner's tables are compiled by it.
//
// Throws: Uve::U8CString with the line for the log, which names the file and what is wrong with it.
void ProveScannerFiles(const std::string& directory, SScannerFiles& files);
void ProveParserFiles(const std::string& directory, const SParserFiles& files);

// A scanner ready to run.
struct SLoadedScanner
{
    CActionRecords actions;
    std::map<std::string, int> startConditions;
    std::shared_ptr<const CScannerTables> tables;
};

// A parser ready to run.
struct SLoadedParser
{
    CActionRecords actions;
    std::map<std::string, int> tokens;
    std::shared_ptr<const CParserTables> tables;
};

// Read and prove a part's folder, or take what CTableCache kept of it.
// Throws: as reading and proving.
SLoadedScanner LoadScanner(const std::string& directory);
SLoadedParser LoadParser(const std::string& directory);
