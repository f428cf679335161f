// The correlations tab dialog driven headless, as a user would drive it.
#include "Source/DlgStat2.h"
#include "platform/HeadlessDriver.h"
#include "platform/UserInput.h"
#include "private/Multivariate/KDGCorrelationsTabDlg.h"
#include "tests/support/DialogTesting.h"

#include <gtest/gtest.h>

using namespace kaltest;
using Page0 = CCorrelationsDlg;
using Options = CCorrOptionsDlg;

namespace {

// The data-type radio buttons and combos by index.
UINT TypeRadio(int type)
{
    return CCorrelationsData::kDataTypes[static_cast<std::size_t>(type)].radio;
}
UINT TypeCombo(int type)
{
    return CCorrelationsData::kDataTypes[static_cast<std::size_t>(type)].combo;
}

class CorrelationsDialog : public HeadlessDialogTest {
protected:
    CorrelationsDialog() : HeadlessDialogTest({u"Y", u"Y2", u"X", u"X2", u"S$", u"T$"}) {}

    INT_PTR Run(const Script& script)
    {
        return Open<CCorrelationsTabDlg>(data, {2057, 2363, 0, 0}, [&](CHeadlessSession& s) {
            tab = dynamic_cast<CCorrelationsTabDlg*>(open);
            script(s);
        });
    }
    Lines16 Commands() const { return LinesOf(data); }
    static void AddRows(CHeadlessSession& s, std::initializer_list<std::u16string> names)
    {
        Move(s, Page0::IDC_SOURCE_LIST, names, Page0::IDC_ADD_ROWS);
    }
    bool OptionsAvailable() const { return tab->GetTabCtrl().IsItemAvailable(1); }

    CCorrelationsTabData data;
    CCorrelationsTabDlg* tab = nullptr;
};

} // namespace

