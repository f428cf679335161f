// CFactorOptionsData: the factors page of the factor analysis dialog. How
// many factors are kept (those whose eigenvalue reaches a minimum, or a
// number), the rotation (radio group 1854) with the parameter of the oblimin
// and orthomax families, the iterations and convergence of iterative
// estimation, and whether loadings are sorted by size. Its clauses join the
// "ESTIMATE" line of the model page.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/factor.h"

class CFactorOptionsData : public CGUIBaseObj {
    DECLARE_SERIAL(CFactorOptionsData)
public:
    // The radio groups, named by their first buttons.
    static constexpr UINT kCriterionRadio = CFactorOptionsDlgIds::IDC_EIGEN_RADIO;
    static constexpr UINT kRotationRadio = 1854;
    enum Rotation : UINT {
        kNone = 1854,
        kOblimin = 1857,
        kOrthomax = 1860,
        kQuartimax = 1861,
        kVarimax = 1862,
        kEquamax = 1863,
    };
    static constexpr double kMaxEigenvalue = 1000;
    static constexpr int kMaxFactors = 1000;
    static constexpr double kMaxParameter = 100;
    // The oblimin family runs from quartimin (0) to covarimin (1).
    static constexpr double kMaxOblimin = 1;
    static constexpr int kMaxIterations = 10000;

    CFactorOptionsData() { kal::ResetFields(*this); }

    static int GetDefaultCriterionRadio() { return 0; }
    static CGUIData<double> GetDefaultEigenEdit() { return CGUIData<double>(1.0); }
    static CGUIData<int> GetDefaultNumberEdit() { return CGUIData<int>(2); }
    static int GetDefaultRotationRadio() { return 0; }
    static CGUIData<double> GetDefaultGammaEdit() { return CGUIData<double>(0.0); }
    static CGUIData<int> GetDefaultIterEdit() { return CGUIData<int>(25); }
    static CGUIData<double> GetDefaultConvEdit() { return CGUIData<double>(0.001); }
    static int GetDefaultSortCheck() { return 0; }
    // The usual parameter of a rotation: quartimin for oblimin, varimax for
    // orthomax.
    static double UsualParameter(UINT rotation) { return rotation == kOrthomax ? 1.0 : 0.0; }
    static bool HasParameter(UINT rotation) { return rotation == kOblimin || rotation == kOrthomax; }

    int GetAll(int& criterion, CGUIData<double>& eigen, CGUIData<int>& number, int& rotation, CGUIData<double>& gamma,
               CGUIData<int>& iter, CGUIData<double>& conv, int& sort) const
    {
        return kal::CopyFieldsOut(*this, criterion, eigen, number, rotation, gamma, iter, conv, sort);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(int criterion, const CGUIData<double>& eigen, const CGUIData<int>& number, int rotation,
               const CGUIData<double>& gamma, const CGUIData<int>& iter, const CGUIData<double>& conv, int sort)
    {
        return kal::CopyFieldsIn(*this, criterion, eigen, number, rotation, gamma, iter, conv, sort);
    }

    UINT GetRotation() const;

    // The clauses, joined to the "ESTIMATE" line.
    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the factors page (template
    // 6520).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CFactorOptionsData>;
        using Ids = CFactorOptionsDlgIds;
        using D = CFactorOptionsData;
        return std::tuple{
            F::Value(&D::m_CriterionRadio, Ids::IDC_EIGEN_RADIO, &GetDefaultCriterionRadio),
            F::Value(&D::m_EigenEdit, Ids::IDC_EIGEN_EDIT, &GetDefaultEigenEdit).Range(0, kMaxEigenvalue),
            F::Value(&D::m_NumberEdit, Ids::IDC_NUMBER_EDIT, &GetDefaultNumberEdit).Range(1, kMaxFactors),
            F::Value(&D::m_RotationRadio, Ids::IDC_ROTATION_NONE, &GetDefaultRotationRadio),
            F::Value(&D::m_GammaEdit, Ids::IDC_GAMMA_EDIT, &GetDefaultGammaEdit).Range(0, kMaxParameter),
            F::Value(&D::m_IterEdit, Ids::IDC_ITER_EDIT, &GetDefaultIterEdit).Range(1, kMaxIterations),
            F::Value(&D::m_ConvEdit, Ids::IDC_CONV_EDIT, &GetDefaultConvEdit).Range(0, 1),
            F::Value(&D::m_SortCheck, Ids::IDC_SORT_CHECK, &GetDefaultSortCheck),
        };
    }

private:
    friend class CFactorOptionsDlg; // reads the values it validates

    // Whether the analysis iterates: an iterative extraction on the model
    // page, or any rotation.
    bool IterationsInUse() const;

    int m_CriterionRadio;
    CGUIData<double> m_EigenEdit;
    CGUIData<int> m_NumberEdit;
    int m_RotationRadio;
    CGUIData<double> m_GammaEdit;
    CGUIData<int> m_IterEdit;
    CGUIData<double> m_ConvEdit;
    int m_SortCheck;
};
