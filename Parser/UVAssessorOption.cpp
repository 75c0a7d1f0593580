#include "Parser/UVAssessorOption.h"

#include "Metadata/UVProcessName.h"

namespace {

constexpr char kWizardName[] = "OrvantaAssessmentWzd";

bool g_IsAssessorParent = false;

} // namespace

void SetAssessorIsParentOpt(bool isAssessorParent)
{
    g_IsAssessorParent = isAssessorParent ||
                         GetParentProcessName().Right(sizeof kWizardName - 1).CollateNoCase(kWizardName) == 0;
}

bool GetAssessorIsParentOpt()
{
    return g_IsAssessorParent;
}
