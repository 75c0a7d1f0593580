#pragma once

#include <concepts>
#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace Uve {

// One character of a delimiter list. A matcher of length 0 matches every character.
struct UTF8CodepointMatcher
{
    const char* text = nullptr; // borrowed from the list
    std::size_t length = 0;     // bytes
};

// One matcher for each character of `set`, in order; none for null. They borrow `set`.
std::vector<UTF8CodepointMatcher> BuildCodepointMatchers(const char* set);

// The system's main string: a byte string that holds UTF-8, with operations that count in characters.
//
// Positions and counts are code points and signed 32-bit, -1 is "not found". size(), everything that the byte
// string brings along, and every name with "Bytes" count bytes; so do the operations below that give an
// optional. A null pointer is an empty text everywhere.
//
// Reads remember one character position with its byte offset, and the length, so that a scan by ascending
// position costs the distance between its steps. Hence two rules:
//  - Even const access isn't safe from two threads at once.
//  - What changes the text through a std::string& or through a kept pointer, reference or iterator goes
//    unseen. Call GetBuffer() after it.
//
// Operations don't throw, save Tokenize; when memory runs out they end the process.
class U8CString : public std::string
{
public:
    U8CString() noexcept = default;
    U8CString(const U8CString& other) = default;
    U8CString(U8CString&& other) noexcept;
    U8CString(const std::string& text) : std::string(text) {}
    U8CString(std::string&& text) noexcept : std::string(std::move(text)) {}
    explicit U8CString(std::string_view text) : std::string(text) {}
    U8CString(std::nullptr_t) noexcept {}
    U8CString(const char* text) : std::string(text ? text : "") {}
    U8CString(const char* text, std::size_t byteCount) : std::string(text ? text : "", text ? byteCount : 0)
    {}
    U8CString(char character) : std::string(1, character) {}
    U8CString(char character, std::size_t count) : std::string(count, character) {}
    U8CString(const wchar_t* text);
    U8CString(const std::wstring& text);
    template <std::input_iterator Iterator>
    U8CString(Iterator first, Iterator last) : std::string(first, last)
    {}
    ~U8CString() = default;

    U8CString& operator=(const U8CString& other) = default;
    U8CString& operator=(U8CString&& other) noexcept;
    U8CString& operator=(const std::string& text) { return assign(text); }
    U8CString& operator=(std::string&& text) { return assign(std::move(text)); }
    U8CString& operator=(const char* text) { return assign(text ? text : ""); }
    U8CString& operator=(std::string_view text) { return assign(text); }
    U8CString& operator=(char character) { return assign(size_type{1}, character); }
    U8CString& operator=(std::initializer_list<char> characters) { return assign(characters); }

    std::wstring toWide() const;

    // ---- Looking ----

    // Number of characters.
    int GetLength() const noexcept;
    bool IsEmpty() const noexcept { return empty(); }

    // First occurrence of `text` at or after character `start`; below 1 means from the front.
    // Returns: its position, or -1. 0 for an empty `text`, whatever this string holds.
    int Find(const char* text, int start = 0) const noexcept;
    int Find(const std::string& text, int start = 0) const noexcept { return Find(text.c_str(), start); }

    // Last occurrence of the first character of `text`; what follows in `text` isn't compared.
    // Returns: its position, or -1.
    int ReverseFind(const char* text) const noexcept;

    // First character that is in `set`.
    // Returns: its position, or -1.
    int FindOneOf(const char* set) const noexcept;

    // Last character that is in `set`, at or before character `start`; negative: from the last character.
    // Returns: its position, or -1.
    int ReverseFindOneOf(const char* set, int start = -1) const noexcept;

    // First byte at or after byte `start`, and last character at or before byte `start`, that isn't white
    // space.
    // Returns: its byte offset.
    std::optional<std::size_t> FindNonSpace(std::size_t start = 0) const noexcept;
    std::optional<std::size_t> FindNonSpaceBackwards(std::size_t start = npos) const noexcept;

    // First character at or after byte `start`, and last character at or before byte `start`, that one of the
    // `count` matchers matches, or none of them does.
    // Returns: its byte offset.
    std::optional<std::size_t> FindMatching(const UTF8CodepointMatcher* matchers, std::size_t count,
                                            std::size_t start = 0) const noexcept;
    std::optional<std::size_t> FindNotMatching(const UTF8CodepointMatcher* matchers, std::size_t count,
                                               std::size_t start = 0) const noexcept;
    std::optional<std::size_t> FindNotMatchingBackwards(const UTF8CodepointMatcher* matchers,
                                                        std::size_t count,
                                                        std::size_t start = npos) const noexcept;

    // ---- Parts ----

