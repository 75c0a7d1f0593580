#include "UVEnvironment/UVEUnicode.h"
#include "UVEnvironment/UVEUnicodeTables.h"

#include <algorithm>

namespace Uve {

namespace {

// Hangul syllables are arithmetic: 19 leading consonants, 21 vowels, 27 trailing consonants or none.
constexpr char32_t kSyllableBase = 0xAC00;
constexpr char32_t kLeadingBase = 0x1100;
constexpr char32_t kVowelBase = 0x1161;
constexpr char32_t kTrailingBase = 0x11A7; // one before the first: 0 is "none"
constexpr char32_t kLeadingCount = 19;
constexpr char32_t kVowelCount = 21;
constexpr char32_t kTrailingCount = 28;
constexpr char32_t kSyllableCount = kLeadingCount * kVowelCount * kTrailingCount;

// The first code point that joins with one before it, apart from Hangul.
constexpr char32_t kFirstCombining = 0x300;

// Unsigned: below the base wraps round to a large number.
bool IsIn(char32_t codePoint, char32_t base, char32_t count)
{
    return codePoint - base < count;
}

unsigned CombiningClass(char32_t codePoint)
{
    return codePoint < 0x110000 ? Tables::CombiningClassAt(codePoint) : 0;
}

void AppendDecomposed(std::u32string& out, char32_t codePoint, bool compatibility)
{
    if (IsIn(codePoint, kSyllableBase, kSyllableCount)) {
        const char32_t number = codePoint - kSyllableBase;
        out.push_back(kLeadingBase + number / (kVowelCount * kTrailingCount));
        out.push_back(kVowelBase + number / kTrailingCount % kVowelCount);
        if (const char32_t trailing = number % kTrailingCount)
            out.push_back(kTrailingBase + trailing);
        return;
    }
    const std::size_t number = codePoint < 0x110000 ? Tables::DecompositionAt(codePoint) : 0;
    const Tables::SDecomposition& row = Tables::decompositions[number];
    const auto text = compatibility
                          ? Tables::decompositionTexts.subspan(row.compatibility, row.compatibilityLength)
                          : Tables::decompositionTexts.subspan(row.canonical, row.canonicalLength);
    if (text.empty())
        out += codePoint;
    else
        out.append(text.data(), text.size());
}

// The one code point for two; 0 if there is none.
char32_t Composed(char32_t first, char32_t second)
{
    if (second < kFirstCombining)
        return 0;
    if (IsIn(first, kLeadingBase, kLeadingCount) && IsIn(second, kVowelBase, kVowelCount))
        return kSyllableBase +
               ((first - kLeadingBase) * kVowelCount + (second - kVowelBase)) * kTrailingCount;
    if (IsIn(first, kSyllableBase, kSyllableCount) && (first - kSyllableBase) % kTrailingCount == 0 &&
        IsIn(second, kTrailingBase + 1, kTrailingCount - 1))
        return first + (second - kTrailingBase);

    const auto key = std::pair(first, second);
    const auto row =
        std::ranges::lower_bound(Tables::compositions, key, {}, [](const Tables::SComposition& pair) {
            return std::pair(pair.first, pair.second);
        });
    return row != Tables::compositions.end() && row->first == first && row->second == second ? row->composed
                                                                                             : 0;
}

// Joins each mark with the last starter unless something of its own class or above stands between them.
void Compose(std::u32string& text)
{
    constexpr int kAdjacent = -1;
    std::size_t kept = 0;
    std::size_t starter = 0;
    bool hasStarter = false;
    int lastClass = kAdjacent; // class of what stands between starter and mark
    for (const char32_t codePoint : text) {
        const int ownClass = static_cast<int>(CombiningClass(codePoint));
        if (hasStarter && lastClass < ownClass) {
            if (const char32_t composed = Composed(text[starter], codePoint)) {
                text[starter] = composed;
                continue;
            }
        }
        if (ownClass == 0) {
            starter = kept;
            hasStarter = true;
            lastClass = kAdjacent;
        } else
            lastClass = ownClass;
        text[kept++] = codePoint;
    }
    text.resize(kept);
}

} // namespace

void g_unicode_canonical_ordering(char32_t* codePoints, std::size_t count)
{
    const auto isMark = [](char32_t codePoint) { return CombiningClass(codePoint) != 0; };
    char32_t* const end = codePoints + count;
    for (char32_t* at = codePoints; (at = std::find_if(at, end, isMark)) != end;) {
        char32_t* const runEnd = std::find_if_not(at, end, isMark);
        // Not by exchanging neighbours: a run may be as long as the text.
        std::ranges::stable_sort(at, runEnd, {}, CombiningClass);
        at = runEnd;
    }
}

std::u32string utf8_normalize_wc(std::string_view text, NormalizeMode mode)
{
    std::u32string result;
    if (utf8_is_ascii(text)) {
        result.assign(text.begin(), text.end());
        return result;
    }
    const bool compatibility =
        mode == NormalizeMode::CompatibilityDecomposition || mode == NormalizeMode::CompatibilityComposition;
    result.reserve(utf8_strlen(text));
    const char* const end = text.data() + text.size();
    for (const char* at = text.data(); at < end;) {
        const SUtf8CodePoint read = utf8_decode(at, end);
        at += read.bytes;
        AppendDecomposed(result, read.codePoint, compatibility);
    }
    g_unicode_canonical_ordering(result.data(), result.size());
    if (mode == NormalizeMode::CanonicalComposition || mode == NormalizeMode::CompatibilityComposition)
        Compose(result);
    return result;
}

std::optional<std::string> utf8_normalize(std::string_view text, NormalizeMode mode)
{
    if (utf8_is_ascii(text))
        return std::string(text);
    return g_ucs4_to_utf8(utf8_normalize_wc(text, mode));
}

int utf8_collate(const char* left, const char* right)
{
    if (!left || !right)
        return 0;
    const auto leftText = utf8_normalize(left, NormalizeMode::CompatibilityComposition);
    const auto rightText = utf8_normalize(right, NormalizeMode::CompatibilityComposition);
    return leftText && rightText ? std::strcoll(leftText->c_str(), rightText->c_str()) : 0;
}

} // namespace Uve
