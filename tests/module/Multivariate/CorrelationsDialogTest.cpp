// The correlations tab dialog driven headless, for what its sessions in
// tests/scripts cannot show: the options page's availability, refused
// entries and the focus, and impossible states.
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
        s.Cancel();
    });
}

TEST_F(CorrelationsDialog, NumericEntriesAreRefusedWithTheirMessageOnTheirControl)
{
    ExpectRangedEditsRefuse<CCorrOptionsData>(host, 1, 0, [this](int, UINT edit, const Script& refuse) {
        data = CCorrelationsTabData();
        return Run([&](CHeadlessSession& s) {
            // Hadi's tolerance, or EM with the distribution whose values
            // the edit holds.
            s.Page(1);
            if (edit == Options::IDC_TOLERANCE) {
                s.Check(Options::IDC_HADI, 1);
            } else {
                s.Check(Options::IDC_EM, 1);
                s.Click(edit == Options::IDC_DF ? Options::IDC_T : Options::IDC_NORMAL);
            }
            refuse(s);
        });
    });
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
    ASSERT_EQ(capture.reports.size(), 3u);
    EXPECT_EQ(capture.reports[0].first, "Source/KDGCorrelationsDlg");
    EXPECT_EQ(capture.reports[2].first, "Source/KDGCorrOptionsDlg");
}
