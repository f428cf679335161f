#include "refhost/HostGlobal.h"

#include "framework/GUIBaseObj.h"

namespace kalhost {

namespace {

// What every host module answers alike; the host owns its modules, so
// Release does nothing.
template <class Interface>
class HostModule : public Interface {
public:
    HostModule(IGlobal& host, IBinReader& resources, const wchar_t* name)
        : m_host(host), m_resources(resources), m_name(name)
    {
    }

    IGlobal* GetGlobal() override { return &m_host; }
    void Release() override {}
    void PrintModuleInfo() override {}
    std::wstring& GetModuleName() override { return m_name; }
    std::wstring& SetModuleName(const std::wstring& name) override { return m_name = name; }
    bool ReleaseCountedRef(KalCountedRef*, int) override { return false; }
    void NoOperation() override {}
    IBinReader* GetResourceHandle() override { return &m_resources; }

private:
    IGlobal& m_host;
    IBinReader& m_resources;
    std::wstring m_name;
};

} // namespace

// The host's command engine: prints each line it runs, UTF-8, exactly as
// written.
class HostGlobal::Kernel final : public HostModule<IKernel> {
public:
    explicit Kernel(HostGlobal& host) : HostModule(host, host.m_resources, L"KalKernel"), m_host(host) {}
    int ExecuteLine(const CString& line) override { return m_host.ExecuteLine(line); }

private:
    HostGlobal& m_host;
};

class HostGlobal::Data final : public HostModule<IData> {
public:
    explicit Data(HostGlobal& host) : HostModule(host, host.m_resources, L"KalData"), m_host(host) {}
    IDataSheet* GetActiveDataSheet() override { return m_host.GetActiveDataSheet(); }
    int GetDataTypeCode() override { return m_host.GetDataTypeCode(); }

private:
    HostGlobal& m_host;
};

HostGlobal::HostGlobal(ResourceTable& resources, std::ostream& out, std::ostream& err)
    : m_resources(resources), m_out(out), m_err(err), m_kernel(std::make_unique<Kernel>(*this)),
      m_data(std::make_unique<Data>(*this))
{
}

HostGlobal::~HostGlobal() = default;

int HostGlobal::ExecuteLine(const CString& line)
{
    m_out << line.ToUtf8() << '\n';
    if (ModuleNames().count(line))
        m_currentModule = line;
    return 0;
}

const std::set<CString>& HostGlobal::ModuleNames()
{
    // The command modules the engine knows: the module lines settings
    // write. Looked up when the first line runs, so that a run without
    // lines needs no resources.
    // Every module name the analyses write lives in one block of the
    // string table, so a new analysis's module is known here as soon as
    // its name is added there.
    if (m_moduleNames.empty()) {
        for (UINT id = kFirstModuleName; id <= kLastModuleName; ++id)
            if (const CString name = m_resources.GetString(id); !name.IsEmpty())
                m_moduleNames.insert(name);
        m_moduleNames.insert(u"REGRESS");
    }
    return m_moduleNames;
}

void HostGlobal::RunCommand(UINT commandId, const CString&)
{
    CGUIBaseObj* settings = m_store.Get(commandId);
    if (!settings)
        return;
    // The user confirmed these settings: they are this session's to save.
    m_store.Touch(commandId);
    CLIST<CCmdInfo> list;
    settings->GetCommandInfoList(list);
    for (const auto& line : list)
        m_kernel->ExecuteLine(line.m_strCommand);
    m_out.flush();
    ++m_commandsRun;
}

bool HostGlobal::IsCommandAllowed(UINT)
{
    // Analyses need a data sheet to choose variables from.
    return m_sheet != nullptr;
}

void HostGlobal::ReportMessage(UINT messageId, int)
{
    ReportFieldMessage(messageId, {});
}

void HostGlobal::ReportFieldMessage(UINT messageId, const CString& detail)
{
    if (m_messagesMuted)
        return;
    CString text = m_resources.GetMessageText(messageId);
    if (!detail.IsEmpty())
        text += (text.IsEmpty() ? CString() : CString(u" ")) + detail;
    m_err << "message " << messageId << ": " << text.ToUtf8() << std::endl;
    if (m_presenter)
        m_presenter(text);
}

int HostGlobal::GetDataTypeCode()
{
    if (!m_sheet)
        return KAL_DATA_NONE;
    return m_preferences.matrixData ? KAL_DATA_MATRIX : KAL_DATA_ORDINARY;
}

IModule* HostGlobal::GetModule(const std::wstring& name)
{
    if (name == L"KalKernel")
        return m_kernel.get();
    if (name == L"KalData")
        return m_data.get();
    return nullptr;
}

namespace {

bool FindChain(const std::vector<MenuNode>& nodes, UINT id, CStringArray& chain)
{
    for (const auto& node : nodes) {
        chain.Add(node.text);
        if ((node.id == id && id != 0) || FindChain(node.items, id, chain))
            return true;
        chain.RemoveAt(chain.GetUpperBound());
    }
    return false;
}

} // namespace

bool HostGlobal::GetIDTextChain(UINT id, CStringArray& chain)
{
    chain.RemoveAll();
    return FindChain(m_resources.GetMenuBar(), id, chain);
}

} // namespace kalhost
