// A document is one run:
//     tool          the rules: what results can be about; the notifications: what else there is to say
//     results       as they come, those of kinds that are about a source
//     artifacts     the files of the call that were read or should have been
//     invocations   one, with the notifications and how the call ended
#include "Tools/Support/ToolExitCodes.h"
#include "Tools/uvparse/FileUri.h"
#include "Tools/uvparse/MessageForms.h"
#include "Tools/uvparse/SourcePlaces.h"

#include <map>
#include <nlohmann/json.hpp>
#include <utility>
#include <vector>

namespace uvparse {

namespace {

using Json = nlohmann::ordered_json;

constexpr char kSchema[] =
    "https://docs.oasis-open.org/sarif/sarif/v2.1.0/errata01/os/schemas/sarif-schema-2.1.0.json";
constexpr char kBase[] = "%SRCROOT%";

// A longer text of a region would say less than its place, and may be the rest of a file.
constexpr std::size_t kLongestSnippet = 4096;

bool IsResult(enMessageKind kind)
{
    const enMessageSubject subject = RowOf(kind).subject;
    return subject == enMessageSubject::Source || subject == enMessageSubject::Unread;
}

std::string TextOf(const Json& json)
{
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

Json TextObject(std::string_view text)
{
    return {{"text", text}};
}

Json Descriptors(bool ofResults)
{
    Json descriptors = Json::array();
    for (const SMessageKindRow& row : MessageKinds())
        if (IsResult(row.kind) == ofResults)
            descriptors.push_back({{"id", row.id},
                                   {"name", row.name},
                                   {"shortDescription", TextObject(row.description)},
                                   {"defaultConfiguration", {{"level", SeverityWord(row.severity)}}}});
    return descriptors;
}

// The place of a kind in its list of descriptors.
std::size_t IndexOf(enMessageKind kind)
{
    std::size_t index = 0;
    for (const SMessageKindRow& row : MessageKinds()) {
        if (row.kind == kind)
            break;
        if (IsResult(row.kind) == IsResult(kind))
            ++index;
    }
    return index;
}

// Places within the text are given with their length or not at all: one without would be empty.
Json RegionOf(const SMessage& message)
{
    const SMessageRange& range = message.range;
    Json region = Json::object();
    if (range.line > 0)
        region["startLine"] = range.line;
    if (range.line > 0 && range.column > 0)
        region["startColumn"] = range.column;
    if (range.endLine > 0 && range.endColumn > 0) {
        region["endLine"] = range.endLine;
        region["endColumn"] = range.endColumn;
    }
    if (range.charOffset && range.charLength) {
        region["charOffset"] = *range.charOffset;
        region["charLength"] = *range.charLength;
    }
    if (range.byteOffset && range.byteLength) {
        region["byteOffset"] = *range.byteOffset;
        region["byteLength"] = *range.byteLength;
    }
    if (message.snippet && message.snippet->size() <= kLongestSnippet)
        region["snippet"] = TextObject(*message.snippet);
    return region;
}

// The line around a region that is a part of it; nothing where it isn't.
Json ContextOf(const SMessage& message)
{
    const SMessageRange& range = message.range;
    std::string_view line = message.sourceLine;
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    if (line.empty() || !message.caret || range.column <= *message.caret || range.endLine != range.line)
        return {};
    const std::size_t begin = range.column - *message.caret;
    const std::size_t end = begin + CountCodePoints(line);
    if (range.endColumn > end || (range.column == begin && range.endColumn == end))
        return {};
    return {{"startLine", range.line},
            {"startColumn", begin},
            {"endLine", range.line},
            {"endColumn", end},
            {"snippet", TextObject(line)}};
}

class CSarifWriter : public IMessageWriter
{
public:
    explicit CSarifWriter(TTextSink sink);

    void Begin(const std::string& path, const std::string& language) override;
    void Write(const SMessage& message) override;
    void End(int exitCode) override;

private:
    Json LocationOf(const std::string& path) const;
    Json LocationsOf(const SMessage& message) const;
    void WriteResult(const SMessage& message);

    TTextSink m_Sink;
    std::filesystem::path m_Folder; // that relative URIs are relative to; empty: it can't be told
    bool m_HasResult = false;
    std::vector<std::string> m_Artifacts;
    std::map<std::string, std::size_t> m_ArtifactIndices; // by path
    Json m_Notifications = Json::array();
    Json m_ArgumentNotifications = Json::array();
};

CSarifWriter::CSarifWriter(TTextSink sink) : m_Sink(std::move(sink))
{
    std::error_code failed;
    m_Folder = std::filesystem::current_path(failed);
    Json base = {{"description", TextObject("The working folder of the call.")}};
    if (!failed)
        base["uri"] = FolderUriOf(m_Folder);
    const Json driver = {{"name", "uvparse"},
                         {"version", UV_VERSION},
                         {"semanticVersion", UV_VERSION},
                         {"rules", Descriptors(true)},
                         {"notifications", Descriptors(false)}};
    m_Sink("{\"$schema\":\"" + std::string(kSchema) +
           "\",\"version\":\"2.1.0\",\"runs\":[{\n\"tool\":" + TextOf({{"driver", driver}}) +
           ",\n\"columnKind\":\"unicodeCodePoints\",\n\"originalUriBaseIds\":" + TextOf({{kBase, base}}) +
           ",\n\"results\":[");
}

void CSarifWriter::Begin(const std::string& path, const std::string& language)
{
    if (!m_ArtifactIndices.emplace(path, m_Artifacts.size()).second)
        return;
    Json artifact = {{"location", LocationOf(path)}, {"roles", Json::array({"analysisTarget"})}};
    if (!language.empty())
        artifact["sourceLanguage"] = language;
    artifact["location"].erase("index");
    m_Artifacts.push_back(TextOf(artifact));
}

Json CSarifWriter::LocationOf(const std::string& path) const
{
    Json location;
    if (path == "-") {
        location = {{"uri", "stdin:"}, {"description", TextObject("standard input")}};
    } else {
        const SFileUri uri = FileUriOf(path, m_Folder);
        location = {{"uri", uri.uri}};
        if (uri.isRelative)
            location["uriBaseId"] = kBase;
    }
    if (const auto artifact = m_ArtifactIndices.find(path); artifact != m_ArtifactIndices.end())
        location["index"] = artifact->second;
    return location;
}

Json CSarifWriter::LocationsOf(const SMessage& message) const
{
    if (message.file.empty())
        return Json::array();
    Json physical = {{"artifactLocation", LocationOf(message.file)}};
    if (Json region = RegionOf(message); !region.empty()) {
        physical["region"] = std::move(region);
        if (Json context = ContextOf(message); !context.empty())
            physical["contextRegion"] = std::move(context);
    }
    return {{{"physicalLocation", std::move(physical)}}};
}

void CSarifWriter::WriteResult(const SMessage& message)
{
    Json result = {{"ruleId", RowOf(message.kind).id},
                   {"ruleIndex", IndexOf(message.kind)},
                   {"level", SeverityWord(message.severity)},
                   {"message", TextObject(TextWithoutFile(message))},
                   {"locations", LocationsOf(message)}};
    Json properties = Json::object();
    if (!message.language.empty())
        properties["language"] = message.language;
    if (message.token)
        properties["token"] = *message.token;
    if (!message.tokenName.empty())
        properties["tokenName"] = message.tokenName;
    if (!message.expected.empty())
        properties["expected"] = message.expected;
    if (message.state)
        properties["state"] = *message.state;
    if (!message.condition.empty())
        properties["condition"] = message.condition;
    if (!properties.empty())
        result["properties"] = std::move(properties);
    m_Sink((std::exchange(m_HasResult, true) ? ",\n" : "\n") + TextOf(result));
}

void CSarifWriter::Write(const SMessage& message)
{
    if (IsResult(message.kind)) {
        WriteResult(message);
        return;
    }
    const SMessageKindRow& row = RowOf(message.kind);
    Json notification = {{"descriptor", {{"id", row.id}, {"index", IndexOf(message.kind)}}},
                         {"level", SeverityWord(message.severity)},
                         {"message", TextObject(TextWithoutFile(message))}};
    if (!message.file.empty())
        notification["locations"] = LocationsOf(message);
    (row.subject == enMessageSubject::Arguments ? m_ArgumentNotifications : m_Notifications)
        .push_back(std::move(notification));
}

void CSarifWriter::End(int exitCode)
{
    Json invocation = {{"executionSuccessful", exitCode != kToolCouldNotRun}, {"exitCode", exitCode}};
    if (!m_Folder.empty())
        invocation["workingDirectory"] = {{"uri", FolderUriOf(m_Folder)}};
    if (!m_ArgumentNotifications.empty())
        invocation["toolConfigurationNotifications"] = std::move(m_ArgumentNotifications);
    if (!m_Notifications.empty())
        invocation["toolExecutionNotifications"] = std::move(m_Notifications);
    std::string end = m_HasResult ? "\n],\n" : "],\n";
    end += "\"artifacts\":[";
    for (std::size_t i = 0; i < m_Artifacts.size(); ++i)
        end += (i > 0 ? ",\n" : "\n") + m_Artifacts[i];
    m_Sink(end + (m_Artifacts.empty() ? "],\n" : "\n],\n") + "\"invocations\":[" + TextOf(invocation) +
           "]\n}]}\n");
}

} // namespace

std::unique_ptr<IMessageWriter> MakeSarifWriter(TTextSink sink)
{
    return std::make_unique<CSarifWriter>(std::move(sink));
}

} // namespace uvparse
