// Any bytes through the front door, with the grammar UV_FUZZED_PARSER that stands beside the program: the raw tree's
// text is the source, and a parse that succeeds gives a flattened tree with the same text, as XML reads it.
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Catalogue/UVDBHelpers.h"
#include "Interfaces/UVDBResults.h"
#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Metadata/UVDBDatabaseInfo.h"
#include "Parser/UVParser.h"
#include "Tests/Support/TreeText.h"
#include "UVEnvironment/UVEEncoding.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

namespace {

void Erase(std::string& text, std::string_view part)
{
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at))
        text.erase(at, part.size());
}

// Two control characters have no place in XML: one is dropped, the other replaced by a word.
std::string WithoutControls(std::string text)
{
    Erase(text, "\f");
    Erase(text, "\x10");
    Erase(text, "ORVANTA_DATA_LINK_ESCAPE_REPLACER");
    return text;
}

// What reading the raw tree as XML does to its text besides: line ends become line feeds, what XML can't hold
// becomes "^".
std::string AsRead(std::string text)
{
    text = WithoutControls(std::move(text));
    for (std::size_t at = text.find("\r\n"); at != std::string::npos; at = text.find("\r\n", at))
        text.erase(at, 1);
    for (char& c : text) {
        if (c == '\r')
            c = '\n';
        else if (c > '\0' && c < ' ' && c != '\t' && c != '\n')
            c = '^';
    }
    for (const std::string_view noCharacter : {"\xEF\xBF\xBE", "\xEF\xBF\xBF"})
        for (std::size_t at = 0; (at = text.find(noCharacter, at)) != std::string::npos;)
            text.replace(at, noCharacter.size(), "^");
    // the root's own line feeds don't show
    const std::size_t first = text.find_first_not_of('\n');
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of('\n') - first + 1);
}

void Expect(bool holds, const char* what, const std::string& source, const std::string& tree)
{
    if (holds)
        return;
    std::fprintf(stderr, "%s\nsource: %s\ntree: %s\n", what, source.c_str(), tree.c_str());
    std::abort();
}

class CFuzzedParser
{
public:
    CFuzzedParser()
    {
        CUVDBOptionWrapper::SetParam(m_Info, "REPORT_UNEXPECTED_TOKENS", Uve::U8CString("1"));
        // Where a language reads texts in double quotes as names and as strings, both are tried.
        CUVDBOptionWrapper::SetParam(m_Info, "OPTION_VARYING_PARSING", Uve::U8CString("YES"));
        try {
            m_Parser.Load(UV_FUZZED_PARSER);
        } catch (const Uve::U8CString& message) {
            std::fprintf(stderr, "%s\n", message.c_str());
            std::abort();
        }
        m_Parser.set_DatabaseInfo(m_Info);
        m_Parser.Init("");
    }

    void Check(const std::string& source)
    {
        m_Parser.set_Query(source.c_str());
        const std::string raw = m_Parser.FastParse();
        Expect(raw.empty() || WithoutControls(TextOfTree(raw)) == WithoutControls(source),
               "raw parse lost text", source, raw);

        Uve::U8CString prepared = source;
        prepared.Replace("\xE2\x80\x8B", " ");
        const int result = m_Parser.Parse(false);
        Uve::U8CString tree;
        m_Parser.get_SQLTree(tree);
        Expect(result == UVDB_OK || tree.empty() || !UVDB::IsValidUTF8(prepared), "failure with a tree",
               source, tree);
        Expect(result != UVDB_OK || AsRead(TextOfTree(tree)) == AsRead(prepared), "parse lost text", source,
               tree);
        Uve::U8CString unexpected;
        CUVDBOptionWrapper::GetParam(m_Info, "UNEXPECTED_TOKENS", unexpected);
        Expect(unexpected.empty() != m_Parser.IsParseHasErrors(), "list of tokens and state differ", source,
               unexpected);
    }

private:
    std::shared_ptr<IUVDBDatabaseInfo2> m_Info = UVDBMakeObject<CUVDBDatabaseInfo>(MakeDbVersionInfo(
        UV_FUZZED_DATABASE, UVDB_NO_VERSION_WORD, UVDB_NO_VERSION_WORD, UVDB_NO_VERSION_WORD));
    CUVDBSQLParser m_Parser;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static CFuzzedParser parser; // loading the tables for each input would be most of the work
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    parser.Check(std::string(bytes.substr(0, bytes.find('\0'))));
    return 0;
}