TEST_F(CorrelationsDialog, OneSetOfContinuousDataAndWhatTwoSetsAndSavingChange)
{
    Run([this](CHeadlessSession& s) {
        EXPECT_EQ(s.Dialog().GetWindowText(), CString(u"Correlations"));
        auto& tabs = tab->GetTabCtrl();
        ASSERT_EQ(tabs.GetItemCount(), 3);
        EXPECT_EQ(tabs.GetItemText(0), CString(u"Correlations"));
        EXPECT_EQ(tabs.GetItemText(1), CString(u"Options"));
        EXPECT_EQ(tabs.GetItemText(2), CString(u"Resampling"));
        EXPECT_EQ(data.GetBootStrapData()->GetOwnerID(), 2363u);
        EXPECT_EQ(data.GetCorrelationsData()->GetOwnerID(), 0u);

        const std::initializer_list<UINT> offAtFirst = {Page0::IDC_COLUMN_LIST, Page0::IDC_COLUMN_LABEL,
                                                        Page0::IDC_ADD_COLUMNS, Page0::IDC_SAVE_FILE_EDIT,
                                                        TypeCombo(1),           TypeCombo(2),
                                                        TypeCombo(3),           TypeCombo(4)};
        for (const UINT id : offAtFirst)
            EXPECT_FALSE(s.IsEnabled(id)) << id;
        EXPECT_TRUE(s.IsEnabled(TypeCombo(0)));
        EXPECT_TRUE(s.IsEnabled(Page0::IDC_PAIRWISE));
        EXPECT_EQ(s.Text(Page0::IDC_ROW_LABEL), CString(u"Se&lected variables:"));

        // With one set the column list takes nothing, not even by a drag.
        s.Select(Page0::IDC_SOURCE_LIST, Names({u"Y"}));
        EXPECT_TRUE(s.IsEnabled(Page0::IDC_ADD_ROWS));
        s.Drag(Page0::IDC_SOURCE_LIST, Page0::IDC_COLUMN_LIST);
        EXPECT_TRUE(s.Items(Page0::IDC_COLUMN_LIST).empty());

        s.Menu(Page0::IDC_SOURCE_LIST, Page0::ID_MENU_COLUMNS);
        ASSERT_EQ(driver.LastMenu().Items().size(), 2u);
        EXPECT_EQ(driver.LastMenu().Items()[0].caption, CString(u"Selected variables"));
        EXPECT_FALSE(driver.LastMenu().IsEnabled(Page0::ID_MENU_COLUMNS));
        EXPECT_TRUE(s.Items(Page0::IDC_COLUMN_LIST).empty());

        s.Click(Page0::IDC_TWO_SETS);
        EXPECT_EQ(s.Text(Page0::IDC_ROW_LABEL), CString(u"&Rows:"));
        s.Select(Page0::IDC_SOURCE_LIST, Names({u"Y"}));
        s.Menu(Page0::IDC_SOURCE_LIST, 0);
        EXPECT_EQ(driver.LastMenu().Items()[0].caption, CString(u"Rows"));
        EXPECT_TRUE(s.IsEnabled(Page0::IDC_COLUMN_LIST) && s.IsEnabled(Page0::IDC_COLUMN_LABEL));
        s.Select(Page0::IDC_SOURCE_LIST, Names({u"Y"}));
        EXPECT_TRUE(s.IsEnabled(Page0::IDC_ADD_COLUMNS));
        s.Drag(Page0::IDC_SOURCE_LIST, Page0::IDC_COLUMN_LIST);
        AddRows(s, {u"X", u"X2"});
        s.Select(Page0::IDC_ROW_LIST, Names({u"X"}));
        s.DoubleClick(Page0::IDC_ROW_LIST); // back out
        AddRows(s, {u"X"});
        s.Select(Page0::IDC_COLUMN_LIST, Names({u"Y"}));
        EXPECT_TRUE(s.IsEnabled(Page0::IDC_REMOVE_COLUMNS));
        s.Click(Page0::IDC_ONE_SET);
        EXPECT_FALSE(s.IsEnabled(Page0::IDC_REMOVE_COLUMNS));
        s.Click(Page0::IDC_TWO_SETS);

        s.Check(Page0::IDC_SAVE_CHECK, 1);
        EXPECT_TRUE(s.IsEnabled(Page0::IDC_SAVE_FILE_EDIT));
        s.Type(Page0::IDC_SAVE_FILE_EDIT, u"matrix.kvd");
        EXPECT_EQ(s.Find(Page0::IDC_SAVE_FILE_EDIT).GetToolTipText(), CString(u"matrix.kvd"));
        s.Ok();
    });
    EXPECT_EQ(Commands(), (Lines16{u"CORR", u"SAVE 'matrix.kvd'", u"PEARSON X2 X*Y "}));
}

TEST_F(CorrelationsDialog, StringVariablesGoWhereTheDataTypeTakesThem)
{
    struct Case {
        int type;
        bool row, column; // the add buttons with a string variable selected
    };
    // Rank-order data take strings as columns only: intended.
    const Case cases[] = {{0, false, false}, {1, false, false}, {2, false, true}, {3, true, true}, {4, false, false}};
    Run([&](CHeadlessSession& s) {
        s.Click(Page0::IDC_TWO_SETS);
        for (const auto& c : cases) {
            SCOPED_TRACE(c.type);
            s.Click(TypeRadio(c.type));
            s.Select(Page0::IDC_SOURCE_LIST, Names({u"X", u"S$"}));
            EXPECT_EQ(s.IsEnabled(Page0::IDC_ADD_ROWS), c.row);
            EXPECT_EQ(s.IsEnabled(Page0::IDC_ADD_COLUMNS), c.column);
            s.Select(Page0::IDC_SOURCE_LIST, Names({u"X"}));
            EXPECT_TRUE(s.IsEnabled(Page0::IDC_ADD_ROWS) && s.IsEnabled(Page0::IDC_ADD_COLUMNS));
        }
        s.Click(TypeRadio(2));
        s.Select(Page0::IDC_SOURCE_LIST, Names({u"S$"}));
        s.DoubleClick(Page0::IDC_SOURCE_LIST); // fills the rows: not with a string
        EXPECT_TRUE(s.Items(Page0::IDC_ROW_LIST).empty());
        s.Click(Page0::IDC_ADD_COLUMNS);
        AddRows(s, {u"X"});
        s.Ok();
    });
    EXPECT_EQ(Commands().back(), u"SPEARMAN X*S$ ");
}

