// CPairwiseTabDlg: the pairwise comparisons dialog (template 101) with its
// one page; the menu command it was opened for decides which model it tests.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Anova/KDGPairwiseDlg.h"
#include "private/Anova/KDGPairwiseTabData.h"

class CPairwiseTabDlg : public CGUIDataDlg<CPairwiseTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CPairwiseTabDlg)
public:
    explicit CPairwiseTabDlg(CWnd* parent = nullptr) : CGUIDataDlg(IDD, parent) { AddPage(m_PairwiseDlg); }

    int GetAllDefault() override
    {
        if (m_pData)
            *m_pData->GetPairwiseData() = CPairwiseTabData::GetDefaultPairwise();
        return m_pData ? 1 : 0;
    }
    const char* GetSourceFile() const override { return "Source/KDGPairwiseTabDlg"; }

private:
    CPairwiseDlg m_PairwiseDlg{this};
};
