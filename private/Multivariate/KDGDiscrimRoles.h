// What the discriminant analyses (the tab of command 2021 and the robust
// dialog of command 2022) share: one grouping variable whose groups the
// cases are classified into, numeric predictors, linear or quadratic
// functions, prior probabilities of the groups (equal, the sample's shares,
// or typed), a cross-validated classification and the saved results.
//
// Both write "DISCRIM", the "MODEL group = predictors" line with its
// options, an optional "PRIORS" line and an optional save line; their
// templates name the controls of these roles alike, so that one page base
// serves both.
#pragma once

#include "framework/GUIBaseObj.h"
#include "framework/GUIPageDlg.h"
#include "framework/ResourceUtil.h"

namespace kal::discrim {

inline constexpr UINT kModuleDiscrim = 12960;
inline constexpr UINT kMsgNoGroup = 6410;
inline constexpr UINT kMsgNoPredictor = 6411;
inline constexpr UINT kMsgPriors = 6412;
inline constexpr UINT kMsgPriorsSum = 6413;
// Typed priors may differ from 1 by this much in their sum (four decimals
// typed per group leave rounding of this order).
inline constexpr double kPriorsTolerance = 1e-4;

enum class Priors { Equal, Sample, Typed };

// "MODEL G = X1+X2", then " / " and `options` (each with its leading blank)
// when there are any.
CString ModelLine(const CGUIBaseObj& writer, const CGUIArray<CGUIDataVariable>& group,
                  const CGUIArray<CGUIDataVariable>& predictors, const CString& options);
// "PRIORS / SAMPLE", "PRIORS 0.2 0.8", or an empty text for equal priors
// (and for typed ones that cannot be written).
CString PriorsLine(Priors priors, const CString& typed);
// The message refusing typed priors, or 0: at least two numbers above 0
// and at most 1, separated by blanks, summing to 1.
UINT PriorsProblem(const CString& typed);

} // namespace kal::discrim

// The page base of the discriminant analyses: the two role lists and the
// rules of the priors and the save file. TIds is the template's id struct.
template <class TData, class TIds>
class CDiscrimRolesDlg : public CGUIPageDlg<TData>, public TIds {
public:
    // The source list's context-menu entries.
    enum : UINT { ID_MENU_GROUP = 33001, ID_MENU_PREDICTOR = 33002 };

    explicit CDiscrimRolesDlg(CWnd* parent) : CGUIPageDlg<TData>(TIds::IDD, parent)
    {
        this->SetSourceList(TIds::IDC_SOURCE_LIST);
        this->AddRoleList({.list = TIds::IDC_GROUP_LIST,
                           .add = TIds::IDC_ADD_GROUP,
                           .remove = TIds::IDC_REMOVE_GROUP,
                           .menuCommand = ID_MENU_GROUP,
                           .menuLabel = TIds::IDC_GROUP_LABEL,
                           .maxItems = 1});
        this->AddRoleList({.list = TIds::IDC_PREDICTOR_LIST,
                           .add = TIds::IDC_ADD_PREDICTOR,
                           .remove = TIds::IDC_REMOVE_PREDICTOR,
                           .menuCommand = ID_MENU_PREDICTOR,
                           .menuLabel = TIds::IDC_PREDICTOR_LABEL,
                           .acceptsStrings = [] { return false; }});
    }

    BOOL OnInitDialog() override
    {
        if (CComboBox* combo = this->GetComboBoxWnd(TIds::IDC_SAVE_COMBO))
            CComboUtil::FillCombo(TIds::IDC_SAVE_COMBO, *combo, 0);
        else
            this->ReportAssertion(__LINE__);
        return CGUIPageDlg<TData>::OnInitDialog();
    }
    void DoDataExchange(CDataExchange* pDX) override
    {
        CGUIPageDlg<TData>::DoDataExchange(pDX);
        if (!pDX->m_bSaveAndValidate)
            return;
        const TData& work = this->m_Work;
        this->DDX_ControlWarn(pDX, TIds::IDC_GROUP_LIST, work.GetGroupList().IsEmpty() ? kal::discrim::kMsgNoGroup : 0);
        this->DDX_ControlWarn(pDX, TIds::IDC_PREDICTOR_LIST,
                              work.GetPredictorList().IsEmpty() ? kal::discrim::kMsgNoPredictor : 0);
        if (work.GetPriors() == kal::discrim::Priors::Typed)
            this->DDX_ControlWarn(pDX, TIds::IDC_PRIORS_EDIT, kal::discrim::PriorsProblem(work.GetPriorsText()));
    }
    void UpdateDependentWindows() override
    {
        CGUIPageDlg<TData>::UpdateDependentWindows();
        this->EnableCtrl(TIds::IDC_PRIORS_EDIT, this->IsDlgButtonChecked(TIds::IDC_PRIORS_TYPED) != 0);
        const bool save = this->IsDlgButtonChecked(TIds::IDC_SAVE_CHECK) != 0;
        this->EnableCtrl(TIds::IDC_SAVE_COMBO, save);
        this->EnableCtrl(TIds::IDC_SAVE_EDIT, save);
    }
    void OnReset() override
    {
        CGUIPageDlg<TData>::OnReset();
        for (const UINT list : {TIds::IDC_GROUP_LIST, TIds::IDC_PREDICTOR_LIST})
            this->ListCtrl(list).ResetOptions();
        this->UpdateDependentWindows();
    }

protected:
    void OnChoice() { this->UpdateDependentWindows(); }
};
