// The ANOVA tab dialog driven headless, for what its sessions in
// tests/scripts cannot show: the host's factor permission, values the page
// does not edit, the grid's rows and reports of missing controls.
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

TEST_F(AnovaDialog, FactorMovesFollowTheHostsPermission)
{
    Run([this](CHeadlessSession& s) {
        host.restrictedMode = true;
        s.Select(SOURCE, Names({u"A"}));
        EXPECT_FALSE(s.IsEnabled(ADD_FACTOR));
        EXPECT_TRUE(s.IsEnabled(ADD_DEP));
        host.restrictedMode = false;
        host.editLevel = 2;
        s.Select(SOURCE, Names({u"X"}));
        EXPECT_FALSE(s.IsEnabled(ADD_FACTOR));
        EXPECT_FALSE(s.Click(ADD_FACTOR));
        EXPECT_TRUE(s.Items(FACTOR).empty());
        // The file edit shows its whole name as its tip.
        s.Check(SAVE_CHECK, 1);
        s.Type(SAVE_EDIT, u"model out.kvd");
        EXPECT_EQ(s.Find(SAVE_EDIT).GetToolTipText(), CString(u"model out.kvd"));
        s.Cancel();
    });
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

TEST_F(AnovaDialog, GridRowsAreInsertedDeletedAndWrittenWithNames)
{
    Run([](CHeadlessSession& s) {
        Move(s, {u"Y", u"Y2", u"Y3", u"Y4"}, ADD_DEP);
        s.Page(1);
        s.Check(RM_ON, 1);
        auto& grid = dynamic_cast<CGridCtrl&>(s.Find(RM_GRID));
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

TEST_F(AnovaDialog, MissingControlsAreReportedNotFatal)
{
    AssertionCapture capture;
    CAnovaDlg page;
    page.EnableCtrl(4242, TRUE);
    ASSERT_EQ(capture.reports.size(), 1u);
    EXPECT_EQ(capture.reports[0].first, "Source/KDGAnovaDlg");
}
