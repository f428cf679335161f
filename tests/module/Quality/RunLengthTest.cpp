// The average-run-length dialog of both rows, driven headless: its lines,
// the values that follow the chart, refused entries, and its record.
#include "Source/DlgStat2.h"
#include "platform/HeadlessDriver.h"
#include "private/Quality/KDGArlDlg.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/DialogTesting.h"

#include <gtest/gtest.h>

using namespace kaltest;
using A = CArlDlg;

namespace {

class RunLength : public HeadlessDialogTest {
protected:
    RunLength() : HeadlessDialogTest({u"Y"}) {}

    // Runs the dialog over the settings of row `row`.
    INT_PTR Run(UINT row, const Script& script)
    {
        CArlData& data = row == CArlData::kShewhartRow ? shewhart : timeWeighted;
        data.SetstrDialog(row);
        return Open<CArlDlg>(data, {0, 0, 0, 0}, script);
    }
    CArlData shewhart;
    CArlData timeWeighted;
};

} // namespace

TEST_F(RunLength, EachRowOffersItsChartsAndWritesEveryNumber)
{
    struct Case {
        UINT row;
        Script script;
        std::u16string line;
    };
    const Case cases[] = {
        {CArlData::kShewhartRow, [](CHeadlessSession&) {}, u"ARL XBAR / N=5 MAXSHIFT=3 STEP=0.5 L=3"},
        {CArlData::kShewhartRow,
         [](CHeadlessSession& s) {
             s.Choose(A::IDC_CHART_COMBO, 1);
             EXPECT_FALSE(s.IsEnabled(A::IDC_PARAMETER_EDIT));
             s.Type(A::IDC_LIMIT_EDIT, u"2.5");
         },
         u"ARL MEDIAN / N=5 MAXSHIFT=3 STEP=0.5 L=2.5"},
        {CArlData::kTimeWeightedRow, [](CHeadlessSession&) {}, u"ARL CUSUM / N=5 MAXSHIFT=3 STEP=0.5 H=5 K=0.5"},
        {CArlData::kTimeWeightedRow,
         [](CHeadlessSession& s) {
             s.Choose(A::IDC_CHART_COMBO, 2);
             EXPECT_EQ(s.Text(A::IDC_PARAMETER_LABEL), CString(u"&Parameter (span):"));
             s.Type(A::IDC_SUBGROUP_EDIT, u"1");
         },
         u"ARL MA / N=1 MAXSHIFT=3 STEP=0.5 L=3 SPAN=3"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Run(c.row,
                      [&](CHeadlessSession& s) {
                          c.script(s);
                          s.Ok();
                      }),
                  IDOK);
        EXPECT_EQ(LinesOf(c.row == CArlData::kShewhartRow ? shewhart : timeWeighted), (Lines16{u"QC", c.line}));
    }
}

TEST_F(RunLength, RefusesEntriesThatMakeNoTableAndResetsToTheRowsFirstChart)
{
    Run(CArlData::kShewhartRow, [this](CHeadlessSession& s) {
        s.Choose(A::IDC_CHART_COMBO, 1);
        s.Type(A::IDC_SUBGROUP_EDIT, u"1");
        ExpectRefused(s, A::kMsgSubgroupTooSmall, A::IDC_SUBGROUP_EDIT);
        s.Type(A::IDC_SUBGROUP_EDIT, u"4");
        for (const char16_t* step : {u"0", u"3.5"}) {
            s.Type(A::IDC_STEP_EDIT, step);
            ExpectRefused(s, A::kMsgStep, A::IDC_STEP_EDIT);
        }
        s.Type(A::IDC_STEP_EDIT, u"1");
        s.Type(A::IDC_LIMIT_EDIT, u"0");
        ExpectRefused(s, A::kMsgOutOfRange, A::IDC_LIMIT_EDIT);
        s.Cancel();
    });
    Run(CArlData::kTimeWeightedRow, [this](CHeadlessSession& s) {
        s.Choose(A::IDC_CHART_COMBO, 1);
        EXPECT_EQ(s.Text(A::IDC_LIMIT_EDIT), CString(u"2.7"));
        for (const char16_t* weight : {u"0", u"1.5"}) {
            s.Type(A::IDC_PARAMETER_EDIT, weight);
            ExpectRefused(s, A::kMsgWeight, A::IDC_PARAMETER_EDIT);
        }
        s.Choose(A::IDC_CHART_COMBO, 2);
        s.Type(A::IDC_PARAMETER_EDIT, u"2.5");
        ExpectRefused(s, A::kMsgWholeNumber, A::IDC_PARAMETER_EDIT);
        s.Reset();
        EXPECT_EQ(s.Text(A::IDC_LIMIT_LABEL), CString(u"&Limit h (decision interval):"));
        EXPECT_EQ(s.Text(A::IDC_PARAMETER_EDIT), CString(u"0.5"));
        s.Cancel();
    });
}

TEST_F(RunLength, TheRecordIsTheSelectionThenTheFiveHolders)
{
    CArlData arl;
    arl.SetAll(1, CGUIData<int>(0, 3, 5, 0, 1), CArlData::GetDefaultMaxShiftEdit(), CArlData::GetDefaultStepEdit(),
               CGUIData<double>(0, 2.7, 3.0, 0, 1), CGUIData<double>(0, 0.1, 0.0, 0, 1));
    const Bytes expected =
        Cat({Int32(1), DataRecord(0, 0, 5, 3, 1), DataRecord(1, 0, 3.0, 3.0, 1), DataRecord(1, 0, 0.5, 0.5, 1),
             DataRecord(0, 0, 3.0, 2.7, 1), DataRecord(0, 0, 0.0, 0.1, 1)});
    EXPECT_EQ(Store([&](CArchive& ar) { arl.Serialize(ar); }), expected);
    CArlData back;
    back.SetstrDialog(CArlData::kTimeWeightedRow);
    Load(expected, [&](CArchive& ar) { back.Serialize(ar); });
    EXPECT_EQ(LinesOf(back), (Lines16{u"QC", u"ARL EWMA / N=3 MAXSHIFT=3 STEP=0.5 L=2.7 LAMBDA=0.1"}));
    EXPECT_THROW(Load(Bytes(expected.begin(), expected.end() - 1), [&](CArchive& ar) { back.Serialize(ar); }),
                 CArchiveException);
}
