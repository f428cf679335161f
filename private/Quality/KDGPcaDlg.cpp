#include "private/Quality/KDGPcaDlg.h"

#include "framework/ResourceUtil.h"
#include "private/Quality/KDGControlLimits.h"

IMPLEMENT_DYNAMIC(CPcaDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CPcaDlg, CGUIBaseDlg)
    ON_BN_CLICKED(IDC_RESET, &CPcaDlg::OnReset)
END_MESSAGE_MAP()

CPcaDlg::CPcaDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_MEASURE_LIST,
                 .add = IDC_ADD_MEASURE,
                 .remove = IDC_REMOVE_MEASURE,
                 .menuCommand = ID_MENU_MEASURE,
                 .menuLabel = IDC_MEASURE_LABEL,
                 .acceptsStrings = [] { return false; }});
    AddRoleList({.list = IDC_GROUP_LIST,
                 .add = IDC_ADD_GROUP,
                 .remove = IDC_REMOVE_GROUP,
                 .menuCommand = ID_MENU_GROUP,
                 .menuLabel = IDC_GROUP_LABEL});
}

BOOL CPcaDlg::OnInitDialog()
{
    CGUIPageDlg::OnInitDialog();
    CRadioUtil::FillRadio(this, CPcaData::kSigmaRadio);
    return TRUE;
}

void CPcaDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    using kal::quality::IsGiven;
    DDX_ControlWarn(pDX, IDC_MEASURE_LIST, m_Work.m_MeasureVariables.IsEmpty() ? kMsgNoMeasurement : 0);
    const bool lower = IsGiven(m_Work.m_LowerEdit);
    const bool upper = IsGiven(m_Work.m_UpperEdit);
    DDX_ControlWarn(pDX, IDC_LSL_EDIT, lower || upper ? 0 : kMsgNoLimit);
    DDX_ControlWarn(pDX, IDC_USL_EDIT,
                    kal::quality::LimitsOrder(m_Work.m_LowerEdit, m_Work.m_UpperEdit, kMsgLimitsOrder));
    DDX_ControlWarn(
        pDX, IDC_TARGET_EDIT,
        kal::quality::TargetWithin(m_Work.m_LowerEdit, m_Work.m_UpperEdit, m_Work.m_TargetEdit, kMsgOutOfRange));
}

void CPcaDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    ListCtrl(IDC_MEASURE_LIST).ResetOptions();
    ListCtrl(IDC_GROUP_LIST).ResetOptions();
    UpdateDependentWindows();
}
