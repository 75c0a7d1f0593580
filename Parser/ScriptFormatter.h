// The preparation passes, each with its options: a text in, a value out. The passes themselves are plain
// functions in Preparation/; where the value goes is the business of whoever calls.
#pragma once

#include "Preparation/Formatters/Asp.h"
#include "Preparation/PreparedText.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <optional>

class Preprocessor;
struct SParseOptions;

// What a pass has made of a text.
struct SFormattedText
{
    SPreparedText prepared;
    bool isLeftAlone = false;              // the text goes on unprepared; of `prepared` only the notes count
    std::optional<Uve::U8CString> error{}; // for the error record: the text is refused
    std::optional<SAspPage> page{};        // the script in a page; its own `prepared` is empty
};

class ScriptFormatter
{
public:
    // Borrows both. Only FormatCPP needs a preprocessor, which is one that Init has seen.
    ScriptFormatter(const SParseOptions& options, Preprocessor* preprocessor)
        : m_Options(options), m_Preprocessor(preprocessor)
    {}

    SFormattedText FormatCPP(const Uve::U8CString& text) const;
    SFormattedText Format4GL_PROGRESS(const Uve::U8CString& text) const;
    SFormattedText FormatASP(const Uve::U8CString& text) const;
    SFormattedText FormatPASCAL(const Uve::U8CString& text) const;
    SFormattedText FormatCOBOL(const Uve::U8CString& text) const;
    SFormattedText FormatIBM_RPG(const Uve::U8CString& text) const;
    SFormattedText FormatJCL(const Uve::U8CString& text) const;
    SFormattedText FormatIBM_CL(const Uve::U8CString& text) const;
    SFormattedText FormatFoxProPrograms(const Uve::U8CString& text) const;

private:
    const SParseOptions& m_Options;
    Preprocessor* m_Preprocessor;
};
