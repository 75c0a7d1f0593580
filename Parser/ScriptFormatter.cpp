#include "Parser/ScriptFormatter.h"

#include "Parser/ParseAnswers.h"
#include "Parser/ParseOptions.h"
#include "Parser/UVParser.h"
#include "Preparation/Formatters/Asp.h"
#include "Preparation/Formatters/Cobol.h"
#include "Preparation/Formatters/FoxPro.h"
#include "Preparation/Formatters/IbmCl.h"
#include "Preparation/Formatters/IbmRpg.h"
#include "Preparation/Formatters/Jcl.h"
#include "Preparation/Formatters/Pascal.h"
#include "Preparation/Formatters/Progress.h"
#include "Preparation/Preprocessor.h"
#include "UVEnvironment/LogSystem.h"

#include <utility>

using Uve::U8CString;

void ScriptFormatter::Take(SPreparedText prepared)
{
    m_Parser.set_Query(prepared.text.c_str());
    m_Parser.m_SourceLines = std::move(prepared.sourceLines);
    TakeNotes(std::move(prepared.notes));
}

void ScriptFormatter::TakeNotes(std::vector<SPreparationNote> notes)
{
    if (!m_Parser.m_IsSecondAttempt)
        m_Parser.m_PreparationNotes = std::move(notes);
}

void ScriptFormatter::FormatCPP()
{
    SPreparedText prepared;
    U8CString errors;
    const bool isPrepared = m_Parser.m_Preprocessor->Run(m_Parser.m_Query, m_Options.filePath, prepared.text,
                                                         errors, &prepared.sourceLines, &prepared.notes);
    if (!errors.empty())
        CLogWrapper::WriteTraceF("%s", errors.c_str());
    if (isPrepared) {
        Take(std::move(prepared));
        return;
    }
    // A failure that isn't about a character leaves the source to the parser as it stands.
    if (const auto message = PreprocessorFailureMessage(errors)) {
        m_Parser.SetLastError(0, message->c_str(), nullptr, nullptr);
        // the error record says the same
        std::erase_if(prepared.notes, [](const SPreparationNote& note) { return note.isError; });
        Take(std::move(prepared));
        return;
    }
    m_Parser.m_PreparedBy = "";
    prepared.notes.push_back({true, 0, {}, "the macro processor failed: the whole text goes on unprepared"});
    TakeNotes(std::move(prepared.notes));
}

void ScriptFormatter::Format4GL_PROGRESS()
{
    SProgressOptions options;
    options.filePath = m_Options.filePath;
    options.includeRoot = m_Options.includeRoot;
    options.propath = m_Options.propath;
    Take(m_Options.isFaithful ? FormatProgressFaithfully(m_Parser.m_Query, options)
                              : FormatProgress(m_Parser.m_Query, options));
}

void ScriptFormatter::FormatASP()
{
    SAspOptions options;
    options.filePath = m_Options.filePath;
    options.includeRoot = m_Options.includeRoot;
    SAspPage page = FormatAsp(m_Parser.m_Query, options);
    for (const U8CString& message : page.messages)
        CLogWrapper::WriteLogF("%s", message.c_str());
    WriteScript(m_Parser.m_DatabaseInfo, m_Parser.m_ConvertingObject, m_Options.objectId, page);
    Take(std::move(page.prepared));
}

void ScriptFormatter::FormatPASCAL()
{
    Take(FormatPascal(m_Parser.m_Query, {.isFaithful = m_Options.isFaithful}));
}

void ScriptFormatter::FormatCOBOL()
{
    const U8CString& format = m_Options.cobolFormat;
    SCobolOptions options;
    if (format.CollateNoCase("ANSI") == 0)
        options.format = enCobolFormat::Fixed;
    else if (format.CollateNoCase("FREE") == 0)
        options.format = enCobolFormat::Free;
    options.formatName = format;
    options.isFaithful = m_Options.isFaithful;
    options.savesDebugInfo = m_Options.savesCobolDebugInfo;
    options.removesFormatting = m_Options.removesCobolFormatting;
    options.tabWidth = m_Options.cobolTabWidth;
    Take(FormatCobol(m_Parser.m_Query, options));
}

void ScriptFormatter::FormatIBM_RPG()
{
    Take(FormatIbmRpg(m_Parser.m_Query, {.layout = m_Options.rpgLayout, .isFaithful = m_Options.isFaithful}));
}

void ScriptFormatter::FormatJCL()
{
    Take(FormatJcl(m_Parser.m_Query, {.isFaithful = m_Options.isFaithful}));
}

void ScriptFormatter::FormatIBM_CL()
{
    Take(FormatIbmCl(m_Parser.m_Query, {.isFaithful = m_Options.isFaithful}));
}

void ScriptFormatter::FormatFoxProPrograms()
{
    Take(FormatFoxPro(m_Parser.m_Query, {.isFaithful = m_Options.isFaithful}));
}
