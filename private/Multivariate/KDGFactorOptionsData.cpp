#include "private/Multivariate/KDGFactorOptionsData.h"

#include "framework/BootStrapData.h"
#include "framework/ResourceUtil.h"
#include "private/Multivariate/KDGFactorTabData.h"

IMPLEMENT_SERIAL(CFactorOptionsData, CGUIBaseObj, 1)

UINT CFactorOptionsData::GetRotation() const
{
    return CRadioUtil::GetRadioItem(kRotationRadio, m_RotationRadio);
}

bool CFactorOptionsData::IterationsInUse() const
{
    if (GetRotation() != kNone)
        return true;
    CGUIBaseObj* parent = nullptr;
    GetParent(parent);
    const auto* tab = dynamic_cast<const CFactorTabData*>(parent);
    return tab && CFactorData::IsIterative(tab->GetFactorData()->GetExtraction());
}

void CFactorOptionsData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    CString clause;
    if (CRadioUtil::GetRadioItem(kCriterionRadio, m_CriterionRadio) == CFactorOptionsDlgIds::IDC_NUMBER_RADIO)
        clause += AddEditValueCmd(m_NumberEdit, u" NUMBER = ", 1);
    else
        clause += AddChangedValueCmd(u" EIGEN = ", m_EigenEdit);

    const UINT rotation = GetRotation();
    switch (rotation) {
    case kOblimin: clause += u" ROTATE = OBLIMIN"; break;
    case kOrthomax: clause += u" ROTATE = ORTHOMAX"; break;
    case kQuartimax: clause += u" ROTATE = QUARTIMAX"; break;
    case kVarimax: clause += u" ROTATE = VARIMAX"; break;
    case kEquamax: clause += u" ROTATE = EQUAMAX"; break;
    default: break;
    }
    // The parameter as a plain number against the rotation's usual value.
    clause +=
        AddEditValueCmd(m_GammaEdit.m_Value, UsualParameter(rotation), 0, u" GAMMA=", HasParameter(rotation) ? 1 : 0);
    if (IterationsInUse()) {
        clause += AddChangedValueCmd(u" ITER = ", m_IterEdit);
        clause += AddChangedValueCmd(u" CONV=", m_ConvEdit);
    }
    clause += AddOnConditionCmd(u" SORT", m_SortCheck);
    AttachToEstimateLine(list, clause, false);
}

void CFactorOptionsData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_CriterionRadio, m_RotationRadio, m_SortCheck, m_EigenEdit, m_NumberEdit, m_GammaEdit,
                         m_IterEdit, m_ConvEdit);
}
