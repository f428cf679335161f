// The two pages of a hypothesis test over the last model (CLastModel).
//
// CHypothesisDlg (template 2180): an effect of the model with its contrast,
// or linear combinations of its parameters; the grid holds the custom
// contrasts' coefficients or the combinations, a row each.
// CHypothesisErrorDlg (template 2200): the D matrix and the error term.
// OK checks what the lines would carry: a model to test, effects and error
// terms of variables the data sheet has, matrices of numbers of fitting
// sizes, contrasts that sum to zero.
#pragma once

#include "framework/GUIPageDlg.h"
#include "framework/KVGridMultiCtrlBaseDlg.h"
#include "private/Anova/KDGHypothesisData.h"
#include "private/Anova/KDGLastModel.h"

class CHypothesisDlg : public CGUIPageDlg<CHypothesisData, CKVGridMultiCtrlBaseDlg>, public CHypothesisDlgIds {
    DECLARE_DYNAMIC(CHypothesisDlg)
public:
    static constexpr UINT kMsgNoModel = 2104;
    static constexpr UINT kMsgUnknownVariable = 2101;
    static constexpr UINT kMsgNotANumber = 2106;
    static constexpr UINT kMsgRagged = 2107;
    static constexpr UINT kMsgContrastSum = 2108;
    static constexpr UINT kMsgNoCombination = 2113;

    explicit CHypothesisDlg(CWnd* parent = nullptr) : CGUIPageDlg(IDD, parent, IDC_GRID) {}

    // The rows of the hypothesis as the page shows them (-1: the model's).
    int HypothesisRowCount() const { return m_Work.HypothesisRowCount(); }
    const CLastModel& GetModel() const { return m_Model; }

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    const char* GetSourceFile() const override { return "Source/KDGHypothesisDlg"; }

    // The message that refuses `text` as a matrix, or 0.
    static UINT MatrixProblem(const CString& text);
    // The message that refuses a term for the data sheet, or 0.
    static UINT TermProblem(const CString& term);

protected:
    void OnChoice() { UpdateDependentWindows(); }

    DECLARE_MESSAGE_MAP()

private:
    UINT Validate() const;

    CLastModel m_Model;
};

class CHypothesisErrorDlg : public CGUIPageDlg<CHypothesisErrorData>, public CHypothesisErrorDlgIds {
    DECLARE_DYNAMIC(CHypothesisErrorDlg)
public:
    static constexpr UINT kMsgDMatrixRows = 2109;
    static constexpr UINT kMsgErrorMatrixSize = 2111;

    explicit CHypothesisErrorDlg(CWnd* parent = nullptr) : CGUIPageDlg(IDD, parent) {}

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    const char* GetSourceFile() const override { return "Source/KDGHypothesisErrorDlg"; }

protected:
    void OnChoice() { UpdateDependentWindows(); }

    DECLARE_MESSAGE_MAP()

private:
    // The message refusing an entry and the control it names, or {0, 0}.
    std::pair<UINT, UINT> Validate() const;

    CLastModel m_Model;
};
