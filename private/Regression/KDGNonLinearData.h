// CNonLinearData: the model page of nonlinear regression (2030) and of
// nonlinear regression with a loss function (2031). The dependent variable,
// the model typed as the right side of "dependent = ...", for 2031 the loss
// typed over the model's prediction, and the parameters: a name, a start
// value and optional lower and upper bounds each, as the grid of the page
// holds them (texts; the page checks them at OK).
//
// Written as the module line, "MODEL dependent = expression", for 2031
// "LOSS = expression", "PARAMETERS A = 1, B = 0.5" and, when any bound is
// given, "LIMITS B >= 0, B <= 10". The page is told its owner by id: the
// loss belongs to owner 2203.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/nonlinear.h"

#include <vector>

class CNonLinearData : public CGUIBaseObj {
    DECLARE_SERIAL(CNonLinearData)
public:
    static constexpr UINT kModuleNonlin = 12985;
    // The caption id under which the page edits a loss function too.
    static constexpr UINT kLossOwner = 2203;
    // The names the loss may use besides variables and parameters: the
    // model's prediction and the residual.
    static std::vector<CString> LossNames() { return {u"ESTIMATE", u"RESIDUAL"}; }

    CNonLinearData() { kal::ResetFields(*this); }

    static CString GetDefaultModelEdit() { return {}; }
    static CString GetDefaultLossEdit() { return {}; }
    static CGUIArray<CString> GetDefaultParameters() { return {}; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& dependent, CString& model,
               CString& loss, CGUIArray<CString>& names, CGUIArray<CString>& starts, CGUIArray<CString>& lowers,
               CGUIArray<CString>& uppers) const
    {
        return kal::CopyFieldsOut(*this, source, dependent, model, loss, names, starts, lowers, uppers);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& dependent,
               const CString& model, const CString& loss, const CGUIArray<CString>& names,
               const CGUIArray<CString>& starts, const CGUIArray<CString>& lowers, const CGUIArray<CString>& uppers)
    {
        return kal::CopyFieldsIn(*this, source, dependent, model, loss, names, starts, lowers, uppers);
    }

    bool UsesLoss() const { return GetOwnerID() == kLossOwner; }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The page's controls (template 7600); the parameters are the columns
    // of its grid, exchanged by the page.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CNonLinearData>;
        using Ids = CNonLinearDlgIds;
        using D = CNonLinearData;
        return std::tuple{
            F::Source(&D::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&D::m_DependentList, Ids::IDC_DEPENDENT_LIST),
            F::Value(&D::m_ModelEdit, Ids::IDC_MODEL_EDIT, &GetDefaultModelEdit),
            F::Value(&D::m_LossEdit, Ids::IDC_LOSS_EDIT, &GetDefaultLossEdit),
            F::Value(&D::m_Names, 0, &GetDefaultParameters),
            F::Value(&D::m_Starts, 0, &GetDefaultParameters),
            F::Value(&D::m_Lowers, 0, &GetDefaultParameters),
            F::Value(&D::m_Uppers, 0, &GetDefaultParameters),
        };
    }

private:
    friend class CNonLinearDlg; // exchanges the grid and checks the texts

    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_DependentList;
    CString m_ModelEdit;
    CString m_LossEdit;
    CGUIArray<CString> m_Names;
    CGUIArray<CString> m_Starts;
    CGUIArray<CString> m_Lowers;
    CGUIArray<CString> m_Uppers;
};
