#include "private/Regression/KDGNonLinearData.h"

#include "framework/BaseGui.h"
#include "private/Regression/KDGExpression.h"

IMPLEMENT_SERIAL(CNonLinearData, CGUIBaseObj, 1)

namespace {

// The text of row `i` of a column, empty past its end.
CString Cell(const CGUIArray<CString>& column, int i)
{
    return i < column.GetSize() ? column[i] : CString();
}

} // namespace

void CNonLinearData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleNonlin, list);

    // Typed text goes on a line only without control characters: it can
    // never end the line or start another.
    CString model(u"MODEL ");
    AddVariables(model, m_DependentList, u" ");
    model += u" = ";
    if (!ContainsControlCharacter(m_ModelEdit))
        model += m_ModelEdit;
    AppendCommandLine(list, model);
    if (UsesLoss() && !m_LossEdit.IsEmpty() && !ContainsControlCharacter(m_LossEdit))
        AppendCommandLine(list, u"LOSS = " + m_LossEdit);

    std::vector<std::pair<CString, double>> starts;
    CString limits;
    const auto addLimit = [&limits](const CString& name, const char16_t* relation, double bound) {
        if (!limits.IsEmpty())
            limits += LimitsSeparator() + u" ";
        limits += name + relation + NumberText(bound);
    };
    for (int i = 0; i < m_Names.GetSize(); ++i) {
        const CString& name = m_Names[i];
        double start = 0;
        if (!CExpressionCheck::IsParameterName(name) || !ReadTypedNumber(Cell(m_Starts, i), start))
            continue;
        starts.emplace_back(name, start);
        double bound = 0;
        if (ReadTypedNumber(Cell(m_Lowers, i), bound))
            addLimit(name, u" >= ", bound);
        if (ReadTypedNumber(Cell(m_Uppers, i), bound))
            addLimit(name, u" <= ", bound);
    }
    if (!starts.empty())
        AppendCommandLine(list, u"PARAMETERS " + CValueList::Format(starts));
    if (!limits.IsEmpty())
        AppendCommandLine(list, u"LIMITS " + limits);
}

void CNonLinearData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceList, &all, 1);
}

void CNonLinearData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_SourceList, m_DependentList, m_ModelEdit, m_LossEdit, m_Names, m_Starts, m_Lowers,
                         m_Uppers);
}