    // The first or last `count` characters: nothing for a `count` below 1, at most everything.
    U8CString Left(int count) const noexcept;
    U8CString Right(int count) const noexcept;

    // `count` characters from character `first`; below 0 means 0. There is no form for "the remainder": pass
    // the length as `count`.
    U8CString Mid(int first, int count) const noexcept;

    // The next token at or after character `position`; `delimiters` is a set of characters. Leading
    // delimiters are skipped. `position` moves past the delimiter that ends the token, or one beyond the
    // length if none does.
    // Returns: the token; empty with `position` -1 when there is no more. Without delimiters: everything from
    //          `position` on, which then stays.
    // Throws:  std::out_of_range for a negative `position`.
    U8CString Tokenize(const char* delimiters, int& position) const;
    U8CString Tokenize(const std::string& delimiters, int& position) const
    {
        return Tokenize(delimiters.c_str(), position);
    }

    // ---- Comparing: negative, 0 or positive by the collation of the C library's locale ----

    int Collate(const char* text) const noexcept;
    int Collate(const std::string& text) const noexcept { return Collate(text.c_str()); }

    // Without regard to case: how keywords and option values are compared.
    int CollateNoCase(const char* text) const noexcept;
    int CollateNoCase(const std::string& text) const noexcept { return CollateNoCase(text.c_str()); }

    // ---- Changing ----

    void Empty() noexcept { clear(); }

    // Inserts before character `index`: at the front for 0 and below, at the end beyond the length.
    // Returns: the new length.
    int Insert(int index, const char* text) noexcept;
    int Insert(int index, const std::string& text) noexcept { return Insert(index, text.c_str()); }

    // Removes up to `count` characters from character `index` on; below 0 means 0.
    // Returns: the new length.
    int Delete(int index, int count = 1) noexcept;

    // Replaces every occurrence of `from`, left to right, without looking into what was put in.
    // Returns: how many there were.
    int Replace(const char* from, const char* to) noexcept;
    int Replace(const std::string& from, const std::string& to) noexcept
    {
        return Replace(from.c_str(), to.c_str());
    }

    // Remove white space (9 to 13, and blanks), or the characters of `set`.
    U8CString& Trim() noexcept;
    U8CString& TrimLeft() noexcept;
    U8CString& TrimRight() noexcept;
    U8CString& Trim(const char* set) noexcept;
    U8CString& TrimLeft(const char* set) noexcept;
    U8CString& TrimRight(const char* set) noexcept;

    U8CString& MakeUpper() noexcept;
    U8CString& MakeLower() noexcept;
    U8CString& MakeReverse() noexcept;

    // printf into this string. Arguments may point into it. Trailing NUL bytes are dropped.
    void Format(const char* format, ...) noexcept __attribute__((format(printf, 2, 3)));
    void AppendFormat(const char* format, ...) noexcept __attribute__((format(printf, 2, 3)));
    void FormatImpl(const char* format, ...) noexcept __attribute__((format(printf, 2, 3)));
    void AppendFormatImpl(const char* format, ...) noexcept __attribute__((format(printf, 2, 3)));
    void FormatV(const char* format, bool append, va_list arguments) noexcept
        __attribute__((format(printf, 2, 0)));

    // ---- Writing into the text ----

    // The text for writing in place, as long as it is.
    char* GetBuffer() noexcept;
    // Room for `charCount` characters: the string gets four times as many bytes. ReleaseBuffer must follow.
    char* GetBuffer(int charCount) noexcept;
    char* GetBufferBytes(int byteCount) noexcept;
    // Ends the writing: -1 cuts at the first NUL, otherwise the first so many characters or bytes stay.
    void ReleaseBuffer(int charCount = -1) noexcept;
    void ReleaseBufferBytes(int byteCount = -1) noexcept;

    // ---- What the byte string offers for writing; each forgets the remembered position ----