TEST_F(CorrelationsDialog, ChangingTheDataTypeEmptiesTheListsBetweenTheTwoClasses)
{
    struct Case {
        int from, to;
        bool emptied;
    };
    const Case cases[] = {
        {0, 1, false}, {0, 4, false}, {4, 1, false}, {2, 3, false}, {3, 2, false}, // within a class
        {0, 2, true},  {1, 3, true},  {4, 2, true},  {2, 4, true},  {3, 1, true},  // across
        {2, 0, false}, {3, 0, false},                                              // back to continuous
    };
    Run([&, this](CHeadlessSession& s) {
        s.Click(Page0::IDC_TWO_SETS);
        for (const auto& c : cases) {
            SCOPED_TRACE(std::to_string(c.from) + " to " + std::to_string(c.to));
            s.Click(TypeRadio(c.from));
            AddRows(s, {u"Y"});
            s.Select(Page0::IDC_SOURCE_LIST, Names({u"X"}));
            s.Click(Page0::IDC_ADD_COLUMNS);
            s.Click(TypeRadio(c.to));
            EXPECT_EQ(s.Items(Page0::IDC_ROW_LIST).empty(), c.emptied);
            EXPECT_EQ(s.Items(Page0::IDC_COLUMN_LIST).empty(), c.emptied);
            for (int type = 0; type < 5; ++type)
                EXPECT_EQ(s.IsEnabled(TypeCombo(type)), type == c.to);
        }
        // Clicking the checked type again changes nothing.
        s.Click(TypeRadio(0));
        EXPECT_EQ(s.Items(Page0::IDC_ROW_LIST), Names({u"Y"}));
        // After a reset the page starts from continuous data again.
        s.Click(TypeRadio(3));
        EXPECT_FALSE(OptionsAvailable());
        s.Reset();
        EXPECT_TRUE(OptionsAvailable());
        AddRows(s, {u"Y"});
        s.Click(TypeRadio(1));
        EXPECT_EQ(s.Items(Page0::IDC_ROW_LIST), Names({u"Y"}));
        s.Cancel();
    });
}

TEST_F(CorrelationsDialog, TheOptionsPageIsAvailableForItsMeasuresOnly)
{
    Run([this](CHeadlessSession& s) {
        AddRows(s, {u"X", u"Y"});
        EXPECT_TRUE(OptionsAvailable());
        s.Choose(TypeCombo(0), 1);
        EXPECT_FALSE(OptionsAvailable());
        EXPECT_EQ(tab->GetTabCtrl().GetItemReason(1),
                  CString(u"The options apply to Pearson correlations and to the Spearman, Kendall, gamma and "
                          u"Goodman-Kruskal measures only."));
        EXPECT_FALSE(tab->GetCorrOptionsDlg()->CWnd::IsWindowEnabled());
        EXPECT_THROW(s.Page(1), HeadlessError);
        s.Click(TypeRadio(2));
        for (int measure = 0; measure < 5; ++measure) {
            s.Choose(TypeCombo(2), measure);
            EXPECT_EQ(OptionsAvailable(), measure < 4) << measure;
        }
        for (const int type : {1, 3, 4}) {
            s.Click(TypeRadio(type));
            EXPECT_FALSE(OptionsAvailable()) << type;
        }
        s.Click(TypeRadio(0));
        s.Choose(TypeCombo(0), 0);
        EXPECT_TRUE(OptionsAvailable());
        EXPECT_TRUE(s.Page(1));
        s.Page(0);
        AddRows(s, {u"X", u"Y"});
        s.Click(TypeRadio(4));
        s.Ok();
    });
    // Out of use at OK: no tail, not even its blank.
    EXPECT_EQ(data.GetCorrOptionsData()->GetWindowState(), 0);
    EXPECT_EQ(Commands().back(), u"POSITIVE Y X");
}

