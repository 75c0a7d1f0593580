// Archives made by hand.
#pragma once

#include "Stylesheets/Archive/Compressor.h"

#include <zlib.h>

#include <string>

// The text packed and scrambled, after a header of one's own.
inline std::string PackedText(const std::string& header, const std::string& text)
{
    uLongf length = compressBound(text.size());
    std::string payload(length, '\0');
    compress2(reinterpret_cast<Bytef*>(payload.data()), &length, reinterpret_cast<const Bytef*>(text.data()),
              text.size(), 9);
    payload.resize(length);
    Compressor::EncryptBuffer(payload.data(), static_cast<int>(payload.size()));
    return header + payload;
}
