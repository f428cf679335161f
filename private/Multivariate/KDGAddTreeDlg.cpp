#include "private/Multivariate/KDGAddTreeDlg.h"

#include "framework/HostLink.h"
#include "framework/ResourceUtil.h"

IMPLEMENT_DYNAMIC(CAddTreeDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CAddTreeDlg, CGUIBaseDlg)
    ON_CBN_SELCHANGE(CAddTreeDlg::IDC_DISTANCE_COMBO, &CAddTreeDlg::OnRuleChange)
    ON_BN_CLICKED(CAddTreeDlg::IDC_SAVE_CHECK, &CAddTreeDlg::OnRuleChange)
    ON_BN_CLICKED(IDC_RESET, &CAddTreeDlg::OnReset)
END_MESSAGE_MAP()

CAddTreeDlg::CAddTreeDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_OBJECT_LIST,
                 .add = IDC_ADD_OBJECT,
                 .remove = IDC_REMOVE_OBJECT,
                 .menuCommand = ID_MENU_OBJECTS,
                 .menuLabel = IDC_OBJECT_LABEL,
                 .acceptsStrings = [] { return false; }});
}

BOOL CAddTreeDlg::OnInitDialog()
{
    if (CComboBox* combo = GetComboBoxWnd(IDC_DISTANCE_COMBO))
        CComboUtil::FillCombo(kal::multivariate::kDistanceList, *combo, 0);
    else
        ReportAssertion(__LINE__);
    CRadioUtil::FillRadio(this, CAddTreeData::kInputRadio);
    CRadioUtil::FillRadio(this, CAddTreeData::kTreeRadio);
    CGUIPageDlg::OnInitDialog();
    UpdateDependentWindows();
    return TRUE;
}

void CAddTreeDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (pDX->m_bSaveAndValidate)
        DDX_ControlWarn(pDX, IDC_OBJECT_LIST, m_Work.m_ObjectList.GetSize() < 3 ? kMsgTooFewObjects : 0);
}

void CAddTreeDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const bool matrix = kal::framework::IsMatrixData();
    for (const UINT id : {IDC_INPUT_GROUP, IDC_DISSIMILARITY_RADIO, IDC_SIMILARITY_RADIO})
        EnableCtrl(id, matrix);
    EnableCtrl(IDC_DISTANCE_LABEL, !matrix);
    EnableCtrl(IDC_DISTANCE_COMBO, !matrix);
    const bool power = !matrix && GetComboCurSel(IDC_DISTANCE_COMBO) == kal::multivariate::kMinkowskiEntry;
    EnableCtrl(IDC_POWER_LABEL, power);
    EnableCtrl(IDC_POWER_EDIT, power);
    EnableCtrl(IDC_SAVE_EDIT, IsDlgButtonChecked(IDC_SAVE_CHECK));
}

void CAddTreeDlg::OnRuleChange()
{
    UpdateDependentWindows();
}

void CAddTreeDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    ListCtrl(IDC_OBJECT_LIST).ResetOptions();
    UpdateDependentWindows();
}
