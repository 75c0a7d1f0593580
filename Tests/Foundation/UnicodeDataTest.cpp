#include "UVEnvironment/UVEUnicode.h"

#include <gtest/gtest.h>

#include <array>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

using namespace Uve;

// The tables against the character database itself, read here in another way than by their generator.
namespace {

constexpr char32_t kCodePointEnd = 0x110000;

using Fields = std::vector<std::string>;

std::vector<Fields> Rows(const std::string& path)
{
    std::vector<Fields> rows;
    std::ifstream file(path);
    EXPECT_TRUE(file) << path;
    for (std::string line; std::getline(file, line);) {
        line.erase(std::min(line.find('#'), line.size()));
        if (line.find_first_not_of(' ') == std::string::npos || line[0] == '@')
            continue;
        Fields fields;
        std::istringstream stream(line);
        for (std::string field; std::getline(stream, field, ';');)
            fields.push_back(field.substr(std::min(field.find_first_not_of(' '), field.size())));
        fields.resize(std::max<std::size_t>(fields.size(), 15));
        rows.push_back(fields);
    }
    return rows;
}

std::u32string CodePoints(const std::string& field)
{
    std::u32string text;
    std::istringstream stream(field);
    for (unsigned long number = 0; stream >> std::hex >> number;)
        text += static_cast<char32_t>(number);
    return text;
}

std::string Utf8(const std::string& field)
{
    return g_ucs4_to_utf8(CodePoints(field)).value();
}

} // namespace

TEST(UnicodeData, TypesAndCaseOfEveryCodePoint)
{
    const std::map<std::string, enUnicodeType> types = {
        {"Cc", UNICODE_CONTROL},           {"Cf", UNICODE_FORMAT},
        {"Co", UNICODE_PRIVATE_USE},       {"Cs", UNICODE_SURROGATE},
        {"Ll", UNICODE_LOWERCASE_LETTER},  {"Lm", UNICODE_MODIFIER_LETTER},
        {"Lo", UNICODE_OTHER_LETTER},      {"Lt", UNICODE_TITLECASE_LETTER},
        {"Lu", UNICODE_UPPERCASE_LETTER},  {"Mc", UNICODE_SPACING_MARK},
        {"Me", UNICODE_ENCLOSING_MARK},    {"Mn", UNICODE_NON_SPACING_MARK},
        {"Nd", UNICODE_DECIMAL_NUMBER},    {"Nl", UNICODE_LETTER_NUMBER},
        {"No", UNICODE_OTHER_NUMBER},      {"Pc", UNICODE_CONNECT_PUNCTUATION},
        {"Pd", UNICODE_DASH_PUNCTUATION},  {"Pe", UNICODE_CLOSE_PUNCTUATION},
        {"Pf", UNICODE_FINAL_PUNCTUATION}, {"Pi", UNICODE_INITIAL_PUNCTUATION},
        {"Po", UNICODE_OTHER_PUNCTUATION}, {"Ps", UNICODE_OPEN_PUNCTUATION},
        {"Sc", UNICODE_CURRENCY_SYMBOL},   {"Sk", UNICODE_MODIFIER_SYMBOL},
        {"Sm", UNICODE_MATH_SYMBOL},       {"So", UNICODE_OTHER_SYMBOL},
        {"Zl", UNICODE_LINE_SEPARATOR},    {"Zp", UNICODE_PARAGRAPH_SEPARATOR},
        {"Zs", UNICODE_SPACE_SEPARATOR},
    };
    static_assert(UNICODE_LOWERCASE_LETTER == 5 && UNICODE_TITLECASE_LETTER == 8 &&
                  UNICODE_UPPERCASE_LETTER == 9);

    std::vector<enUnicodeType> expected(kCodePointEnd, UNICODE_UNASSIGNED);
    char32_t rangeStart = 0;
    for (const Fields& row : Rows(UV_UNICODE_DATA_DIR "/UnicodeData.txt")) {
        const char32_t codePoint = CodePoints(row[0])[0];
        const enUnicodeType type = types.at(row[2]);
        if (row[1].ends_with("First>"))
            rangeStart = codePoint;
        const bool isRange = row[1].ends_with("Last>");
        std::fill(expected.begin() + (isRange ? rangeStart : codePoint), expected.begin() + codePoint + 1,
                  type);

        // Symbols and marks with a counterpart in the other case stay: only letters are mapped.
        const bool gainsUpper = type == UNICODE_LOWERCASE_LETTER || type == UNICODE_TITLECASE_LETTER;
        const bool gainsLower = type == UNICODE_UPPERCASE_LETTER || type == UNICODE_TITLECASE_LETTER;
        ASSERT_EQ(UnicodeToUpper(codePoint),
                  gainsUpper && !row[12].empty() ? CodePoints(row[12])[0] : codePoint);
        ASSERT_EQ(UnicodeToLower(codePoint),
                  gainsLower && !row[13].empty() ? CodePoints(row[13])[0] : codePoint);
    }
    for (char32_t codePoint = 0; codePoint < kCodePointEnd; ++codePoint)
        ASSERT_EQ(UnicodeToType(codePoint), expected[codePoint]) << static_cast<unsigned long>(codePoint);
}

