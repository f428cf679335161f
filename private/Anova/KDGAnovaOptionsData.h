// CAnovaOptionsData: normality and homogeneity tests and the type of sums
// of squares. Writes no line of its own: its clause joins the "ESTIMATE"
// line. A value counts only while the page had its control enabled at the
// last OK (the enable states, which are neither copied by GetAll/SetAll
// nor stored).
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/anova.h"

class CAnovaOptionsData : public CGUIBaseObj {
    DECLARE_SERIAL(CAnovaOptionsData)
public:
    static constexpr UINT kSsTypeRadio = 1084; // type I, II, III: 1084, 1085, 1086

    CAnovaOptionsData() { kal::ResetFields(*this); }

    static int GetDefaultKsCheck() { return 0; }
    static int GetDefaultAdCheck() { return 0; }
    static int GetDefaultSwCheck() { return 0; }
    static int GetDefaultLeveneCheck() { return 0; }
    static int GetDefaultBartlettCheck() { return 0; }
    static int GetDefaultSsTypeIRadio() { return 2; }

    int GetAll(int& ks, int& ad, int& sw, int& levene, int& ssRadio) const
    {
        return kal::CopyFieldsOut(*this, ks, ad, sw, levene, ssRadio);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(int ks, int ad, int sw, int levene, int ssRadio)
    {
        return kal::CopyFieldsIn(*this, ks, ad, sw, levene, ssRadio);
    }
    int SetAllCheckState(int ks, int ad, int sw, int levene, int ss);

    // The clause alone, without the "/" that may precede it.
    CString GetClause() const;

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    // The page's check boxes and radio group (template 2007), in order.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CAnovaOptionsData>;
        using Ids = CAnovaOptionsDlgIds;
        return std::tuple{
            F::Value(&CAnovaOptionsData::m_KsCheck, Ids::IDC_KS, &GetDefaultKsCheck),
            F::Value(&CAnovaOptionsData::m_AdCheck, Ids::IDC_AD, &GetDefaultAdCheck),
            F::Value(&CAnovaOptionsData::m_SwCheck, Ids::IDC_SW, &GetDefaultSwCheck),
            F::Value(&CAnovaOptionsData::m_LeveneCheck, Ids::IDC_LEVENE, &GetDefaultLeveneCheck),
            F::Value(&CAnovaOptionsData::m_SsTypeRadio, Ids::IDC_SS_TYPE1, &GetDefaultSsTypeIRadio),
        };
    }

private:
    int m_KsCheck;
    int m_AdCheck;
    int m_SwCheck;
    int m_LeveneCheck;
    int m_SsTypeRadio;
    // Enable states at the last OK; 0 until the page has been confirmed.
    int m_KsState = 0;
    int m_AdState = 0;
    int m_SwState = 0;
    int m_LeveneState = 0;
    int m_SsState = 0;
};
