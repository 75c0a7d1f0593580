#include "Catalogue/Identifiers/UVDBQueryNames.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

namespace {

struct SQueryByName
{
    std::string_view name;
    int query;
};

constexpr SQueryByName kQueries[] = {
#define UVDB_QUERY_NAME(name) {#name, name},
#include "Catalogue/Identifiers/UVDBQueryNames.inc"
#undef UVDB_QUERY_NAME
};
static_assert(std::size(kQueries) == 66);

constexpr auto kQueriesByName = [] {
    auto queries = std::to_array(kQueries);
    std::ranges::sort(queries, {}, &SQueryByName::name);
    return queries;
}();
static_assert(std::ranges::adjacent_find(kQueriesByName, {}, &SQueryByName::name) == kQueriesByName.end(),
              "a name stands for one number");

} // namespace

int getUvdbQueryEnum(const std::string& name)
{
    const auto found =
        std::ranges::lower_bound(kQueriesByName, std::string_view(name), {}, &SQueryByName::name);
    return found != kQueriesByName.end() && found->name == name ? found->query : kUVDBUnknownQuery;
}
