// CNonLinearDlg: the model page of the nonlinear regressions (template
// 7600). The user moves the dependent variable from the source list, types
// the model as the right side of "dependent = ...", for the loss dialog
// (owner 2203) the loss, and fills the grid of parameters: a name, a start
// value, and lower and upper bounds that may stay empty. "From model" adds
// the names of the model that are no variable as parameters.
//
// Checked at OK: a dependent variable; each parameter row a plain name of
// its own that is no function or variable, with a start value, numbers
// only, the start within the bounds and the lower bound below the upper;
// the model and the loss read as formulas with balanced parentheses over
// known names only, and the model uses at least one parameter.
#pragma once

#include "framework/GUIPageDlg.h"
#include "framework/KVGridMultiCtrlBaseDlg.h"
#include "private/Regression/KDGExpression.h"
#include "private/Regression/KDGNonLinearData.h"

class CNonLinearDlg : public CGUIPageDlg<CNonLinearData, CKVGridMultiCtrlBaseDlg>, public CNonLinearDlgIds {
    DECLARE_DYNAMIC(CNonLinearDlg)
public:
    enum : UINT { ID_MENU_DEPENDENT = 33001 };
    // The grid's columns.
    enum Column : int { kName = 1, kStart = 2, kLower = 3, kUpper = 4 };
    static constexpr UINT kMsgNoDependent = 7680;
    static constexpr UINT kMsgNoModel = 7681;
    static constexpr UINT kMsgUnbalanced = 7682;
    static constexpr UINT kMsgSyntax = 7683;
    static constexpr UINT kMsgUnknownName = 7684;
    static constexpr UINT kMsgNoParameter = 7685;
    static constexpr UINT kMsgParameterName = 7686;
    static constexpr UINT kMsgParameterTwice = 7687;
    static constexpr UINT kMsgNoStart = 7688;
    static constexpr UINT kMsgBounds = 7689;
    static constexpr UINT kMsgNoLoss = 7690;
    static constexpr UINT kMsgUnknownLossName = 7691;
    static constexpr UINT kMsgNotANumber = 7692;

    explicit CNonLinearDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGNonLinearDlg"; }

    // The message that refuses an expression checked so (0: none).
    static UINT ExpressionMessage(const CExpressionCheck::Result& result, bool loss);

protected:
    void OnFindParameters();

    DECLARE_MESSAGE_MAP()

private:
    bool UsesLoss() const { return GetDlgCaptionID() == CNonLinearData::kLossOwner; }
    std::vector<CString> VariableNames() const;
    // The grid's rows into the working copy (rows without any text are
    // left out), and the first problem of a row with its row number.
    void ReadGrid();
    UINT CheckParameters(int& row) const;
};
