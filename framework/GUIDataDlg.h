// CGUIDataDlg: a dialog or page that edits one settings class. It keeps
// the typed settings pointer and answers the base's untyped SetData and
// GetData, so each dialog class declares only what is its own.
#pragma once

#include "framework/GUIBaseDlg.h"

template <class TData, class TBase = CGUIBaseDlg>
class CGUIDataDlg : public TBase {
public:
    using TBase::TBase;

    void SetData(TData* data)
    {
        m_pData = data;
        this->OnDataSet();
    }
    void GetData(TData*& data) const { data = m_pData; }
    void SetData(CGUIBaseObj* data) override { SetData(dynamic_cast<TData*>(data)); }
    void GetData(CGUIBaseObj*& data) override { data = m_pData; }

protected:
    TData* m_pData = nullptr;
};
