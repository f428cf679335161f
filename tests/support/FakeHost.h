// A small in-process host for tests: the IGlobal services the module and
// framework use, with a data sheet given by the test, the real resources,
// and every report (messages, assertions, run commands) recorded.
#pragma once

#include "framework/GUIBaseObj.h"
#include "host/IDlgBase.h"
#include "host/IGlobal.h"
#include "host/KVMenuBar.h"
#include "platform/Diagnostics.h"
#include "refhost/Resources.h"
#include "tests/support/Printers.h"

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace kaltest {

// Names are kept as the host's strings, as a real data sheet keeps them:
// handing one out shares it.
struct FakeVariable {
    CString name;
    NmsEnum::VARIABLETYPE type = NmsEnum::VT_NUMERIC;
    bool categorical = false;
};

class FakeSheet final : public IDataSheet {
public:
    std::vector<FakeVariable> variables;
    bool valid = true;

    bool IsValid() override { return valid; }
    int GetVariableCount() override { return static_cast<int>(variables.size()); }
    CString GetVariableName(int index, int) override { return variables.at(static_cast<std::size_t>(index)).name; }
    NmsEnum::VARIABLETYPE GetVariableType(int index) override
    {
        return variables.at(static_cast<std::size_t>(index)).type;
    }
    std::vector<int> GetCategoricalIndexes() override
    {
        std::vector<int> indexes;
        for (std::size_t i = 0; i < variables.size(); ++i)
            if (variables[i].categorical)
                indexes.push_back(static_cast<int>(i));
        return indexes;
    }
};

// Collects assertion reports while alive.
class AssertionCapture {
public:
    AssertionCapture()
    {
        m_previous =
            kal::SetAssertionSink([this](const std::string& file, int line) { reports.emplace_back(file, line); });
    }
    ~AssertionCapture() { kal::SetAssertionSink(std::move(m_previous)); }
    AssertionCapture(const AssertionCapture&) = delete;
    AssertionCapture& operator=(const AssertionCapture&) = delete;

    std::vector<std::pair<std::string, int>> reports;

private:
    kal::AssertionSink m_previous;
};

class FakeHost final : public IGlobal, public IModuleRegistry, public IMainFrame, public CKVMenuBar {
public:
    FakeHost();
    ~FakeHost();

    // Registers the embedded resources as the process's resource handle for
    // the lifetime of the fake.
    kalhost::ResourceTable& Resources() { return *m_resources; }

    FakeSheet sheet;
    bool hasSheet = true;
    int dataTypeCode = KAL_DATA_ORDINARY; // the kind of the sheet, when there is one
    CString commandModule;                // what GetCurrentCommandModule answers
    bool writeEveryOption = false;
    char16_t decimalSeparator = u'.';
    bool restrictedMode = false;
    int editLevel = 1;
    bool allowCommands = true;
    bool replayMode = false;
    std::map<std::wstring, IModule*> modules;
    std::map<UINT, std::unique_ptr<CGUIBaseObj>> store;
    std::vector<UINT> messages;
    std::vector<std::pair<UINT, std::vector<std::u16string>>> runs; // command id, lines
    std::vector<CString> runCaptions;
    int dialogsOpened = 0;
    void* ownerContext = nullptr;           // what GetOwnerContext answers
    std::vector<UINT> ownerContextRequests; // the command ids it was asked for

    // IGlobal
    IModuleRegistry* GetModuleRegistry() override { return this; }
    CGUIBaseObj* GetSettings(UINT id) override;
    void RegisterSettings(UINT id, CGUIBaseObj* settings) override { store[id].reset(settings); }
    void RunCommand(UINT id, const CString& caption) override;
    bool IsCommandAllowed(UINT) override { return allowCommands; }
    void ReportMessage(UINT id, int) override { messages.push_back(id); }
    void OnDialogOpening(int) override { ++dialogsOpened; }
    bool IsReplayMode() override { return replayMode; }
    IMainFrame* GetMainFrame() override { return this; }
    IDataSheet* GetActiveDataSheet() override { return hasSheet ? &sheet : nullptr; }
    int GetDataTypeCode() override { return hasSheet ? dataTypeCode : KAL_DATA_NONE; }
    CString GetCurrentCommandModule() override { return commandModule; }
    int GetOutputLevel() override { return 2; }
    bool IsRestrictedMode() override { return restrictedMode; }
    int GetEditLevel() override { return editLevel; }
    bool IsWriteEveryOption() override { return writeEveryOption; }
    char16_t GetDecimalSeparator() override { return decimalSeparator; }
    void UpdateViews(int) override {}
    void RestoreFocus() override {}

    // IModuleRegistry
    IModule* GetModule(const std::wstring& name) override;
    // IMainFrame
    CKVMenuBar* GetMenuBar() override { return this; }
    void* GetOwnerContext(UINT id) override
    {
        ownerContextRequests.push_back(id);
        return ownerContext;
    }
    // CKVMenuBar
    bool GetIDTextChain(UINT id, CStringArray& chain) override;

    // Adds variables by name; a trailing '$' makes a string variable.
    void SetVariables(std::initializer_list<std::u16string> names);

private:
    std::unique_ptr<kalhost::ResourceTable> m_resources;
};

// Makes `host` the framework's host for the current scope, as a module's
// dialog services would.
class HostScope {
public:
    explicit HostScope(IGlobal* host);
    ~HostScope();
    HostScope(const HostScope&) = delete;
    HostScope& operator=(const HostScope&) = delete;

private:
    ::IDlgBase* m_dlgBase;
};

// The command list as plain UTF-16 strings, for comparisons.
std::vector<std::u16string> Lines(const CLIST<CCmdInfo>& list);

// A variable list of numeric variables with these names.
CGUIArray<CGUIDataVariable> Vars(std::initializer_list<std::u16string> names);

} // namespace kaltest
