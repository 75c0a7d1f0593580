#include "Preparation/Formatters/Progress.h"

#include "Preparation/Formatters/IncludeFile.h"
#include "Preparation/Formatters/ProgressReferences.h"
#include "Preparation/PreparationNotes.h"
#include "UVEnvironment/FileHelper.h"
#include "UVEnvironment/LogSystem.h"

#include <boost/regex.hpp>

#include <algorithm>
#include <cstdint>
#include <deque>
#include <iterator>
#include <map>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace {

constexpr int kRoundLimit = 1000;
// How many pieces the source may fall into beyond those it had: each costs memory, however short its text.
constexpr std::size_t kPieceLimit = std::size_t{1} << 22;
// How many files may be opened by others, each in as many places as it is named.
constexpr std::size_t kOpenedLimit = std::size_t{1} << 24;
// Bytes that arguments may be looked for in, over the whole run: an argument goes through the file's text
// once.
constexpr std::size_t kArgumentWorkLimit = std::size_t{1} << 30;

// What formats may cost, over the whole run: a byte counts 64, and the library goes through what is left of
// the format for each "$".
constexpr double kFormatWorkLimit = 1e11;
// How often the longest text may be built from files and arguments, most of which is replaced again.
constexpr std::size_t kKeptTexts = 4;

// The text would become longer than it may, or take longer to make.
struct STooMuch
{};

// Appends to a text, up to a length.
// Throws: STooMuch beyond it.
class CBoundedOutput
{
public:
    using iterator_category = std::output_iterator_tag;
    using value_type = void;
    using difference_type = std::ptrdiff_t;
    using pointer = void;
    using reference = void;

    CBoundedOutput(std::string& text, std::size_t limit) : m_Text(&text), m_Limit(limit) {}

    CBoundedOutput& operator*() { return *this; }
    CBoundedOutput& operator++() { return *this; }
    CBoundedOutput operator++(int) { return *this; }
    CBoundedOutput& operator=(char byte)
    {
        if (m_Text->size() >= m_Limit)
            throw STooMuch();
        m_Text->push_back(byte);
        return *this;
    }

private:
    std::string* m_Text;
    std::size_t m_Limit;
};

