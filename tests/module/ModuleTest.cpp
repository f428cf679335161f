// The module object: entry, construction and destruction orders, services.
#include "Msg/AnalysisofVarianceMsg.h"
#include "Msg/CorrelationsMsg.h"
#include "Msg/GeneralLinearModelMsg.h"
#include "Msg/MixedModelMsg.h"
#include "Msg/MixedRegressionMsg.h"
#include "Msg/MultivariateAnalysisMsg.h"
#include "Msg/QualityAnalysisMsg.h"
#include "Msg/RegressionMsg.h"
#include "Msg/Stat2SingleMenuItemsMsg.h"
#include "Source/DlgStat2.h"
#include "host/IKernel.h"
#include "platform/ExtensionModule.h"
#include "platform/RegisteredMessages.h"
#include "tests/support/AllocationHooks.h"
#include "tests/support/FakeHost.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <iomanip>
#include <sstream>

using namespace kaltest;

namespace {

// The order in which objects are freed, recorded without allocating.
std::array<void*, 4096> g_freed{};
std::atomic<std::size_t> g_freedCount{0};

void RecordFree(void* p)
{
    const std::size_t i = g_freedCount++;
    if (i < g_freed.size())
        g_freed[i] = p;
}

void StartRecordingFrees()
{
    g_freedCount = 0;
    g_onFree = &RecordFree;
}

std::vector<void*> StopRecordingFrees()
{
    g_onFree = nullptr;
    const std::size_t n = std::min(g_freedCount.load(), g_freed.size());
    return std::vector<void*>(g_freed.begin(), g_freed.begin() + static_cast<std::ptrdiff_t>(n));
}

} // namespace

namespace {

class FakeKernel final : public IKernel {
public:
    int ExecuteLine(const CString&) override { return 0; }
    IGlobal* GetGlobal() override { return nullptr; }
    void Release() override { ++releases; }
    void PrintModuleInfo() override {}
    std::wstring& GetModuleName() override { return name; }
    std::wstring& SetModuleName(const std::wstring& n) override { return name = n; }
    bool ReleaseCountedRef(KalCountedRef*, int) override { return false; }
    void NoOperation() override {}
    IBinReader* GetResourceHandle() override { return nullptr; }

    std::wstring name;
    int releases = 0;
};

std::vector<void*> HandlerPointers(CDlgStat2& m)
{
    return {m.GetAnalysisofVarianceMsg(), m.GetCorrelationsMsg(),    m.GetGeneralLinearModelMsg(),
            m.GetMixedModelMsg(),         m.GetMixedRegressionMsg(), m.GetMultivariateAnalysisMsg(),
            m.GetQualityAnalysisMsg(),    m.GetRegressionMsg(),      m.GetStat2SingleMenuItemsMsg()};
}

} // namespace

TEST(ModuleEntry, NullGlobalIsReportedTwiceAndStillGivesAModule)
{
    AssertionCapture capture;
    IModule* module = GetModuleFactory(nullptr);
    ASSERT_NE(module, nullptr);
    EXPECT_EQ(module->GetGlobal(), nullptr);
    ASSERT_GE(capture.reports.size(), 2u);
    EXPECT_EQ(capture.reports[0], std::make_pair(std::string("KalDlgStat2"), 79));
    EXPECT_EQ(capture.reports[1], std::make_pair(std::string("Source/DlgStat2"), 64));
    // Each handler then finds no IGlobal in its base, in creation order.
    const std::vector<std::string> handlerFiles = {
        "Msg/AnalysisofVarianceMsg", "Msg/CorrelationsMsg",    "Msg/GeneralLinearModelMsg",
        "Msg/MixedModelMsg",         "Msg/MixedRegressionMsg", "Msg/MultivariateAnalysisMsg",
        "Msg/QualityAnalysisMsg",    "Msg/RegressionMsg",      "Msg/Stat2SingleMenuItemsMsg"};
    ASSERT_EQ(capture.reports.size(), 2 + handlerFiles.size());
    for (std::size_t i = 0; i < handlerFiles.size(); ++i)
        EXPECT_EQ(capture.reports[2 + i], std::make_pair(handlerFiles[i], 36));
    module->Release();
}

TEST(ModuleEntry, EachCallMakesANewModuleAndRepointsTheGlobal)
{
    FakeHost host;
    IModule* first = GetModuleFactory(&host);
    EXPECT_EQ(g_pDlgStat2Module, first);
    IModule* second = GetModuleFactory(&host);
    EXPECT_NE(second, first);
    EXPECT_EQ(g_pDlgStat2Module, second);
    EXPECT_EQ(first->GetGlobal(), &host); // the first stays usable until released
    first->Release();
    EXPECT_EQ(g_pDlgStat2Module, second); // release does not clear the global
    second->Release();
}

