// One walk over the text, on a stack of what is being read: the source, files, values of arguments. What of
// strings and comments is open goes on from one text into the next, as all of them make one text.
#include "Preparation/Formatters/IncludeFile.h"
#include "Preparation/Formatters/Progress.h"
#include "Preparation/PreparationNotes.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr std::size_t kMostOpen = 400;
// What a file counts for when it is taken in, at least, of four times the limit: files without a text take
// time too.
constexpr std::size_t kLeastTakenIn = 256;
// Bytes of braces that may be looked at, over the whole run: what stands in other braces is looked at again.
constexpr std::size_t kBraceWork = std::size_t{1} << 26;
// Of a reference, with the values that stand in its arguments: these may double from file to file.
constexpr std::size_t kLongestReference = std::size_t{1} << 20;

struct STooMuch
{};

bool IsBlank(char byte)
{
    return byte == ' ' || (byte >= '\t' && byte <= '\r');
}

std::string Lower(std::string_view text)
{
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(), [](char byte) {
        return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + ('a' - 'A')) : byte;
    });
    return lower;
}

std::size_t SkipBlanks(std::string_view text, std::size_t at)
{
    while (at < text.size() && IsBlank(text[at]))
        ++at;
    return at;
}

std::size_t WordEnd(std::string_view text, std::size_t at)
{
    while (at < text.size() && !IsBlank(text[at]))
        ++at;
    return at;
}

// What a reference gives to its file.
struct SArguments
{
    std::string file; // as the reference names it
    std::vector<std::string> values;
    std::map<std::string, std::string> named; // names in small letters, without "&"
};

// Takes a value off `rest`: a word; a text in double quotes, which go, two of them being one; or one in
// single quotes, which stay.
std::string TakeValue(std::string_view& rest)
{
    std::string value;
    std::size_t at = 0;
    if (rest.starts_with('"')) {
        for (at = 1; at < rest.size(); ++at) {
            if (rest[at] == '"' && !rest.substr(at + 1).starts_with('"'))
                break;
            at += rest[at] == '"';
            value += rest[at];
        }
        at = std::min(at + 1, rest.size());
    } else {
        const std::size_t quote = rest.starts_with('\'') ? rest.find('\'', 1) : rest.npos;
        at = quote != rest.npos ? quote + 1 : WordEnd(rest, 0);
        value = rest.substr(0, at);
    }
    rest.remove_prefix(at);
    return value;
}

std::shared_ptr<SArguments> ParseArguments(std::string_view rest)
{
    auto arguments = std::make_shared<SArguments>();
    arguments->file = TakeValue(rest);
    for (;;) {
        rest.remove_prefix(SkipBlanks(rest, 0));
        if (rest.empty())
            return arguments;
        if (rest.front() != '&') {
            arguments->values.push_back(TakeValue(rest));
            continue;
        }
        std::size_t end = 1;
        while (end < rest.size() && rest[end] != '=' && !IsBlank(rest[end]))
            ++end;
        std::string name = Lower(rest.substr(1, end - 1));
        const std::size_t equals = SkipBlanks(rest, end);
        std::string value;
        if (equals < rest.size() && rest[equals] == '=') {
            rest.remove_prefix(SkipBlanks(rest, equals + 1));
            value = TakeValue(rest);
        } else {
            rest.remove_prefix(end);
        }
        arguments->named.try_emplace(std::move(name), std::move(value));
    }
}

// What "{...}" with this content stands for in a file with these arguments; nothing if it is no placeholder,
// or one that they say nothing about.
std::optional<std::string> PlaceholderValue(std::string_view content, const SArguments* arguments)
{
    content.remove_prefix(SkipBlanks(content, 0));
    while (!content.empty() && IsBlank(content.back()))
        content.remove_suffix(1);
    if (arguments == nullptr || content.empty())
        return std::nullopt;
    std::string all;
    if (content == "*") {
        for (const std::string& value : arguments->values)
            all += (all.empty() ? "" : " ") + value;
        return all;
    }
    if (content == "&*") {
        for (const auto& [name, value] : arguments->named)
            all.append(all.empty() ? "&" : " &").append(name).append("=\"").append(value).append(1, '"');
        return all;
    }
    if (content.front() == '&') {
        const auto found = arguments->named.find(Lower(content.substr(1)));
        return found == arguments->named.end() ? std::nullopt : std::optional(found->second);
    }
    if (content.size() > 4 || content.find_first_not_of("0123456789") != content.npos)
        return std::nullopt;
    const std::size_t number = std::stoul(std::string(content));
    if (number == 0)
        return arguments->file;
    return number <= arguments->values.size() ? arguments->values[number - 1] : std::string();
}

// A text and where each of its braces is closed.
struct SBracedText
{
    explicit SBracedText(std::string source) : text(std::move(source))
    {
        std::vector<std::size_t> open;
        for (std::size_t at = 0; at < text.size(); ++at) {
            if (text[at] == '~') {
                ++at;
            } else if (text[at] == '{') {
                open.push_back(at);
            } else if (text[at] == '}' && !open.empty()) {
                closed.emplace_back(open.back(), at);
                open.pop_back();
            }
        }
        std::ranges::sort(closed);
    }

