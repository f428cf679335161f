// CPairwiseDlg: the pairwise comparisons page (template 2150). It shows the
// last model (CLastModel): its categorical factors in the factor list, its
// dependent variables to choose from, its terms as error terms beside the
// residual. OK is refused while there is no model with a factor to test.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Anova/KDGLastModel.h"
#include "private/Anova/KDGPairwiseData.h"

class CPairwiseDlg : public CGUIPageDlg<CPairwiseData>, public CPairwiseDlgIds {
    DECLARE_DYNAMIC(CPairwiseDlg)
public:
    static constexpr UINT kMsgNoModel = 2102;
    // The first entry of the error-term list (a string id).
    static constexpr UINT kResidualText = 2159;

    explicit CPairwiseDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGPairwiseDlg"; }

protected:
    DECLARE_MESSAGE_MAP()

private:
    void FillModelLists();

    CLastModel m_Model;
};
