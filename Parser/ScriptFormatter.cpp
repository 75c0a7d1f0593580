#include "Parser/ScriptFormatter.h"

#include "Parser/ParseOptions.h"
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

SFormattedText ScriptFormatter::FormatCPP(const U8CString& text) const
{
    SFormattedText formatted;
    SPreparedText& prepared = formatted.prepared;
    U8CString errors;
    const bool isPrepared = m_Preprocessor->Run(text, m_Options.filePath, prepared.text, errors,
                                                &prepared.sourceLines, &prepared.notes);
    if (!errors.empty())
        CLogWrapper::WriteTraceF("%s", errors.c_str());
    if (isPrepared)
        return formatted;
    // A failure that isn't about a character leaves the source to the parser as it stands.
    formatted.error = PreprocessorFailureMessage(errors);
    if (formatted.error) {
        // the error record says the same
        std::erase_if(prepared.notes, [](const SPreparationNote& note) { return note.isError; });
        return formatted;
    }
    formatted.isLeftAlone = true;
    prepared.notes.push_back({true, 0, {}, "the macro processor failed: the whole text goes on unprepared"});
    return formatted;
}

SFormattedText ScriptFormatter::Format4GL_PROGRESS(const U8CString& text) const
{
    SProgressOptions options;
    options.filePath = m_Options.filePath;
    options.includeRoot = m_Options.includeRoot;
    options.propath = m_Options.propath;
    return {m_Options.isFaithful ? FormatProgressFaithfully(text, options) : FormatProgress(text, options)};
}

SFormattedText ScriptFormatter::FormatASP(const U8CString& text) const
{
    SAspOptions options;
    options.filePath = m_Options.filePath;
    options.includeRoot = m_Options.includeRoot;
    SAspPage page = FormatAsp(text, options);
    for (const U8CString& message : page.messages)
        CLogWrapper::WriteLogF("%s", message.c_str());
    SFormattedText formatted{std::exchange(page.prepared, {})};
    formatted.page = std::move(page);
    return formatted;
}

SFormattedText ScriptFormatter::FormatPASCAL(const U8CString& text) const
{
    return {FormatPascal(text, {.isFaithful = m_Options.isFaithful})};
}

SFormattedText ScriptFormatter::FormatCOBOL(const U8CString& text) const
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
    return {FormatCobol(text, options)};
}

SFormattedText ScriptFormatter::FormatIBM_RPG(const U8CString& text) const
{
    return {FormatIbmRpg(text, {.layout = m_Options.rpgLayout, .isFaithful = m_Options.isFaithful})};
}

SFormattedText ScriptFormatter::FormatJCL(const U8CString& text) const
{
    return {FormatJcl(text, {.isFaithful = m_Options.isFaithful})};
}

SFormattedText ScriptFormatter::FormatIBM_CL(const U8CString& text) const
{
    return {FormatIbmCl(text, {.isFaithful = m_Options.isFaithful})};
}

SFormattedText ScriptFormatter::FormatFoxProPrograms(const U8CString& text) const
{
    return {FormatFoxPro(text, {.isFaithful = m_Options.isFaithful})};
}
