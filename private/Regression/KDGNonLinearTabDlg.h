// CNonLinearTabDlg (2030) and CNonLinLossTabDlg (2031): the nonlinear
// regression dialogs (template 101) with the model, estimation and save
// pages, in that order. They differ only in their settings and in the
// owner their launch gives the model page (2205, or 2203 with the loss).
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Regression/KDGNonLinOptsDlg.h"
#include "private/Regression/KDGNonLinSaveDlg.h"
#include "private/Regression/KDGNonLinearDlg.h"
#include "private/Regression/KDGNonLinearTabData.h"

template <class TData>
class CNonLinearPagesDlg : public CGUIDataDlg<TData, CGUITabDlg> {
public:
    explicit CNonLinearPagesDlg(CWnd* parent) : CGUIDataDlg<TData, CGUITabDlg>(CGUITabDlg::IDD, parent)
    {
        this->AddPage(m_ModelDlg);
        this->AddPage(m_OptsDlg);
        this->AddPage(m_SaveDlg);
    }

    CNonLinearDlg& GetNonLinearDlg() { return m_ModelDlg; }
    CNonLinOptsDlg& GetNonLinOptsDlg() { return m_OptsDlg; }
    CNonLinSaveDlg& GetNonLinSaveDlg() { return m_SaveDlg; }

private:
    CNonLinearDlg m_ModelDlg{this};
    CNonLinOptsDlg m_OptsDlg{this};
    CNonLinSaveDlg m_SaveDlg{this};
};

class CNonLinearTabDlg : public CNonLinearPagesDlg<CNonLinearTabData> {
    DECLARE_DYNAMIC(CNonLinearTabDlg)
public:
    explicit CNonLinearTabDlg(CWnd* parent = nullptr) : CNonLinearPagesDlg(parent) {}
    const char* GetSourceFile() const override { return "Source/KDGNonLinearTabDlg"; }
};

class CNonLinLossTabDlg : public CNonLinearPagesDlg<CNonLinLossTabData> {
    DECLARE_DYNAMIC(CNonLinLossTabDlg)
public:
    explicit CNonLinLossTabDlg(CWnd* parent = nullptr) : CNonLinearPagesDlg(parent) {}
    const char* GetSourceFile() const override { return "Source/KDGNonLinLossTabDlg"; }
};
