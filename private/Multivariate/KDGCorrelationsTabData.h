// CCorrelationsTabData: the settings of the correlations tab dialog, its
// three pages in page order: correlations, options, resampling. The first
// page writes the measure line; the options tail and the resampling clause
// join it, in that order.
#pragma once

#include "framework/BootStrapData.h"
#include "framework/GUITabData.h"
#include "private/Multivariate/KDGCorrOptionsData.h"
#include "private/Multivariate/KDGCorrelationsData.h"

class CCorrelationsTabData : public CGUITabData {
    DECLARE_SERIAL(CCorrelationsTabData)
public:
    CCorrelationsTabData() { LinkPages(); }
    CCorrelationsTabData(const CCorrelationsTabData& other) : CCorrelationsTabData() { *this = other; }
    CCorrelationsTabData& operator=(const CCorrelationsTabData&) = default;

    static CCorrelationsData GetDefaultCorrelations() { return CCorrelationsData(); }
    static CCorrOptionsData GetDefaultCorrOptions() { return CCorrOptionsData(); }
    static CBootStrapData GetDefaultBootStrap() { return CBootStrapData(); }

    CCorrelationsData* GetCorrelationsData() { return &m_CorrelationsData; }
    const CCorrelationsData* GetCorrelationsData() const { return &m_CorrelationsData; }
    CCorrOptionsData* GetCorrOptionsData() { return &m_CorrOptionsData; }
    const CCorrOptionsData* GetCorrOptionsData() const { return &m_CorrOptionsData; }
    CBootStrapData* GetBootStrapData() { return &m_BootStrapData; }

    int GetAll(CCorrelationsData& correlations, CCorrOptionsData& options, CBootStrapData& bootstrap) const
    {
        return kal::CopyFieldsOut(*this, correlations, options, bootstrap);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CCorrelationsData& correlations, const CCorrOptionsData& options, const CBootStrapData& bootstrap)
    {
        return kal::CopyFieldsIn(*this, correlations, options, bootstrap);
    }

    // Each page in use, in page order; the resampling clause joins the
    // measure line as the options tail does.
    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;

    PageList Pages() override { return {&m_CorrelationsData, &m_CorrOptionsData, &m_BootStrapData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CCorrelationsTabData>;
        return std::tuple{F::Page(&CCorrelationsTabData::m_CorrelationsData),
                          F::Page(&CCorrelationsTabData::m_CorrOptionsData),
                          F::Page(&CCorrelationsTabData::m_BootStrapData)};
    }

private:
    CCorrelationsData m_CorrelationsData;
    CCorrOptionsData m_CorrOptionsData;
    CBootStrapData m_BootStrapData;
};