TEST(ModuleObject, FindsHostServicesByNameAndType)
{
    FakeHost host;
    FakeKernel kernel;
    FakeKernel notData; // a module that is not a data service
    host.modules[L"KalKernel"] = &kernel;
    host.modules[L"KalData"] = &notData;
    auto* module = static_cast<CDlgStat2*>(GetModuleFactory(&host));
    EXPECT_EQ(module->m_pKernel, &kernel);
    EXPECT_EQ(module->m_pData, nullptr);
    EXPECT_NE(module->m_pDlgBase, nullptr);
    EXPECT_EQ(module->GetResourceHandle(), &host.Resources());
    EXPECT_TRUE(module->GetModuleName().empty());
    module->SetModuleName(L"Stat2");
    EXPECT_EQ(module->GetModuleName(), L"Stat2");
    for (void* handler : HandlerPointers(*module))
        EXPECT_NE(handler, nullptr);
    module->Release();
    EXPECT_EQ(kernel.releases, 0); // host services are borrowed
}

TEST(ModuleObject, HandlersAreDestroyedInCreationOrder)
{
    FakeHost host;
    auto* module = static_cast<CDlgStat2*>(GetModuleFactory(&host));
    const auto handlers = HandlerPointers(*module);
    StartRecordingFrees();
    module->Release();
    const std::vector<void*> freed = StopRecordingFrees();
    std::vector<std::ptrdiff_t> positions;
    for (void* handler : handlers) {
        const auto it = std::find(freed.begin(), freed.end(), handler);
        ASSERT_NE(it, freed.end());
        positions.push_back(it - freed.begin());
    }
    EXPECT_TRUE(std::is_sorted(positions.begin(), positions.end()));
    // The module object itself goes last.
    EXPECT_EQ(freed.back(), static_cast<void*>(module));
}

TEST(ModuleObject, TraceLineHonoursTheStreamWidth)
{
    FakeHost host;
    IModule* module = GetModuleFactory(&host);
    std::wostringstream captured;
    auto* previous = std::wcout.rdbuf(captured.rdbuf());
    module->PrintModuleInfo();
    std::wcout << std::setw(18);
    module->PrintModuleInfo();
    std::wcout.rdbuf(previous);
    EXPECT_EQ(captured.str(), L"DlgStat2 Module\n   DlgStat2 Module\n");
    module->Release();
}

TEST(ModuleObject, ReleaseCountedRefByReason)
{
    FakeHost host;
    IModule* module = GetModuleFactory(&host);
    FakeKernel object;

    // Reasons 2 and 3 never touch the count.
    for (const int reason : {2, 3}) {
        auto* holder = new KalCountedRef{&object, 1};
        EXPECT_FALSE(module->ReleaseCountedRef(holder, reason));
        EXPECT_EQ(holder->m_nRefCount, 1);
        delete holder;
    }
    // Reason 0 and any other code lower the count by one.
    for (const int reason : {0, 7}) {
        auto* holder = new KalCountedRef{&object, 2};
        EXPECT_FALSE(module->ReleaseCountedRef(holder, reason));
        EXPECT_EQ(holder->m_nRefCount, 1);
        EXPECT_EQ(object.releases, 0);
        delete holder;
    }
    // Reason 1 lowers it by two: count 2 releases the object at once and
    // frees the holder.
    EXPECT_FALSE(module->ReleaseCountedRef(new KalCountedRef{&object, 2}, 1));
    EXPECT_EQ(object.releases, 1);
    EXPECT_FALSE(module->ReleaseCountedRef(new KalCountedRef{&object, 1}, 0));
    EXPECT_EQ(object.releases, 2);
    EXPECT_FALSE(module->ReleaseCountedRef(nullptr, 1));
    module->Release();
}

TEST(ModuleLoad, RegistersTheLibraryAndItsMessages)
{
    const auto libraries = AfxGetExtensionLibraries();
    EXPECT_TRUE(std::any_of(libraries.begin(), libraries.end(), [](const CDynLinkLibrary* library) {
        return library->m_strPath.find("libKalDlgStat2.so") != std::string::npos;
    }));
    EXPECT_EQ(RegisterWindowMessage(u"OnPrintAssertError"), WM_KAL_PRINT_ASSERT_ERROR);
    EXPECT_EQ(RegisterWindowMessage(u"ApplyDlg"), WM_KAL_APPLY_DLG);
    EXPECT_NE(WM_KAL_APPLY_DLG, WM_KAL_PRINT_ASSERT_ERROR);
    EXPECT_GE(WM_KAL_APPLY_DLG, 0xC000u);
    EXPECT_EQ(g_strKalAppTop, CString(u"KALAPPTOP"));
}
