#include "private/Multivariate/KDGFactorData.h"

#include "framework/HostLink.h"
#include "framework/ResourceUtil.h"
#include "host/KalAssertDlg.h"
#include "private/Multivariate/KDGMultivarLists.h"

IMPLEMENT_SERIAL(CFactorData, CGUIBaseObj, 1)

void CFactorData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleFactor, list);
    // A matrix has no cases to score: its save box is disabled.
    const bool matrix = kal::framework::IsMatrixData();
    if (m_SaveCheck && !matrix)
        AddSaveCmd(m_SaveEdit, list, CComboUtil::GetComboString(kSaveCombo, m_SaveCombo, 0), u"");

    CString model(u"MODEL ");
    AddVariables(model, m_VariableList, u" ");
    model += AddEditValueCmd(m_CasesEdit, u"/N=", matrix ? 1 : 0);
    AppendCommandLine(list, model);

    CString estimate(u"ESTIMATE / ");
    switch (GetExtraction()) {
    case CFactorDlgIds::IDC_PCA_RADIO: estimate += u"PCA"; break;
    case CFactorDlgIds::IDC_IPA_RADIO: estimate += u"IPA"; break;
    case CFactorDlgIds::IDC_MLA_RADIO: estimate += u"MLA"; break;
    default: CKalAssertDlg("Source/KDGFactorData", __LINE__).DoPrint(); break;
    }
    const bool covariance =
        CRadioUtil::GetRadioItem(kMatrixRadio, m_MatrixRadio) == CFactorDlgIds::IDC_COVARIANCE_RADIO;
    estimate += AddOnConditionCmd(u" COVA", covariance ? 1 : 0);
    AppendCommandLine(list, estimate);
}

void CFactorData::FillListSource()
{
    kal::multivariate::RefreshLists(*this, m_SourceList, {&m_VariableList});
}

void CFactorData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_ExtractionRadio, m_MatrixRadio, m_SaveCheck, m_SaveCombo, m_SaveEdit, m_SourceList,
                         m_VariableList, m_CasesEdit);
}
