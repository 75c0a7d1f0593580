#include "Tools/uvparse/MessageOutput.h"

#include <iostream>
#include <string_view>

namespace uvparse {

CMessageOutput::CMessageOutput(enMessageForm form, const std::string& file)
{
    if (!file.empty())
        m_File.emplace(file);
    m_Writer = MakeMessageWriter(form, [this, isStandardOutput = file == "-"](std::string_view piece) {
        if (!m_File) {
            std::cerr.write(piece.data(), static_cast<std::streamsize>(piece.size()));
            return;
        }
        m_File->Write(piece);
        if (isStandardOutput)
            m_File->Close();
    });
}

void CMessageOutput::End(int exitCode)
{
    m_Writer->End(exitCode);
    if (m_File)
        m_File->Close();
}

} // namespace uvparse
