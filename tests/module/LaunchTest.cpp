// Menu commands through their handler and launch routine, as the host
// sends them.
#include "Msg/AnalysisofVarianceMsg.h"
#include "Msg/LaunchDialog.h"
#include "Source/DlgStat2.h"
#include "host/IGrHitNodeInfo.h"
#include "platform/HeadlessDriver.h"
#include "private/Anova/KDGAnovaTabDlg.h"
#include "tests/support/FakeHost.h"

#include <gtest/gtest.h>

using namespace kaltest;

namespace {

class Launch : public ::testing::Test {
protected:
    Launch()
    {
        host.SetVariables({u"Y", u"Y2", u"A", u"X"});
        module = static_cast<CDlgStat2*>(GetModuleFactory(&host));
        previous = AfxSetDialogDriver(&driver);
    }
    ~Launch() override
    {
        AfxSetDialogDriver(previous);
        module->Release();
    }

    void Script(std::function<void(CHeadlessSession&)> script) { driver.SetScript(std::move(script)); }

    FakeHost host;
    CDlgStat2* module = nullptr;
    CHeadlessDriver driver;
    CDialogDriver* previous = nullptr;
};

struct Node final : IGrHitNodeInfo {
    void Highlight(int mode) override { highlighted.push_back(mode); }
    std::vector<int> highlighted;
};

} // namespace

TEST_F(Launch, TheCommandOpensOverTheSettingsTheHostKeeps)
{
    CString caption;
    Script([&](CHeadlessSession& s) {
        caption = s.Dialog().GetWindowText();
        s.Select(CAnovaDlg::IDC_SOURCE_LIST, {CString(u"Y")});
        s.Click(CAnovaDlg::IDC_ADD_DEPENDENT);
        s.Ok();
    });
    module->GetAnalysisofVarianceMsg()->OnKVCommand(2008);
    EXPECT_EQ(caption, CString(u"Analysis > Analysis of Variance > Estimate Model"));
    EXPECT_EQ(host.dialogsOpened, 1);
    ASSERT_EQ(host.runs.size(), 1u);
    EXPECT_EQ(host.runs[0].first, 2008u);
    EXPECT_EQ(host.runs[0].second[1], u"DEPEND Y");
    EXPECT_EQ(host.runCaptions[0], CString()); // only replays pass a caption
    CGUIBaseObj* settings = host.GetSettings(2008);
    ASSERT_NE(settings, nullptr);
    EXPECT_EQ(settings->GetDialogID(), 2008u);

    // The second opening finds the same object and the last choices.
    std::vector<CString> dependents;
    Script([&](CHeadlessSession& s) {
        dependents = s.Items(CAnovaDlg::IDC_DEPENDENT_LIST);
        s.Cancel();
    });
    module->GetAnalysisofVarianceMsg()->OnKVCommand(2008);
    EXPECT_EQ(host.GetSettings(2008), settings);
    EXPECT_EQ(dependents, std::vector<CString>{CString(u"Y")});
    EXPECT_EQ(host.runs.size(), 1u); // cancelled: nothing runs
}

TEST_F(Launch, ARefusedCommandReportsAndOpensNothing)
{
    host.allowCommands = false;
    bool opened = false;
    Script([&](CHeadlessSession&) { opened = true; });
    module->GetAnalysisofVarianceMsg()->OnKVCommand(2008);
    EXPECT_FALSE(opened);
    EXPECT_EQ(host.messages, std::vector<UINT>{100190495});
    EXPECT_EQ(host.GetSettings(2008), nullptr);
    EXPECT_EQ(host.dialogsOpened, 0);
}

TEST_F(Launch, ReplaysKeepTheDialogCaptionAndPassItToTheRunner)
{
    host.replayMode = true;
    Script([](CHeadlessSession& s) { s.Ok(); });
    module->GetAnalysisofVarianceMsg()->OnKVCommand(2008);
    ASSERT_EQ(host.runCaptions.size(), 1u);
    EXPECT_EQ(host.runCaptions[0], CString(u"Analysis of Variance"));

    // A graph command in replay only marks the node.
    Node node;
    module->GetAnalysisofVarianceMsg()->OnGrKVCommand(2008, &node);
    EXPECT_EQ(node.highlighted, std::vector<int>{0});
    EXPECT_EQ(host.runs.size(), 1u);

    host.replayMode = false;
    module->GetAnalysisofVarianceMsg()->OnGrKVCommand(2008, &node);
    EXPECT_EQ(node.highlighted.size(), 1u);
    EXPECT_EQ(host.runs.size(), 2u); // re-opened from the node
}

TEST_F(Launch, TwoIdsSharingARoutineKeepSeparateSettings)
{
    // Two rows that share one launch routine, as 2034 and 2038 do.
    const MenuCommandRow rows[] = {
        KAL_MENU_ROW(2034, CAnovaTabDlg, CAnovaTabData),
        KAL_MENU_ROW(2038, CAnovaTabDlg, CAnovaTabData),
    };
    ASSERT_EQ(rows[0].launch, rows[1].launch);
    Script([](CHeadlessSession& s) {
        s.Select(CAnovaDlg::IDC_SOURCE_LIST, {CString(u"Y2")});
        s.Click(CAnovaDlg::IDC_ADD_DEPENDENT);
        s.Ok();
    });
    rows[0].launch(&host, 2034, nullptr, rows[0], nullptr);
    std::vector<CString> dependents;
    Script([&](CHeadlessSession& s) {
        dependents = s.Items(CAnovaDlg::IDC_DEPENDENT_LIST);
        s.Ok();
    });
    rows[1].launch(&host, 2038, nullptr, rows[1], nullptr);
    EXPECT_TRUE(dependents.empty());
    ASSERT_NE(host.GetSettings(2034), nullptr);
    ASSERT_NE(host.GetSettings(2038), nullptr);
    EXPECT_NE(host.GetSettings(2034), host.GetSettings(2038));
    EXPECT_EQ(host.runs[0].second[1], u"DEPEND Y2");
    EXPECT_EQ(host.runs[1].second[1], u"DEPEND ");
}

TEST(MenuCaption, JoinsThePathWithoutMnemonicsAndDots)
{
    CStringArray chain;
    chain.Add(u"&Analysis");
    chain.Add(u"Analysis of &Variance");
    chain.Add(u"&Estimate Model...");
    EXPECT_EQ(JoinMenuCaption(chain), CString(u"Analysis > Analysis of Variance > Estimate Model"));
}
