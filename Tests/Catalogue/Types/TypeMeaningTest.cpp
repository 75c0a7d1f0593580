// Every type of every database, mapped to every database: nothing is lost but what the exceptions tell.
#include "Catalogue/Types/UVDBDataTypes.h"
#include "Catalogue/Types/UVDBTypeConverting.h"
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Tests/Catalogue/Types/TypeFamilies.h"
#include "Tests/Catalogue/Types/TypeMeaningExceptions.h"
#include "Tests/Catalogue/Types/TypeMeaningPairs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <climits>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace {

using namespace TypeMeaning;

// ---- Exceptions ----

// What isn't told has no limits.
constexpr STargetLimits kNoLimits{nullptr, kEnough, kEnough, kEnough,  kPlenty,
                                  kPlenty, kPlenty, kPlenty, kAllZones};

const STargetLimits& LimitsOf(const CTarget& target)
{
    const auto* const found = std::ranges::find(kTargetLimits, target.Sheaf(), &STargetLimits::sheaf);
    return found != std::end(kTargetLimits) ? *found : kNoLimits;
}

enum enLimit
{
    kCharacterLimit,
    kNationalLimit,
    kByteLimit,
    kDigitLimit,
    kScaleLimit,
    kTimeDigitLimit,
    kTimestampDigitLimit,
    kLimitCount
};

constexpr const char* kLimitNames[] = {"characters",      "national characters", "bytes", "digits", "scale",
                                       "digits of times", "digits of timestamps"};
static_assert(std::size(kLimitNames) == kLimitCount);

// Whether types of the family are what the limit is about.
bool LimitTellsOf(enLimit limit, enTypeFamily family)
{
    switch (limit) {
    case kCharacterLimit:
        return family == enTypeFamily::Text;
    case kNationalLimit:
        return family == enTypeFamily::NationalText;
    case kByteLimit:
        return family == enTypeFamily::Binary;
    case kTimeDigitLimit:
        return family == enTypeFamily::Time;
    case kTimestampDigitLimit:
        return family == enTypeFamily::Timestamp;
    default:
        return false;
    }
}

std::uint64_t LimitValue(const STargetLimits& limits, enLimit limit)
{
    const auto digits = [](long value) {
        return value == kPlenty ? kEnough : static_cast<std::uint64_t>(value);
    };
    switch (limit) {
    case kCharacterLimit:
        return limits.characters;
    case kNationalLimit:
        return limits.national;
    case kByteLimit:
        return limits.bytes;
    case kDigitLimit:
        return digits(limits.digits);
    case kScaleLimit:
        return digits(limits.scale);
    case kTimeDigitLimit:
        return digits(limits.timeDigits);
    default:
        return digits(limits.timestampDigits);
    }
}

// The limit that a loss concerns, and how far the target's type goes.
struct SReached
{
    enLimit limit;
    std::uint64_t value;
};

std::vector<SReached> ReachedBy(const STypeCapacity& capacity, enTypeLoss loss)
{
    switch (loss) {
    case enTypeLoss::Length:
        return {{capacity.family == enTypeFamily::Text           ? kCharacterLimit
                 : capacity.family == enTypeFamily::NationalText ? kNationalLimit
                                                                 : kByteLimit,
                 capacity.length}};
    case enTypeLoss::WholeDigits:
        return {{kDigitLimit, static_cast<std::uint64_t>(capacity.digits)}};
    case enTypeLoss::FractionDigits:
        return {{kScaleLimit, static_cast<std::uint64_t>(capacity.fractionDigits)},
                {kDigitLimit, static_cast<std::uint64_t>(capacity.digits)}};
    case enTypeLoss::SecondDigits:
        return {{capacity.family == enTypeFamily::Time ? kTimeDigitLimit : kTimestampDigitLimit,
                 static_cast<std::uint64_t>(capacity.secondDigits)}};
    default:
        return {};
    }
}