TEST_F(CorrelationsDialog, OptionRulesFollowThePearsonChoiceAndEachOther)
{
    Run([this](CHeadlessSession& s) {
        s.Page(1);
        EXPECT_TRUE(s.IsEnabled(Options::IDC_PROBABILITIES));
        for (const UINT id :
             {Options::IDC_BONFERRONI, Options::IDC_NORMAL, Options::IDC_T, Options::IDC_ITERATIONS,
              Options::IDC_CONVERGENCE, Options::IDC_NORMAL_FIRST, Options::IDC_DF, Options::IDC_TOLERANCE})
            EXPECT_FALSE(s.IsEnabled(id)) << id;
        s.Check(Options::IDC_PROBABILITIES, 1);
        EXPECT_TRUE(s.IsEnabled(Options::IDC_DUNN_SIDAK));

        s.Check(Options::IDC_EM, 1);
        EXPECT_FALSE(s.IsEnabled(Options::IDC_HADI));
        EXPECT_TRUE(s.IsEnabled(Options::IDC_NORMAL_FIRST) && s.IsEnabled(Options::IDC_ITERATIONS));
        EXPECT_FALSE(s.IsEnabled(Options::IDC_DF));
        s.Click(Options::IDC_T);
        EXPECT_TRUE(s.IsEnabled(Options::IDC_DF) && s.IsEnabled(Options::IDC_DF_LABEL));
        EXPECT_FALSE(s.IsEnabled(Options::IDC_NORMAL_SECOND));
        // EM takes the place of the deletion choice on the first page.
        s.Page(0);
        EXPECT_FALSE(s.IsEnabled(Page0::IDC_LISTWISE) || s.IsEnabled(Page0::IDC_PAIRWISE));
        s.Page(1);
        s.Check(Options::IDC_EM, 0);
        EXPECT_FALSE(s.IsEnabled(Options::IDC_DF));
        s.Check(Options::IDC_HADI, 1);
        EXPECT_FALSE(s.IsEnabled(Options::IDC_EM));
        EXPECT_TRUE(s.IsEnabled(Options::IDC_TOLERANCE));
        s.Page(0);
        EXPECT_FALSE(s.IsEnabled(Page0::IDC_PAIRWISE));

        // Rank-order data keep the page, but probabilities need Pearson.
        s.Choose(TypeCombo(0), 2);
        EXPECT_FALSE(OptionsAvailable());
        EXPECT_TRUE(s.IsEnabled(Page0::IDC_PAIRWISE)); // Hadi is out of use too
        s.Click(TypeRadio(2));
        EXPECT_TRUE(OptionsAvailable());
        s.Page(1);
        EXPECT_FALSE(s.IsEnabled(Options::IDC_PROBABILITIES));
        EXPECT_FALSE(s.IsEnabled(Options::IDC_BONFERRONI));
        s.Reset();
        EXPECT_TRUE(s.IsEnabled(Options::IDC_EM));
        s.Page(0);
        EXPECT_TRUE(s.IsEnabled(Page0::IDC_PAIRWISE));
        s.Cancel();
    });
}

