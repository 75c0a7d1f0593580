// Where messages go.
#pragma once

#include "Tools/Support/ToolFiles.h"
#include "Tools/uvparse/MessageForms.h"

#include <memory>
#include <optional>
#include <string>

namespace uvparse {

class CMessageOutput
{
public:
    // `file` is there with End, whole; "-" is the standard output, an empty name standard error, both of which
    // get a message at once.
    // Throws: CToolFailure if the file can't be written.
    CMessageOutput(enMessageForm form, const std::string& file);
    CMessageOutput(const CMessageOutput&) = delete;
    CMessageOutput& operator=(const CMessageOutput&) = delete;

    // As IMessageWriter has them.
    // Throws: CToolFailure.
    void Begin(const std::string& path, const std::string& language) { m_Writer->Begin(path, language); }
    void Write(const SMessage& message) { m_Writer->Write(message); }
    void End(int exitCode);

private:
    std::optional<COutputFile> m_File;
    std::unique_ptr<IMessageWriter> m_Writer;
};

} // namespace uvparse
