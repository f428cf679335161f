// CGUITabData: the settings of a tab dialog, which holds its pages' settings
// as members. A derived class names its pages once (Pages, in page order,
// and ArchiveOrder when its record orders them otherwise); from that the
// base asks the pages for their lines (each while its window state is set,
// strictly in page order, since later pages attach to the lines of earlier
// ones), refreshes their lists and defaults, makes itself their parent and
// stores or loads them.
//
// Copies: a derived class copies by assignment (the pages' own assignment
// leaves their parent links alone), and its copy constructor is
//   CXTabData(const CXTabData& other) : CXTabData() { *this = other; }
// so that the copy's pages have the copy as parent.
#pragma once

#include "framework/GUIBaseObj.h"

#include <vector>

class CGUITabData : public CGUIBaseObj {
    DECLARE_DYNAMIC(CGUITabData)
public:
    using PageList = std::vector<CGUIBaseObj*>;

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void ReassignDefaultValue() override;
    // Sets this object's parent; its pages have this object as theirs.
    void SetParent(CGUIBaseObj* parent) override;
    void Serialize(CArchive& ar) override;

    // The pages in page order; the page dialogs of the tab dialog follow
    // the same order.
    virtual PageList Pages() = 0;
    std::vector<const CGUIBaseObj*> ConstPages() const;

protected:
    // The order of the pages in the record; page order unless a class says
    // otherwise.
    virtual PageList ArchiveOrder() { return Pages(); }
    // Makes this object the parent of its pages; derived constructors call it.
    void LinkPages();
};