TEST_F(CorrelationsDialog, OkTellsTheResamplingPageWhatTheDataAre)
{
    Run([](CHeadlessSession& s) {
        AddRows(s, {u"X", u"Y"});
        s.Click(Page0::IDC_PAIRWISE);
        s.Ok();
    });
    CBootStrapData* resampling = data.GetBootStrapData();
    EXPECT_EQ(resampling->GetContinuousType(), 1);
    EXPECT_EQ(resampling->GetDeletionTypePairwise(), 1);
    EXPECT_EQ(resampling->GetEMEstimation(), 0);
    EXPECT_EQ(Commands().back(), u"PEARSON Y X / PAIRWISE");

    Run([](CHeadlessSession& s) {
        s.Page(1);
        s.Check(Options::IDC_EM, 1);
        s.Page(2);
        EXPECT_FALSE(s.IsEnabled(CBootStrapDlg::IDC_METHOD_SUBSAMPLING)); // told at the last OK: pairwise
        s.Click(CBootStrapDlg::IDC_METHOD_BOOTSTRAP);
        s.Ok();
    });
    // The deletion choice is out of use under EM.
    EXPECT_EQ(resampling->GetDeletionTypePairwise(), 0);
    EXPECT_EQ(resampling->GetEMEstimation(), 1);
    EXPECT_EQ(Commands().back(), u"PEARSON Y X / EM NORMAL = 0, 0 SAMPLE = BOOT(1000)");

    Run([](CHeadlessSession& s) {
        // The stored EM choice governs the first page from the start.
        EXPECT_FALSE(s.IsEnabled(Page0::IDC_PAIRWISE));
        s.Click(TypeRadio(2));
        AddRows(s, {u"X", u"Y"});
        s.Page(1);
        s.Check(Options::IDC_EM, 0);
        s.Ok();
    });
    EXPECT_EQ(resampling->GetContinuousType(), 0);
    EXPECT_EQ(resampling->GetEMEstimation(), 0);
    EXPECT_EQ(Commands().back(), u"SPEARMAN Y X / PAIRWISE SAMPLE = BOOT(1000)");
    // Jackknife needs continuous data.
    Run([](CHeadlessSession& s) {
        s.Page(2);
        EXPECT_FALSE(s.IsEnabled(CBootStrapDlg::IDC_METHOD_JACKKNIFE));
        EXPECT_FALSE(s.IsEnabled(CBootStrapDlg::IDC_METHOD_SUBSAMPLING));
        s.Cancel();
    });
}

