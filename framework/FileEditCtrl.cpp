#include "framework/FileEditCtrl.h"

IMPLEMENT_DYNAMIC(CFileEditCtrl, CEdit)

CString CFileEditCtrl::WithDefaultExtension(const CString& name) const
{
    if (name.IsEmpty() || m_strDefaultExtension.IsEmpty())
        return name;
    const int slash = name.ReverseFind(u'/');
    const int dot = name.ReverseFind(u'.');
    if (dot > slash)
        return name;
    CString extension = m_strDefaultExtension;
    return extension.Find(u'.') == 0 ? name + extension : name + u"." + extension;
}
