#include "private/Regression/KDGLogitCategoriesDlg.h"

#include "framework/GUITabDlg.h"
#include "framework/ResourceUtil.h"
#include "private/Regression/KDGLogitDlg.h"

IMPLEMENT_DYNAMIC(CLogitCategoriesDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CLogitCategoriesDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CLogitCategoriesDlg::IDC_EFFECT, &CLogitCategoriesDlg::OnCodingRadio)
    ON_BN_CLICKED(CLogitCategoriesDlg::IDC_DUMMY, &CLogitCategoriesDlg::OnCodingRadio)
END_MESSAGE_MAP()

CLogitCategoriesDlg::CLogitCategoriesDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_CATEGORY_LIST,
                 .add = IDC_ADD_CATEGORY,
                 .remove = IDC_REMOVE_CATEGORY,
                 .menuCommand = ID_MENU_CATEGORY,
                 .menuLabel = IDC_CATEGORY_LABEL,
                 .removeEnabled = [this] {
                     return !CGUIListCtrl::IsSelectetVariableTypePresent(&ListCtrl(IDC_CATEGORY_LIST),
                                                                         NmsEnum::VT_STRING);
                 }});
}

BOOL CLogitCategoriesDlg::OnInitDialog()
{
    CRadioUtil::FillRadio(this, CLogitCategoriesData::kCodingRadio);
    CRadioUtil::FillRadio(this, CLogitCategoriesData::kReferenceRadio);
    return CGUIBaseDlg::OnInitDialog();
}

void CLogitCategoriesDlg::FollowModelPage()
{
    CGUITabDlg* tab = GetTabDlg();
    CLogitDlg* model = tab ? tab->FindPage<CLogitDlg>() : nullptr;
    if (!model || !model->IsCreated())
        return;
    CGUIListCtrl& sourceList = ListCtrl(IDC_SOURCE_LIST);
    CGUIListCtrl& categoryList = ListCtrl(IDC_CATEGORY_LIST);
    const CGUIArray<CGUIDataVariable> source = sourceList.GetVariables();
    const CGUIArray<CGUIDataVariable> categorical = categoryList.GetVariables();
    CGUIArray<CGUIDataVariable> newSource = source;
    CGUIArray<CGUIDataVariable> newCategorical = categorical;
    CLogitCategoriesData::FollowModel(model->GetIndependentVariables(), newSource, newCategorical);
    // Lists that did not change keep their selection.
    if (!CGUIBaseObj::CompareTwoListCtrlArrays(newSource, source))
        sourceList.SetVariables(newSource);
    if (!CGUIBaseObj::CompareTwoListCtrlArrays(newCategorical, categorical))
        categoryList.SetVariables(newCategorical);
}

void CLogitCategoriesDlg::UpdateDependentWindows()
{
    FollowModelPage();
    CGUIBaseDlg::UpdateDependentWindows();
    OnCodingRadio();
}

void CLogitCategoriesDlg::OnCodingRadio()
{
    const bool dummy = IsDlgButtonChecked(IDC_DUMMY) != 0;
    for (const UINT id : {IDC_REFERENCE_LABEL, IDC_REF_LAST, IDC_REF_FIRST})
        EnableCtrl(id, dummy);
}

void CLogitCategoriesDlg::OnReset()
{
    CGUIBaseDlg::OnReset();
    ListCtrl(IDC_CATEGORY_LIST).ResetOptions();
}