    template <class... Arguments>
    U8CString& assign(Arguments&&... arguments)
    {
        return Write([&] { std::string::assign(std::forward<Arguments>(arguments)...); });
    }
    U8CString& assign(std::initializer_list<char> text)
    {
        return Write([&] { std::string::assign(text); });
    }
    template <class... Arguments>
    U8CString& append(Arguments&&... arguments)
    {
        return Write([&] { std::string::append(std::forward<Arguments>(arguments)...); });
    }
    U8CString& append(std::initializer_list<char> text)
    {
        return Write([&] { std::string::append(text); });
    }
    template <class Argument>
    U8CString& operator+=(Argument&& argument)
    {
        return Write([&] {
            if constexpr (std::is_convertible_v<Argument, const char*>) {
                if (const char* const text = argument)
                    std::string::append(text);
            } else
                std::string::operator+=(std::forward<Argument>(argument));
        });
    }
    void push_back(char byte)
    {
        ForgetPosition();
        std::string::push_back(byte);
    }
    void pop_back()
    {
        ForgetPosition();
        std::string::pop_back();
    }
    template <class... Arguments>
    decltype(auto) insert(Arguments&&... arguments)
    {
        ForgetPosition();
        return std::string::insert(std::forward<Arguments>(arguments)...);
    }
    template <class... Arguments>
    decltype(auto) erase(Arguments&&... arguments)
    {
        ForgetPosition();
        return std::string::erase(std::forward<Arguments>(arguments)...);
    }
    template <class... Arguments>
    decltype(auto) replace(Arguments&&... arguments)
    {
        ForgetPosition();
        return std::string::replace(std::forward<Arguments>(arguments)...);
    }
    void resize(size_type byteCount, char fill = '\0')
    {
        ForgetPosition();
        std::string::resize(byteCount, fill);
    }
    void clear() noexcept
    {
        ForgetPosition();
        std::string::clear();
    }
    void swap(U8CString& other) noexcept;
    void swap(std::string& other) noexcept
    {
        ForgetPosition();
        std::string::swap(other);
    }

    char* data() noexcept { return Writable().data(); }
    const char* data() const noexcept { return std::string::data(); }
    char& operator[](size_type byteOffset) { return Writable()[byteOffset]; }
    const char& operator[](size_type byteOffset) const { return std::string::operator[](byteOffset); }
    char& at(size_type byteOffset) { return Writable().at(byteOffset); }
    const char& at(size_type byteOffset) const { return std::string::at(byteOffset); }
    char& front() { return Writable().front(); }
    const char& front() const { return std::string::front(); }
    char& back() { return Writable().back(); }
    const char& back() const { return std::string::back(); }
    iterator begin() noexcept { return Writable().begin(); }
    const_iterator begin() const noexcept { return std::string::begin(); }
    iterator end() noexcept { return Writable().end(); }
    const_iterator end() const noexcept { return std::string::end(); }
    reverse_iterator rbegin() noexcept { return Writable().rbegin(); }
    const_reverse_iterator rbegin() const noexcept { return std::string::rbegin(); }
    reverse_iterator rend() noexcept { return Writable().rend(); }
    const_reverse_iterator rend() const noexcept { return std::string::rend(); }

private:
    void ForgetPosition() noexcept
    {
        cached_char_index = 0;
        cached_length.reset();
    }
    std::string& Writable() noexcept
    {
        ForgetPosition();
        return *this;
    }
    template <class Change>
    U8CString& Write(Change&& change)
    {
        ForgetPosition();
        change();
        return *this;
    }

    std::string_view Bytes() const noexcept { return {std::string::data(), size()}; }
    bool IsPositionKnown() const noexcept;
    void RememberPosition(std::uint64_t charIndex, std::size_t byteOffset) const noexcept;
    void RememberLength(std::uint64_t charCount) const noexcept;
    std::optional<std::size_t> ByteOffsetOf(std::uint64_t charIndex) const noexcept;
    int CharIndexOf(std::size_t byteOffset) const noexcept;
    U8CString& KeepBytes(std::size_t first, std::size_t end) noexcept;

    // A pair that belongs together; index 0 means that none is known.
    mutable std::uint64_t cached_char_index = 0;
    mutable std::uint64_t cached_byte_offset = 0;
    mutable std::optional<std::int32_t> cached_length;
};

inline void swap(U8CString& left, U8CString& right) noexcept
{
    left.swap(right);
}

inline U8CString operator+(U8CString left, const U8CString& right)
{
    return std::move(left += right);
}
inline U8CString operator+(U8CString left, const char* right)
{
    return std::move(left += right);
}
inline U8CString operator+(U8CString left, char right)
{
    return std::move(left += right);
}
inline U8CString operator+(const char* left, const U8CString& right)
{
    return U8CString(left) += right;
}
inline U8CString operator+(char left, const U8CString& right)
{
    return U8CString(left) += right;
}
// Templates, to be as good a match for a temporary as the byte string's own operators.
template <class Bytes>
requires std::same_as<std::remove_cvref_t<Bytes>, std::string> U8CString operator+(U8CString left,
                                                                                   Bytes&& right)
{
    return std::move(left += right);
}
template <class Bytes>
requires std::same_as<std::remove_cvref_t<Bytes>, std::string> U8CString operator+(Bytes&& left,
                                                                                   const U8CString& right)
{
    return U8CString(std::forward<Bytes>(left)) += right;
}

} // namespace Uve

// Hashes like the byte string it is.
template <>
struct std::hash<Uve::U8CString>
{
    std::size_t operator()(const Uve::U8CString& text) const noexcept
    {
        return std::hash<std::string_view>{}(std::string_view(text.data(), text.size()));
    }
};