template <class T>
bool Concerns(const T& exception, const SMappedPair& pair, const CTarget& target)
{
    if (exception.condition && !exception.condition(pair))
        return false;
    switch (exception.where) {
    case enExceptionTargets::Any:
        return true;
    case enExceptionTargets::Without:
        return !target.HasFamily(pair.source.family);
    case enExceptionTargets::Listed:
        break;
    }
    return std::ranges::find(exception.sheaves, target.Sheaf()) != exception.sheaves.end();
}

// The lists of exceptions, with marks at those that were needed.
class CExceptions
{
public:
    bool AllowsFamily(const SMappedPair& pair, const CTarget& target)
    {
        for (std::size_t i = 0; i < std::size(kFamilyExceptions); ++i) {
            const SFamilyException& exception = kFamilyExceptions[i];
            if ((exception.source == pair.source.family || exception.source == enTypeFamily::Unknown) &&
                exception.target == pair.target.family && Concerns(exception, pair, target)) {
                m_UsedFamilies[i].insert(target.Sheaf());
                if (exception.condition == ExceedsDecimals)
                    m_UsedLimits[&pair.limits].insert(kDigitLimit);
                return true;
            }
        }
        return false;
    }

    bool AllowsLoss(const SMappedPair& pair, const CTarget& target, enTypeLoss loss)
    {
        if (IsBeyondLimits(pair, loss))
            return true;
        for (std::size_t i = 0; i < std::size(kLossExceptions); ++i) {
            const SLossException& exception = kLossExceptions[i];
            if ((exception.source == pair.source.family || exception.source == enTypeFamily::Unknown) &&
                exception.loss == loss && Concerns(exception, pair, target)) {
                m_UsedLosses[i].insert(target.Sheaf());
                return true;
            }
        }
        return false;
    }

    // What no pair of types needs. Each is a sentence.
    std::vector<std::string> Unused() const
    {
        std::vector<std::string> unused;
        for (std::size_t i = 0; i < std::size(kFamilyExceptions); ++i) {
            const SFamilyException& exception = kFamilyExceptions[i];
            if (const std::string where = Unneeded(exception, m_UsedFamilies[i]); !where.empty())
                unused.push_back(std::string(FamilyText(exception.source)) + " as " +
                                 FamilyText(exception.target) + ", " + exception.reason + where);
        }
        for (std::size_t i = 0; i < std::size(kLossExceptions); ++i) {
            const SLossException& exception = kLossExceptions[i];
            if (const std::string where = Unneeded(exception, m_UsedLosses[i]); !where.empty())
                unused.push_back(std::string(FamilyText(exception.source)) + ", less " +
                                 LossText(exception.loss) + ", " + exception.reason + where);
        }
        for (const STargetLimits& limits : kTargetLimits) {
            const auto used = m_UsedLimits.find(&limits);
            for (int i = 0; i < kLimitCount; ++i) {
                const auto limit = static_cast<enLimit>(i);
                if (LimitValue(limits, limit) != kEnough &&
                    (used == m_UsedLimits.end() || !used->second.contains(limit)))
                    unused.push_back(std::string("limit of ") + kLimitNames[i] + ": " +
                                     SheafName(*limits.sheaf));
            }
        }
        return unused;
    }

    // Limits that are lower than the target's type of the pair. Times with a zone have their own.
    static std::vector<std::string> Exceeded(const SMappedPair& pair)
    {
        std::vector<std::string> exceeded;
        if (pair.target.hasZone)
            return exceeded;
        for (const enTypeLoss loss : {enTypeLoss::Length, enTypeLoss::SecondDigits}) {
            for (const SReached& reached : ReachedBy(pair.target, loss)) {
                if (LimitTellsOf(reached.limit, pair.target.family) &&
                    reached.value > LimitValue(pair.limits, reached.limit))
                    exceeded.push_back(kLimitNames[reached.limit]);
            }
        }
        return exceeded;
    }

private:
    using TUse = std::set<const SMappingSheaf*>;

