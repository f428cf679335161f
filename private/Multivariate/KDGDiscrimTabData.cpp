#include "private/Multivariate/KDGDiscrimTabData.h"

#include "framework/BaseGui.h"
#include "host/KalAssertDlg.h"

IMPLEMENT_SERIAL(CDiscrimData, CGUIBaseObj, 1)
IMPLEMENT_SERIAL(CDiscrimTabData, CGUITabData, 1)

kal::discrim::Priors CDiscrimData::GetPriors() const
{
    switch (CRadioUtil::GetRadioItem(kPriorsRadio, m_PriorsRadio)) {
    case CDiscrimDlgIds::IDC_PRIORS_SAMPLE: return kal::discrim::Priors::Sample;
    case CDiscrimDlgIds::IDC_PRIORS_TYPED: return kal::discrim::Priors::Typed;
    default: return kal::discrim::Priors::Equal;
    }
}

void CDiscrimData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kal::discrim::kModuleDiscrim, list);
    CString options = AddOnConditionCmd(u" QUADRATIC", m_QuadraticCheck);
    options += AddOnConditionCmd(u" CROSSVALIDATE", m_CrossValidateCheck);
    AppendCommandLine(list, kal::discrim::ModelLine(*this, m_GroupList, m_PredictorList, options));
    AppendCommandLine(list, kal::discrim::PriorsLine(GetPriors(), m_PriorsEdit));
    if (m_SaveCheck)
        AddSaveCmd(m_SaveEdit, list, CComboUtil::GetComboString(CDiscrimDlgIds::IDC_SAVE_COMBO, m_SaveCombo, 0), u"");
}

void CDiscrimData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceList, &all, 1);
    if (all.IsEmpty())
        return;
    UpdateCtrlList(&m_GroupList, &all, 0);
    UpdateCtrlList(&m_PredictorList, &all, 0);
}

void CDiscrimData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    // The flags and choices, the texts, then the lists.
    kal::SerializeValues(ar, m_QuadraticCheck, m_PriorsRadio, m_CrossValidateCheck, m_SaveCheck, m_SaveCombo,
                         m_PriorsEdit, m_SaveEdit, m_SourceList, m_GroupList, m_PredictorList);
}
