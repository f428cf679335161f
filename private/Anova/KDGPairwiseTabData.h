// CPairwiseTabData: the settings of the pairwise comparisons dialog, which
// serves two menu commands with settings of their own: 2012 after a
// general linear model and 2077 after an analysis of variance. One page.
#pragma once

#include "framework/GUITabData.h"
#include "private/Anova/KDGPairwiseData.h"

class CPairwiseTabData : public CGUITabData {
    DECLARE_SERIAL(CPairwiseTabData)
public:
    CPairwiseTabData() { LinkPages(); }
    CPairwiseTabData(const CPairwiseTabData& other) : CPairwiseTabData() { *this = other; }
    CPairwiseTabData& operator=(const CPairwiseTabData&) = default;

    static CPairwiseData GetDefaultPairwise() { return CPairwiseData(); }
    CPairwiseData* GetPairwiseData() { return &m_PairwiseData; }

    int GetAll(CPairwiseData& pairwise) const { return kal::CopyFieldsOut(*this, pairwise); }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CPairwiseData& pairwise) { return kal::CopyFieldsIn(*this, pairwise); }

    PageList Pages() override { return {&m_PairwiseData}; }

    static constexpr auto Fields()
    {
        return std::tuple{kal::FieldsOf<CPairwiseTabData>::Page(&CPairwiseTabData::m_PairwiseData)};
    }

private:
    CPairwiseData m_PairwiseData;
};
