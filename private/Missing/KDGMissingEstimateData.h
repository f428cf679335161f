// CMissingEstimateData: the estimation page of the missing-value analysis.
// The method (listwise or pairwise deletion, EM, or regression on the
// variables present), the EM iterations and convergence, Little's MCAR test
// (computed from the EM estimates, so EM only) and the matrix estimated.
// Written as the "ESTIMATE" line; the method also picks the module line the
// variables page writes first.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/missing.h"

class CMissingEstimateData : public CGUIBaseObj {
    DECLARE_SERIAL(CMissingEstimateData)
public:
    static constexpr UINT kMethodCombo = 3046;
    static constexpr UINT kMatrixCombo = 3051;
    // Items of the method list that carry clauses of their own.
    static constexpr UINT kItemEm = 12187;
    static constexpr UINT kItemRegression = 12510;
    // Items of the matrix list.
    static constexpr UINT kItemCovariance = 12126;
    static constexpr UINT kItemSscp = 12583;
    static constexpr UINT kItemCorrelation = 8540;
    // The module of each family of methods.
    static constexpr UINT kModuleDeletion = 12920;
    static constexpr UINT kModuleEm = 12936;
    static constexpr UINT kModuleRegression = 12955;
    static constexpr int kEmIndex = 2;
    static constexpr int kMethodLast = 3;
    static constexpr int kMatrixLast = 2;
    static constexpr int kMaxIterations = 10000;
    static constexpr int kUsualIterations = 20;
    static constexpr double kUsualConvergence = 0.001;

    CMissingEstimateData() { kal::ResetFields(*this); }

    static int GetDefaultMethodCombo() { return kEmIndex; }
    static CGUIData<int> GetDefaultIterationsEdit()
    {
        return CGUIData<int>(1, kUsualIterations, kUsualIterations, 0, 1);
    }
    static CGUIData<double> GetDefaultConvergenceEdit()
    {
        return CGUIData<double>(1, kUsualConvergence, kUsualConvergence, 0, 1);
    }
    static int GetDefaultMcarCheck() { return 0; }
    static int GetDefaultMatrixCombo() { return 0; }

    int GetAll(int& method, CGUIData<int>& iterations, CGUIData<double>& convergence, int& mcar, int& matrix) const
    {
        return kal::CopyFieldsOut(*this, method, iterations, convergence, mcar, matrix);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(int method, const CGUIData<int>& iterations, const CGUIData<double>& convergence, int mcar, int matrix)
    {
        return kal::CopyFieldsIn(*this, method, iterations, convergence, mcar, matrix);
    }

    // The item id of the chosen method, and the module that runs it.
    UINT MethodItem() const;
    UINT ModuleId() const;

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CMissingEstimateData>;
        using Ids = CMissingEstimateDlgIds;
        using D = CMissingEstimateData;
        return std::tuple{
            F::Value(&D::m_MethodCombo, Ids::IDC_METHOD_COMBO, &GetDefaultMethodCombo).Range(0, kMethodLast),
            F::Value(&D::m_IterationsEdit, Ids::IDC_ITERATIONS_EDIT, &GetDefaultIterationsEdit)
                .Range(1, kMaxIterations),
            F::Value(&D::m_ConvergenceEdit, Ids::IDC_CONVERGENCE_EDIT, &GetDefaultConvergenceEdit)
                .Range(0, 1, kMsgConvergence),
            F::Value(&D::m_McarCheck, Ids::IDC_MCAR_CHECK, &GetDefaultMcarCheck).Range(0, 1),
            F::Value(&D::m_MatrixCombo, Ids::IDC_MATRIX_COMBO, &GetDefaultMatrixCombo).Range(0, kMatrixLast),
        };
    }

    static constexpr UINT kMsgConvergence = 8582;

private:
    friend class CMissingEstimateDlg; // reads the values it validates

    int m_MethodCombo;
    CGUIData<int> m_IterationsEdit;
    CGUIData<double> m_ConvergenceEdit;
    int m_McarCheck;
    int m_MatrixCombo;
};
