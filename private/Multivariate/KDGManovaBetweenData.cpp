#include "private/Multivariate/KDGManovaBetweenData.h"

#include "framework/BaseGui.h"
#include "framework/HostLink.h"
#include "framework/ResourceUtil.h"
#include "host/IGlobal.h"
#include "host/KalAssertDlg.h"
#include "private/Anova/KDGAnovaData.h"

IMPLEMENT_SERIAL(CManovaBetweenData, CGUIBaseObj, 1)

void CManovaBetweenData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleManova, list);

    CString depend(u"DEPEND ");
    AddVariables(depend, m_DependentList, u" ");
    AppendCommandLine(list, depend);
    AppendCommandLine(list, CAnovaData::CategoryLine(*this, m_FactorList, m_MissingValCheck));
    CString covar(u"COVAR ");
    AddVariables(covar, m_CovariateList, u" ");
    AppendCommandLine(list, covar);

    CString clauses = GetStatistics().Clause();
    switch (CRadioUtil::GetRadioItem(kContrastRadio, m_ContrastRadio)) {
    case CManovaBetweenDlgIds::IDC_CONTRAST_NONE: break;
    case CManovaBetweenDlgIds::IDC_CONTRAST_DIFFERENCE: clauses += u" CONTRAST = DIFFERENCE"; break;
    case CManovaBetweenDlgIds::IDC_CONTRAST_POLYNOMIAL: clauses += u" CONTRAST = POLYNOMIAL"; break;
    case CManovaBetweenDlgIds::IDC_CONTRAST_HELMERT: clauses += u" CONTRAST = HELMERT"; break;
    default: CKalAssertDlg("Source/KDGManovaBetweenData", __LINE__).DoPrint(); break;
    }
    clauses += AddOnConditionCmd(u" UNIVARIATE", m_UnivariateCheck);
    // "ESTIMATE / MTEST = ...": the keyword's own blank comes before the slash.
    AppendCommandLine(list, u"ESTIMATE " + AddOnConditionCmd(u"/" + clauses, !clauses.IsEmpty()));
}

void CManovaBetweenData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceList, &all, 1);

    IGlobal* host = kal::framework::Host();
    IDataSheet* sheet = host ? host->GetActiveDataSheet() : nullptr;
    if (!sheet || !sheet->IsValid())
        return;
    for (auto* list : {&m_DependentList, &m_FactorList, &m_CovariateList})
        UpdateCtrlList(list, &all, 0);
    const CGUIArray<CGUIDataVariable> categorical = CAnovaData::SheetCategoricalVariables();
    if (!categorical.IsEmpty())
        UpdateCtrlList(&m_FactorList, &categorical, 1);
}

void CManovaBetweenData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    // The flags and choices, then the lists.
    kal::SerializeValues(ar, m_MissingValCheck, m_UnivariateCheck, m_WilksCheck, m_PillaiCheck, m_HotellingCheck,
                         m_RoyCheck, m_ContrastRadio, m_SourceList, m_DependentList, m_FactorList, m_CovariateList);
}
