#include "private/Missing/KDGMissingEstimateData.h"

#include "framework/ResourceUtil.h"
#include "host/KalAssertDlg.h"

IMPLEMENT_SERIAL(CMissingEstimateData, CGUIBaseObj, 1)

namespace {

constexpr const char* kSource = "Source/KDGMissingEstimateData";

} // namespace

UINT CMissingEstimateData::MethodItem() const
{
    return CComboUtil::GetComboItem(kMethodCombo, m_MethodCombo, 0);
}

UINT CMissingEstimateData::ModuleId() const
{
    switch (MethodItem()) {
    case kItemEm: return kModuleEm;
    case kItemRegression: return kModuleRegression;
    default: return kModuleDeletion;
    }
}

void CMissingEstimateData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    CString line(u"ESTIMATE /");
    line += u" " + CComboUtil::GetComboString(kMethodCombo, m_MethodCombo, 0);
    if (MethodItem() == kItemEm) {
        // The usual values are fresh holders, not the edits' own defaults.
        line += AddEditValueCmd(m_IterationsEdit, CGUIData<int>(1, kUsualIterations, kUsualIterations, 0, 1), 0,
                                u" ITER = ", 1);
        line += AddEditValueCmd(m_ConvergenceEdit, CGUIData<double>(1, kUsualConvergence, kUsualConvergence, 0, 1), 0,
                                u" CONV=", 1);
        line += AddOnConditionCmd(u" MCAR", m_McarCheck);
    }
    switch (CComboUtil::GetComboItem(kMatrixCombo, m_MatrixCombo, 0)) {
    case kItemCovariance: line += u" MATRIX = COVAR"; break;
    case kItemSscp: line += u" MATRIX = SSCP"; break;
    case kItemCorrelation: line += u" MATRIX = CORR"; break;
    default: CKalAssertDlg(kSource, __LINE__).DoPrint(); break;
    }
    AppendCommandLine(list, line);
}

void CMissingEstimateData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_MethodCombo, m_McarCheck, m_MatrixCombo, m_IterationsEdit, m_ConvergenceEdit);
}
