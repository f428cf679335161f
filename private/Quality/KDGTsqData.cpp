#include "private/Quality/KDGTsqData.h"

#include "framework/BaseGui.h"
#include "framework/ResourceUtil.h"
#include "private/Anova/KDGMatrixText.h"
#include "private/Quality/KDGChartLine.h"

IMPLEMENT_SERIAL(CTsqData, CGUIBaseObj, 1)

bool CTsqData::IsKnown() const
{
    return CRadioUtil::GetRadioItem(kSourceRadio, m_SourceRadio) == kItemKnown;
}

CString CTsqData::MatrixClause(const CString& keyword, const CString& text)
{
    const CMatrixText::Rows rows = CMatrixText::Parse(text);
    if (rows.empty() || ContainsControlCharacter(text) || CMatrixText::Check(rows) != CMatrixText::Problem::None)
        return {};
    return keyword + u"[ " + CMatrixText::Format(rows) + u" ]";
}

void CTsqData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleQc, list);

    CString line = kal::quality::ChartLineHead(*this, u"TSQUARE ", m_MeasureVariables, m_GroupVariables);
    if (IsKnown()) {
        line += MatrixClause(u" MEAN=", m_MeanEdit);
        line += MatrixClause(u" COVAR=", m_CovarianceEdit);
    }
    line += kal::quality::LimitsClause(*this, m_PLimitsLowerEdit, m_PLimitsUpperEdit, u" PLIMITS=", 1);
    line += AddOnConditionCmd(u" DECOMPOSE", m_DecomposeCheck);
    kal::quality::PushChartLine(list, line, u"TSQUARE ");
}

void CTsqData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceVariables, &all, 1);
}

void CTsqData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_SourceRadio, m_DecomposeCheck, m_MeanEdit, m_CovarianceEdit, m_SourceVariables,
                         m_MeasureVariables, m_GroupVariables, m_PLimitsLowerEdit, m_PLimitsUpperEdit);
}
