// The names and characters of trees: what XML takes, what its reader makes of them, what a serialiser writes.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// What a byte is to a reader of names and characters.
inline constexpr std::uint8_t kNameStart = 1;
inline constexpr std::uint8_t kNameByte = 2;
inline constexpr std::uint8_t kPlainText = 4;  // a serialiser writes it as it stands, as it does in
inline constexpr std::uint8_t kPlainValue = 8; // the value of an attribute between quotation marks
inline constexpr std::uint8_t kControl = 16;   // no character of XML: becomes "^"
inline constexpr std::uint8_t kBlank = 32;

inline constexpr std::array<std::uint8_t, 256> kByteClasses = [] {
    std::array<std::uint8_t, 256> classes{};
    for (int byte = 1; byte < 128; ++byte) {
        std::uint8_t of = 0;
        const bool isLetter = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || byte == '_';
        if (isLetter)
            of |= kNameStart;
        if (isLetter || (byte >= '0' && byte <= '9') || byte == '-' || byte == '.')
            of |= kNameByte;
        if (byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r')
            of |= kBlank;
        else if (byte < ' ')
            of |= kControl;
        const bool isMarkup = byte == '<' || byte == '>' || byte == '&';
        if (byte >= ' ' && !isMarkup && byte != ']')
            of |= kPlainText;
        if (byte >= ' ' && !isMarkup && byte != '"')
            of |= kPlainValue;
        classes[static_cast<std::size_t>(byte)] = of;
    }
    classes['\t'] |= kPlainText;
    classes['\n'] |= kPlainText;
    return classes;
}();

inline bool Is(char byte, std::uint8_t of)
{
    return (kByteClasses[static_cast<unsigned char>(byte)] & of) != 0;
}

inline constexpr std::size_t kLongestTreeName = 50000;

// Whether an element of that name, and text that holds these characters, are of the plain form.
bool IsTreeName(std::string_view name);
bool IsTreeText(std::string_view text);

enum class enRun
{
    Text,
    Value,  // of an attribute: white space that isn't written as a reference becomes blanks
    Comment // nothing is a reference
};

// The characters that a run of a tree stands for, appended to `out`: references decoded, line ends as line
// feeds, what XML has no place for as "^": control characters, U+FFFE and U+FFFF.
void AppendCharacters(std::string_view run, enRun kind, std::string& out);

// The same as a serialiser writes it again.
void AppendSerialised(std::string_view run, enRun kind, std::string& out);

// Plain characters as a serialiser writes them into the value of an attribute.
void AppendEscapedValue(std::string_view characters, std::string& out);

// ---- For readers ----

struct SReference
{
    std::string_view text;
    char character;
    bool isVerbatim; // a serialiser writes it in text and in values
};

// The predefined entity that `text` begins with. Null if there is none.
const SReference* FindReference(std::string_view text);

// Of a "&#10;" or "&#xA;" that `text` begins with.
// Returns: the bytes, 0 if there is none or it stands for no character of XML.
std::size_t DecodeCharacterReference(std::string_view text, unsigned int& codePoint);

// Of the character that `text` begins with, which isn't ASCII.
// Returns: its bytes, 0 if it is malformed.
std::size_t MultibyteLength(std::string_view text);

// Whether `text` begins with U+FFFE or U+FFFF: like control characters they are none of XML.
bool IsNonCharacter(std::string_view text);
