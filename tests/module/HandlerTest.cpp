// Menu-group handlers: which ids each answers and what the base records.
#include "Msg/MixedModelMsg.h"
#include "Msg/QualityAnalysisMsg.h"
#include "Msg/RegressionMsg.h"
#include "Msg/Stat2SingleMenuItemsMsg.h"
#include "platform/HeadlessDriver.h"
#include "tests/support/FakeHost.h"

#include <gtest/gtest.h>

#include <vector>

using namespace kaltest;

TEST(Handlers, RecordTheIdAndAnswerOnlyTheirRows)
{
    FakeHost host;
    CMixedModelMsg mixed(&host);
    for (const UINT gap : {2070u, 2071u, 2072u, 2066u, 2074u}) {
        mixed.OnKVCommand(gap);
        EXPECT_EQ(mixed.GetDID(), gap);
    }
    EXPECT_TRUE(host.messages.empty());

    CQualityAnalysisMsg quality(&host);
    quality.OnKVCommand(2044);
    EXPECT_TRUE(host.messages.empty());

    // Each of the six rows opens its dialog (cancelled at once) over the
    // settings the host keeps for it; the ids between them open nothing.
    CHeadlessDriver driver;
    driver.SetScript([](CHeadlessSession& s) { s.Cancel(); });
    CDialogDriver* previous = AfxSetDialogDriver(&driver);
    CStat2SingleMenuItemsMsg single(&host);
    for (UINT id = 2014; id <= 2079; ++id)
        single.OnKVCommand(id);
    AfxSetDialogDriver(previous);
    EXPECT_TRUE(host.messages.empty());
    std::vector<UINT> opened;
    for (const auto& [id, settings] : host.store)
        opened.push_back(id);
    EXPECT_EQ(opened, (std::vector<UINT>{2014, 2059, 2063, 2065, 2078, 2079}));
}

namespace {

// Every row of the module's handlers has its dialog now: a handler of one
// row without it stands for a module that lacks an analysis.
const MenuCommandRow kUnavailableRows[] = {KAL_MENU_ROW_UNAVAILABLE(2079, CRsmPlotDlg, CRsmPlotData, 2396)};

class CUnavailableMsg : public CMenuGroupMsg {
public:
    explicit CUnavailableMsg(IGlobal* global) : CMenuGroupMsg(global, "Msg/UnavailableMsg", kUnavailableRows) {}
    const char* GetHandlerName() const override { return "CUnavailableMsg"; }
};

} // namespace

TEST(Handlers, RowsWithoutTheirAnalysisReportNotAvailable)
{
    FakeHost host;
    CUnavailableMsg handler(&host);
    handler.OnKVCommand(2079);
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0], 100190500u);
    EXPECT_TRUE(host.store.empty());
    EXPECT_NE(handler.FindRow(2079), nullptr);
    EXPECT_EQ(handler.FindRow(2002), nullptr);
}

TEST(Handlers, AMissingGlobalIsReportedFromTheHandlersSource)
{
    AssertionCapture capture;
    CQualityAnalysisMsg quality(nullptr);
    ASSERT_EQ(capture.reports.size(), 1u);
    EXPECT_EQ(capture.reports[0].first, "Msg/QualityAnalysisMsg");
    quality.SetParent(&capture);
    EXPECT_EQ(quality.GetParent(), &capture);
}