    // Where nothing needed it.
    template <class T>
    static std::string Unneeded(const T& exception, const TUse& use)
    {
        std::string where = use.empty() ? ": nowhere" : "";
        for (const SMappingSheaf* const sheaf : exception.sheaves) {
            if (!use.contains(sheaf))
                where += ": " + SheafName(*sheaf);
        }
        return where;
    }

    bool IsBeyondLimits(const SMappedPair& pair, enTypeLoss loss)
    {
        for (const SReached& reached : ReachedBy(pair.target, loss)) {
            if (reached.value >= LimitValue(pair.limits, reached.limit)) {
                m_UsedLimits[&pair.limits].insert(reached.limit);
                return true;
            }
        }
        const enZones lacking = pair.target.family == enTypeFamily::Time ? kTimeZones : kTimestampZones;
        return loss == enTypeLoss::Zone && (pair.limits.zones & lacking) == 0;
    }

    // For which targets.
    std::array<TUse, std::size(kFamilyExceptions)> m_UsedFamilies{};
    std::array<TUse, std::size(kLossExceptions)> m_UsedLosses{};
    std::map<const STargetLimits*, std::set<enLimit>> m_UsedLimits;
};

// What went wrong, told once for each pair of families and target.
class CFindings
{
public:
    void Add(const std::string& what, const std::string& where, const std::string& example)
    {
        SFinding& finding = m_Findings[{what, where}];
        if (++finding.count <= kExamples)
            finding.examples += "\n        " + example;
    }

    std::string Text() const
    {
        std::string text;
        for (const auto& [key, finding] : m_Findings)
            text += key.first + ", to " + key.second + ": " + std::to_string(finding.count) +
                    finding.examples + '\n';
        return text;
    }
    bool empty() const { return m_Findings.empty(); }

private:
    static constexpr int kExamples = 3;
    struct SFinding
    {
        int count = 0;
        std::string examples;
    };
    std::map<std::pair<std::string, std::string>, SFinding> m_Findings;
};

// A time can have no digits after the second.
bool IsMoment(enTypeFamily family)
{
    return family == enTypeFamily::Time || family == enTypeFamily::Timestamp ||
           family == enTypeFamily::Qualified || family == enTypeFamily::Interval;
}

// ---- Tests ----

struct SMeaningCase
{
    std::int64_t type;
    enTypeFamily family;
    int bits;
    unsigned fields;
    bool hasZone;
};

// What uvtypes and the judge here both go by.
// clang-format off
constexpr SMeaningCase kMeanings[] = {
//   number  family                    bits  fields                                                zone
    {  1, enTypeFamily::Text,             0, 0,                                                    false},
    { 10, enTypeFamily::NationalText,     0, 0,                                                    false},
    { 37, enTypeFamily::Integer,         64, 0,                                                    false},
    {132, enTypeFamily::Integer,         -8, 0,                                                    false},
    { 42, enTypeFamily::Float,           24, 0,                                                    false},
    {137, enTypeFamily::DecimalFloat,    34, 0,                                                    false},
    { 58, enTypeFamily::Decimal,         32, 0,                                                    false},
    { 60, enTypeFamily::Decimal,          0, 0,                                                    false},
    { 48, enTypeFamily::Date,             0, UVDBMeaning::kDate,                                   false},
    { 57, enTypeFamily::Timestamp,        0, kAllFields,                                           false},
    { 56, enTypeFamily::Time,             0, UVDBMeaning::kTime,                                   true},
    { 54, enTypeFamily::Timestamp,        0, kAllFields,                                           true},
    { 62, enTypeFamily::Interval,         0, UVDBMeaning::kYear | UVDBMeaning::kMonth,             false},
    { 97, enTypeFamily::Qualified,        0, UVDBMeaning::kMinute,                                 false},
    {104, enTypeFamily::RowNumber,      -32, 0,                                                    false},
    {  6, enTypeFamily::Unknown,          0, 0,                                                    false},
    { -1, enTypeFamily::Unknown,          0, 0,                                                    false},
    {142, enTypeFamily::Unknown,          0, 0,                                                    false},
};
// clang-format on

