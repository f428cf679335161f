#include "private/Multivariate/KDGRdiscrimData.h"

#include "framework/BaseGui.h"
#include "host/KalAssertDlg.h"

IMPLEMENT_SERIAL(CRdiscrimData, CGUIBaseObj, 1)

kal::discrim::Priors CRdiscrimData::GetPriors() const
{
    switch (CRadioUtil::GetRadioItem(kPriorsRadio, m_PriorsRadio)) {
    case CRdiscrimDlgIds::IDC_PRIORS_SAMPLE: return kal::discrim::Priors::Sample;
    case CRdiscrimDlgIds::IDC_PRIORS_TYPED: return kal::discrim::Priors::Typed;
    default: return kal::discrim::Priors::Equal;
    }
}

void CRdiscrimData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kal::discrim::kModuleDiscrim, list);
    CString options;
    switch (CRadioUtil::GetRadioItem(kMethodRadio, m_MethodRadio)) {
    case CRdiscrimDlgIds::IDC_MCD: options = u" ROBUST = MCD" + AddChangedValueCmd(u" TRIM = ", m_TrimEdit); break;
    case CRdiscrimDlgIds::IDC_S_ESTIMATE:
        options = u" ROBUST = S" + AddChangedValueCmd(u" BREAKDOWN = ", m_BreakdownEdit);
        break;
    default: CKalAssertDlg("Source/KDGRdiscrimData", __LINE__).DoPrint(); break;
    }
    options += AddOnConditionCmd(u" QUADRATIC", m_QuadraticCheck);
    options += AddOnConditionCmd(u" CROSSVALIDATE", m_CrossValidateCheck);
    AppendCommandLine(list, kal::discrim::ModelLine(*this, m_GroupList, m_PredictorList, options));
    AppendCommandLine(list, kal::discrim::PriorsLine(GetPriors(), m_PriorsEdit));
    if (m_SaveCheck)
        AddSaveCmd(m_SaveEdit, list, CComboUtil::GetComboString(CRdiscrimDlgIds::IDC_SAVE_COMBO, m_SaveCombo, 0), u"");
    AppendCommandLine(list, u"ESTIMATE");
}

void CRdiscrimData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceList, &all, 1);
    if (all.IsEmpty())
        return;
    UpdateCtrlList(&m_GroupList, &all, 0);
    UpdateCtrlList(&m_PredictorList, &all, 0);
}

void CRdiscrimData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    // The flags and choices, the texts, the lists, then the two fractions.
    kal::SerializeValues(ar, m_QuadraticCheck, m_MethodRadio, m_PriorsRadio, m_CrossValidateCheck, m_SaveCheck,
                         m_SaveCombo, m_PriorsEdit, m_SaveEdit, m_SourceList, m_GroupList, m_PredictorList, m_TrimEdit,
                         m_BreakdownEdit);
}
