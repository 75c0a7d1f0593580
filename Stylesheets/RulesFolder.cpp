#include "Stylesheets/RulesFolder.h"

#include <atomic>

namespace {

std::atomic<bool> g_AreRulesForAssessment{false};

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
