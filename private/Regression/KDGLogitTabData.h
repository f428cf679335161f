// CLogitTabData: the settings of the logistic regression tab dialog, its
// five pages in page order: model, categories, choice sets, estimation,
// deciles of risk. The model page writes the module and model lines (and
// the estimate line of a discrete choice model); the categories and
// choice-sets pages put their lines before the model line, the estimation
// page joins or writes the estimate line, the deciles page adds its line.
#pragma once

#include "framework/GUITabData.h"
#include "private/Regression/KDGLogitCategoriesData.h"
#include "private/Regression/KDGLogitData.h"
#include "private/Regression/KDGLogitDecilesData.h"
#include "private/Regression/KDGLogitOptsData.h"
#include "private/Regression/KDGLogitSetsData.h"

class CLogitTabData : public CGUITabData {
    DECLARE_SERIAL(CLogitTabData)
public:
    CLogitTabData() { LinkPages(); }
    CLogitTabData(const CLogitTabData& other) : CLogitTabData() { *this = other; }
    CLogitTabData& operator=(const CLogitTabData&) = default;

    static CLogitData GetDefaultLogit() { return CLogitData(); }
    static CLogitCategoriesData GetDefaultLogitCategories() { return CLogitCategoriesData(); }
    static CLogitSetsData GetDefaultLogitSets() { return CLogitSetsData(); }
    static CLogitOptsData GetDefaultLogitOpts() { return CLogitOptsData(); }
    static CLogitDecilesData GetDefaultLogitDeciles() { return CLogitDecilesData(); }

    CLogitData* GetLogitData() { return &m_LogitData; }
    CLogitCategoriesData* GetLogitCategoriesData() { return &m_CategoriesData; }
    CLogitSetsData* GetLogitSetsData() { return &m_SetsData; }
    CLogitOptsData* GetLogitOptsData() { return &m_OptsData; }
    CLogitDecilesData* GetLogitDecilesData() { return &m_DecilesData; }

    int GetAll(CLogitData& logit, CLogitCategoriesData& categories, CLogitSetsData& sets, CLogitOptsData& opts,
               CLogitDecilesData& deciles) const
    {
        return kal::CopyFieldsOut(*this, logit, categories, sets, opts, deciles);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CLogitData& logit, const CLogitCategoriesData& categories, const CLogitSetsData& sets,
               const CLogitOptsData& opts, const CLogitDecilesData& deciles)
    {
        return kal::CopyFieldsIn(*this, logit, categories, sets, opts, deciles);
    }

    PageList Pages() override { return {&m_LogitData, &m_CategoriesData, &m_SetsData, &m_OptsData, &m_DecilesData}; }

    // The pages in member order, which is page order.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CLogitTabData>;
        using T = CLogitTabData;
        return std::tuple{F::Page(&T::m_LogitData), F::Page(&T::m_CategoriesData), F::Page(&T::m_SetsData),
                          F::Page(&T::m_OptsData), F::Page(&T::m_DecilesData)};
    }

private:
    CLogitData m_LogitData;
    CLogitCategoriesData m_CategoriesData;
    CLogitSetsData m_SetsData;
    CLogitOptsData m_OptsData;
    CLogitDecilesData m_DecilesData;
};
