// The library's entry points: GetModuleFactory, the load/unload routine
// and the static data made at load.
#include "Source/DlgStat2.h"

#include "host/KalAssertDlg.h"
#include "platform/ExtensionModule.h"
#include "platform/RegisteredMessages.h"

#include <new>

CDlgStat2* g_pDlgStat2Module = nullptr;

const CString g_strKalCrashRescueFile = u"KalCrashRescueFile";
const CString g_strKalUserTop = u"KALUSERTOP";
const CString g_strKalAppTop = u"KALAPPTOP";
const CString g_strMarkupLineBreak = u"<br>";

const unsigned int WM_KAL_PRINT_ASSERT_ERROR = RegisterWindowMessage(u"OnPrintAssertError");
const unsigned int WM_KAL_APPLY_DLG = RegisterWindowMessage(u"ApplyDlg");
const unsigned int WM_KAL_LOGIT_SETS_CHANGED = RegisterWindowMessage(u"LogitSetsChanged");
const unsigned int WM_KAL_LOGIT_SETS_APPLY = RegisterWindowMessage(u"LogitSetsApply");

namespace {

constexpr int kNullGlobalAssertLine = 79;

AFX_EXTENSION_MODULE g_extensionModule;

enum : DWORD { DLL_PROCESS_DETACH = 0, DLL_PROCESS_ATTACH = 1, DLL_THREAD_ATTACH = 2, DLL_THREAD_DETACH = 3 };

int LibraryEntry(void* instance, DWORD reason)
{
    switch (reason) {
    case DLL_PROCESS_ATTACH:
        if (!AfxInitExtensionModule(g_extensionModule, instance))
            return 0;
        // The framework keeps the registration until the module detaches.
        new CDynLinkLibrary(g_extensionModule, FALSE);
        return 1;
    case DLL_PROCESS_DETACH: AfxTermExtensionModule(g_extensionModule, FALSE); return 1;
    default: return 1;
    }
}

// Library load and unload run the entry routine through a static object:
// declared after the module state, it is constructed after it and
// destroyed before it. The address of a function of this library stands
// for its instance handle.
struct LibraryRegistration {
    LibraryRegistration() { LibraryEntry(Instance(), DLL_PROCESS_ATTACH); }
    ~LibraryRegistration() { LibraryEntry(Instance(), DLL_PROCESS_DETACH); }
    static void* Instance() { return reinterpret_cast<void*>(&LibraryEntry); }
};

const LibraryRegistration g_libraryRegistration;

} // namespace

extern "C" IModule* GetModuleFactory(IGlobal* pGlobal)
{
    if (!pGlobal)
        CKalAssertDlg("KalDlgStat2", kNullGlobalAssertLine).DoPrint();
    g_pDlgStat2Module = nullptr;
    g_pDlgStat2Module = new (std::nothrow) CDlgStat2(pGlobal);
    return g_pDlgStat2Module;
}
