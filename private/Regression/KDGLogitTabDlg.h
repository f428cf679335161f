// CLogitTabDlg: the logistic regression dialog (template 101): the model,
// categories, choice sets, estimation and deciles-of-risk pages, in that
// order. The deciles page is unavailable while choice sets are in use (a
// discrete choice model has no binary response). At OK the choice-sets
// page's settings tell the model page's settings whether choice sets are
// in use.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Regression/KDGLogitCategoriesDlg.h"
#include "private/Regression/KDGLogitDecilesDlg.h"
#include "private/Regression/KDGLogitDlg.h"
#include "private/Regression/KDGLogitOptsDlg.h"
#include "private/Regression/KDGLogitSetsDlg.h"
#include "private/Regression/KDGLogitTabData.h"

class CLogitTabDlg : public CGUIDataDlg<CLogitTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CLogitTabDlg)
public:
    // Why the deciles page is unavailable with choice sets (a string id).
    static constexpr UINT kDecilesNeedBinaryResponse = 2772;

    explicit CLogitTabDlg(CWnd* parent = nullptr);

    CLogitDlg& GetLogitDlg() { return m_LogitDlg; }
    CLogitCategoriesDlg& GetLogitCategoriesDlg() { return m_CategoriesDlg; }
    CLogitSetsDlg& GetLogitSetsDlg() { return m_SetsDlg; }
    CLogitOptsDlg& GetLogitOptsDlg() { return m_OptsDlg; }
    CLogitDecilesDlg& GetLogitDecilesDlg() { return m_DecilesDlg; }

    int GetDependentVariableCount() override { return m_LogitDlg.GetDependentListCount(); }
    CString GetUnavailableReason(CGUIBaseDlg& page) override;
    // Every page's settings back to those of a new tab.
    int SetAllDefault() override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    const char* GetSourceFile() const override { return "Source/KDGLogitTabDlg"; }

private:
    CLogitDlg m_LogitDlg{this};
    CLogitCategoriesDlg m_CategoriesDlg{this};
    CLogitSetsDlg m_SetsDlg{this};
    CLogitOptsDlg m_OptsDlg{this};
    CLogitDecilesDlg m_DecilesDlg{this};
};
