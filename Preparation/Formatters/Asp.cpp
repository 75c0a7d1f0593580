#include "Preparation/Formatters/Asp.h"

#include "Preparation/Formatters/IncludeFile.h"
#include "Preparation/PreparationNotes.h"
#include "UVEnvironment/FileHelper.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <numeric>
#include <optional>
#include <string>
#include <utility>

namespace {

constexpr std::size_t kNone = std::string_view::npos;

bool IsSpace(char byte)
{
    return byte == ' ' || (byte >= '\t' && byte <= '\r');
}

char Lower(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

// `word` is in lower case.
bool HoldsNoCase(std::string_view text, std::size_t at, std::string_view word)
{
    return at <= text.size() && text.size() - at >= word.size() &&
           std::equal(word.begin(), word.end(), text.begin() + static_cast<std::ptrdiff_t>(at),
                      [](char a, char b) { return a == Lower(b); });
}

// Where `word`, which begins with "<", stands next.
std::size_t FindTag(std::string_view text, std::size_t from, std::string_view word)
{
    std::size_t at = text.find('<', from);
    while (at != kNone && !HoldsNoCase(text, at, word))
        at = text.find('<', at + 1);
    return at;
}

std::size_t SkipSpace(std::string_view text, std::size_t at)
{
    while (at < text.size() && IsSpace(text[at]))
        ++at;
    return at;
}

// What a search didn't find is not there for a later start before the same end either: each line is gone
// through once, however many starts it holds.
class CLineSearch
{
public:
    // Where `matches(at)` holds first, from `from` on and before the end of its line. Starts ascend, and the
    // next one lies after what was found.
    template <class Predicate>
    std::size_t Find(std::string_view text, std::size_t from, Predicate matches)
    {
        if (from < m_EmptyUpTo)
            return kNone;
        for (std::size_t at = from; at < text.size() && text[at] != '\n' && text[at] != '\r'; ++at) {
            if (matches(at))
                return at;
            m_EmptyUpTo = at + 1;
        }
        return kNone;
    }

private:
    std::size_t m_EmptyUpTo = 0;
};

// A text that grows out of another one, and the source line of each of its lines; the last line counts even
// if it is empty.
struct SPage
{
    std::string text;
    std::vector<std::uint32_t> lines;
};

class CPageBuilder
{
public:
    explicit CPageBuilder(const SPage& from) : m_From(from)
    {
        m_Page.text.reserve(from.text.size() + from.text.size() / 2);
        m_Page.lines.reserve(from.lines.size() + from.lines.size() / 2);
        m_Page.lines.push_back(from.lines.front());
    }

    void Copy(std::size_t end)
    {
        const std::string_view piece = std::string_view(m_From.text).substr(m_At, end - m_At);
        const auto count = std::ranges::count(piece, '\n');
        const auto next = m_From.lines.begin() + static_cast<std::ptrdiff_t>(m_Line) + 1;
        m_Page.lines.insert(m_Page.lines.end(), next, next + count);
        m_Page.text.append(piece);
        m_Line += static_cast<std::size_t>(count);
        m_At = end;
    }

    void Skip(std::size_t end)
    {
        const std::string_view piece = std::string_view(m_From.text).substr(m_At, end - m_At);
        m_Line += static_cast<std::size_t>(std::ranges::count(piece, '\n'));
        m_At = end;
    }

    void Put(std::string_view text)
    {
        m_Page.lines.insert(m_Page.lines.end(), static_cast<std::size_t>(std::ranges::count(text, '\n')),
                            m_From.lines[m_Line]);
        m_Page.text.append(text);
    }

    // Of the source, where what comes next begins.
    std::uint32_t Line() const { return m_From.lines[m_Line]; }

    SPage Finish()
    {
        Copy(m_From.text.size());
        return std::move(m_Page);
    }

private:
    const SPage& m_From;
    SPage m_Page;
    std::size_t m_At = 0;
    std::size_t m_Line = 0;
};

SPage PageOf(std::string_view source)
{
    SPage page;
    page.text = source;
    page.lines.resize(static_cast<std::size_t>(std::ranges::count(source, '\n')) + 1);
    std::iota(page.lines.begin(), page.lines.end(), 1U);
    return page;
}

// ---- Include files ----

struct SIncludeDirective
{
    std::size_t begin;
    std::size_t end;
    std::string_view file;
};

// <!--\s*#include\s+file\s*=\s*"(.*?)"\s*-->, case matters.
class CIncludeSearch
{
public:
    explicit CIncludeSearch(std::string_view text) : m_Text(text) {}

    std::optional<SIncludeDirective> Next(std::size_t from)
    {
        for (std::size_t begin = m_Text.find("<!--", from); begin != kNone;
             begin = m_Text.find("<!--", begin + 4)) {
            std::size_t at = SkipSpace(m_Text, begin + 4);
            if (!Take(at, "#include") || at == m_Text.size() || !IsSpace(m_Text[at]))
                continue;
            at = SkipSpace(m_Text, at);
            if (!Take(at, "file"))
                continue;
            at = SkipSpace(m_Text, at);
            if (!Take(at, "="))
                continue;
            at = SkipSpace(m_Text, at);
            if (!Take(at, "\""))
                continue;
            // the name goes on over quotes that don't end the directive
            const std::size_t quote = m_Names.Find(m_Text, at, [&](std::size_t i) {
                return m_Text[i] == '"' && m_Text.substr(SkipSpace(m_Text, i + 1)).starts_with("-->");
            });
            if (quote != kNone)
                return SIncludeDirective{begin, SkipSpace(m_Text, quote + 1) + 3,
                                         m_Text.substr(at, quote - at)};
        }
        return std::nullopt;
    }

private:
    bool Take(std::size_t& at, std::string_view word) const
    {
        if (!m_Text.substr(at).starts_with(word))
            return false;
        at += word.size();
        return true;
    }

    std::string_view m_Text;
    CLineSearch m_Names;
};

class CIncludeReader
{
public:
    CIncludeReader(const SAspOptions& options, std::vector<Uve::U8CString>& messages)
        : m_Directory(Uve::Path::GetDirectory(options.filePath)), m_Root(options.includeRoot),
          m_Room(options.expansionLimit), m_Limit(options.expansionLimit), m_Messages(messages)
    {}

    // The text that stands for the file; borrowed from the reader.
    std::string_view Read(std::string_view name, std::uint32_t line)
    {
        const Uve::U8CString path = Uve::Path::Combine(m_Directory, Uve::U8CString(name));
        auto [file, isNew] = m_Files.try_emplace(path);
        if (isNew) {
            file->second.state = ReadIncludeFile(path, m_Limit, file->second.text, m_Root);
            std::erase(file->second.text, '\n');
        }
        SFile& known = file->second;
        if (known.text.size() > m_Room)
            known = {enIncludeFile::tooLong, {}};
        if (known.state != enIncludeFile::read)
            Report(known.state, path, name, line);
        m_Room -= known.text.size();
        return known.text;
    }

    std::vector<SPreparationNote> TakeNotes() { return m_Notes.Take(); }

private:
    struct SFile
    {
        enIncludeFile state = enIncludeFile::missing;
        std::string text;
    };

    void Report(enIncludeFile state, const Uve::U8CString& path, std::string_view name, std::uint32_t line)
    {
        Uve::U8CString text;
        switch (state) {
        case enIncludeFile::tooLong:
            text.Format("File %s makes the page too long\n", path.c_str());
            m_Notes.AddError("include file that makes the page too long: " + std::string(name), line);
            break;
        case enIncludeFile::unreadable:
            text.Format("Can't open file %s\n", path.c_str());
            m_Notes.AddWarning("include file that can't be opened: " + std::string(name), line);
            break;
        default:
            text.Format("File %s does not exist.\n", path.c_str());
            m_Notes.AddWarning(MissingIncludeText(state, name), line);
        }
        m_Messages.emplace_back().Format("\nError(parser): %s\n", text.c_str());
    }

    Uve::U8CString m_Directory;
    CIncludeRoot m_Root;
    std::size_t m_Room; // bytes that the page may still grow
    std::size_t m_Limit;
    std::vector<Uve::U8CString>& m_Messages;
    CPreparationNotes m_Notes;
    std::map<std::string, SFile> m_Files;
};

SPage WithIncludes(const SPage& page, const SAspOptions& options, SAspPage& result)
{
    CPageBuilder builder(page);
    CIncludeSearch search(page.text);
    CIncludeReader reader(options, result.messages);
    std::size_t from = 0;
    while (const auto directive = search.Next(from)) {
        builder.Copy(directive->begin);
        builder.Put(reader.Read(directive->file, builder.Line()));
        builder.Skip(directive->end);
        from = directive->end;
    }
    result.prepared.notes = reader.TakeNotes();
    return builder.Finish();
}

// ---- Blocks of script ----

struct SBlock
{
    std::size_t begin = 0;
    std::size_t end = 0;
};

// <%(?!\s*@|\s*=|\s*option explicit)((.|\n|\r)*?)%>, without regard to case.
class CDelimitedSearch
{
public:
    explicit CDelimitedSearch(std::string_view text) : m_Text(text) {}

    std::optional<SBlock> Next(std::size_t from)
    {
        for (std::size_t open = m_Text.find("<%", from); open != kNone; open = m_Text.find("<%", open + 2)) {
            const std::size_t begin = open + 2;
            const std::size_t first = SkipSpace(m_Text, begin);
            if (first < m_Text.size() && (m_Text[first] == '@' || m_Text[first] == '='))
                continue;
            if (HoldsNoCase(m_Text, first, "option explicit"))
                continue;
            const std::size_t close = m_Text.find("%>", begin);
            if (close == kNone)
                return std::nullopt;
            return SBlock{begin, close};
        }
        return std::nullopt;
    }

private:
    std::string_view m_Text;
};

// <SCRIPT\s*language\s*=\s*vbscript.*?>((.|\n|\r)*?)<\/SCRIPT>, without regard to case.
class CElementSearch
{
public:
    explicit CElementSearch(std::string_view text) : m_Text(text) {}

    std::optional<SBlock> Next(std::size_t from)
    {
        for (std::size_t open = FindTag(m_Text, from, "<script"); open != kNone;
             open = FindTag(m_Text, open + 1, "<script")) {
            std::size_t at = SkipSpace(m_Text, open + 7);
            if (!HoldsNoCase(m_Text, at, "language"))
                continue;
            at = SkipSpace(m_Text, at + 8);
            if (at == m_Text.size() || m_Text[at] != '=')
                continue;
            at = SkipSpace(m_Text, at + 1);
            if (!HoldsNoCase(m_Text, at, "vbscript"))
                continue;
            const std::size_t tagEnd =
                m_TagEnds.Find(m_Text, at + 8, [&](std::size_t i) { return m_Text[i] == '>'; });
            if (tagEnd == kNone)
                continue;
            const std::size_t close = FindTag(m_Text, tagEnd + 1, "</script>");
            if (close == kNone)
                return std::nullopt;
            return SBlock{tagEnd + 1, close};
        }
        return std::nullopt;
    }

private:
    std::string_view m_Text;
    CLineSearch m_TagEnds;
};

// Marks what the search finds. The blocks' numbers go on from those that there are already.
template <class Search>
SPage WithMarkers(const SPage& page, SAspPage& result)
{
    CPageBuilder builder(page);
    Search search(page.text);
    std::size_t from = 0;
    while (const auto found = search.Next(from)) {
        SAspBlock block;
        block.marker = "'ORVANTA_VB_CODEBLOCK_" + std::to_string(result.blocks.size());
        block.text = std::string_view(page.text).substr(found->begin, found->end - found->begin);

        builder.Copy(found->begin);
        builder.Put("\n");
        builder.Put(block.marker);
        builder.Put("\n");
        builder.Copy(found->end);
        builder.Put(block.marker);
        builder.Put("\n");

        result.script.append(block.marker).append("\n").append(block.text).append(block.marker).append("\n");
        result.blocks.push_back(std::move(block));
        from = found->end;
    }
    return builder.Finish();
}

} // namespace

SAspPage FormatAsp(std::string_view source, const SAspOptions& options)
{
    SAspPage result;
    SPage page = WithIncludes(PageOf(source), options, result);
    page = WithMarkers<CDelimitedSearch>(page, result);
    page = WithMarkers<CElementSearch>(page, result);
    if (page.text.empty() || page.text.back() == '\n')
        page.lines.pop_back();
    result.prepared.text = std::move(page.text);
    result.prepared.sourceLines = std::move(page.lines);
    return result;
}
