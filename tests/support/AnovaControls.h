// Short names for the ANOVA dialog's controls in tests.
#pragma once

#include "private/Anova/KDGAnovaTabDlg.h"

namespace kaltest::anova {

enum : UINT {
    SOURCE = CAnovaDlg::IDC_SOURCE_LIST,
    DEPENDENT = CAnovaDlg::IDC_DEPENDENT_LIST,
    FACTOR = CAnovaDlg::IDC_FACTOR_LIST,
    COVARIATE = CAnovaDlg::IDC_COVARIATE_LIST,
    ADD_DEP = CAnovaDlg::IDC_ADD_DEPENDENT,
    REMOVE_DEP = CAnovaDlg::IDC_REMOVE_DEPENDENT,
    ADD_FACTOR = CAnovaDlg::IDC_ADD_FACTOR,
    REMOVE_FACTOR = CAnovaDlg::IDC_REMOVE_FACTOR,
    ADD_COV = CAnovaDlg::IDC_ADD_COVARIATE,
    MISSING = CAnovaDlg::IDC_MISSING_VALUES,
    SAVE_CHECK = CAnovaDlg::IDC_SAVE_FILE_CHECK,
    SAVE_COMBO = CAnovaDlg::IDC_SAVE_FILE_COMBO,
    SAVE_EDIT = CAnovaDlg::IDC_SAVE_FILE_EDIT,
    RM_ON = CRepeatMeasuresDlg::IDC_ON_OFF,
    RM_GRID = CRepeatMeasuresDlg::IDC_GRID,
};

} // namespace kaltest::anova
