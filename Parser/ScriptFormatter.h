// The preparation passes as the parser object calls them. Each operation reads its options, hands the query
// to the pass of one language, and puts what it makes of it in the query's place. The passes themselves are
// plain functions in Preparation/.
#pragma once

#include "Preparation/PreparedText.h"

#include <vector>

class CUVDBSQLParser;

class ScriptFormatter
{
public:
    // Borrows the parser.
    explicit ScriptFormatter(CUVDBSQLParser& parser) : m_Parser(parser) {}

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
    template <class T>
    T Option(const char* name, T value) const;
    template <class T>
    T ObjectOption(const char* name, T value) const;
    // Does the host want forms that real sources survive, not those of the letter?
    bool IsFaithful() const;
    void Take(SPreparedText prepared);
    void TakeNotes(std::vector<SPreparationNote> notes);

    CUVDBSQLParser& m_Parser;
};
