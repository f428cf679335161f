// CAnovaTabData: the settings of the ANOVA estimate-model tab dialog, its
// four pages in page order: model, repeated measures, options, resampling.
// The model page writes the lines; the later pages attach clauses to them,
// so pages are asked strictly in this order, each while its window state
// is set.
#pragma once

#include "framework/BootStrapData.h"
#include "private/Anova/KDGAnovaData.h"
#include "private/Anova/KDGAnovaOptionsData.h"
#include "private/Anova/KDGRepeatMeasuresData.h"

class CAnovaTabData : public CGUIBaseObj {
    DECLARE_SERIAL(CAnovaTabData)
public:
    CAnovaTabData();
    CAnovaTabData(const CAnovaTabData& other);
    CAnovaTabData& operator=(const CAnovaTabData& other);

    static CAnovaData GetDefaultAnova() { return CAnovaData(); }
    static CRepeatMeasuresData GetDefaultRepeatMeasures() { return CRepeatMeasuresData(); }
    static CAnovaOptionsData GetDefaultAnovaOptions() { return CAnovaOptionsData(); }
    static CBootStrapData GetDefaultBootStrap() { return CBootStrapData(); }

    CAnovaData* GetAnovaData() { return &m_AnovaData; }
    CAnovaOptionsData* GetAnovaOptionsData() { return &m_AnovaOptionsData; }
    CRepeatMeasuresData* GetRepeatMeasuresData() { return &m_RepeatMeasuresData; }
    CBootStrapData* GetBootStrapData() { return &m_BootStrapData; }

    int GetAll(CAnovaData& anova, CRepeatMeasuresData& repeat, CAnovaOptionsData& options,
               CBootStrapData& bootstrap) const;
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CAnovaData& anova, const CRepeatMeasuresData& repeat, const CAnovaOptionsData& options,
               const CBootStrapData& bootstrap);

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void ReassignDefaultValue() override;
    // Sets this object's parent; its pages have this object as theirs.
    void SetParent(CGUIBaseObj* parent) override;
    void Serialize(CArchive& ar) override;

private:
    // Pages in page order; the construction order is model, options, repeated
    // measures, resampling, as the members are declared.
    CAnovaData m_AnovaData;
    CAnovaOptionsData m_AnovaOptionsData;
    CRepeatMeasuresData m_RepeatMeasuresData;
    CBootStrapData m_BootStrapData;

    std::array<const CGUIBaseObj*, 4> Pages() const
    {
        return {&m_AnovaData, &m_RepeatMeasuresData, &m_AnovaOptionsData, &m_BootStrapData};
    }
    std::array<CGUIBaseObj*, 4> Pages()
    {
        return {&m_AnovaData, &m_RepeatMeasuresData, &m_AnovaOptionsData, &m_BootStrapData};
    }
    void LinkPages();
};
