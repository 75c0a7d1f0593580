#include "Stylesheets/RulesFolder.h"

#include <atomic>
#include <filesystem>
#include <system_error>

namespace fs = std::filesystem;

namespace {

std::atomic<bool> g_AreRulesForAssessment{false};

bool IsBelow(const fs::path& path, const fs::path& folder)
{
    const std::string& whole = path.native();
    const std::string& front = folder.native();
    return whole.size() > front.size() && whole.starts_with(front) && whole[front.size()] == '/';
}

} // namespace

void SetRulesForAssessment(bool isForAssessment)
{
    g_AreRulesForAssessment = isForAssessment;
}

bool AreRulesForAssessment()
{
    return g_AreRulesForAssessment;
}

Uve::U8CString GetRulesFolder()
{
    return g_AreRulesForAssessment ? "rules_KEL" : "rules";
}

std::optional<std::string> FindFileBelow(const std::string& folder, const std::string& path)
{
    std::error_code failure;
    const fs::path file = fs::canonical(path, failure);
    if (failure || !fs::is_regular_file(file, failure))
        return std::nullopt;
    const fs::path allowed = fs::canonical(folder, failure);
    if (failure || !IsBelow(file, allowed))
        return std::nullopt;
    return file.native();
}
