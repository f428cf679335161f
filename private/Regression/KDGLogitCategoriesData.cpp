#include "private/Regression/KDGLogitCategoriesData.h"

#include "framework/GUITabData.h"
#include "framework/HostLink.h"
#include "framework/ResourceUtil.h"
#include "host/IGlobal.h"
#include "host/KalAssertDlg.h"
#include "private/Regression/KDGLogitData.h"

#include <string>
#include <string_view>
#include <unordered_set>

IMPLEMENT_SERIAL(CLogitCategoriesData, CGUIBaseObj, 1)

namespace {

void ReportCategoriesAssertion(int line)
{
    CKalAssertDlg("Source/KDGLogitCategoriesData", line).DoPrint();
}

// The names of the variables the open data sheet treats as categorical.
std::unordered_set<std::u16string> SheetCategoricalNames()
{
    std::unordered_set<std::u16string> names;
    IGlobal* host = kal::framework::Host();
    IDataSheet* sheet = host ? host->GetActiveDataSheet() : nullptr;
    if (!sheet || !sheet->IsValid())
        return names;
    for (const int index : sheet->GetCategoricalIndexes())
        names.emplace(sheet->GetVariableName(index, 1).Str());
    return names;
}

CGUIDataVariable Unselected(CGUIDataVariable variable)
{
    variable.SetSelected(0);
    return variable;
}

} // namespace

void CLogitCategoriesData::FollowModel(const CGUIArray<CGUIDataVariable>& terms, CGUIArray<CGUIDataVariable>& source,
                                       CGUIArray<CGUIDataVariable>& categorical)
{
    std::unordered_set<std::u16string_view> termNames;
    termNames.reserve(static_cast<std::size_t>(terms.GetSize()));
    for (const auto& term : terms)
        termNames.insert(term.GetVariableName().Str());
    std::unordered_set<std::u16string_view> before;
    before.reserve(static_cast<std::size_t>(source.GetSize()));
    for (const auto& variable : source)
        before.insert(variable.GetVariableName().Str());

    CGUIArray<CGUIDataVariable> kept;
    std::unordered_set<std::u16string_view> declared;
    for (const auto& variable : categorical) {
        const std::u16string_view name = variable.GetVariableName().Str();
        if (termNames.count(name) && declared.insert(name).second)
            kept.Add(variable);
    }
    const std::unordered_set<std::u16string> marked = SheetCategoricalNames();
    for (const auto& term : terms) {
        const std::u16string_view name = term.GetVariableName().Str();
        if (declared.count(name))
            continue;
        const bool newlyMarked = !before.count(name) && marked.count(std::u16string(name));
        if (term.GetVariableType() == NmsEnum::VT_STRING || newlyMarked) {
            kept.Add(Unselected(term));
            declared.insert(name);
        }
    }

    CGUIArray<CGUIDataVariable> candidates;
    candidates.Reserve(static_cast<std::size_t>(terms.GetSize()));
    for (const auto& term : terms)
        candidates.Add(Unselected(term));
    categorical = std::move(kept);
    source = std::move(candidates);
}

const CLogitData* CLogitCategoriesData::FindModel() const
{
    CGUIBaseObj* parent = nullptr;
    GetParent(parent);
    const auto* tab = dynamic_cast<const CGUITabData*>(parent);
    if (!tab)
        return nullptr;
    for (const CGUIBaseObj* page : tab->ConstPages())
        if (const auto* model = dynamic_cast<const CLogitData*>(page))
            return model;
    return nullptr;
}

CString CLogitCategoriesData::CodingClause() const
{
    switch (CRadioUtil::GetRadioItem(kCodingRadio, m_CodingRadio)) {
    case CLogitCategoriesDlgIds::IDC_EFFECT: return u" / EFFECT";
    case CLogitCategoriesDlgIds::IDC_DUMMY: break;
    default: ReportCategoriesAssertion(__LINE__); return {};
    }
    switch (CRadioUtil::GetRadioItem(kReferenceRadio, m_ReferenceRadio)) {
    case CLogitCategoriesDlgIds::IDC_REF_LAST: return u" / DUMMY REF = LAST";
    case CLogitCategoriesDlgIds::IDC_REF_FIRST: return u" / DUMMY REF = FIRST";
    default: ReportCategoriesAssertion(__LINE__); return u" / DUMMY";
    }
}

void CLogitCategoriesData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    // Only what the model has as independent variables can be categorical;
    // a page on its own writes what it holds.
    const CLogitData* model = FindModel();
    CGUIArray<CGUIDataVariable> named;
    for (const auto& variable : m_CategoryList)
        if (!model || model->GetCondforCatnString(variable.GetVariableName()))
            named.Add(variable);
    if (named.GetSize() == 0)
        return;
    CString line(u"CATEGORY ");
    AddVariables(line, named, u" ");
    line += CodingClause();
    line += AddOnConditionCmd(u" MISS", m_MissingCheck);
    CLogitData::InsertBeforeModelLine(list, line);
}

void CLogitCategoriesData::FillListSource()
{
    if (const CLogitData* model = FindModel())
        FollowModel(model->GetIndependentVariableList(), m_SourceList, m_CategoryList);
}

void CLogitCategoriesData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_CodingRadio, m_ReferenceRadio, m_MissingCheck, m_SourceList, m_CategoryList);
}