TEST_F(CorrelationsDialog, NumericEntriesAreRefusedWithTheirMessageOnTheirControl)
{
    struct Case {
        UINT edit;
        UINT choose; // what makes the edit usable
        std::u16string text;
        UINT message;
    };
    const Case cases[] = {
        {Options::IDC_NORMAL_FIRST, Options::IDC_NORMAL, u"a", 2010},
        {Options::IDC_NORMAL_FIRST, Options::IDC_NORMAL, u"1.5", 2012},
        {Options::IDC_NORMAL_SECOND, Options::IDC_NORMAL, u"-1", 2012},
        {Options::IDC_NORMAL_SECOND, Options::IDC_NORMAL, u"", 2010},
        {Options::IDC_DF, Options::IDC_T, u"five", 2010},
        {Options::IDC_DF, Options::IDC_T, u"0.5", 2012},
        {Options::IDC_ITERATIONS, Options::IDC_T, u"2.5", 2011},
        {Options::IDC_ITERATIONS, Options::IDC_T, u"-20", 2012},
        {Options::IDC_ITERATIONS, Options::IDC_T, u"10001", 2012},
        {Options::IDC_CONVERGENCE, Options::IDC_T, u"0", 2012},
        {Options::IDC_CONVERGENCE, Options::IDC_T, u" ", 2010},
        {Options::IDC_TOLERANCE, Options::IDC_HADI, u"-1e-4", 2012},
        {Options::IDC_TOLERANCE, Options::IDC_HADI, u"0", 2012},
        {Options::IDC_TOLERANCE, Options::IDC_HADI, u"1.01", 2012},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::to_string(c.edit) + " \"" + CString(c.text).ToUtf8() + "\"");
        data = CCorrelationsTabData();
        host.messages.clear();
        const INT_PTR result = Run([&c](CHeadlessSession& s) {
            s.Page(1);
            if (c.choose == Options::IDC_HADI) {
                s.Check(Options::IDC_HADI, 1);
            } else {
                s.Check(Options::IDC_EM, 1);
                s.Click(c.choose);
            }
            s.Type(c.edit, c.text);
            s.Ok();
            EXPECT_TRUE(s.IsOpen());
            EXPECT_EQ(s.Dialog().GetFocusCtrl(), &s.Find(c.edit));
        });
        EXPECT_EQ(result, IDCANCEL);
        EXPECT_EQ(host.messages, std::vector<UINT>{c.message});
    }

    // The bounds themselves are accepted, also after the page was out of use
    // for a moment.
    data = CCorrelationsTabData();
    host.messages.clear();
    Run([](CHeadlessSession& s) {
        AddRows(s, {u"X"});
        s.Page(1);
        s.Check(Options::IDC_EM, 1);
        s.Type(Options::IDC_NORMAL_FIRST, u"0.05");
        s.Type(Options::IDC_NORMAL_SECOND, u"1000");
        s.Type(Options::IDC_ITERATIONS, u"10000");
        s.Type(Options::IDC_CONVERGENCE, u"1");
        s.Click(Options::IDC_T);
        s.Type(Options::IDC_DF, u"1");
        s.Click(Options::IDC_NORMAL);
        s.Page(0);
        s.Choose(TypeCombo(0), 1); // the options page goes out of use
        s.Choose(TypeCombo(0), 0);
        s.Ok();
    });
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(Commands().back(), u"PEARSON X / EM NORMAL = 0.05, 1000 ITER = 10000 CONV = 1");
}

TEST_F(CorrelationsDialog, APageOutOfUseDoesNotHoldTheOkBack)
{
    Run([](CHeadlessSession& s) {
        AddRows(s, {u"X"});
        s.Page(1);
        s.Check(Options::IDC_HADI, 1);
        s.Type(Options::IDC_TOLERANCE, u"bad");
        s.Page(0);
        s.Click(TypeRadio(1));
        s.Ok();
        EXPECT_FALSE(s.IsOpen());
    });
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(Commands().back(), u"EUCLIDEAN X");
    EXPECT_EQ(data.GetCorrOptionsData()->GetHadiCheck(), 0); // its last settings
}

TEST_F(CorrelationsDialog, ImpossibleStatesAreRefusedOrReportedWithTheirSourceAndLine)
{
    AssertionCapture capture;
    // A stored data type no radio button stands for is refused before the
    // page shows or uses it.
    data.GetCorrelationsData()->SetAll(Vars({}), Vars({u"X"}), Vars({}), 0, 0, 9, 0, 0, 0, 0, 0, 0, {});
    EXPECT_THROW(Run([](CHeadlessSession& s) { s.Cancel(); }), kal::CFieldValueException);
    EXPECT_TRUE(capture.reports.empty());

    // Pages without their tab.
    capture.reports.clear();
    CCorrelationsData pageData;
    CCorrelationsDlg page;
    page.SetData(&pageData);
    driver.SetScript([](CHeadlessSession& s) { s.Ok(); });
    EXPECT_EQ(page.DoModal(), IDOK);
    CCorrOptionsData optionsData;
    CCorrOptionsDlg options;
    options.SetData(&optionsData);
    EXPECT_EQ(options.DoModal(), IDOK);
    EXPECT_EQ(capture.reports, (std::vector<std::pair<std::string, int>>{{"Source/KDGCorrelationsDlg", 1427},
                                                                         {"Source/KDGCorrOptionsDlg", 562},
                                                                         {"Source/KDGCorrOptionsDlg", 625}}));
}
