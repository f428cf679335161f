// CLogitSetsData: the choice-sets page of the logistic regression dialog.
// With "use choice sets" the model is a discrete choice model: the set
// variables tell for each case which alternatives it could choose, either
// as the codes of those alternatives or as one indicator per alternative.
// Writes "SET" with the set variables before the model page's "MODEL" line.
//
// While the page is in use it makes the model page write the "ESTIMATE"
// line with its confidence (ApplyTo, called when the dialog is confirmed).
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/logit.h"

class CLogitData;

class CLogitSetsData : public CGUIBaseObj {
    DECLARE_SERIAL(CLogitSetsData)
public:
    // The radio group of what the set variables hold, named by its first
    // button: codes (index 0) or indicators (index 1).
    static constexpr UINT kHoldRadio = CLogitSetsDlgIds::IDC_CODES;

    CLogitSetsData() { kal::ResetFields(*this); }

    static int GetDefaultUseSetsCheck() { return 0; }
    static int GetDefaultCodesRadio() { return 0; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& sets, int& useSetsCheck,
               int& holdRadio) const
    {
        return kal::CopyFieldsOut(*this, source, sets, useSetsCheck, holdRadio);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& sets, int useSetsCheck,
               int holdRadio)
    {
        return kal::CopyFieldsIn(*this, source, sets, useSetsCheck, holdRadio);
    }

    const CGUIArray<CGUIDataVariable>& GetSetList() const { return m_SetList; }
    // Whether the user asked for choice sets.
    bool IsInUse() const { return m_UseSetsCheck != 0; }
    // Tells the model page whether choice sets are in use: the page in use
    // (its window state) with "use choice sets" checked.
    void ApplyTo(CLogitData& model) const;

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The members in order, the controls of the choice-sets page (template
    // 2720) that show them, and their defaults.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CLogitSetsData>;
        using Ids = CLogitSetsDlgIds;
        using D = CLogitSetsData;
        return std::tuple{
            F::Source(&D::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&D::m_SetList, Ids::IDC_SET_LIST),
            F::Value(&D::m_UseSetsCheck, Ids::IDC_USE_SETS, &GetDefaultUseSetsCheck),
            F::Value(&D::m_HoldRadio, Ids::IDC_CODES, &GetDefaultCodesRadio),
        };
    }

private:
    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_SetList;
    int m_UseSetsCheck;
    int m_HoldRadio;
};
