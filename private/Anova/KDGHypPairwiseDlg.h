// CHypPairwiseDlg: the pairwise hypothesis matrix (template 2240), a dialog
// without pages: the factor and the error term come from the last model,
// the number of levels from the user. OK is refused while no model with a
// factor is stored, while the factor or error term names a variable the
// data sheet does not have, and when the error term is the factor itself.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Anova/KDGHypPairwiseData.h"
#include "private/Anova/KDGLastModel.h"

class CHypPairwiseDlg : public CGUIPageDlg<CHypPairwiseData>, public CHypPairwiseDlgIds {
    DECLARE_DYNAMIC(CHypPairwiseDlg)
public:
    static constexpr UINT kMsgErrorIsEffect = 9400;
    static constexpr UINT kResidualText = 2159;

    explicit CHypPairwiseDlg(CWnd* parent = nullptr) : CGUIPageDlg(IDD, parent) {}

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    int GetAllDefault() override;
    const char* GetSourceFile() const override { return "Source/KDGHypPairwiseDlg"; }

protected:
    DECLARE_MESSAGE_MAP()

private:
    CLastModel m_Model;
};
