#include "private/Multivariate/KDGCoranOptionsData.h"

#include "framework/BootStrapData.h"
#include "framework/ResourceUtil.h"
#include "framework/StringUtil.h"

IMPLEMENT_SERIAL(CCoranOptionsData, CGUIBaseObj, 1)

void CCoranOptionsData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    CString clause = AddChangedValueCmd(u" DIMENSIONS = ", m_DimensionsEdit);
    if (m_NormalizationCombo != GetDefaultNormalizationCombo())
        clause += u" NORMALIZE = " + CComboUtil::GetComboString(kNormalizationList, m_NormalizationCombo, 0);
    AttachToEstimateLine(list, clause, false);

    const int estimate = CStringUtil::SearchStringAtBeginning(list, u"ESTIMATE");
    if (!m_SaveCheck || estimate < 0)
        return;
    CLIST<CCmdInfo> save;
    AddSaveCmd(m_SaveEdit, save, u"", u"");
    if (!save.IsEmpty())
        CStringUtil::InsertStringAt(list, save.GetAt(0).m_strCommand, estimate);
}

void CCoranOptionsData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_NormalizationCombo, m_SaveCheck, m_SaveEdit, m_DimensionsEdit);
}
