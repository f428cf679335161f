#include "private/Regression/KDGSmoothData.h"

#include "framework/BaseGui.h"
#include "framework/ResourceUtil.h"

IMPLEMENT_SERIAL(CSmoothData, CGUIBaseObj, 1)

UINT CSmoothData::ChosenSmoother() const
{
    return CRadioUtil::GetRadioItem(kSmootherRadio, m_SmootherRadio);
}

void CSmoothData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleSmooth, list);
    CString model(u"MODEL ");
    AddVariables(model, m_ResponseList, u" ");
    model += u" = ";
    AddVariables(model, m_PredictorList, u" ");
    AppendCommandLine(list, model);
    if (m_SaveCheck)
        AddSaveCmd(m_SaveEdit, list, u"SMOOTHED", u"");

    // The smoother is always named; each of its numbers by the value rule.
    CString estimate(u"ESTIMATE /");
    switch (ChosenSmoother()) {
    case kSpline:
        estimate += u" SPLINE";
        estimate += AddChangedValueCmd(u" DF = ", m_DfEdit);
        break;
    case kKernel:
        estimate += u" KERNEL = " + CComboUtil::GetComboString(kKernelCombo, m_KernelCombo, 0);
        estimate += AddChangedValueCmd(u" SPAN = ", m_SpanEdit);
        break;
    default:
        estimate += u" LOWESS";
        estimate += AddChangedValueCmd(u" SPAN = ", m_SpanEdit);
        estimate += AddChangedValueCmd(u" ITER = ", m_IterationsEdit);
        break;
    }
    AppendCommandLine(list, estimate);
}

void CSmoothData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceList, &all, 1);
}

void CSmoothData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_SourceList, m_ResponseList, m_PredictorList, m_SmootherRadio, m_SpanEdit, m_DfEdit,
                         m_IterationsEdit, m_KernelCombo, m_SaveCheck, m_SaveEdit);
}
