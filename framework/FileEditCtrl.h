// CFileEditCtrl: an edit field for a file name with a browse button. The
// view offers a file dialog that adds the default extension to a name
// picked without one.
#pragma once

#include "platform/Wnd.h"

class CFileEditCtrl : public CEdit {
    DECLARE_DYNAMIC(CFileEditCtrl)
public:
    void SetFileDialogOptions(bool bSaveDialog, bool bPromptOverwrite, bool bMustExist, const CString& defaultExtension,
                              const CString& filter)
    {
        m_bSaveDialog = bSaveDialog;
        m_bPromptOverwrite = bPromptOverwrite;
        m_bMustExist = bMustExist;
        m_strDefaultExtension = defaultExtension;
        m_strFilter = filter;
    }
    bool IsSaveDialog() const { return m_bSaveDialog; }
    bool PromptsOverwrite() const { return m_bPromptOverwrite; }
    bool MustExist() const { return m_bMustExist; }
    const CString& GetDefaultExtension() const { return m_strDefaultExtension; }
    const CString& GetFilter() const { return m_strFilter; }

    // A name picked in the file dialog, with the default extension added
    // when it has none.
    CString WithDefaultExtension(const CString& name) const;

private:
    bool m_bSaveDialog = true;
    bool m_bPromptOverwrite = true;
    bool m_bMustExist = false;
    CString m_strDefaultExtension;
    CString m_strFilter;
};
