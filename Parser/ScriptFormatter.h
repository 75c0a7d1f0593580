// The preparation passes as the parser object calls them. Each operation hands the query to the pass of one
// language, with its options, and puts what it makes of it in the query's place. The passes themselves are
// plain functions in Preparation/.
#pragma once

#include "Preparation/PreparedText.h"

#include <vector>

class CUVDBSQLParser;
struct SParseOptions;

class ScriptFormatter
{
public:
    // Borrows both.
    ScriptFormatter(CUVDBSQLParser& parser, const SParseOptions& options)
        : m_Parser(parser), m_Options(options)
    {}

    // Leaves an empty query and an error record if the source can't be read.
    void FormatCPP();
    void Format4GL_PROGRESS();
    // The blocks of script become options: of the object being converted by their markers, and of the
    // database info all together, named by the object's ObjectID and "VBPart".
    void FormatASP();
    void FormatPASCAL();
    void FormatCOBOL();
    void FormatIBM_RPG();
    void FormatJCL();
    void FormatIBM_CL();
    void FormatFoxProPrograms();

private:
    void Take(SPreparedText prepared);
    void TakeNotes(std::vector<SPreparationNote> notes);

    CUVDBSQLParser& m_Parser;
    const SParseOptions& m_Options;
};
