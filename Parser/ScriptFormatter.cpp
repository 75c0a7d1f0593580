#include "Parser/ScriptFormatter.h"

#include "Interfaces/IUVDBDatabaseInfo.h"
#include "Interfaces/IUVDBObjectInfo.h"
#include "Metadata/Options/UVDBOptionWrapper.h"
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

#include <charconv>
#include <utility>

using Uve::U8CString;

template <class T>
T ScriptFormatter::Option(const char* name, T value) const
{
    CUVDBOptionWrapper::GetParam(m_Parser.m_DatabaseInfo, name, value);
    return value;
}

template <class T>
T ScriptFormatter::ObjectOption(const char* name, T value) const
{
    if (m_Parser.m_ConvertingObject)
        CUVDBOptionWrapper::GetParam(m_Parser.m_ConvertingObject, name, value);
    return value;
}

bool ScriptFormatter::IsFaithful() const
{
    return Option("SOURCE_FORMS", U8CString()).CollateNoCase("FAITHFUL") == 0;
}

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
    const bool isPrepared =
        m_Parser.m_Preprocessor->Run(m_Parser.m_Query, ObjectOption("FilePath", U8CString()), prepared.text,
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
    options.filePath = ObjectOption("FilePath", U8CString());
    options.includeRoot = Option("INCLUDE_ROOT", U8CString());
    options.propath = Option("PROPATH", U8CString());
    Take(IsFaithful() ? FormatProgressFaithfully(m_Parser.m_Query, options)
                      : FormatProgress(m_Parser.m_Query, options));
}

void ScriptFormatter::FormatASP()
{
    SAspOptions options;
    options.filePath = ObjectOption("FilePath", U8CString());
    options.includeRoot = Option("INCLUDE_ROOT", U8CString());
    SAspPage page = FormatAsp(m_Parser.m_Query, options);
    for (const U8CString& message : page.messages)
        CLogWrapper::WriteLogF("%s", message.c_str());
    for (const SAspBlock& block : page.blocks)
        CUVDBOptionWrapper::SetParam(m_Parser.m_ConvertingObject, block.marker, block.text);
    Take(std::move(page.prepared));
    const U8CString objectId = ObjectOption("ObjectID", U8CString());
    CUVDBOptionWrapper::SetParam(m_Parser.m_DatabaseInfo, objectId + "VBPart", page.script);
}

void ScriptFormatter::FormatPASCAL()
{
    Take(FormatPascal(m_Parser.m_Query, {.isFaithful = IsFaithful()}));
}

void ScriptFormatter::FormatCOBOL()
{
    const U8CString format = Option("COBOLFORMAT", U8CString("NO"));
    SCobolOptions options;
    if (format.CollateNoCase("ANSI") == 0)
        options.format = enCobolFormat::Fixed;
    else if (format.CollateNoCase("FREE") == 0)
        options.format = enCobolFormat::Free;
    options.formatName = format;
    options.isFaithful = IsFaithful();
    options.savesDebugInfo = Option("SAVE_COBOL_DEBUG_INFO", U8CString("NO")) == "YES";
    options.removesFormatting = Option("REMOVE_SRC_FORMATTING", U8CString("0")) == "1";
    options.tabWidth = Option("COBOL_TAB_WIDTH", options.tabWidth);
    Take(FormatCobol(m_Parser.m_Query, options));
}

void ScriptFormatter::FormatIBM_RPG()
{
    SIbmRpgOptions options;
    options.isFaithful = IsFaithful();
    const U8CString version = Option("IBMRPG_VERSION", U8CString());
    std::from_chars(version.data(), version.data() + version.size(), options.layout);
    Take(FormatIbmRpg(m_Parser.m_Query, options));
}

void ScriptFormatter::FormatJCL()
{
    Take(FormatJcl(m_Parser.m_Query, {.isFaithful = IsFaithful()}));
}

void ScriptFormatter::FormatIBM_CL()
{
    Take(FormatIbmCl(m_Parser.m_Query, {.isFaithful = IsFaithful()}));
}

void ScriptFormatter::FormatFoxProPrograms()
{
    Take(FormatFoxPro(m_Parser.m_Query, {.isFaithful = IsFaithful()}));
}
