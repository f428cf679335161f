// CTreesOptionsData: the options page of the trees dialog. How a node is
// split (Gini, entropy or twoing for classification; least squares or least
// absolute deviations for regression: each kind keeps its own choice), the
// smallest node split, the deepest tree grown, and pruning by
// cross-validation with its number of folds. Its clauses join the
// "ESTIMATE" line of the model page.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/trees.h"

class CTreesOptionsData : public CGUIBaseObj {
    DECLARE_SERIAL(CTreesOptionsData)
public:
    static constexpr UINT kClassSplitList = 6760;
    static constexpr UINT kRegressionSplitList = 6761;
    static constexpr int kMaxNodeSize = 100000;
    static constexpr int kMaxDepth = 100;
    static constexpr int kMaxFolds = 100;

    CTreesOptionsData() { kal::ResetFields(*this); }

    static int GetDefaultSplitCombo() { return 0; }
    static CGUIData<int> GetDefaultMinNodeEdit() { return CGUIData<int>(5); }
    static CGUIData<int> GetDefaultDepthEdit() { return CGUIData<int>(10); }
    static int GetDefaultPruneCheck() { return 0; }
    static CGUIData<int> GetDefaultFoldsEdit() { return CGUIData<int>(10); }

    int GetAll(int& classSplit, int& regressionSplit, CGUIData<int>& minNode, CGUIData<int>& depth, int& prune,
               CGUIData<int>& folds) const
    {
        return kal::CopyFieldsOut(*this, classSplit, regressionSplit, minNode, depth, prune, folds);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(int classSplit, int regressionSplit, const CGUIData<int>& minNode, const CGUIData<int>& depth, int prune,
               const CGUIData<int>& folds)
    {
        return kal::CopyFieldsIn(*this, classSplit, regressionSplit, minNode, depth, prune, folds);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the options page (template
    // 6740).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CTreesOptionsData>;
        using Ids = CTreesOptionsDlgIds;
        using D = CTreesOptionsData;
        return std::tuple{
            F::Value(&D::m_ClassSplitCombo, Ids::IDC_CLASS_SPLIT_COMBO, &GetDefaultSplitCombo),
            F::Value(&D::m_RegressionSplitCombo, Ids::IDC_REGRESSION_SPLIT_COMBO, &GetDefaultSplitCombo),
            F::Value(&D::m_MinNodeEdit, Ids::IDC_MIN_NODE_EDIT, &GetDefaultMinNodeEdit).Range(2, kMaxNodeSize),
            F::Value(&D::m_DepthEdit, Ids::IDC_DEPTH_EDIT, &GetDefaultDepthEdit).Range(1, kMaxDepth),
            F::Value(&D::m_PruneCheck, Ids::IDC_PRUNE_CHECK, &GetDefaultPruneCheck),
            F::Value(&D::m_FoldsEdit, Ids::IDC_FOLDS_EDIT, &GetDefaultFoldsEdit).Range(2, kMaxFolds),
        };
    }

private:
    int m_ClassSplitCombo;
    int m_RegressionSplitCombo;
    CGUIData<int> m_MinNodeEdit;
    CGUIData<int> m_DepthEdit;
    int m_PruneCheck;
    CGUIData<int> m_FoldsEdit;
};