// A pattern that matches `text` and nothing else.
std::string Quoted(std::string_view text)
{
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string pattern;
    for (const char byte : text) {
        const auto code = static_cast<unsigned char>(byte);
        const bool isPlain = code >= 0x80 || (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') ||
                             (byte >= 'a' && byte <= 'z');
        if (isPlain)
            pattern += byte;
        else
            pattern.append("\\x{").append(1, kDigits[code >> 4]).append(1, kDigits[code & 15]).append("}");
    }
    return pattern;
}

// Repeats are possessive: what follows them can't be part of them, and so nothing is ever tried twice.
boost::regex NamedPlaceholder(std::string_view name)
{
    return boost::regex("\\{[ ]*+" + Quoted(name) + "[ ]*+\\}");
}

boost::regex PositionalPlaceholder()
{
    return boost::regex("\\{[ ]*+&[^\\{\\}&\\.]*+\\}");
}

boost::regex ReferencesTo(std::string_view file)
{
    return boost::regex("\\{[\\s]*+" + Quoted(file) + "[^\\{\\}]*+\\}");
}

// What a piece does to the question whether the last brace so far opens or closes.
enum class enEnd : std::uint8_t
{
    same,
    open,
    closed
};

enEnd EndOf(std::string_view text)
{
    const std::size_t last = LastBrace(text);
    if (last == text.npos)
        return enEnd::same;
    return text[last] == '{' ? enEnd::open : enEnd::closed;
}

// A part of the text: a whole reference, or what lies between two of them.
struct SPiece
{
    std::string_view text;
    std::uint32_t line = 0;    // of the source, where the piece begins
    bool isFromSource = false; // its line feeds end lines of the source
    bool isReference = false;
    enEnd end = enEnd::same;
    std::uint32_t opened = 0; // where the piece came from, an index of m_Opened
};

// A file that is being taken in by another one. The first is the source, its own parent.
struct SOpened
{
    std::uint32_t parent = 0;
    std::uint32_t file = 0; // index of m_Files
};

// The file that a name stands for.
struct SNamedFile
{
    Uve::U8CString path;
    std::uint32_t file = 0;
};

// Takes the first `length` bytes off a piece, and returns them. The ends are left to the caller.
SPiece CutFront(SPiece& piece, std::size_t length)
{
    SPiece front = piece;
    front.text = piece.text.substr(0, length);
    piece.text.remove_prefix(length);
    if (piece.isFromSource)
        piece.line += static_cast<std::uint32_t>(std::ranges::count(front.text, '\n'));
    return front;
}

// The references that a round replaces.
struct SRound
{
    std::string_view name;
    std::vector<std::size_t> matches;    // their pieces
    std::vector<std::string_view> texts; // one for each, or one for all
    std::uint32_t file = 0;
    // From where a match stands to the file opened there; kAlreadyOpen if it is open there.
    std::unordered_map<std::uint32_t, std::uint32_t> opened;
};

constexpr std::uint32_t kAlreadyOpen = 0;

class CProgressPass
{
public:
    CProgressPass(std::string_view source, const SProgressOptions& options)
        : m_Options(options), m_LengthLimit(source.size() + options.expansionLimit)
    {
        Split(source, 1, true, m_Pieces);
        m_PieceLimit = m_Pieces.size() + kPieceLimit;
        m_Length = source.size();
        if (!options.filePath.empty())
            FileOf(options.filePath);
        else
            m_Files.emplace_back();
        m_Opened.emplace_back();
    }

    SPreparedText Run();

private:
    static void Split(std::string_view text, std::uint32_t line, bool isFromSource,
                      std::vector<SPiece>& pieces);
    bool HasReference();
    void RunRound();
    std::uint32_t FileOf(const Uve::U8CString& path);
    const SNamedFile& FileNamed(std::string_view name);
    bool IsOpen(std::uint32_t opened, std::uint32_t file) const;
    std::uint32_t Open(SRound& round, std::uint32_t parent);
    void Warn(std::string text, const SPiece& reference);
    std::string FileText(std::string_view name, const SPiece& reference);
    void FillArguments(std::string_view arguments, std::string& text);
    void FormatMatches(SRound& round, std::string_view format);
    bool ReplaceInPlace(SRound& round, const SPiece& replacement);
    bool ReplaceAll(SRound& round, std::vector<SPiece>& replacement);
    void Rejoin();
    std::string_view Keep(std::string text);
    void CountFormat(std::size_t times, std::string_view format);
    SPreparedText Joined();

    const SProgressOptions& m_Options;
    CIncludeRoot m_Root{m_Options.includeRoot};
    CPreparationNotes m_Notes;
    std::size_t m_LengthLimit;
    std::size_t m_PieceLimit = 0;
    std::size_t m_Length = 0;
    std::size_t m_ArgumentWork = 0;
    std::size_t m_KeptLength = 0;
    double m_FormatWork = 0;
    std::size_t m_First = 0; // no reference stands before this piece
    std::vector<SPiece> m_Pieces;
    std::deque<std::string> m_Texts;  // what the pieces borrow beside the source
    std::vector<std::string> m_Files; // their real paths; the source comes first
    std::map<std::string, std::uint32_t> m_FileOfRealPath;
    std::map<std::string, SNamedFile, std::less<>> m_FileOfName;
    std::vector<SOpened> m_Opened;
};

void CProgressPass::Split(std::string_view text, std::uint32_t line, bool isFromSource,
                          std::vector<SPiece>& pieces)
{
    SPiece rest{text, line, isFromSource};
    while (const auto reference = FindProgressReference(rest.text, 0)) {
        const std::size_t length = reference->end - reference->begin;
        if (reference->begin != 0) {
            pieces.push_back(CutFront(rest, reference->begin));
            pieces.back().end = EndOf(pieces.back().text);
        }
        pieces.push_back(CutFront(rest, length));
        pieces.back().isReference = true;
        pieces.back().end = enEnd::closed;
    }
    if (!rest.text.empty()) {
        pieces.push_back(rest);
        pieces.back().end = EndOf(rest.text);
    }
}

// A text that pieces can borrow for as long as the pass runs, also when they are gone again.
// Throws: STooMuch.
std::string_view CProgressPass::Keep(std::string text)
{
    m_KeptLength += text.size();
    if (m_KeptLength > kKeptTexts * m_LengthLimit)
        throw STooMuch();
    return m_Texts.emplace_back(std::move(text));
}

// To be called before a format is filled in.
// Throws: STooMuch.
void CProgressPass::CountFormat(std::size_t times, std::string_view format)
{
    const auto dollars = static_cast<double>(std::ranges::count(format, '$'));
    m_FormatWork += static_cast<double>(times) * static_cast<double>(format.size()) * (64 + dollars);
    if (m_FormatWork > kFormatWorkLimit)
        throw STooMuch();
}

std::uint32_t CProgressPass::FileOf(const Uve::U8CString& path)
{
    std::string real = RealIncludePath(path);
    const auto [known, isNew] =
        m_FileOfRealPath.try_emplace(std::move(real), static_cast<std::uint32_t>(m_Files.size()));
    if (isNew)
        m_Files.push_back(known->first);
    return known->second;
}

const SNamedFile& CProgressPass::FileNamed(std::string_view name)
{
    const auto known = m_FileOfName.find(name);
    if (known != m_FileOfName.end())
        return known->second;
    SNamedFile file;
    file.path = Uve::U8CString(name);
    std::ranges::replace(file.path, '/', '\\');
    file.path.GetBuffer();
    if (!Uve::File::Exists(file.path)) {
        const std::size_t directory = m_Options.filePath.find_last_of("/\\") + 1; // npos + 1 is 0
        file.path = m_Options.filePath.substr(0, directory);
        file.path += std::string(name.substr(name.find_last_of("/\\") + 1));
    }
    file.file = FileOf(file.path);
    return m_FileOfName.emplace(name, std::move(file)).first->second;
}

bool CProgressPass::IsOpen(std::uint32_t opened, std::uint32_t file) const
{
    for (; m_Opened[opened].file != file; opened = m_Opened[opened].parent)
        if (opened == 0)
            return false;
    return true;
}

// Opens the round's file where `parent` is open, once for all matches there.
// Returns: an index of m_Opened, kAlreadyOpen if it is open there.
// Throws:  STooMuch.
std::uint32_t CProgressPass::Open(SRound& round, std::uint32_t parent)
{
    const auto [known, isNew] = round.opened.try_emplace(parent, kAlreadyOpen);
    if (isNew && !IsOpen(parent, round.file)) {
        if (m_Opened.size() > kOpenedLimit)
            throw STooMuch();
        known->second = static_cast<std::uint32_t>(m_Opened.size());
        m_Opened.push_back({parent, round.file});
    }
    return known->second;
}

void CProgressPass::Warn(std::string text, const SPiece& reference)
{
    if (reference.opened != 0)
        text += ", which " + m_Files[m_Opened[reference.opened].file] + " names";
    m_Notes.AddWarning(text, reference.line);
}

std::string CProgressPass::FileText(std::string_view name, const SPiece& reference)
{
    std::string text;
    const enIncludeFile state = ReadIncludeFile(FileNamed(name).path, m_LengthLimit, text, m_Root);
    if (state == enIncludeFile::tooLong)
        throw STooMuch();
    if (state != enIncludeFile::read)
        Warn(MissingIncludeText(state, name), reference);
    return text;
}

void CProgressPass::FillArguments(std::string_view arguments, std::string& text)
{
    CProgressArguments parts(arguments);
    while (text.find('{') != text.npos) {
        const auto argument = parts.Next();
        if (!argument)
            break;
        m_ArgumentWork += text.size();
        if (m_ArgumentWork > kArgumentWorkLimit) {
            CLogWrapper::WriteTrace(
                "\nProgress include files: FAILED: too many arguments, the rest is left out");
            m_Notes.AddError("too many arguments of include files, the rest is left out",
                             m_Pieces[m_First].line);
            break;
        }
        const bool isNamed = !argument->name.empty();
        const std::size_t at =
            isNamed ? FindNamedPlaceholder(text, argument->name) : FindAnyPlaceholder(text);
        if (at == text.npos)
            continue;
        CountFormat(isNamed ? static_cast<std::size_t>(std::ranges::count(text, '{')) : 1, argument->value);
        std::string filled;
        const char* const begin = text.data();
        boost::regex_replace(CBoundedOutput(filled, m_LengthLimit), begin, begin + text.size(),
                             isNamed ? NamedPlaceholder(argument->name) : PositionalPlaceholder(),
                             argument->value,
                             isNamed ? boost::format_perl : boost::format_perl | boost::format_first_only);
        text = std::move(filled);
    }
}

// Fills the format into each match. Without "$" it has escape sequences at most, and one text does for all.
void CProgressPass::FormatMatches(SRound& round, std::string_view format)
{
    if (format.find('$') == format.npos && format.find('\\') == format.npos) {
        round.texts = {Keep(std::string(format))};
        return;
    }
    CountFormat(round.matches.size(), format);
    const auto asks = [&](std::string_view word) { return format.find(word) != format.npos; };
    const bool isShared = !asks("$");
    const bool needsContext = asks("$`") || asks("$'") || asks("PREMATCH") || asks("POSTMATCH");
    std::string whole;
    if (needsContext)
        for (const SPiece& piece : m_Pieces)
            whole.append(piece.text);

    const boost::regex references = ReferencesTo(round.name);
    std::size_t room = m_LengthLimit;
    std::size_t at = 0;       // of the piece
    std::size_t matchEnd = 0; // of the match before
    std::size_t index = 0;    // of the piece
    for (const std::size_t matched : round.matches) {
        for (; index != matched; ++index)
            at += m_Pieces[index].text.size();
        const std::string_view own = m_Pieces[matched].text;
        const std::string_view context = needsContext ? std::string_view(whole).substr(matchEnd) : own;
        boost::cmatch match;
        boost::regex_search(context.data(), context.data() + context.size(), match, references);
        // a reference that stays may have come first
        if (match[0].first != context.data() + (needsContext ? at - matchEnd : 0))
            boost::regex_search(own.data(), own.data() + own.size(), match, references);
        std::string text;
        match.format(CBoundedOutput(text, room), format, boost::format_perl);
        room -= text.size();
        round.texts.push_back(Keep(std::move(text)));
        if (isShared)
            return;
        matchEnd = at + own.size();
    }
}

// Each match becomes one piece, or none: those around it stay where they are.
// Returns: true if a reference may have come together.
bool CProgressPass::ReplaceInPlace(SRound& round, const SPiece& replacement)
{
    bool mayJoin = false;
    std::size_t looked = 0; // pieces up to here decide nothing any more
    enEnd end = enEnd::closed;
    for (const std::size_t matched : round.matches) {
        for (std::size_t i = matched; i != looked; --i) {
            if (m_Pieces[i - 1].end != enEnd::same) {
                end = m_Pieces[i - 1].end;
                break;
            }
        }
        mayJoin = mayJoin || end == enEnd::open;
        SPiece& piece = m_Pieces[matched];
        const std::uint32_t line = piece.line;
        const std::uint32_t opened = Open(round, piece.opened);
        piece = replacement;
        piece.line = line;
        piece.opened = opened;
        if (piece.end != enEnd::same)
            end = piece.end;
        mayJoin = mayJoin || end == enEnd::open;
        looked = matched + 1;
    }
    return mayJoin;
}

// Returns: true if a reference may have come together.
// Throws:  STooMuch, with the text as it was.
bool CProgressPass::ReplaceAll(SRound& round, std::vector<SPiece>& replacement)
{
    std::vector<SPiece> pieces;
    bool mayJoin = false;
    enEnd end = enEnd::closed;
    const auto add = [&](const SPiece& piece) {
        if (piece.end != enEnd::same)
            end = piece.end;
        if (!piece.text.empty())
            pieces.push_back(piece);
        if (pieces.size() > m_PieceLimit)
            throw STooMuch();
    };
    std::size_t index = 0;
    for (std::size_t next = 0; next != round.matches.size(); ++next) {
        for (; index != round.matches[next]; ++index)
            add(m_Pieces[index]);
        if (round.texts.size() > 1) {
            replacement.clear();
            Split(round.texts[next], 0, false, replacement);
        }
        // an open brace before the reference, or one in what replaces it, may have found its partner
        mayJoin = mayJoin || end == enEnd::open;
        const std::uint32_t opened = Open(round, m_Pieces[index].opened);
        for (SPiece part : replacement) {
            part.line = m_Pieces[index].line;
            part.opened = opened;
            add(part);
        }
        mayJoin = mayJoin || end == enEnd::open;
        ++index;
    }
    for (; index != m_Pieces.size(); ++index)
        add(m_Pieces[index]);
    m_Pieces = std::move(pieces);
    m_First = 0; // pieces without a text are gone
    return mayJoin;
}

// Goes on to the first reference whose file isn't open; m_First is its piece then. Those before it stay as
// they are: what comes before the first reference does so anyway.
bool CProgressPass::HasReference()
{
    for (; m_First != m_Pieces.size(); ++m_First) {
        SPiece& piece = m_Pieces[m_First];
        if (!piece.isReference)
            continue;
        const auto reference = FindProgressReference(piece.text, 0);
        if (!IsOpen(piece.opened, FileNamed(reference->name).file))
            return true;
        piece.isReference = false;
        Warn("include file that is open already isn't taken in again: " + std::string(reference->name),
             piece);
    }
    return false;
}

// Takes the file of the first reference, the piece at m_First, in.
// Throws: STooMuch, with the text as it was.
void CProgressPass::RunRound()
{
    const auto reference = FindProgressReference(m_Pieces[m_First].text, 0);
    std::string format = FileText(reference->name, m_Pieces[m_First]);
    FillArguments(reference->arguments, format);

    SRound round{reference->name, {}, {}, FileNamed(reference->name).file, {}};
    for (std::size_t i = m_First; i != m_Pieces.size(); ++i)
        if (m_Pieces[i].isReference && IsProgressReferenceTo(m_Pieces[i].text, round.name) &&
            Open(round, m_Pieces[i].opened) != kAlreadyOpen)
            round.matches.push_back(i);
    FormatMatches(round, format);

    // the length first, so that a text that is too long never comes to be
    std::size_t length = m_Length;
    for (std::size_t i = 0; i != round.matches.size(); ++i) {
        const std::string_view before = m_Pieces[round.matches[i]].text;
        const std::string_view after = round.texts[round.texts.size() > 1 ? i : 0];
        length += after.size();
        length -= before.size();
    }
    if (length > m_LengthLimit)
        throw STooMuch();

    std::vector<SPiece> replacement; // of the match at hand, or of all
    Split(round.texts.front(), 0, false, replacement);
    bool mayJoin = false;
    if (round.texts.size() == 1 && replacement.size() <= 1)
        mayJoin = ReplaceInPlace(round, replacement.empty() ? SPiece() : replacement.front());
    else
        mayJoin = ReplaceAll(round, replacement);
    m_Length = length;
    if (mayJoin)
        Rejoin();
}

// Makes one piece of each reference that has come to lie across several.
void CProgressPass::Rejoin()
{
    std::vector<SPiece> pieces;
    pieces.reserve(m_Pieces.size());
    constexpr std::size_t kNone = std::string_view::npos;
    std::size_t open = kNone; // the piece that holds an open brace with no brace after it
    std::size_t openAt = 0;
    for (SPiece piece : m_Pieces) {
        const std::size_t brace = FirstBrace(piece.text);
        if (open != kNone && brace != piece.text.npos && piece.text[brace] == '}') {
            std::string whole(pieces[open].text.substr(openAt));
            for (std::size_t i = open + 1; i < pieces.size(); ++i)
                whole.append(pieces[i].text);
            whole.append(piece.text.substr(0, brace + 1));
            if (FindProgressReference(whole, 0)) {
                const SPiece before = CutFront(pieces[open], openAt);
                const SPiece first = pieces[open];
                pieces.resize(open);
                if (!before.text.empty()) {
                    pieces.push_back(before);
                    pieces.back().end = EndOf(before.text);
                }
                pieces.push_back(
                    {Keep(std::move(whole)), first.line, false, true, enEnd::closed, first.opened});
                CutFront(piece, brace + 1);
                piece.end = EndOf(piece.text);
            }
            open = kNone;
        }
        if (piece.text.empty())
            continue;
        pieces.push_back(piece);
        const std::size_t last = LastBrace(piece.text);
        if (last == piece.text.npos)
            continue;
        open = piece.text[last] == '{' ? pieces.size() - 1 : kNone;
        openAt = last;
    }
    m_Pieces = std::move(pieces);
    m_First = 0;
}

SPreparedText CProgressPass::Joined()
{
    SPreparedText prepared;
    prepared.notes = m_Notes.Take();
    std::string text;
    text.reserve(m_Length);
    bool isLineBegin = true;
    for (const SPiece& piece : m_Pieces) {
        std::uint32_t line = piece.line;
        for (std::size_t at = 0; at < piece.text.size();) {
            if (isLineBegin)
                prepared.sourceLines.push_back(line);
            const std::size_t feed = piece.text.find('\n', at);
            isLineBegin = feed != piece.text.npos;
            at = isLineBegin ? feed + 1 : piece.text.size();
            if (isLineBegin && piece.isFromSource)
                ++line;
        }
        text.append(piece.text);
    }
    prepared.text = std::move(text);
    return prepared;
}

SPreparedText CProgressPass::Run()
{
    for (int round = 0;; ++round) {
        if (!HasReference())
            break;
        if (round == kRoundLimit) {
            m_Notes.AddError("include files: references are left after " + std::to_string(kRoundLimit) +
                                 " rounds",
                             m_Pieces[m_First].line);
            CLogWrapper::WriteTraceF("\nProgress include files: FAILED: references are left after %d rounds",
                                     kRoundLimit);
            break;
        }
        try {
            RunRound();
        } catch (const STooMuch&) {
            m_Notes.AddError("include files: the text becomes too long, or takes too long",
                             m_Pieces[m_First].line);
            CLogWrapper::WriteTrace(
                "\nProgress include files: FAILED: the text becomes too long, or takes too long");
            break;
        }
    }
    return Joined();
}

} // namespace

SPreparedText FormatProgress(std::string_view source, const SProgressOptions& options)
{
    return CProgressPass(source, options).Run();
}
