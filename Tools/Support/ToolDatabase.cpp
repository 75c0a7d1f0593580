#include "Tools/Support/ToolDatabase.h"

#include "Catalogue/UVDBHelpers.h"
#include "Catalogue/UVDBNamesHelper.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <optional>
#include <system_error>
#include <utility>

namespace {

std::optional<std::uint64_t> ReadNumber(std::string_view text)
{
    std::uint64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (text.empty() || error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

// The next field of a text between separators; `text` keeps what comes after it.
std::string_view TakeField(std::string_view& text, char separator)
{
    const std::size_t end = std::min(text.find(separator), text.size());
    const std::string_view field = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return field;
}

// The row that calls itself `name`, in any case. A wizard's name stands for several rows, and isn't looked
// at.
const DB_INFO_ROW* FindByOwnName(const std::string& name)
{
    const UVDB::DbinfoHelper& catalogue = UVDB::DbinfoHelper::getInstance();
    const auto is = [&](const Uve::U8CString& own) { return own.CollateNoCase(name.c_str()) == 0; };
    for (int index = 0; index <= static_cast<int>(catalogue.getRowCount()); ++index) {
        const DB_INFO_ROW& row = catalogue.findDbInfo(index);
        if (!catalogue.isUnknownDbInfo(row) && (is(row.shortName) || is(row.fullName) || is(row.visibleName)))
            return &row;
    }
    return nullptr;
}

// Visible names of the databases that `name` may have been meant for.
std::vector<std::string> NearDatabases(const std::string& name)
{
    constexpr std::size_t kLimit = 3;
    const UVDB::DbinfoHelper& catalogue = UVDB::DbinfoHelper::getInstance();
    std::vector<std::string> names;
    for (int index = 0; index <= static_cast<int>(catalogue.getRowCount()); ++index) {
        const DB_INFO_ROW& row = catalogue.findDbInfo(index);
        if (!catalogue.isUnknownDbInfo(row))
            for (const Uve::U8CString* spelling :
                 {&row.visibleName, &row.fullName, &row.shortName, &row.wzdName})
                names.emplace_back(spelling->c_str());
    }
    std::vector<std::string> nearNames;
    for (const std::string& nearName : NearNames(name, names, names.size())) {
        const std::string visible =
            catalogue.findDbInfoAnyNameIgnoreCase(nearName.c_str(), false).visibleName.c_str();
        if (std::find(nearNames.begin(), nearNames.end(), visible) == nearNames.end())
            nearNames.push_back(visible);
        if (nearNames.size() == kLimit)
            break;
    }
    return nearNames;
}

DB_VERSION_INFO ReadKind(std::string_view kind)
{
    DB_VERSION_INFO version;
    if (const std::optional<std::uint64_t> number = ReadNumber(kind)) {
        version.db = *number;
        if (!UVDB::NamesHelper::getInstance().isValid(*number) &&
            GetDbResourceIdx(*number, UVDB_NO_VERSION_WORD) < 0)
            throw CDatabaseError("there is no database kind " + std::string(kind));
        return version;
    }
    const std::string name(kind);
    const UVDB::DbinfoHelper& catalogue = UVDB::DbinfoHelper::getInstance();
    const DB_INFO_ROW* const own = FindByOwnName(name);
    const DB_INFO_ROW& row = own ? *own : catalogue.findDbInfoAnyNameIgnoreCase(name.c_str(), false);
    if (!catalogue.isUnknownDbInfo(row)) {
        version.db = row.dbVersion.db;
        version.subType = row.dbVersion.subType;
        return version;
    }
    version.db = UVDB::NamesHelper::getInstance().GetDBType(name.c_str());
    if (version.db == UVDB_UNKNOWN_DATABASE_KIND)
        throw CDatabaseError("no database is called '" + name + "'" + NearNamesText(NearDatabases(name)));
    return version;
}

std::string Folded(std::string_view text)
{
    std::string folded(text);
    std::transform(folded.begin(), folded.end(), folded.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return folded;
}

// Letters put in, left out or changed between both texts.
std::size_t EditDistance(std::string_view a, std::string_view b)
{
    std::vector<std::size_t> row(b.size() + 1);
    for (std::size_t i = 0; i <= b.size(); ++i)
        row[i] = i;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i);
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t changed = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({changed, row[j] + 1, row[j - 1] + 1});
        }
    }
    return row.back();
}

} // namespace

DB_VERSION_INFO ReadDatabaseText(std::string_view text, enLoneNumber loneNumber)
{
    const std::string whole(text);
    DB_VERSION_INFO version = ReadKind(TakeField(text, ':'));

    const auto number = [&](std::string_view field) {
        const std::optional<std::uint64_t> value = ReadNumber(field);
        if (!value)
            throw CDatabaseError("'" + std::string(field) + "' in '" + whole + "' is no number");
        return *value;
    };
    const bool isLone = text.find(':') == std::string_view::npos;
    const bool isVersion =
        isLone && (loneNumber == enLoneNumber::Version || text.find('.') != std::string_view::npos);
    if (!isVersion) {
        const std::string_view subType = TakeField(text, ':');
        if (!subType.empty())
            version.subType = number(subType);
    }
    if (!text.empty()) {
        version.major = number(TakeField(text, '.'));
        if (!text.empty())
            version.minor = number(text);
    }
    return version;
}

std::vector<std::string> NearNames(std::string_view text, const std::vector<std::string>& names,
                                   std::size_t limit)
{
    const std::string wanted = Folded(text.substr(0, 100));
    std::vector<std::pair<std::size_t, std::string>> rated;
    for (const std::string& name : names) {
        const std::string candidate = Folded(name);
        const std::size_t distance = EditDistance(wanted, candidate);
        const bool isPart = wanted.size() > 2 && candidate.find(wanted) != std::string::npos;
        const std::size_t partDistance = candidate.starts_with(wanted) ? 1 : 2;
        if (isPart || distance <= wanted.size() / 3)
            rated.emplace_back(isPart ? std::min(distance, partDistance) : distance, name);
    }
    std::stable_sort(rated.begin(), rated.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<std::string> nearNames;
    for (std::size_t i = 0; i < std::min(limit, rated.size()); ++i)
        nearNames.push_back(std::move(rated[i].second));
    return nearNames;
}

std::string NearNamesText(const std::vector<std::string>& nearNames)
{
    std::string text;
    for (std::size_t i = 0; i < nearNames.size(); ++i)
        text += (i == 0 ? "; did you mean '" : i + 1 < nearNames.size() ? "', '" : "' or '") + nearNames[i];
    return text.empty() ? text : text + "'?";
}
