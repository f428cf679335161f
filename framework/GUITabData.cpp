#include "framework/GUITabData.h"

IMPLEMENT_DYNAMIC(CGUITabData, CGUIBaseObj)

std::vector<const CGUIBaseObj*> CGUITabData::ConstPages() const
{
    const PageList pages = const_cast<CGUITabData*>(this)->Pages();
    return {pages.begin(), pages.end()};
}

void CGUITabData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    for (const CGUIBaseObj* page : ConstPages())
        if (page->GetWindowState())
            page->GetCommandInfoList(list);
}

void CGUITabData::FillListSource()
{
    for (CGUIBaseObj* page : Pages())
        page->FillListSource();
}

void CGUITabData::ReassignDefaultValue()
{
    for (CGUIBaseObj* page : Pages())
        page->ReassignDefaultValue();
}

void CGUITabData::SetParent(CGUIBaseObj* parent)
{
    CGUIBaseObj::SetParent(parent);
    LinkPages();
}

void CGUITabData::LinkPages()
{
    for (CGUIBaseObj* page : Pages())
        page->SetParent(this);
}

void CGUITabData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    for (CGUIBaseObj* page : ArchiveOrder())
        page->Serialize(ar);
}
