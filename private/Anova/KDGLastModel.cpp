#include "private/Anova/KDGLastModel.h"

#include "framework/HostLink.h"
#include "host/IGlobal.h"
#include "private/Anova/KDGAnovaTabData.h"
#include "private/Anova/KDGGLMTabData.h"
#include "private/Anova/KDGModelTerms.h"
#include "private/Multivariate/KDGMultivariateManovaEstimateTabData.h"

namespace {

constexpr UINT kGlmCommand = 2010;
constexpr UINT kAnovaCommand = 2008;
constexpr UINT kManovaCommand = 2025;

std::vector<CString> NamesOf(const CGUIArray<CGUIDataVariable>& list)
{
    std::vector<CString> names;
    for (const auto& variable : list)
        names.push_back(variable.GetVariableName());
    return names;
}

} // namespace

UINT CLastModel::ModelCommand(UINT testCommand)
{
    switch (testCommand) {
    case 2011:
    case 2012:
    case 2013:
    case 2027: return kGlmCommand;
    case 2009:
    case 2077: return kAnovaCommand;
    case 2026: return kManovaCommand;
    default: return 0;
    }
}

UINT CLastModel::TestCommandOf(const CGUIBaseObj& page)
{
    CGUIBaseObj* parent = nullptr;
    page.GetParent(parent);
    return parent ? parent->GetDialogID() : page.GetDialogID();
}

UINT CLastModel::ModuleId(UINT testCommand)
{
    switch (ModelCommand(testCommand)) {
    case kAnovaCommand: return CAnovaData::kModuleAnova;
    case kManovaCommand: return CManovaModelData::kModuleManova;
    default: return CGLMData::kModuleGlm;
    }
}

CLastModel CLastModel::For(UINT testCommand)
{
    CLastModel model;
    IGlobal* host = kal::framework::Host();
    const UINT command = ModelCommand(testCommand);
    CGUIBaseObj* stored = host && command ? host->GetSettings(command) : nullptr;
    const CGLMData* linear = nullptr;
    if (auto* glm = dynamic_cast<CGLMTabData*>(stored))
        linear = glm->GetGLMData();
    else if (auto* manova = dynamic_cast<CMultivariateManovaEstimateTabData*>(stored))
        linear = &manova->GetModel();
    if (linear) {
        const CGLMData& page = *linear;
        model.m_Dependents = page.GetDependentList();
        model.m_Terms = page.GetTerms();
        const std::vector<CString> categorical = NamesOf(page.GetCategoryList());
        const auto used = CModelTerms::UsedAmong(model.m_Terms, categorical);
        for (const CString& name : categorical)
            if (used.count(name))
                model.m_Factors.push_back(name);
    } else if (auto* anova = dynamic_cast<CAnovaTabData*>(stored)) {
        const CAnovaData& page = *anova->GetAnovaData();
        model.m_Dependents = page.GetDependentList();
        model.m_Factors = NamesOf(page.GetFactorList());
        std::vector<CString> terms = CModelTerms::FullFactorial(model.m_Factors);
        if (terms.empty()) // one factor, or more than a full factorial takes
            for (const CString& factor : model.m_Factors)
                terms.push_back(CModelTerms::MainEffect(factor));
        for (const CString& covariate : NamesOf(page.GetCovariateList()))
            terms.push_back(CModelTerms::MainEffect(covariate));
        CModelTerms::AddUnique(model.m_Terms, terms);
    }
    return model;
}
