#include "tests/support/FakeHost.h"

#include "host/IDlgBase.h"

namespace kaltest {

FakeHost::FakeHost() : m_resources(kalhost::ResourceTable::LoadEmbedded())
{
    KalUseRes::SetGlobalResourceHandle(m_resources.get());
}

FakeHost::~FakeHost()
{
    store.clear();
    KalUseRes::SetGlobalResourceHandle(nullptr);
}

CGUIBaseObj* FakeHost::GetSettings(UINT id)
{
    const auto it = store.find(id);
    return it == store.end() ? nullptr : it->second.get();
}

void FakeHost::RunCommand(UINT id, const CString& caption)
{
    runCaptions.push_back(caption);
    std::vector<std::u16string> lines;
    if (CGUIBaseObj* settings = GetSettings(id)) {
        CLIST<CCmdInfo> list;
        settings->GetCommandInfoList(list);
        lines = Lines(list);
    }
    runs.emplace_back(id, std::move(lines));
}

IModule* FakeHost::GetModule(const std::wstring& name)
{
    const auto it = modules.find(name);
    return it == modules.end() ? nullptr : it->second;
}

bool FakeHost::GetIDTextChain(UINT id, CStringArray& chain)
{
    chain.RemoveAll();
    if (id != 2008)
        return false;
    chain.Add(u"Analysis");
    chain.Add(u"Analysis of Variance");
    chain.Add(u"&Estimate Model...");
    return true;
}

void FakeHost::SetVariables(std::initializer_list<std::u16string> names)
{
    sheet.variables.clear();
    for (const auto& name : names)
        sheet.variables.push_back({name, name.ends_with(u'$') ? NmsEnum::VT_STRING : NmsEnum::VT_NUMERIC, false});
}

HostScope::HostScope(IGlobal* host) : m_dlgBase(CreateDlgBase(host)) {}

HostScope::~HostScope()
{
    m_dlgBase->Release();
}

std::vector<std::u16string> Lines(const CLIST<CCmdInfo>& list)
{
    std::vector<std::u16string> lines;
    for (const auto& line : list)
        lines.push_back(line.m_strCommand.Str());
    return lines;
}

CGUIArray<CGUIDataVariable> Vars(std::initializer_list<std::u16string> names)
{
    CGUIArray<CGUIDataVariable> list;
    for (const auto& n : names)
        list.Add(CGUIDataVariable(CString(n), NmsEnum::VT_NUMERIC));
    return list;
}

} // namespace kaltest
