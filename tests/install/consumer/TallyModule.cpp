// A module of its own: one settings class on the framework's field table
// and command building, and the module object a host asks for.
#include "framework/CmdInfo.h"
#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "host/IModule.h"

#include <iostream>

class CTallyData : public CGUIBaseObj {
public:
    CTallyData() { kal::ResetFields(*this); }
    static int GetDefaultWidth() { return 7; }
    int SetAll(const CGUIArray<CGUIDataVariable>& counted, int width)
    {
        return kal::CopyFieldsIn(*this, counted, width);
    }
    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override
    {
        CString line(u"TALLY ");
        AddVariables(line, m_Counted, u" ");
        AppendCommandLine(list, line + u" / WIDTH = " + NumberText(m_Width));
    }
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CTallyData>;
        return std::tuple{F::List(&CTallyData::m_Counted), F::Value(&CTallyData::m_Width, 0, &GetDefaultWidth)};
    }

private:
    CGUIArray<CGUIDataVariable> m_Counted;
    int m_Width;
};

class CTallyModule final : public IModule {
public:
    IGlobal* GetGlobal() override { return nullptr; }
    void Release() override { delete this; }
    void PrintModuleInfo() override
    {
        CTallyData tally;
        CGUIArray<CGUIDataVariable> counted;
        counted.Add(CGUIDataVariable(u"plot size", NmsEnum::VT_NUMERIC));
        tally.SetAll(counted, CTallyData::GetDefaultWidth());
        CLIST<CCmdInfo> lines;
        tally.GetCommandInfoList(lines);
        for (const auto& line : lines)
            std::cout << line.m_strCommand.ToUtf8() << '\n';
    }
    std::wstring& GetModuleName() override { return m_name; }
    std::wstring& SetModuleName(const std::wstring& name) override { return m_name = name; }
    bool ReleaseCountedRef(KalCountedRef*, int) override { return false; }
    void NoOperation() override {}
    IBinReader* GetResourceHandle() override { return nullptr; }

private:
    std::wstring m_name = L"Tally";
};

extern "C" IModule* GetModuleFactory(IGlobal*)
{
    return new CTallyModule;
}
