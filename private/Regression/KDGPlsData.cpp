#include "private/Regression/KDGPlsData.h"

#include "framework/BaseGui.h"
#include "framework/ResourceUtil.h"

IMPLEMENT_SERIAL(CPlsData, CGUIBaseObj, 1)

bool CPlsData::IsCrossValidated() const
{
    return CRadioUtil::GetRadioItem(kComponentsRadio, m_ComponentsRadio) != kComponentsRadio;
}

void CPlsData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModulePls, list);
    CString model(u"MODEL ");
    AddVariables(model, m_ResponseList, u" ");
    model += u" = ";
    AddVariables(model, m_PredictorList, u"+");
    AppendCommandLine(list, model);
    if (m_SaveCheck)
        AddSaveCmd(m_SaveEdit, list, u"SCORES", u"");

    // With cross-validation the number of components is the largest tried,
    // and the folds are always written: they name the method.
    CString clauses = AddChangedValueCmd(u" COMPONENTS = ", m_ComponentsEdit);
    if (IsCrossValidated())
        clauses += u" CV = " + NumberText(m_FoldsEdit.m_Value);
    switch (CRadioUtil::GetRadioItem(kScaleRadio, m_ScaleRadio)) {
    case kCenter: clauses += u" SCALE = CENTER"; break;
    case kNoScaling: clauses += u" SCALE = NONE"; break;
    default: break; // standardised, the default
    }
    AppendCommandLine(list, clauses.IsEmpty() ? CString(u"ESTIMATE ") : u"ESTIMATE /" + clauses);
}

void CPlsData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceList, &all, 1);
}

void CPlsData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_SourceList, m_ResponseList, m_PredictorList, m_ComponentsRadio, m_ComponentsEdit,
                         m_FoldsEdit, m_ScaleRadio, m_SaveCheck, m_SaveEdit);
}
