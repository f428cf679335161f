#include "framework/HostLink.h"

#include "host/IBinReader.h"
#include "host/IDlgBase.h"
#include "host/IGlobal.h"
#include "platform/Dialog.h"

#include <algorithm>
#include <iostream>
#include <vector>

namespace {

class CDlgBase final : public IDlgBase {
public:
    explicit CDlgBase(IGlobal* global) : m_global(global) { Live().push_back(this); }
    ~CDlgBase() { std::erase(Live(), this); }
    CDlgBase(const CDlgBase&) = delete;
    CDlgBase& operator=(const CDlgBase&) = delete;

    IGlobal* GetGlobal() override { return m_global; }
    void Release() override { delete this; }

    static std::vector<CDlgBase*>& Live()
    {
        static std::vector<CDlgBase*> live;
        return live;
    }

private:
    IGlobal* m_global;
};

IBinReader*& ResourceHandle()
{
    static IBinReader* handle = nullptr;
    return handle;
}

// Dialogs find their templates in the host's resources, and their
// validation messages go to the host's message service.
const bool g_platformHooksInstalled = [] {
    kal::SetDialogTemplateSource([](UINT id) -> std::shared_ptr<const DialogTemplate> {
        IBinReader* reader = KalUseRes::GetGlobalResourceHandle();
        return reader ? reader->GetDialogTemplate(id) : nullptr;
    });
    kal::SetMessageBoxSink([](UINT id, const CString& detail) { kal::framework::ReportMessage(id, detail); });
    return true;
}();

} // namespace

IDlgBase* CreateDlgBase(IGlobal* global)
{
    return new CDlgBase(global);
}

namespace KalUseRes {

IBinReader* GetGlobalResourceHandle()
{
    return ResourceHandle();
}

void SetGlobalResourceHandle(IBinReader* reader)
{
    ResourceHandle() = reader;
}

} // namespace KalUseRes

namespace kal::framework {

IGlobal* Host()
{
    const auto& live = CDlgBase::Live();
    return live.empty() ? nullptr : live.back()->GetGlobal();
}

bool WriteEveryOption()
{
    IGlobal* host = Host();
    return host && host->IsWriteEveryOption();
}

namespace {

int ActiveDataTypeCode()
{
    IGlobal* host = Host();
    return host && host->GetActiveDataSheet() ? host->GetDataTypeCode() : 0;
}

} // namespace

bool IsOrdinaryData()
{
    return ActiveDataTypeCode() == 1;
}

bool IsMatrixData()
{
    return ActiveDataTypeCode() > 1;
}

CString CurrentCommandModule()
{
    IGlobal* host = Host();
    return host ? host->GetCurrentCommandModule() : CString();
}

char16_t DecimalSeparator()
{
    IGlobal* host = Host();
    return host ? host->GetDecimalSeparator() : u'.';
}

IBinReader* Resources()
{
    return KalUseRes::GetGlobalResourceHandle();
}

CString LoadResourceString(unsigned int id)
{
    IBinReader* reader = Resources();
    return reader ? reader->GetString(id) : CString();
}

void ReportMessage(unsigned int id, const CString& detail)
{
    IGlobal* host = Host();
    if (host && detail.IsEmpty())
        host->ReportMessage(id, 0);
    else if (host)
        host->ReportFieldMessage(id, detail);
    else
        std::cerr << "message " << id << (detail.IsEmpty() ? "" : ": ") << detail.ToUtf8() << std::endl;
}

} // namespace kal::framework