TEST(UnicodeData, FoldingOfEveryCodePoint)
{
    std::map<char32_t, std::string> foldings;
    for (const Fields& row : Rows(UV_UNICODE_DATA_DIR "/CaseFolding.txt"))
        if (row[1] == "C" || row[1] == "F")
            foldings[CodePoints(row[0])[0]] = Utf8(row[2]);
    for (char32_t codePoint = 0; codePoint < kCodePointEnd; ++codePoint) {
        const std::string text = utf8_from_codepoint(codePoint);
        const auto folding = foldings.find(codePoint);
        ASSERT_EQ(utf8_casefold(text), folding == foldings.end() ? text : folding->second)
            << static_cast<unsigned long>(codePoint);
    }
}

TEST(UnicodeData, NormalisationPassesTheTestOfTheDatabase)
{
    constexpr auto kNfd = NormalizeMode::CanonicalDecomposition;
    constexpr auto kNfc = NormalizeMode::CanonicalComposition;
    constexpr auto kNfkd = NormalizeMode::CompatibilityDecomposition;
    constexpr auto kNfkc = NormalizeMode::CompatibilityComposition;

    std::set<char32_t> listed;
    for (const Fields& row : Rows(UV_NORMALIZATION_TEST)) {
        SCOPED_TRACE(row[0]);
        // Source, NFC, NFD, NFKC, NFKD.
        std::array<std::string, 5> forms;
        for (std::size_t i = 0; i < forms.size(); ++i)
            forms[i] = Utf8(row[i]);
        for (std::size_t i = 0; i < forms.size(); ++i) {
            const bool canonical = i < 3;
            ASSERT_EQ(utf8_normalize(forms[i], kNfc), forms[canonical ? 1 : 3]) << i;
            ASSERT_EQ(utf8_normalize(forms[i], kNfd), forms[canonical ? 2 : 4]) << i;
            ASSERT_EQ(utf8_normalize(forms[i], kNfkc), forms[3]) << i;
            ASSERT_EQ(utf8_normalize(forms[i], kNfkd), forms[4]) << i;
        }
        if (const std::u32string source = CodePoints(row[0]); source.size() == 1)
            listed.insert(source[0]);
    }
    ASSERT_GT(listed.size(), 10'000u);
    // What the test doesn't list is the same in every form.
    for (char32_t codePoint = 0; codePoint < kCodePointEnd; ++codePoint) {
        if (listed.contains(codePoint))
            continue;
        const std::string text = utf8_from_codepoint(codePoint);
        for (const auto mode : {kNfd, kNfc, kNfkd, kNfkc})
            ASSERT_EQ(utf8_normalize(text, mode), text) << static_cast<unsigned long>(codePoint);
    }
}
