#include "UVEnvironment/UVERawString.h"
#include "UVEnvironment/UVEString.h"
#include "UVEnvironment/UVEU8String.h"
#include "UVEnvironment/UVEU8StringView.h"
#include "UVEnvironment/UVEUnicode.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

// Any bytes through the string classes. The first bytes of the input choose positions and the size of a
// needle, the rest is the text. Besides reading inside its memory and coming to an end, no text may get lost.

namespace {

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

// Memory of exactly the text's size, so that a byte read too far is seen.
std::vector<char> Tight(std::string_view text)
{
    std::vector<char> bytes(text.begin(), text.end());
    bytes.shrink_to_fit();
    return bytes;
}

void DriveFunctions(std::string_view text)
{
    const std::vector<char> bytes = Tight(text);
    const std::string_view tight(bytes.data(), bytes.size());
    const std::u32string codePoints = Uve::utf8_to_ucs4_fast(tight);
    Require(codePoints.size() == Uve::utf8_strlen(tight));
    Require(Uve::g_ucs4_to_utf8(codePoints).has_value());
    Uve::utf8_to_uppercase(tight, "tr");
    Require(Uve::utf8_casefold(Uve::utf8_casefold(tight)) == Uve::utf8_casefold(tight));
    for (const char32_t codePoint : codePoints) {
        Uve::UnicodeToUpper(codePoint);
        Uve::UnicodeToLower(codePoint);
    }
    for (int mode = 0; mode < 4; ++mode) {
        const auto normalized = Uve::utf8_normalize(tight, static_cast<Uve::NormalizeMode>(mode));
        Require(normalized.has_value());
        Require(Uve::utf8_normalize(*normalized, static_cast<Uve::NormalizeMode>(mode)) == normalized);
    }
}

void DriveU8CString(const std::string& text, const std::string& needle, int first, int second)
{
    const Uve::U8CString subject(text);
    const int length = subject.GetLength();
    Require(subject.Left(first) + Uve::U8CString(text).Mid(first, length) == text);
    subject.Mid(second, first);
    Require(subject.Mid(first, second) == Uve::U8CString(text).Mid(first, second)); // whatever it remembers
    subject.Right(first);
    Require(subject.Find(needle, second) <= length);
    Require(subject.ReverseFind(needle.c_str()) <= length);
    Require(subject.FindOneOf(needle.c_str()) < std::max(length, 1));
    Require(subject.ReverseFindOneOf(needle.c_str(), second) <= length);
    subject.FindNonSpaceBackwards(static_cast<std::size_t>(first));
    subject.Collate(needle);
    subject.CollateNoCase(needle);

    int tokens = 0;
    for (int position = 0; position != -1 && !needle.empty() && needle[0] != '\0'; ++tokens) {
        Require(tokens <= length + 1);
        Require(subject.Tokenize(needle, position).size() <= text.size());
    }

    Uve::U8CString changed(text);
    changed.Mid(second, 1);
    changed.Insert(first, needle);
    changed.Mid(second, 1);
    changed.Delete(second, first);
    changed.Replace(needle.c_str(), "\xE2\x82\xAC");
    changed.Trim(needle.c_str()).Trim().MakeUpper().MakeLower().MakeReverse();
    changed.AppendFormat("%s|%d", needle.c_str(), first);
    Require(changed.GetLength() == Uve::U8CString(std::string(changed)).GetLength());
    changed.GetBuffer(first);
    changed.ReleaseBuffer(second);
}

template <class Text>
void DriveSearches(const Text& subject, const std::string& needle, std::size_t first, std::size_t second)
{
    const std::string set = needle.substr(0, 8);
    subject.find(needle, first);
    subject.rfind(needle, second);
    Require(subject.find_first_of(set, first) >= first);
    subject.find_last_of(set, second);
    Require(subject.find_first_not_of(set, second) >= second);
    subject.find_last_not_of(set, first);
    subject.compare_nocase(needle);
    if (first <= subject.length())
        Require(subject.substr(first, second).length() <= second);
}

void DriveU8Strings(const std::string& text, const std::string& needle, std::size_t first, std::size_t second)
{
    const std::vector<char> bytes = Tight(text);
    Uve::u8string_view view(std::string_view(bytes.data(), bytes.size()));
    DriveSearches(view, needle, first, second);
    view.remove_prefix(first);
    view.remove_suffix(second);
    view.trim(needle.c_str()).trim();
    Require(view.make_reverse().bytes() == view.size());
    view.remove(needle.c_str());

    Uve::u8string subject(text);
    DriveSearches(subject, needle, first, second);
    const std::size_t place = std::min(first, subject.length());
    subject.insert(place, needle);
    const Uve::u8string added(needle);
    subject.replace(std::min(second, subject.length()), first, added, std::size_t{0},
                    std::min(second, added.length()));
    subject.erase(std::min(place, subject.length()), second);
    subject.uppercase();
    subject.normalize();

    Uve::UVEstring(text).Replace(needle, "x").Trim().ToUpper().atoi();
    Uve::raw_string* const raw = Uve::raw_string_new(needle.c_str());
    Uve::raw_string_insert_len(raw, static_cast<std::ptrdiff_t>(first), text.data(),
                               static_cast<std::ptrdiff_t>(text.size()));
    Uve::raw_string_free(raw, true);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    if (size < 3)
        return 0;
    const int first = data[0] % 64 - 2;
    const int second = data[1] % 64 - 2;
    const std::string text(reinterpret_cast<const char*>(data) + 3, size - 3);
    const std::string needle = text.substr(text.size() / 2, data[2] % 8);
    DriveFunctions(text);
    DriveU8CString(text, needle, first, second);
    DriveU8Strings(text, needle, static_cast<std::size_t>(std::max(first, 0)),
                   static_cast<std::size_t>(std::max(second, 0)));
    return 0;
}
