#include "Parser/UVAssessorOption.h"

#include "Metadata/Options/UVProcessName.h"
#include "Stylesheets/RulesFolder.h"

namespace {

constexpr char kWizardName[] = "OrvantaAssessmentWzd";

} // namespace

void SetAssessorIsParentOpt(bool isAssessorParent)
{
    SetRulesForAssessment(isAssessorParent ||
                          GetParentProcessName().Right(sizeof kWizardName - 1).CollateNoCase(kWizardName) ==
                              0);
}

bool GetAssessorIsParentOpt()
{
    return AreRulesForAssessment();
}
