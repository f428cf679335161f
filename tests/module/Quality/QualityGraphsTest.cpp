// The quality graphs (box-and-whisker, run chart, histogram) on their shared
// dialog base, driven headless: the lines of each, the refusals the base and
// the histogram add, and the records.
#include "Source/DlgStat2.h"
#include "platform/HeadlessDriver.h"
#include "private/Quality/KDGBoxWhiskerDlg.h"
#include "private/Quality/KDGQaHistogramDlg.h"
#include "private/Quality/KDGRunChartDlg.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/DialogTesting.h"

#include <gtest/gtest.h>

#include <limits>

using namespace kaltest;
using B = CBoxWhiskerDlg;
using R = CRunChartDlg;
using H = CQaHistogramDlg;

namespace {

class QualityGraphs : public HeadlessDialogTest {
protected:
    QualityGraphs() : HeadlessDialogTest({u"Y", u"Lot", u"Shift$"}) {}

    CBoxWhiskerData box;
    CRunChartData run;
    CQaHistogramData histogram;
};

} // namespace

TEST_F(QualityGraphs, EachGraphWritesItsVariablesAndOptions)
{
    Open<B>(box, {}, [](CHeadlessSession& s) {
        Move(s, B::IDC_SOURCE_LIST, {u"Y"}, B::IDC_ADD_MEASURE);
        Move(s, B::IDC_SOURCE_LIST, {u"Shift$"}, B::IDC_ADD_GROUP);
        s.Check(B::IDC_OUTLIERS_CHECK, 0);
        s.Check(B::IDC_CENTER_CHECK, 0);
        s.Ok();
    });
    EXPECT_EQ(LinesOf(box), (Lines16{u"QC", u"BOX Y*Shift$ "}));

    Open<R>(run, {}, [](CHeadlessSession& s) {
        Move(s, R::IDC_SOURCE_LIST, {u"Y"}, R::IDC_ADD_MEASURE);
        s.Click(R::IDC_MEAN_RADIO);
        s.Ok();
    });
    EXPECT_EQ(LinesOf(run), (Lines16{u"QC", u"RUNCHART Y / MEAN RUNS"}));

    Open<H>(histogram, {}, [](CHeadlessSession& s) {
        Move(s, H::IDC_SOURCE_LIST, {u"Y"}, H::IDC_ADD_MEASURE);
        s.Type(H::IDC_USL_EDIT, u"8");
        s.Check(H::IDC_NORMAL_CHECK, 0);
        s.Ok();
    });
    EXPECT_EQ(LinesOf(histogram), (Lines16{u"QC", u"HISTOGRAM Y / USL=8"}));
}

TEST_F(QualityGraphs, GraphsNeedAMeasurementAndTheHistogramOrderedLimits)
{
    Open<B>(box, {}, [this](CHeadlessSession& s) {
        s.Select(B::IDC_SOURCE_LIST, Names({u"Shift$"}));
        EXPECT_FALSE(s.IsEnabled(B::IDC_ADD_MEASURE));
        EXPECT_TRUE(s.IsEnabled(B::IDC_ADD_GROUP));
        ExpectRefused(s, B::kMsgNoMeasurement, B::IDC_MEASURE_LIST);
        s.Cancel();
    });
    Open<H>(histogram, {}, [this](CHeadlessSession& s) {
        Move(s, H::IDC_SOURCE_LIST, {u"Y"}, H::IDC_ADD_MEASURE);
        s.Type(H::IDC_BINS_EDIT, u"2.5");
        ExpectRefused(s, 2011, H::IDC_BINS_EDIT);
        s.Type(H::IDC_BINS_EDIT, u"");
        s.Type(H::IDC_LSL_EDIT, u"5");
        s.Type(H::IDC_USL_EDIT, u"4");
        ExpectRefused(s, H::kMsgLimitsOrder, H::IDC_USL_EDIT);
        s.Type(H::IDC_USL_EDIT, u"");
        s.Type(H::IDC_TARGET_EDIT, u"4");
        ExpectRefused(s, H::kMsgOutOfRange, H::IDC_TARGET_EDIT);
        s.Reset();
        EXPECT_TRUE(s.Items(H::IDC_MEASURE_LIST).empty());
        EXPECT_EQ(s.Text(H::IDC_LSL_EDIT), CString());
        s.Cancel();
    });
}

TEST_F(QualityGraphs, RecordsPutTheChoicesBeforeTheLists)
{
    run.SetAll(Vars({}), Vars({u"Y"}), Vars({}), 1, 0);
    EXPECT_EQ(Store([&](CArchive& ar) { run.Serialize(ar); }),
              Cat({Int32(1), Int32(0), Word(0), Word(1), Int32(0), Int32(0), Int32(1), Int32(0), Int32(0), Int32(0),
                   Word(0)}));
    histogram.SetAll(Vars({}), Vars({}), CGUIData<int>(0, 20, 0, 0, 1), CGUIData<double>(0, 1.5, 0.0, 0, 1),
                     CQaHistogramData::GetDefaultNoneGiven(), CQaHistogramData::GetDefaultNoneGiven(), 0);
    const Bytes bytes = Store([&](CArchive& ar) { histogram.Serialize(ar); });
    const double kNone = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(bytes, Cat({Int32(0), Word(0), Word(0), DataRecord(0, 0, 0, 20, 1), DataRecord(0, 0, 0.0, 1.5, 1),
                          DataRecord(1, 0, kNone, kNone, 1), DataRecord(1, 0, kNone, kNone, 1)}));
    CQaHistogramData back;
    Load(bytes, [&](CArchive& ar) { back.Serialize(ar); });
    EXPECT_EQ(LinesOf(back), (Lines16{u"QC", u"HISTOGRAM  / BINS=20 LSL=1.5"}));
    EXPECT_THROW(Load(Bytes(bytes.begin(), bytes.end() - 4), [&](CArchive& ar) { back.Serialize(ar); }),
                 CArchiveException);
}