    std::size_t CloseOf(std::size_t open) const
    {
        const auto found =
            std::ranges::lower_bound(closed, open, {}, &std::pair<std::size_t, std::size_t>::first);
        return found != closed.end() && found->first == open ? found->second : text.npos;
    }

    std::string text;
    std::vector<std::pair<std::size_t, std::size_t>> closed;
};

struct SNamedText
{
    enIncludeFile state = enIncludeFile::missing;
    std::string realPath;
    std::shared_ptr<const SBracedText> text;
};

// A text that is being read.
struct SReading
{
    std::shared_ptr<const SBracedText> text;
    std::size_t at = 0;
    std::string realPath;                        // of a file; empty for a value
    std::shared_ptr<const SArguments> arguments; // of a file; null for a value and for the source
};

class CFaithfulPass
{
public:
    CFaithfulPass(std::string_view source, const SProgressOptions& options)
        : m_Options(options), m_Root(options.includeRoot),
          m_LengthLimit(source.size() + options.expansionLimit)
    {
        m_Readings.push_back({std::make_shared<SBracedText>(std::string(source)), 0,
                              options.filePath.empty() ? std::string() : RealIncludePath(options.filePath),
                              nullptr});
        const std::string_view path(options.propath.data(), options.propath.size());
        for (std::size_t at = 0; at <= path.size();) {
            const std::size_t end = std::min(path.find_first_of(",;:", at), path.size());
            if (end > at)
                m_Folders.emplace_back(path.substr(at, end - at));
            at = end + 1;
        }
        const std::size_t slash = options.filePath.find_last_of("/\\");
        if (slash != options.filePath.npos)
            m_Folders.emplace_back(options.filePath.substr(0, slash + 1));
    }

    SPreparedText Run()
    {
        while (!m_Readings.empty()) {
            if (m_Readings.back().at >= m_Readings.back().text->text.size()) {
                m_Readings.pop_back();
                continue;
            }
            try {
                Step();
            } catch (const STooMuch&) {
                m_Notes.AddError("include files: the text becomes too long, or takes too long", m_Line);
                m_Readings.resize(1); // the rest of the source comes as it is
                m_IsStopped = true;
            }
        }
        m_Prepared.text = std::move(m_Text);
        m_Prepared.notes = m_Notes.Take();
        return std::move(m_Prepared);
    }

private:
    void Step()
    {
        SReading& reading = m_Readings.back();
        const std::string_view rest = std::string_view(reading.text->text).substr(reading.at);
        if (m_IsStopped)
            return Put(1);
        if (m_IsLineComment) {
            m_IsLineComment = rest.front() != '\n';
            return Put(1);
        }
        if (m_Quote == '\0' && rest.starts_with("/*")) {
            ++m_CommentDepth;
            return Put(2);
        }
        if (m_CommentDepth != 0) {
            const bool isEnd = rest.starts_with("*/");
            m_CommentDepth -= isEnd;
            return Put(isEnd ? 2 : 1);
        }
        if (rest.front() == '~')
            return Put(std::min<std::size_t>(2, rest.size()));
        if (rest.front() == '{' && TakeBraces(reading))
            return;
        if (m_Quote == '\0' && rest.starts_with("//") && (m_Text.empty() || IsBlank(m_Text.back())))
            m_IsLineComment = true;
        else if (m_Quote == rest.front())
            m_Quote = '\0';
        else if (m_Quote == '\0' && (rest.front() == '"' || rest.front() == '\''))
            m_Quote = rest.front();
        Put(1);
    }

    // Hands the next bytes on.
    void Put(std::size_t count)
    {
        SReading& reading = m_Readings.back();
        const bool isSource = m_Readings.size() == 1;
        for (; count != 0; --count) {
            const char byte = reading.text->text[reading.at++];
            if (m_Text.size() >= m_LengthLimit)
                throw STooMuch();
            if (m_Text.empty() || m_Text.back() == '\n')
                m_Prepared.sourceLines.push_back(m_Line);
            m_Text += byte;
            m_Line += isSource && byte == '\n';
        }
    }

    // Takes "{...}" if it stands for something.
    bool TakeBraces(SReading& reading)
    {
        const std::size_t open = reading.at;
        const std::size_t close = reading.text->CloseOf(open);
        if (close == std::string::npos)
            return false;
        const std::string_view inside =
            std::string_view(reading.text->text).substr(open + 1, close - open - 1);
        m_BraceWork += inside.size();
        if (m_BraceWork > kBraceWork)
            throw STooMuch();
        const std::string content = WithoutPlaceholders(inside, reading.arguments.get());
        const auto value = PlaceholderValue(content, reading.arguments.get());
        if (value) {
            if (value->size() > m_LengthLimit)
                throw STooMuch();
            Pass(reading, close + 1);
            m_Readings.push_back({std::make_shared<SBracedText>(*value), 0, {}, nullptr});
            return true;
        }
        const std::size_t name = SkipBlanks(content, 0);
        if (name == content.size() || content[name] == '&' || content.find_first_of("{}") != content.npos)
            return false;
        return TakeFile(reading, close + 1, ParseArguments(std::string_view(content).substr(name)));
    }

