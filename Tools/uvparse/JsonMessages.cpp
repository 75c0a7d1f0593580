#include "Tools/uvparse/MessageForms.h"

#include <nlohmann/json.hpp>
#include <utility>

namespace uvparse {

namespace {

using Json = nlohmann::ordered_json;

Json OrNull(const std::string& text)
{
    return text.empty() ? Json() : Json(text);
}

Json OrNull(std::size_t number)
{
    return number == 0 ? Json() : Json(number);
}

template <class T>
Json OrNull(const std::optional<T>& value)
{
    return value ? Json(*value) : Json();
}

// Every object has every member, so that a reader need not ask which are there.
Json ObjectOf(const SMessage& message)
{
    const SMessageRange& range = message.range;
    return {
        {"file", OrNull(ShownName(message.file))},
        {"language", OrNull(message.language)},
        {"line", OrNull(range.line)},
        {"column", OrNull(range.column)},
        {"end_line", OrNull(range.endLine)},
        {"end_column", OrNull(range.endColumn)},
        {"byte_offset", OrNull(range.byteOffset)},
        {"byte_length", OrNull(range.byteLength)},
        {"kind", RowOf(message.kind).id},
        {"severity", SeverityWord(message.severity)},
        {"token", OrNull(message.token)},
        {"token_name", OrNull(message.tokenName)},
        {"expected", message.expected},
        {"state", OrNull(message.state)},
        {"condition", OrNull(message.condition)},
        {"message", TextWithoutFile(message)},
    };
}

class CJsonWriter : public IMessageWriter
{
public:
    explicit CJsonWriter(TTextSink sink) : m_Sink(std::move(sink)) {}

    void Begin(const std::string&, const std::string&) override {}
    void Write(const SMessage& message) override
    {
        // What isn't UTF-8, a file's name say, gets the replacement character: JSON can't hold it.
        m_Sink(ObjectOf(message).dump(-1, ' ', false, Json::error_handler_t::replace) + '\n');
    }
    void End(int) override {}

private:
    TTextSink m_Sink;
};

} // namespace

std::unique_ptr<IMessageWriter> MakeJsonWriter(TTextSink sink)
{
    return std::make_unique<CJsonWriter>(std::move(sink));
}

} // namespace uvparse
