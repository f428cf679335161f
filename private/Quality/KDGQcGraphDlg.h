// CQcGraphDlg: the base of the quality graphs' dialogs (box-and-whisker,
// histogram, run chart). Each template names its lists alike: the source
// list, the measurements (numeric, one graph each) and, where the graph has
// them, the subgroup or grouping variables. The base declares those lists,
// refuses OK without a measurement, and resets them; a graph adds its own
// options and rules.
#pragma once

#include "framework/GUIPageDlg.h"

template <class TData, class TIds>
class CQcGraphDlg : public CGUIPageDlg<TData>, public TIds {
public:
    // The source list's context-menu entries.
    enum : UINT { ID_MENU_MEASURE = 33061, ID_MENU_GROUP = 33062 };
    static constexpr UINT kMsgNoMeasurement = 12940;

    explicit CQcGraphDlg(CWnd* parent) : CGUIPageDlg<TData>(TIds::IDD, parent)
    {
        this->SetSourceList(TIds::IDC_SOURCE_LIST);
        this->AddRoleList({.list = TIds::IDC_MEASURE_LIST,
                           .add = TIds::IDC_ADD_MEASURE,
                           .remove = TIds::IDC_REMOVE_MEASURE,
                           .menuCommand = ID_MENU_MEASURE,
                           .menuLabel = TIds::IDC_MEASURE_LABEL,
                           .acceptsStrings = [] { return false; }});
        if constexpr (kHasGroups)
            this->AddRoleList({.list = TIds::IDC_GROUP_LIST,
                               .add = TIds::IDC_ADD_GROUP,
                               .remove = TIds::IDC_REMOVE_GROUP,
                               .menuCommand = ID_MENU_GROUP,
                               .menuLabel = TIds::IDC_GROUP_LABEL});
    }

    void DoDataExchange(CDataExchange* pDX) override
    {
        CGUIPageDlg<TData>::DoDataExchange(pDX);
        if (pDX->m_bSaveAndValidate)
            this->DDX_ControlWarn(pDX, TIds::IDC_MEASURE_LIST,
                                  this->m_Work.Measurements().IsEmpty() ? kMsgNoMeasurement : 0);
    }
    void OnReset() override
    {
        CGUIPageDlg<TData>::OnReset();
        this->ListCtrl(TIds::IDC_MEASURE_LIST).ResetOptions();
        if constexpr (kHasGroups)
            this->ListCtrl(TIds::IDC_GROUP_LIST).ResetOptions();
        this->UpdateDependentWindows();
    }

private:
    static constexpr bool kHasGroups = requires { TIds::IDC_GROUP_LIST; };
};
