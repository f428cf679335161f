#include "private/Anova/KDGLastModel.h"

#include "framework/HostLink.h"
#include "host/IGlobal.h"
#include "private/Anova/KDGAnovaTabData.h"
#include "private/Anova/KDGGLMTabData.h"
#include "private/Anova/KDGModelTerms.h"
#include "private/Mixed/KDGMixedModelHierarchicalLinearMixedModelTabDlg.h"
#include "private/Mixed/KDGMixedModelLinearMixedModelTabDlg.h"

namespace {

constexpr UINT kGlmCommand = 2010;
constexpr UINT kAnovaCommand = 2008;
constexpr UINT kMixedTestCommand = 2073;
constexpr UINT kLinearMixedCommand = 2067;
constexpr UINT kHierarchicalMixedCommand = 2068;
constexpr UINT kMsgNoModel = 2104;
constexpr UINT kMsgNoMixedModel = 8411;

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
    case kMixedTestCommand: return kLinearMixedCommand;
    default: return 0;
    }
}

UINT CLastModel::TestCommandOf(const CGUIBaseObj& page)
{
    CGUIBaseObj* parent = nullptr;
    page.GetParent(parent);
    return parent ? parent->GetDialogID() : page.GetDialogID();
}

UINT CLastModel::NoModelMessage(UINT testCommand)
{
    return testCommand == kMixedTestCommand ? kMsgNoMixedModel : kMsgNoModel;
}

UINT CLastModel::ModuleId(UINT testCommand)
{
    if (testCommand == kMixedTestCommand)
        return CGLMData::kModuleMixed;
    return ModelCommand(testCommand) == kAnovaCommand ? CAnovaData::kModuleAnova : CGLMData::kModuleGlm;
}

CLastModel CLastModel::FromModelPage(const CGLMData& page)
{
    CLastModel model;
    model.m_Dependents = page.GetDependentList();
    model.m_Terms = page.GetTerms();
    const std::vector<CString> categorical = NamesOf(page.GetCategoryList());
    const auto used = CModelTerms::UsedAmong(model.m_Terms, categorical);
    for (const CString& name : categorical)
        if (used.count(name))
            model.m_Factors.push_back(name);
    return model;
}

CLastModel CLastModel::ForMixedModel(IGlobal& host)
{
    if (auto* linear = dynamic_cast<CMixedModelLinearMixedModelTabData*>(host.GetSettings(kLinearMixedCommand))) {
        CLastModel model = FromModelPage(*linear->GetFixedEffectsData());
        if (model.IsEstimated())
            return model;
    }
    CLastModel model;
    if (auto* levels = dynamic_cast<CMixedModelHierarchicalLinearMixedModelTabData*>(
            host.GetSettings(kHierarchicalMixedCommand))) {
        const CHlmLevelsData& page = *levels->GetLevelsData();
        model.m_Dependents = page.GetDependentList();
        model.m_Terms = page.Terms();
    }
    return model;
}

CLastModel CLastModel::For(UINT testCommand)
{
    CLastModel model;
    IGlobal* host = kal::framework::Host();
    if (host && testCommand == kMixedTestCommand)
        return ForMixedModel(*host);
    const UINT command = ModelCommand(testCommand);
    CGUIBaseObj* stored = host && command ? host->GetSettings(command) : nullptr;
    if (auto* glm = dynamic_cast<CGLMTabData*>(stored)) {
        model = FromModelPage(*glm->GetGLMData());
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
