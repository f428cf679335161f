// CRegressionTabData: the settings of the linear regression tab dialog, its
// five pages in page order: model, estimation, options (the ANOVA options
// page, without the Levene test and the type of sums of squares), prediction,
// resampling. The model page writes the module and model lines, the
// estimation page the estimation lines; the options and resampling pages
// attach clauses to "ESTIMATE", the prediction page adds its own lines.
#pragma once

#include "framework/BootStrapData.h"
#include "framework/GUITabData.h"
#include "private/Anova/KDGAnovaOptionsData.h"
#include "private/Regression/KDGRegressionData.h"
#include "private/Regression/KDGRegressionOptionsData.h"
#include "private/Regression/KDGRegressionPredictData.h"

class CRegressionTabData : public CGUITabData {
    DECLARE_SERIAL(CRegressionTabData)
public:
    CRegressionTabData() { LinkPages(); }
    CRegressionTabData(const CRegressionTabData& other) : CRegressionTabData() { *this = other; }
    CRegressionTabData& operator=(const CRegressionTabData&) = default;

    static CRegressionData GetDefaultRegression() { return CRegressionData(); }
    static CRegressionOptionsData GetDefaultRegressionOptions() { return CRegressionOptionsData(); }
    static CAnovaOptionsData GetDefaultAnovaOptions() { return CAnovaOptionsData(); }
    static CRegressionPredictData GetDefaultRegressionPredict() { return CRegressionPredictData(); }
    static CBootStrapData GetDefaultBootStrap() { return CBootStrapData(); }

    CRegressionData* GetRegressionData() { return &m_RegressionData; }
    CRegressionOptionsData* GetRegressionOptionsData() { return &m_RegressionOptionsData; }
    CAnovaOptionsData* GetAnovaOptionsData() { return &m_AnovaOptionsData; }
    CRegressionPredictData* GetRegressionPredictData() { return &m_RegressionPredictData; }
    CBootStrapData* GetBootStrapData() { return &m_BootStrapData; }
    CGUIDataWnd<int> GetRegressionConstantcheck() const { return m_RegressionData.GetConstantCheck(); }

    int GetAll(CRegressionData& regression, CRegressionOptionsData& options, CAnovaOptionsData& anovaOptions,
               CRegressionPredictData& predict, CBootStrapData& bootstrap) const
    {
        return kal::CopyFieldsOut(*this, regression, options, anovaOptions, predict, bootstrap);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CRegressionData& regression, const CRegressionOptionsData& options,
               const CAnovaOptionsData& anovaOptions, const CRegressionPredictData& predict,
               const CBootStrapData& bootstrap)
    {
        return kal::CopyFieldsIn(*this, regression, options, anovaOptions, predict, bootstrap);
    }

    PageList Pages() override
    {
        return {&m_RegressionData, &m_RegressionOptionsData, &m_AnovaOptionsData, &m_RegressionPredictData,
                &m_BootStrapData};
    }

    // The pages in GetAll order, which is page order.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CRegressionTabData>;
        using T = CRegressionTabData;
        return std::tuple{F::Page(&T::m_RegressionData), F::Page(&T::m_RegressionOptionsData),
                          F::Page(&T::m_AnovaOptionsData), F::Page(&T::m_RegressionPredictData),
                          F::Page(&T::m_BootStrapData)};
    }

protected:
    // The record holds the pages in member order: the ANOVA options second.
    PageList ArchiveOrder() override
    {
        return {&m_RegressionData, &m_AnovaOptionsData, &m_RegressionOptionsData, &m_RegressionPredictData,
                &m_BootStrapData};
    }

private:
    CRegressionData m_RegressionData;
    CAnovaOptionsData m_AnovaOptionsData;
    CRegressionOptionsData m_RegressionOptionsData;
    CRegressionPredictData m_RegressionPredictData;
    CBootStrapData m_BootStrapData;
};
