// The robust regression dialogs (template 101): the shared model page and
// the robust options page, in that order, over the settings of their row
// (see KDGRobustTabData.h). The options page learns its estimator from the
// settings it edits.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Regression/KDGRegModelDlg.h"
#include "private/Regression/KDGRobustOptionsDlg.h"
#include "private/Regression/KDGRobustTabData.h"

template <class TData>
class CRobustTabDlg : public CGUIDataDlg<TData, CGUITabDlg> {
public:
    explicit CRobustTabDlg(CWnd* parent = nullptr) : CGUIDataDlg<TData, CGUITabDlg>(CGUITabDlgIds::IDD, parent)
    {
        this->AddPage(m_ModelDlg);
        this->AddPage(m_OptionsDlg);
    }

    CRegModelDlg& GetModelDlg() { return m_ModelDlg; }
    CRobustOptionsDlg& GetOptionsDlg() { return m_OptionsDlg; }

private:
    CRegModelDlg m_ModelDlg{this};
    CRobustOptionsDlg m_OptionsDlg{this};
};

class CMregLmsregTabDlg : public CRobustTabDlg<CMregLmsregTabData> {
    DECLARE_DYNAMIC(CMregLmsregTabDlg)
public:
    using CRobustTabDlg::CRobustTabDlg;
    const char* GetSourceFile() const override { return "Source/KDGMregLmsregTabDlg"; }
};

class CMregLtsTabDlg : public CRobustTabDlg<CMregLtsTabData> {
    DECLARE_DYNAMIC(CMregLtsTabDlg)
public:
    using CRobustTabDlg::CRobustTabDlg;
    const char* GetSourceFile() const override { return "Source/KDGMregLtsTabDlg"; }
};

class CMregSregTabDlg : public CRobustTabDlg<CMregSregTabData> {
    DECLARE_DYNAMIC(CMregSregTabDlg)
public:
    using CRobustTabDlg::CRobustTabDlg;
    const char* GetSourceFile() const override { return "Source/KDGMregSregTabDlg"; }
};

class CMregMmregTabDlg : public CRobustTabDlg<CMregMmregTabData> {
    DECLARE_DYNAMIC(CMregMmregTabDlg)
public:
    using CRobustTabDlg::CRobustTabDlg;
    const char* GetSourceFile() const override { return "Source/KDGMregMmregTabDlg"; }
};

class CLadregMcdregTabDlg : public CRobustTabDlg<CLadregMcdregTabData> {
    DECLARE_DYNAMIC(CLadregMcdregTabDlg)
public:
    using CRobustTabDlg::CRobustTabDlg;
    const char* GetSourceFile() const override { return "Source/KDGLadregMcdregTabDlg"; }
};

class CMregTabDlg : public CRobustTabDlg<CMregTabData> {
    DECLARE_DYNAMIC(CMregTabDlg)
public:
    using CRobustTabDlg::CRobustTabDlg;
    const char* GetSourceFile() const override { return "Source/KDGMregTabDlg"; }
};