TEST(TypeMeaning, NumbersMeanTypes)
{
    for (const SMeaningCase& c : kMeanings) {
        const UVDBMeaning::STypeMeaning& meaning = MeaningOfInternalType(c.type);
        EXPECT_EQ(std::tie(meaning.family, meaning.bits, meaning.fields, meaning.hasZone),
                  std::tie(c.family, c.bits, c.fields, c.hasZone))
            << c.type << ' ' << FamilyText(meaning.family);
    }
}

TEST(TypeMeaning, EveryInternalTypeHasAFamily)
{
    for (const SDataTypeParams& type : GetUVDBDataTypeParamsList())
        EXPECT_NE(FamilyOf(type.uvdbType), enTypeFamily::Unknown) << type.uvdbType << ' ' << type.name;
}

// Judges one type that was mapped, with the text that came of it.
void JudgePair(const SSourceCase& source, CTarget& target, const std::string& text, CExceptions& exceptions,
               CFindings& findings)
{
    const auto find = [&](const std::string& what) {
        findings.Add(what, target.Name(), Describe(source) + " is " + text);
    };
    const STypeCapacity& capacity = target.Read(text);
    const SMappedPair pair{.sourceName = source.name,
                           .sourceType = source.rowType,
                           .isSizeKnown = source.isSizeKnown,
                           .source = source.capacity,
                           .target = capacity,
                           .limits = LimitsOf(target),
                           .longestNational = target.LongestNational(),
                           .longestTime = target.LongestTime(),
                           .hasLongNational = target.HasLongNational()};
    const std::string families =
        std::string(FamilyText(source.capacity.family)) + " as " + FamilyText(capacity.family);
    if (capacity.family != source.capacity.family && !exceptions.AllowsFamily(pair, target))
        find(families);
    if (!source.isSizeKnown)
        return;
    for (const enTypeLoss loss : LossesOf(source.capacity, capacity)) {
        if (!exceptions.AllowsLoss(pair, target, loss))
            find(families + ", less " + LossText(loss));
    }
    // A length or precision of nothing.
    if (!IsMoment(source.capacity.family) &&
        (text.find("(0)") != std::string::npos || text.find("(0,") != std::string::npos))
        find("a size of 0");
    for (const std::string& limit : exceptions.Exceeded(pair))
        find("above the limit: " + limit);
}

TEST(TypeMeaning, AllPairsKeepFamilyAndCapacity)
{
    const std::vector<SSourceCase> sources = CollectSources();
    CExceptions exceptions;
    CFindings findings;
    for (CTarget& target : CollectTargets()) {
        for (const SSourceCase& source : sources) {
            const std::string text = Convert(source, target.Where());
            if (text.empty())
                findings.Add("empty", target.Name(), Describe(source));
            if (target.HasTypes())
                JudgePair(source, target, text, exceptions, findings);
        }
    }
    EXPECT_TRUE(findings.empty()) << findings.Text();
    for (const std::string& unused : exceptions.Unused())
        ADD_FAILURE() << "an exception that nothing needs: " << unused;
}

// Hosts hand over whatever a catalogue says.
TEST(TypeMeaning, AnyNumbersGiveAName)
{
    constexpr unsigned long kSizes[] = {0, 1, 4001, 2147483648, 4294967296, ULONG_MAX};
    constexpr long kScales[] = {LONG_MIN, -1, 0, 1000, LONG_MAX};
    for (const CTarget& target : CollectTargets()) {
        SCOPED_TRACE(target.Name());
        for (const SDataTypeParams& type : GetUVDBDataTypeParamsList()) {
            for (const unsigned long size : kSizes) {
                for (const long scale : kScales) {
                    long uvdbType = type.uvdbType;
                    const std::string text =
                        GetDefDBMSToDBMSConverting({.db = UVDB_DB_ANSI}, target.Where(), type.name, uvdbType,
                                                   size, size, scale, scale, size == 1, true);
                    EXPECT_FALSE(text.empty() || text == "UNKNOWN")
                        << type.name << ' ' << size << ' ' << scale;
                }
            }
        }
    }
}

} // namespace
