// The ANOVA tab dialog driven headless, as a user would drive it.
#include "Source/DlgStat2.h"
#include "platform/HeadlessDriver.h"
#include "platform/UserInput.h"
#include "private/Anova/KDGAnovaTabDlg.h"
#include "tests/support/AnovaControls.h"
#include "tests/support/DialogTesting.h"

#include <gtest/gtest.h>

using namespace kaltest;
using namespace kaltest::anova;

namespace {

class AnovaDialog : public HeadlessDialogTest {
protected:
    AnovaDialog() : HeadlessDialogTest({u"Y", u"Y2", u"Y3", u"Y4", u"A", u"B$", u"X"}) {}

    INT_PTR Run(const Script& script) { return Open<CAnovaTabDlg>(data, {2023, 2022, 2263, 0}, script); }
    Lines16 Commands() const { return LinesOf(data); }
    static void Move(CHeadlessSession& s, std::initializer_list<std::u16string> names, UINT button)
    {
        HeadlessDialogTest::Move(s, SOURCE, names, button);
    }

    CAnovaTabData data;
};

} // namespace

TEST_F(AnovaDialog, BuildsTheExampleAnalysisAndWritesItsLines)
{
    const INT_PTR result = Run([](CHeadlessSession& s) {
        Move(s, {u"Y"}, ADD_DEP);
        Move(s, {u"A", u"B$"}, ADD_FACTOR);
        s.Check(MISSING, 1);
        Move(s, {u"X"}, ADD_COV);
        s.Ok();
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(Commands(),
              (Lines16{u"ANOVA", u"DEPEND Y", u"CATEGORY A B$ / REPLACE MISS", u"COVAR X", u"ESTIMATE / SS = TYPE3"}));
}

TEST_F(AnovaDialog, RepeatedMeasuresJoinTheDependLineOnlyWithTwoDependents)
{
    Run([](CHeadlessSession& s) {
        Move(s, {u"Y", u"Y2"}, ADD_DEP);
        s.Page(1);
        EXPECT_TRUE(s.IsEnabled(RM_ON) && CUserInput::IsReachable(s.Find(RM_ON)));
        s.Check(RM_ON, 1);
        s.Ok();
    });
    EXPECT_EQ(Commands()[1], u"DEPEND Y Y2/ REPEAT = 2");
    EXPECT_EQ(Commands()[2], u"CATEGORY / OFF");

    // With one dependent the page is out of use: its tab says why, its
    // window state is 0.
    Run([](CHeadlessSession& s) {
        s.Select(DEPENDENT, Names({u"Y2"}));
        s.Click(REMOVE_DEP);
        EXPECT_THROW(s.Page(1), HeadlessError);
        s.Ok();
    });
    EXPECT_EQ(data.GetRepeatMeasuresData()->GetWindowState(), 0);
    EXPECT_EQ(data.GetRepeatMeasuresData()->GetMeasureAnalysisOnOffCheck(), 1);
    EXPECT_EQ(Commands()[1], u"DEPEND Y");
}

TEST_F(AnovaDialog, ButtonsFollowSelectionTypeAndFactorPermission)
{
    Run([this](CHeadlessSession& s) {
        for (const UINT id : {ADD_DEP, REMOVE_DEP, ADD_FACTOR, REMOVE_FACTOR, ADD_COV, MISSING, SAVE_COMBO, SAVE_EDIT})
            EXPECT_FALSE(s.IsEnabled(id)) << id;
        s.Select(SOURCE, Names({u"B$"}));
        EXPECT_FALSE(s.IsEnabled(ADD_DEP));
        EXPECT_FALSE(s.IsEnabled(ADD_COV));
        EXPECT_TRUE(s.IsEnabled(ADD_FACTOR));
        s.Click(ADD_FACTOR);
        EXPECT_TRUE(s.IsEnabled(MISSING));
        s.Select(FACTOR, Names({u"B$"}));
        EXPECT_TRUE(s.IsEnabled(REMOVE_FACTOR));
        s.Click(REMOVE_FACTOR);
        EXPECT_FALSE(s.IsEnabled(MISSING));
        EXPECT_TRUE(s.Items(FACTOR).empty());

        s.Check(SAVE_CHECK, 1);
        EXPECT_TRUE(s.IsEnabled(SAVE_COMBO) && s.IsEnabled(SAVE_EDIT));

        host.restrictedMode = true;
        s.Select(SOURCE, Names({u"A"}));
        EXPECT_FALSE(s.IsEnabled(ADD_FACTOR));
        EXPECT_TRUE(s.IsEnabled(ADD_DEP));
        host.restrictedMode = false;
        host.editLevel = 2;
        s.Select(SOURCE, Names({u"X"}));
        EXPECT_FALSE(s.IsEnabled(ADD_FACTOR));
        // A disabled button ignores clicks.
        EXPECT_FALSE(s.Click(ADD_FACTOR));
        EXPECT_TRUE(s.Items(FACTOR).empty());
        s.Cancel();
    });
}

TEST_F(AnovaDialog, SaveListSwitchesWithTheDependentCountBothWays)
{
    Run([](CHeadlessSession& s) {
        EXPECT_EQ(s.ComboSelection(SAVE_COMBO), 6);
        Move(s, {u"Y"}, ADD_DEP);
        s.Check(SAVE_CHECK, 1);
        s.Choose(SAVE_COMBO, 2);
        Move(s, {u"Y2"}, ADD_DEP);
        EXPECT_EQ(s.ComboSelection(SAVE_COMBO), 4);
        EXPECT_EQ(s.Text(SAVE_COMBO), CString(u"RESIDUALS/DATA"));
        s.Choose(SAVE_COMBO, 0);
        s.Select(DEPENDENT, Names({u"Y2"}));
        s.Click(REMOVE_DEP);
        EXPECT_EQ(s.ComboSelection(SAVE_COMBO), 6); // the choice is not kept
        EXPECT_EQ(s.Text(SAVE_COMBO), CString(u"RESIDUALS/DATA"));
        s.Choose(SAVE_COMBO, 3);
        s.Type(SAVE_EDIT, u"model out.kvd");
        EXPECT_EQ(s.Find(SAVE_EDIT).GetToolTipText(), CString(u"model out.kvd"));
        s.Ok();
    });
    EXPECT_EQ(Commands()[4], u"SAVE 'model out.kvd' / MODEL");
}

TEST_F(AnovaDialog, DraggingShowsItsCursorAndMovesOrReturnsVariables)
{
    Run([](CHeadlessSession& s) {
        s.Select(SOURCE, Names({u"Y", u"Y2"}));
        EXPECT_TRUE(s.Drag(SOURCE, DEPENDENT));
        EXPECT_EQ(s.LastDragCursor(), CursorShape::Drop);
        EXPECT_EQ(s.Items(DEPENDENT), Names({u"Y", u"Y2"}));

        // From one target list onto another: back out, not across.
        s.Select(DEPENDENT, Names({u"Y2"}));
        s.Drag(DEPENDENT, FACTOR);
        EXPECT_EQ(s.LastDragCursor(), CursorShape::Remove);
        EXPECT_EQ(s.Items(DEPENDENT), Names({u"Y"}));
        EXPECT_TRUE(s.Items(FACTOR).empty());
        EXPECT_EQ(s.Items(SOURCE).size(), 7u);

        // Over a list the move cannot go to: no feedback, nothing moves.
        s.Select(SOURCE, Names({u"Y"}));
        s.Drag(SOURCE, DEPENDENT);
        EXPECT_EQ(s.LastDragCursor(), CursorShape::Arrow);
        s.Select(DEPENDENT, Names({u"Y"}));
        s.Drag(DEPENDENT, DEPENDENT);
        EXPECT_EQ(s.LastDragCursor(), CursorShape::Arrow);
        EXPECT_EQ(s.Items(DEPENDENT), Names({u"Y"}));
        s.Cancel();
    });
    EXPECT_EQ(data.GetAnovaData()->GetDependentVariableListCount(), 0); // cancelled
}

TEST_F(AnovaDialog, DoubleClickAddsNumericVariablesOnly)
{
    Run([](CHeadlessSession& s) {
        s.Select(SOURCE, Names({u"B$"}));
        s.DoubleClick(SOURCE);
        EXPECT_TRUE(s.Items(DEPENDENT).empty());
        s.Select(SOURCE, Names({u"Y3"}));
        s.DoubleClick(SOURCE);
        EXPECT_EQ(s.Items(DEPENDENT), Names({u"Y3"}));
        s.DoubleClick(DEPENDENT);
        EXPECT_TRUE(s.Items(DEPENDENT).empty());
        s.Cancel();
    });
}

TEST_F(AnovaDialog, ContextMenuMovesAndShowingItResetsTheSaveList)
{
    Run([this](CHeadlessSession& s) {
        Move(s, {u"Y", u"Y2"}, ADD_DEP);
        s.Check(SAVE_CHECK, 1);
        s.Choose(SAVE_COMBO, 1);
        s.Select(SOURCE, Names({u"X"}));
        EXPECT_TRUE(s.Menu(SOURCE, CAnovaDlg::ID_MENU_COVARIATE));
        EXPECT_EQ(s.Items(COVARIATE), Names({u"X"}));
        EXPECT_EQ(s.ComboSelection(SAVE_COMBO), 4);
        const CMenu& menu = driver.LastMenu();
        ASSERT_EQ(menu.Items().size(), 3u);
        EXPECT_EQ(menu.Items()[0].caption, CString(u"Dependent"));

        // The menu tests movability only: a string variable may go to the
        // dependent list this way, though its button is disabled.
        s.Select(SOURCE, Names({u"B$"}));
        EXPECT_FALSE(s.IsEnabled(ADD_DEP));
        s.Menu(SOURCE, CAnovaDlg::ID_MENU_DEPENDENT);
        EXPECT_EQ(s.Items(DEPENDENT), Names({u"Y", u"Y2", u"B$"}));
        // An entry that cannot move picks nothing.
        s.Select(SOURCE, Names({u"X"}));
        s.Menu(SOURCE, CAnovaDlg::ID_MENU_COVARIATE);
        EXPECT_FALSE(driver.LastMenu().IsEnabled(CAnovaDlg::ID_MENU_COVARIATE));
        EXPECT_EQ(s.Items(COVARIATE), Names({u"X"}));
        s.Cancel();
    });
}

TEST_F(AnovaDialog, ResetEmptiesTheRolesAndKeepsTheSource)
{
    Run([](CHeadlessSession& s) {
        Move(s, {u"Y"}, ADD_DEP);
        Move(s, {u"A"}, ADD_FACTOR);
        s.Check(MISSING, 1);
        s.Reset();
        EXPECT_TRUE(s.Items(DEPENDENT).empty());
        EXPECT_TRUE(s.Items(FACTOR).empty());
        EXPECT_EQ(s.IsChecked(MISSING), 0);
        EXPECT_EQ(s.Items(SOURCE).size(), 7u);
        EXPECT_EQ(s.ComboSelection(SAVE_COMBO), 6);
        s.Ok();
    });
    EXPECT_EQ(Commands()[1], u"DEPEND ");
}

TEST_F(AnovaDialog, PostHocValuesSurviveAnEdit)
{
    auto* model = data.GetAnovaData();
    model->SetAll({}, {}, {}, {}, 0, 1, 0, 3, 6, {});
    Run([](CHeadlessSession& s) {
        Move(s, {u"Y"}, ADD_DEP);
        s.Ok();
    });
    CGUIArray<CGUIDataVariable> a, b, c, d;
    int miss, postHoc, save, postHocIndex, saveIndex;
    CString file;
    model->GetAll(a, b, c, d, miss, postHoc, save, postHocIndex, saveIndex, file);
    EXPECT_EQ(postHoc, 1);
    EXPECT_EQ(postHocIndex, 3);
    EXPECT_EQ(b.GetSize(), 1);
}

TEST_F(AnovaDialog, LevelValidationRefusesOkWithItsMessage)
{
    struct Case {
        int dependents;
        std::vector<std::pair<int, std::u16string>> levels; // grid row, levels text
        UINT message;                                       // 0: accepted
    };
    const Case cases[] = {
        {2, {{1, u"3"}}, 2007},
        {4, {{1, u"2"}, {2, u"2"}}, 0},
        {4, {{1, u"2"}, {2, u"1"}}, 2005},
        {4, {{1, u"5"}, {2, u"2"}}, 2005},
        {3, {{1, u"2"}, {2, u"2"}}, 2006},
        {4, {{1, u"2"}, {2, u"x"}}, 2005},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.message);
        data = CAnovaTabData();
        host.messages.clear();
        const INT_PTR result = Run([&c](CHeadlessSession& s) {
            std::vector<CString> dependents;
            for (int i = 0; i < c.dependents; ++i)
                dependents.push_back(CString(i == 0 ? std::u16string(u"Y") : std::u16string{u'Y', char16_t(u'1' + i)}));
            s.Select(SOURCE, dependents);
            s.Click(ADD_DEP);
            s.Page(1);
            s.Check(RM_ON, 1);
            for (const auto& [row, text] : c.levels)
                s.Cell(RM_GRID, row, 2, text);
            s.Ok();
            EXPECT_EQ(s.IsOpen(), c.message != 0);
        });
        EXPECT_EQ(result, c.message ? IDCANCEL : IDOK);
        EXPECT_EQ(host.messages, c.message ? std::vector<UINT>{c.message} : std::vector<UINT>{});
    }
}

TEST_F(AnovaDialog, GridRowsAreInsertedDeletedAndWrittenWithNames)
{
    Run([](CHeadlessSession& s) {
        Move(s, {u"Y", u"Y2", u"Y3", u"Y4"}, ADD_DEP);
        s.Page(1);
        s.Check(RM_ON, 1);
        auto& grid = dynamic_cast<CGridCtrl&>(s.Find(RM_GRID));
        EXPECT_EQ(grid.GetItemText(0, 0), CString(u"No."));
        EXPECT_EQ(grid.GetColumnWidth(0) * 2, grid.GetColumnWidth(1));
        s.Cell(RM_GRID, 1, 1, u"time");
        s.Cell(RM_GRID, 2, 1, u"dose");
        s.Cell(RM_GRID, 2, 2, u"2");
        s.Cell(RM_GRID, 2, 3, u"1,4");
        s.Click(CKVGridMultiCtrlBaseDlg::IDC_INSERT_ROW); // before the focus row 2
        EXPECT_EQ(grid.GetRowCount(), 4);
        EXPECT_EQ(grid.GetItemText(3, 1), CString(u"dose"));
        EXPECT_EQ(grid.GetItemText(3, 0), CString(u"3"));
        s.Click(CKVGridMultiCtrlBaseDlg::IDC_DELETE_ROW); // the empty new row
        s.Check(RM_ON, 0);
        EXPECT_FALSE(s.IsEnabled(RM_GRID));
        s.Check(RM_ON, 1);
        s.Ok();
    });
    EXPECT_EQ(Commands()[1], u"DEPEND Y Y2 Y3 Y4/ REPEAT = 2, 2(1,4), NAMES = time, dose");
}

TEST_F(AnovaDialog, OptionsAndReopeningShowTheLastChoices)
{
    Run([](CHeadlessSession& s) {
        Move(s, {u"Y"}, ADD_DEP);
        s.Page(2);
        s.Check(CAnovaOptionsDlg::IDC_KS, 1);
        s.Check(CAnovaOptionsDlg::IDC_LEVENE, 1);
        s.Click(CAnovaOptionsDlg::IDC_SS_TYPE2);
        s.Ok();
    });
    EXPECT_EQ(Commands().back(), u"ESTIMATE / NTEST = KS HTEST = LEVENE SS = TYPE2");
    Run([](CHeadlessSession& s) {
        EXPECT_EQ(s.Items(DEPENDENT), Names({u"Y"}));
        s.Page(2);
        EXPECT_EQ(s.IsChecked(CAnovaOptionsDlg::IDC_KS), 1);
        EXPECT_EQ(s.IsChecked(CAnovaOptionsDlg::IDC_SS_TYPE2), 1);
        EXPECT_EQ(s.IsChecked(CAnovaOptionsDlg::IDC_SS_TYPE3), 0);
        s.Cancel();
    });
}

TEST_F(AnovaDialog, PagesTakeTheirCaptionsAndOwners)
{
    Run([this](CHeadlessSession& s) {
        EXPECT_EQ(s.Dialog().GetWindowText(), CString(u"Analysis of Variance"));
        auto& tabs = dynamic_cast<CTabCtrl&>(s.Find(CAnovaTabDlg::IDC_TAB));
        ASSERT_EQ(tabs.GetItemCount(), 4);
        EXPECT_EQ(tabs.GetItemText(0), CString(u"Model"));
        EXPECT_EQ(tabs.GetItemText(1), CString(u"Repeated Measures"));
        EXPECT_EQ(tabs.GetItemText(2), CString(u"Options"));
        EXPECT_EQ(tabs.GetItemText(3), CString(u"Resampling"));
        EXPECT_EQ(data.GetRepeatMeasuresData()->GetOwnerID(), 2263u);
        EXPECT_EQ(data.GetAnovaData()->GetOwnerID(), 2022u);
        s.Cancel();
    });
}

TEST_F(AnovaDialog, MissingControlsAreReportedNotFatal)
{
    AssertionCapture capture;
    CAnovaDlg page;
    page.EnableCtrl(4242, TRUE);
    ASSERT_EQ(capture.reports.size(), 1u);
    EXPECT_EQ(capture.reports[0].first, "Source/KDGAnovaDlg");
}

TEST_F(AnovaDialog, ResamplingEditsKeepTheirStateFlagAndRefuseBadNumbers)
{
    Run([this](CHeadlessSession& s) {
        Move(s, {u"Y"}, ADD_DEP);
        s.Page(3);
        EXPECT_FALSE(s.IsEnabled(CBootStrapDlg::IDC_SAMPLES));
        s.Click(CBootStrapDlg::IDC_METHOD_BOOTSTRAP);
        EXPECT_TRUE(s.IsEnabled(CBootStrapDlg::IDC_SAMPLES));
        s.Type(CBootStrapDlg::IDC_SAMPLES, u"1e3");
        s.Ok();
        EXPECT_TRUE(s.IsOpen());
        s.Type(CBootStrapDlg::IDC_SAMPLES, u"0");
        s.Ok();
        EXPECT_TRUE(s.IsOpen());
        EXPECT_EQ(host.messages, (std::vector<UINT>{CBootStrapDlg::kMsgNotWhole, CBootStrapDlg::kMsgOutOfRange}));
        s.Type(CBootStrapDlg::IDC_SAMPLES, u" 250 ");
        s.Type(CBootStrapDlg::IDC_RANDOM_SEED, u"0");
        s.Ok();
    });
    int method = 0;
    CGUIData<int> samples, size;
    CGUIData<unsigned int> seed;
    data.GetBootStrapData()->GetAll(method, samples, size, seed);
    EXPECT_EQ(samples.m_Value, 250);
    EXPECT_EQ(samples.m_nState, 0); // changed from its default
    EXPECT_EQ(seed.m_nState, 1);    // typed, but equal to its default
    EXPECT_EQ(Commands().back(), u"ESTIMATE / SS = TYPE3 SAMPLE = BOOT(250)");
}
