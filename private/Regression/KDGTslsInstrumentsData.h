// CTslsInstrumentsData: the instruments page of two-stage least squares.
// The regressors of the model that are endogenous (correlated with the
// error), the instruments that stand in for them (variables outside the
// model), whether the first-stage regressions are shown, and a file for
// the residuals. Written as the "ENDOGENOUS" and "INSTRUMENTS" lines, an
// optional save line and the "ESTIMATE" line. The exogenous regressors and
// the constant are their own instruments; the host adds them.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/regression-models.h"

class CTslsInstrumentsData : public CGUIBaseObj {
    DECLARE_SERIAL(CTslsInstrumentsData)
public:
    CTslsInstrumentsData() { kal::ResetFields(*this); }

    static int GetDefaultZero() { return 0; }
    static CString GetDefaultSaveEdit() { return {}; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& endogenous,
               CGUIArray<CGUIDataVariable>& instruments, int& firstStage, int& saveCheck, CString& saveEdit) const
    {
        return kal::CopyFieldsOut(*this, source, endogenous, instruments, firstStage, saveCheck, saveEdit);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& endogenous,
               const CGUIArray<CGUIDataVariable>& instruments, int firstStage, int saveCheck, const CString& saveEdit)
    {
        return kal::CopyFieldsIn(*this, source, endogenous, instruments, firstStage, saveCheck, saveEdit);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the page (template 7140).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CTslsInstrumentsData>;
        using Ids = CTslsInstrumentsDlgIds;
        return std::tuple{
            F::Source(&CTslsInstrumentsData::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&CTslsInstrumentsData::m_EndogenousList, Ids::IDC_ENDOGENOUS_LIST),
            F::List(&CTslsInstrumentsData::m_InstrumentList, Ids::IDC_INSTRUMENT_LIST),
            F::Value(&CTslsInstrumentsData::m_FirstStageCheck, Ids::IDC_FIRST_STAGE, &GetDefaultZero),
            F::Value(&CTslsInstrumentsData::m_SaveCheck, Ids::IDC_SAVE_CHECK, &GetDefaultZero),
            F::Value(&CTslsInstrumentsData::m_SaveEdit, Ids::IDC_SAVE_EDIT, &GetDefaultSaveEdit)
                .RequiredBy(Ids::IDC_SAVE_CHECK),
        };
    }

private:
    friend class CTslsInstrumentsDlg; // reads the lists it validates

    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_EndogenousList;
    CGUIArray<CGUIDataVariable> m_InstrumentList;
    int m_FirstStageCheck;
    int m_SaveCheck;
    CString m_SaveEdit;
};
