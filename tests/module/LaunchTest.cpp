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

TEST_F(Launch, TheDialogIsGivenItsOwnerContextByCommandId)
{
    int context = 0;
    host.ownerContext = &context;
    void* given = nullptr;
    Script([&](CHeadlessSession& s) {
        given = dynamic_cast<CGUIBaseDlg&>(s.Dialog()).GetOwnerContext();
        s.Cancel();
    });
    module->GetAnalysisofVarianceMsg()->OnKVCommand(2008);
    EXPECT_EQ(host.ownerContextRequests, std::vector<UINT>{2008});
    EXPECT_EQ(given, &context);
}

TEST_F(Launch, ConfirmingWritesWhatAnImmediateOkWritesAndLeavesTheStoreAlone)
{
    // Settings as a store reload leaves them: no owner ids, no enable
    // states of the options page, a page out of use.
    CAnovaTabData stored;
    stored.GetAnovaData()->SetAll(Vars({}), Vars({u"Y", u"Y2"}), Vars({}), Vars({}), 0, 0, 0, 1, 4, {});
    stored.GetRepeatMeasuresData()->SetAll(1, {CString(u"a")}, {2}, {CString()});
    stored.GetBootStrapData()->SetWindowState(0);
    const MenuCommandRow& row = module->GetAnalysisofVarianceMsg()->Rows()[0];
    CLIST<CCmdInfo> lines;
    ASSERT_TRUE(row.confirm(&host, 2008, row, &stored, lines));
    EXPECT_EQ(Lines(lines), (std::vector<std::u16string>{u"ANOVA", u"DEPEND Y Y2/ REPEAT = 2", u"CATEGORY / OFF",
                                                         u"COVAR ", u"ESTIMATE / SS = TYPE3"}));
    EXPECT_EQ(stored.GetRepeatMeasuresData()->GetOwnerID(), 0u);
    EXPECT_EQ(stored.GetBootStrapData()->GetWindowState(), 0);
    EXPECT_EQ(host.runs.size(), 0u);

    // Settings the dialog refuses write nothing; other classes are not its.
    stored.GetRepeatMeasuresData()->SetAll(1, {CString(u"a")}, {3}, {CString()});
    CLIST<CCmdInfo> refused;
    EXPECT_FALSE(row.confirm(&host, 2008, row, &stored, refused));
    EXPECT_TRUE(refused.IsEmpty());
    CAnovaData page;
    EXPECT_FALSE(row.confirm(&host, 2008, row, &page, refused));
    CLIST<CCmdInfo> defaults;
    ASSERT_TRUE(row.confirm(&host, 2008, row, nullptr, defaults));
    EXPECT_EQ(defaults.GetAt(1).m_strCommand, CString(u"DEPEND "));
}

TEST(MenuCaption, JoinsThePathWithoutMnemonicsAndDots)
{
    CStringArray chain;
    chain.Add(u"&Analysis");
    chain.Add(u"Analysis of &Variance");
    chain.Add(u"&Estimate Model...");
    EXPECT_EQ(JoinMenuCaption(chain), CString(u"Analysis > Analysis of Variance > Estimate Model"));
}