    void Pass(SReading& reading, std::size_t end)
    {
        if (m_Readings.size() == 1)
            m_Line += static_cast<std::uint32_t>(std::ranges::count(
                std::string_view(reading.text->text).substr(reading.at, end - reading.at), '\n'));
        reading.at = end;
    }

    // A text in braces with the values of the placeholders in it.
    // Throws: STooMuch.
    std::string WithoutPlaceholders(std::string_view text, const SArguments* arguments)
    {
        std::string result;
        for (std::size_t at = 0; at < text.size(); ++at) {
            const std::size_t close = text[at] == '{' ? text.find_first_of("{}", at + 1) : text.npos;
            if (close != text.npos && text[close] == '}') {
                if (const auto value = PlaceholderValue(text.substr(at + 1, close - at - 1), arguments)) {
                    result += *value;
                    m_BraceWork += value->size();
                    if (result.size() > kLongestReference)
                        throw STooMuch();
                    at = close;
                    continue;
                }
            }
            result += text[at];
        }
        return result;
    }

    bool TakeFile(SReading& reading, std::size_t end, std::shared_ptr<SArguments> arguments)
    {
        std::string name = arguments->file;
        if (name.size() > 1 && name.front() == '\'' && name.back() == '\'')
            name = name.substr(1, name.size() - 2);
        const SNamedText& file = FileNamed(name);
        if (file.state == enIncludeFile::tooLong)
            throw STooMuch();
        // braces hold other things too
        const bool isSurely = Lower(name).ends_with(".i");
        if (file.state != enIncludeFile::read) {
            if (!isSurely)
                return false;
            Warn(MissingIncludeText(file.state, name));
            Pass(reading, end);
            return true;
        }
        if (std::ranges::any_of(m_Readings,
                                [&](const SReading& open) { return open.realPath == file.realPath; })) {
            Warn("include file that is open already isn't taken in again: " + name);
            return false;
        }
        m_TakenIn += std::max(file.text->text.size(), kLeastTakenIn);
        if (m_TakenIn / 4 > m_Options.expansionLimit || m_Readings.size() > kMostOpen)
            throw STooMuch();
        Pass(reading, end);
        m_Readings.push_back({file.text, 0, file.realPath, std::move(arguments)});
        return true;
    }

    const SNamedText& FileNamed(const std::string& name)
    {
        const auto [known, isNew] = m_Files.try_emplace(name);
        SNamedText& file = known->second;
        if (!isNew)
            return file;
        std::string path = name;
        std::ranges::replace(path, '\\', '/');
        std::vector<std::string> places{path};
        if (!path.starts_with('/'))
            for (const std::string& folder : m_Folders) {
                const bool isComplete = folder.ends_with('/') || folder.ends_with('\\');
                places.emplace_back(folder).append(isComplete ? "" : "/").append(path);
            }
        // without its folders it may still lie beside the source
        const std::size_t slash = m_Options.filePath.find_last_of("/\\");
        places.push_back(std::string(m_Options.filePath.substr(0, slash + 1)) +
                         path.substr(path.rfind('/') + 1));
        for (const std::string& place : places) {
            std::string text;
            const enIncludeFile state =
                ReadIncludeFile(place, m_LengthLimit - std::min(m_LoadedBytes, m_LengthLimit), text, m_Root);
            if (file.state == enIncludeFile::missing || state == enIncludeFile::read)
                file.state = state;
            if (state != enIncludeFile::read)
                continue;
            m_LoadedBytes += text.size();
            file.realPath = RealIncludePath(place);
            file.text = std::make_shared<SBracedText>(std::move(text));
            break;
        }
        return file;
    }

    void Warn(std::string text)
    {
        const auto file = std::find_if(m_Readings.rbegin(), m_Readings.rend() - 1,
                                       [](const SReading& reading) { return reading.arguments != nullptr; });
        if (file != m_Readings.rend() - 1)
            text += ", which " + file->realPath + " names";
        m_Notes.AddWarning(text, m_Line);
    }

    const SProgressOptions& m_Options;
    CIncludeRoot m_Root;
    std::size_t m_LengthLimit;
    std::vector<std::string> m_Folders;
    std::map<std::string, SNamedText> m_Files;
    std::vector<SReading> m_Readings;
    SPreparedText m_Prepared;
    std::string m_Text;
    CPreparationNotes m_Notes;
    std::size_t m_LoadedBytes = 0;
    std::size_t m_TakenIn = 0;
    std::size_t m_BraceWork = 0;
    std::size_t m_CommentDepth = 0;
    std::uint32_t m_Line = 1; // of the source
    char m_Quote = '\0';
    bool m_IsLineComment = false;
    bool m_IsStopped = false;
};

} // namespace

SPreparedText FormatProgressFaithfully(std::string_view source, const SProgressOptions& options)
{
    return CFaithfulPass(source, options).Run();
}
