#include "private/Multivariate/KDGCorrelationsData.h"

#include "framework/BaseGui.h"
#include "framework/HostLink.h"
#include "framework/ResourceUtil.h"
#include "host/IGlobal.h"
#include "private/Multivariate/KDGCorrelationsTabData.h"

IMPLEMENT_SERIAL(CCorrelationsData, CGUIBaseObj, 1)

namespace {

using Ids = CCorrelationsDlgIds;

} // namespace

CString CCorrelationsData::GetMeasureKeyword() const
{
    // Each data type keeps its own choice in its own list of measures.
    const int chosen[] = {m_ContinuousDataCombo, m_DistanceCombo, m_RankOrderDataCombo, m_UnorderedDataCombo,
                          m_BinaryDataCombo};
    const UINT dataType = CRadioUtil::GetRadioItem(Ids::IDC_CONTINUOUS, m_ContinuousDataRadio);
    for (std::size_t i = 0; i < kDataTypes.size(); ++i)
        if (kDataTypes[i].radio == dataType)
            return CComboUtil::GetComboString(kDataTypes[i].combo, chosen[i], 0);
    return {};
}

void CCorrelationsData::GetParent(CCorrelationsTabData*& parent) const
{
    CGUIBaseObj* owner = nullptr;
    CGUIBaseObj::GetParent(owner);
    parent = dynamic_cast<CCorrelationsTabData*>(owner);
}

void CCorrelationsData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleCorr, list);
    if (m_SaveCheck)
        AddSaveCmd(m_SaveFileEdit, list, u"", u"");

    // "PEARSON X Y", or with two sets "PEARSON X Y*Z": rows by columns.
    CString line = GetMeasureKeyword() + u" ";
    AddVariables(line, m_RowVariables, u" ");
    if (CRadioUtil::GetRadioItem(Ids::IDC_ONE_SET, m_SetsRadio) == Ids::IDC_TWO_SETS) {
        line += u"*";
        AddVariables(line, m_ColumnVariables, u" ");
    }

    // The measure line is the tab's: its deletion clause depends on the
    // options page, and that page's tail joins the line.
    CCorrelationsTabData* owner = nullptr;
    GetParent(owner);
    if (!owner)
        return;
    const bool pairwise = CRadioUtil::GetRadioItem(Ids::IDC_LISTWISE, m_ListWiseRadio) == Ids::IDC_PAIRWISE;
    const bool continuous = CRadioUtil::GetRadioItem(Ids::IDC_CONTINUOUS, m_ContinuousDataRadio) == Ids::IDC_CONTINUOUS;
    // For continuous data EM and Hadi estimation deal with the missing
    // values themselves, while the options page is in use; other data
    // types do not consult them.
    const CCorrOptionsData& options = *owner->GetCorrOptionsData();
    const bool estimated = options.GetWindowState() && (options.GetEstimationCheck() || options.GetHadiCheck());
    const bool writePairwise = continuous ? pairwise && !estimated : pairwise;
    line += AddOnConditionCmd(u" / PAIRWISE", writePairwise ? 1 : 0);
    AppendCommandLine(list, line);
}

void CCorrelationsData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceVariables, &all, 1);

    // Without a valid sheet there is nothing to compare the choices with.
    IGlobal* host = kal::framework::Host();
    IDataSheet* sheet = host ? host->GetActiveDataSheet() : nullptr;
    if (!sheet || !sheet->IsValid())
        return;
    UpdateCtrlList(&m_RowVariables, &all, 0);
    UpdateCtrlList(&m_ColumnVariables, &all, 0);
}

void CCorrelationsData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    // The nine choices, the file name, then the three lists.
    kal::SerializeValues(ar, m_SaveCheck, m_SetsRadio, m_ContinuousDataRadio, m_ListWiseRadio, m_ContinuousDataCombo,
                         m_DistanceCombo, m_RankOrderDataCombo, m_UnorderedDataCombo, m_BinaryDataCombo, m_SaveFileEdit,
                         m_SourceVariables, m_RowVariables, m_ColumnVariables);
}
