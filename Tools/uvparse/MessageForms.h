// The forms that messages are written in.
#pragma once

#include "Tools/Support/ToolFiles.h"
#include "Tools/uvparse/Message.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace uvparse {

enum class enMessageForm
{
    Text, // for people
    Json, // an object a line
    Sarif // one document of SARIF 2.1.0
};

// The form by its name on the command line: "text", "json" or "sarif".
std::optional<enMessageForm> ReadMessageForm(std::string_view name);

class IMessageWriter
{
public:
    virtual ~IMessageWriter() = default;

    // A file of the call, before messages about it. `language` is empty if it couldn't be told.
    virtual void Begin(const std::string& path, const std::string& language) = 0;
    virtual void Write(const SMessage& message) = 0;
    // Once, after all else.
    virtual void End(int exitCode) = 0;
};

// What is written goes to `sink`, a message or more at a time.
std::unique_ptr<IMessageWriter> MakeMessageWriter(enMessageForm form, TTextSink sink);

std::unique_ptr<IMessageWriter> MakeTextWriter(TTextSink sink);
std::unique_ptr<IMessageWriter> MakeJsonWriter(TTextSink sink);
std::unique_ptr<IMessageWriter> MakeSarifWriter(TTextSink sink);

} // namespace uvparse
