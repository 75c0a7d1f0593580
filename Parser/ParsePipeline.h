// The road of one text: preparation, scanning and parsing or coloring, a second attempt with the other rule
// for quoted identifiers, flattening. It works on values: a grammar, the options, a text that turns into what
// was made of it. What lies outside it asks of an owner, which is the parser object, or a test.
#pragma once

#include "Parser/LoadedGrammar.h"
#include "Parser/ParseOptions.h"
#include "Parser/ParsedText.h"
#include "Parser/ScriptFormatter.h"

#include <map>
#include <string>

class Preprocessor;

// What a parse asks of its owner while it runs. Exceptions end the parse.
class IParseOwner
{
public:
    // Reads the options, everything that SParseOptions has. `isNewText`: where they say so, all texts before
    // are forgotten first; otherwise it is another attempt at the text.
    // Returns: false if there is no database info, with all options at their defaults.
    virtual bool ReadOptions(SParseOptions& options, bool isNewText) = 0;
    // A page has been prepared, and its script belongs to the host. Its text comes after that.
    virtual void TakeScript(const SParseOptions& options, const SAspPage& page) = 0;
    // A tree has been made, with these unexpected tokens. Comes once for each attempt.
    virtual void CountWarnings(const SParseOptions& options,
                               const std::multimap<unsigned long, std::string>& tokens) = 0;
    // Flattens the tree, and what else may be in its place.
    // Returns: a negative code if it is none.
    virtual int Flatten(const SParseOptions& options, CParseResult& result) = 0;

protected:
    ~IParseOwner() = default;
};

class CParsePipeline
{
public:
    // Borrows all of them; `preprocessor` may be null. `parsed` grows in the hands of the pipeline, and its
    // owner may show it at any time: each step leaves there what it has made before the next one begins.
    CParsePipeline(CLoadedGrammar& grammar, Preprocessor* preprocessor, SParsedText& parsed,
                   IParseOwner& owner)
        : m_Grammar(grammar), m_Preprocessor(preprocessor), m_Parsed(parsed), m_Owner(owner)
    {}

    // Parses `parsed.text` and leaves there what the preparation makes of it. The result of an earlier text
    // stays until there is a new one.
    // `showErrors`: unexpected tokens go to the log too.
    // Returns: UVDB_OK with a result; UVDB_NO_DATA if there is nothing to parse; otherwise a negative code,
    //          with `parsed.error`, except where there is no database info. Throws nothing.
    int Parse(bool showErrors);

    // Another attempt at a text that Parse has been through. Keeps its outcome if it met no unexpected token,
    // and the flipped rule with it; otherwise everything is put back but the error. Throws nothing.
    void TryParseWithOtherOpts();

    // Parses the text as it stands. `parsed` keeps everything, its result as a text.
    // Returns: the raw tree, empty without one; the other findings in `findings`.
    // Throws:  what goes wrong.
    std::string FastParse(SParseFindings& findings);

    // Those of the parse; at their defaults if it didn't come to read them.
    const SParseOptions& Options() const { return m_Options; }

private:
    class CSecondAttempt;

    int ParseText(bool showErrors);
    int ExecuteParsing();
    // Returns: UVDB_OK if there is a text to parse; UVDB_NO_DATA if not; UVDB_ERROR if a formatter failed.
    int PrepareToParse();
    void TakeFormatted(SFormattedText formatted);
    // Returns: 0; the parser's own code if the grammar refuses the text; UVDB_ERROR for an exception.
    int ExecuteParsingInternal();
    int ExecuteParsingColoring();
    // The text itself as the result, for sources that no grammar reads.
    int ExecuteEmbeddedParsing();
    // The text that RunGrammar parses, from the first byte on.
    void GiveTextToGrammar(bool areFragmentsWanted);
    int RunGrammar(SParseFindings& findings);
    int Read(SParseFindings& findings);
    // Reads a text with unexpected tokens again, for strings that have lost their closing quote.
    int ReadBest(SParseFindings& findings);
    void TryOtherQuoteRule();
    int FlattenResult();
    bool IsPropertiesFile() const;
    // Leaves the error record and the line in the trace.
    // Returns: UVDB_ERROR.
    int Fail(const char* description, const char* traced);
    template <class Operation>
    int GuardMemory(Operation&& operation);

    CLoadedGrammar& m_Grammar;
    Preprocessor* m_Preprocessor;
    SParsedText& m_Parsed;
    IParseOwner& m_Owner;
    SParseOptions m_Options;
    bool m_IsSecondAttempt = false; // which doesn't start a third
};
