// HostGlobal: the reference host's IGlobal and the host modules behind it
// ("KalKernel", the command engine that prints the lines it runs, and
// "KalData", the data service over the open data sheet), its main frame and
// menu bar.
#pragma once

#include "host/IGlobal.h"
#include "host/IKernel.h"
#include "host/KVMenuBar.h"
#include "refhost/DataSheet.h"
#include "refhost/Resources.h"
#include "refhost/SettingsStore.h"

#include <functional>
#include <map>
#include <memory>
#include <ostream>
#include <set>
#include <string>

#include "framework/GUIBaseObj.h"

namespace kalhost {

struct HostPreferences {
    bool writeEveryOption = false;
    char16_t decimalSeparator = u'.';
    bool matrixData = false; // the data kind is a matrix (type code 2)
    bool restrictedMode = false;
    int editLevel = 1;
    int outputLevel = 2;
};

class HostGlobal final : public IGlobal, public IModuleRegistry, public IMainFrame, public CKVMenuBar {
public:
    HostGlobal(ResourceTable& resources, std::ostream& out, std::ostream& err);
    ~HostGlobal();
    HostGlobal(const HostGlobal&) = delete;
    HostGlobal& operator=(const HostGlobal&) = delete;

    HostPreferences& Preferences() { return m_preferences; }
    void SetDataSheet(std::unique_ptr<DataSheet> sheet) { m_sheet = std::move(sheet); }
    DataSheet* Sheet() { return m_sheet.get(); }
    SettingsStore& Store() { return m_store; }
    ResourceTable& Resources() { return m_resources; }
    void SetCurrentCommandModule(const CString& name) { m_currentModule = name; }
    // Where messages are shown besides standard error (a window's message
    // box); empty for none.
    void SetMessagePresenter(std::function<void(const CString& text)> presenter) { m_presenter = std::move(presenter); }

    // How many dialogs ran their commands.
    int CommandsRun() const { return m_commandsRun; }

    // The command runner prints through the kernel; lines that the kernel
    // knows as module names become the current command module.
    int ExecuteLine(const CString& line);

    // IGlobal
    IModuleRegistry* GetModuleRegistry() override { return this; }
    CGUIBaseObj* GetSettings(UINT commandId) override { return m_store.Get(commandId); }
    void RegisterSettings(UINT commandId, CGUIBaseObj* settings) override { m_store.Register(commandId, settings); }
    void RunCommand(UINT commandId, const CString& caption) override;
    bool IsCommandAllowed(UINT commandId) override;
    void ReportMessage(UINT messageId, int flags) override;
    void ReportFieldMessage(UINT messageId, const CString& detail) override;
    // While one lives, messages are not shown: a dialog checked behind the
    // user's back (a store entry confirmed as it loads) tells nobody.
    class MutedMessages {
    public:
        explicit MutedMessages(HostGlobal& host) : m_host(host) { m_host.m_messagesMuted = true; }
        ~MutedMessages() { m_host.m_messagesMuted = false; }
        MutedMessages(const MutedMessages&) = delete;
        MutedMessages& operator=(const MutedMessages&) = delete;

    private:
        HostGlobal& m_host;
    };
    void OnDialogOpening(int) override {}
    bool IsReplayMode() override { return false; }
    IMainFrame* GetMainFrame() override { return this; }
    IDataSheet* GetActiveDataSheet() override { return m_sheet.get(); }
    int GetDataTypeCode() override;
    CString GetCurrentCommandModule() override { return m_currentModule; }
    int GetOutputLevel() override { return m_preferences.outputLevel; }
    bool IsRestrictedMode() override { return m_preferences.restrictedMode; }
    int GetEditLevel() override { return m_preferences.editLevel; }
    bool IsWriteEveryOption() override { return m_preferences.writeEveryOption; }
    char16_t GetDecimalSeparator() override { return m_preferences.decimalSeparator; }
    void UpdateViews(int) override {}
    void RestoreFocus() override {}

    // IModuleRegistry
    IModule* GetModule(const std::wstring& name) override;

    // IMainFrame
    CKVMenuBar* GetMenuBar() override { return this; }
    void* GetOwnerContext(UINT) override { return nullptr; }

    // CKVMenuBar
    bool GetIDTextChain(UINT id, CStringArray& chain) override;

private:
    class Kernel;
    class Data;

    // The block of string ids that holds the module names (ANOVA, GLM, QC,
    // ...): a line that is one of them makes its module the current one.
    static constexpr UINT kFirstModuleName = 12890;
    static constexpr UINT kLastModuleName = 13019;
    const std::set<CString>& ModuleNames();

    ResourceTable& m_resources;
    std::ostream& m_out;
    std::ostream& m_err;
    HostPreferences m_preferences;
    std::unique_ptr<DataSheet> m_sheet;
    SettingsStore m_store;
    CString m_currentModule;
    std::function<void(const CString&)> m_presenter;
    std::set<CString> m_moduleNames; // see ModuleNames
    std::unique_ptr<Kernel> m_kernel;
    std::unique_ptr<Data> m_data;
    int m_commandsRun = 0;
    bool m_messagesMuted = false;
};

} // namespace kalhost
