#include "Tools/uvparse/MessageForms.h"

#include <utility>

namespace uvparse {

std::optional<enMessageForm> ReadMessageForm(std::string_view name)
{
    if (name == "text")
        return enMessageForm::Text;
    if (name == "json")
        return enMessageForm::Json;
    if (name == "sarif")
        return enMessageForm::Sarif;
    return std::nullopt;
}

std::unique_ptr<IMessageWriter> MakeMessageWriter(enMessageForm form, TTextSink sink)
{
    switch (form) {
    case enMessageForm::Json:
        return MakeJsonWriter(std::move(sink));
    case enMessageForm::Sarif:
        return MakeSarifWriter(std::move(sink));
    case enMessageForm::Text:
        break;
    }
    return MakeTextWriter(std::move(sink));
}

} // namespace uvparse
