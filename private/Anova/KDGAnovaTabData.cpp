#include "private/Anova/KDGAnovaTabData.h"

IMPLEMENT_SERIAL(CAnovaTabData, CGUIBaseObj, 1)

CAnovaTabData::CAnovaTabData()
{
    LinkPages();
}

CAnovaTabData::CAnovaTabData(const CAnovaTabData& other)
    : CGUIBaseObj(other), m_AnovaData(other.m_AnovaData), m_AnovaOptionsData(other.m_AnovaOptionsData),
      m_RepeatMeasuresData(other.m_RepeatMeasuresData), m_BootStrapData(other.m_BootStrapData)
{
    LinkPages();
}

CAnovaTabData& CAnovaTabData::operator=(const CAnovaTabData& other)
{
    if (this != &other)
        SetAll(other.m_AnovaData, other.m_RepeatMeasuresData, other.m_AnovaOptionsData, other.m_BootStrapData);
    return *this;
}

void CAnovaTabData::LinkPages()
{
    for (CGUIBaseObj* page : Pages())
        page->SetParent(this);
}

int CAnovaTabData::GetAll(CAnovaData& anova, CRepeatMeasuresData& repeat, CAnovaOptionsData& options,
                          CBootStrapData& bootstrap) const
{
    anova = m_AnovaData;
    repeat = m_RepeatMeasuresData;
    options = m_AnovaOptionsData;
    bootstrap = m_BootStrapData;
    return 1;
}

int CAnovaTabData::SetAll(const CAnovaData& anova, const CRepeatMeasuresData& repeat,
                          const CAnovaOptionsData& options, const CBootStrapData& bootstrap)
{
    m_AnovaData = anova;
    m_RepeatMeasuresData = repeat;
    m_AnovaOptionsData = options;
    m_BootStrapData = bootstrap;
    return 1;
}

void CAnovaTabData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    for (const CGUIBaseObj* page : Pages())
        if (page->GetWindowState())
            page->GetCommandInfoList(list);
}

void CAnovaTabData::FillListSource()
{
    for (CGUIBaseObj* page : Pages())
        page->FillListSource();
}

void CAnovaTabData::ReassignDefaultValue()
{
    for (CGUIBaseObj* page : Pages())
        page->ReassignDefaultValue();
}

void CAnovaTabData::SetParent(CGUIBaseObj* parent)
{
    CGUIBaseObj::SetParent(parent);
    LinkPages();
}

void CAnovaTabData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    for (CGUIBaseObj* page : Pages())
        page->Serialize(ar);
}
