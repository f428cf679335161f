// The hypothesis test dialogs (template 101): CHypothesisTabDlg after a
// general linear model (2013) and CAnovaTestTabDlg after an analysis of
// variance (2009). Both are the hypothesis and error pages over the last
// model of their menu; the command they serve tells them which.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabData.h"
#include "framework/GUITabDlg.h"
#include "private/Anova/KDGHypothesisDlg.h"

class CHypothesisTabData : public CGUITabData {
    DECLARE_SERIAL(CHypothesisTabData)
public:
    CHypothesisTabData() { LinkPages(); }
    CHypothesisTabData(const CHypothesisTabData& other) : CHypothesisTabData() { *this = other; }
    CHypothesisTabData& operator=(const CHypothesisTabData&) = default;

    static CHypothesisData GetDefaultHypothesis() { return CHypothesisData(); }
    static CHypothesisErrorData GetDefaultHypothesisError() { return CHypothesisErrorData(); }
    CHypothesisData* GetHypothesisData() { return &m_HypothesisData; }
    CHypothesisErrorData* GetHypothesisErrorData() { return &m_ErrorData; }

    int GetAll(CHypothesisData& hypothesis, CHypothesisErrorData& error) const
    {
        return kal::CopyFieldsOut(*this, hypothesis, error);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CHypothesisData& hypothesis, const CHypothesisErrorData& error)
    {
        return kal::CopyFieldsIn(*this, hypothesis, error);
    }

    PageList Pages() override { return {&m_HypothesisData, &m_ErrorData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CHypothesisTabData>;
        return std::tuple{F::Page(&CHypothesisTabData::m_HypothesisData), F::Page(&CHypothesisTabData::m_ErrorData)};
    }

private:
    CHypothesisData m_HypothesisData;
    CHypothesisErrorData m_ErrorData;
};

// The settings of the ANOVA's hypothesis test: the same pages.
class CAnovaTestTabData : public CHypothesisTabData {
    DECLARE_SERIAL(CAnovaTestTabData)
};

class CHypothesisTabDlg : public CGUIDataDlg<CHypothesisTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CHypothesisTabDlg)
public:
    explicit CHypothesisTabDlg(CWnd* parent = nullptr);

    int GetAllDefault() override;
    const char* GetSourceFile() const override { return "Source/KDGHypothesisTabDlg"; }

private:
    CHypothesisDlg m_HypothesisDlg{this};
    CHypothesisErrorDlg m_ErrorDlg{this};
};

class CAnovaTestTabDlg : public CHypothesisTabDlg {
    DECLARE_DYNAMIC(CAnovaTestTabDlg)
public:
    using CHypothesisTabDlg::CHypothesisTabDlg;
};
