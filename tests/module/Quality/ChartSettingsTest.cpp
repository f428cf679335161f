// Control-chart settings: the lines of both charts and of the run tests,
// and the record bytes.
#include "private/Quality/KDGShewhartTabData.h"
#include "private/Quality/KDGXMrTabData.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/DialogTesting.h"

#include <gtest/gtest.h>

#include <limits>

using namespace kaltest;

namespace {

// A value the user gave (state 0), with the fourth field of its chart.
CGUIData<double> Given(double value, int flag1 = 2)
{
    return CGUIData<double>(0, value, 0.0, flag1, 1);
}

// A bound whose edit the user emptied.
const CGUIData<double> kEmpty = Given(std::numeric_limits<double>::quiet_NaN());

// The Shewhart page's fields by name, handed over with SetAll.
struct Shewhart {
    CGUIArray<CGUIDataVariable> source, group, chart, frequency;
    CGUIData<double> center = CShewhartData::GetDefaultCenterEdit();
    CGUIData<double> sigma = center, pLower = center, pUpper = center, lower = center, upper = center, sLower = center,
                     sUpper = center;
    int avgn = 0, agg = 0, total = 0, z = 0, limits = 0, type = 0;
    int sigmaInUse = 0, centerInUse = 0, aggEnabled = 0, totalEnabled = 0;

    void Into(CShewhartData& d) const
    {
        d.SetAll(source, group, chart, frequency, center, sigma, pLower, pUpper, lower, upper, sLower, sUpper, avgn,
                 agg, total, z, limits, type, sigmaInUse, centerInUse, aggEnabled, totalEnabled);
    }
    static Shewhart From(const CShewhartData& d)
    {
        Shewhart s;
        d.GetAll(s.source, s.group, s.chart, s.frequency, s.center, s.sigma, s.pLower, s.pUpper, s.lower, s.upper,
                 s.sLower, s.sUpper, s.avgn, s.agg, s.total, s.z, s.limits, s.type, s.sigmaInUse, s.centerInUse,
                 s.aggEnabled, s.totalEnabled);
        return s;
    }
};

struct XMr {
    CGUIArray<CGUIDataVariable> source, chart;
    CGUIData<int> width = CXMrData::GetDefaultWidthEdit();
    CGUIData<double> center = CXMrData::GetDefaultCenterEdit();
    CGUIData<double> mr = center, sigma = center, pLower = center, pUpper = center, sLower = center, sUpper = center;
    int centerLine = 0, limits = 0;

    void Into(CXMrData& d) const
    {
        d.SetAll(source, chart, width, center, mr, sigma, pLower, pUpper, sLower, sUpper, centerLine, limits);
    }
};

Lines16 Commands(const CGUIBaseObj& settings)
{
    return LinesOf(settings);
}

class ChartSettings : public ::testing::Test {
protected:
    FakeHost host;
    HostScope scope{&host};
    CShewhartTabData shewhart;
    CXMrTabData xmr;

    // The chart line of the Shewhart tab.
    std::u16string ShewhartLine() const { return Commands(shewhart).back(); }
    std::u16string XMrLine() const { return Commands(xmr).back(); }
    void SetShewhart(const Shewhart& s) { s.Into(*shewhart.GetShewhartData()); }
};

} // namespace

// Choices the pages cannot make: no such limits button, no such center
// line, a run-tests page out of use.
TEST_F(ChartSettings, UnknownChoicesWriteNoClause)
{
    Shewhart s;
    s.chart = Vars({u"Y"});
    s.lower = Given(-2.5);
    for (const int radio : {3, -1}) {
        s.limits = radio;
        SetShewhart(s);
        EXPECT_EQ(ShewhartLine(), u"SHEWHART Y* / TYPE=XBAR") << radio;
    }
    shewhart.GetQcTestsData()->SetAll(0, 0, 0, 0, 0, 0, 0, 0, 0);
    shewhart.GetQcTestsData()->SetWindowState(0);
    EXPECT_EQ(ShewhartLine(), u"SHEWHART Y* / TYPE=XBAR");

    XMr x;
    x.chart = Vars({u"Y"});
    x.centerLine = 2;
    x.limits = 2;
    x.Into(*xmr.GetXMrData());
    EXPECT_EQ(XMrLine(), u"XMR   Y / ");
}

TEST_F(ChartSettings, RunTestsBringTheirSlashOnlyToAListWithoutOne)
{
    CQcTestsData tests;
    tests.SetAll(0, 0, 1, 0, 0, 0, 0, 0, 0);
    CLIST<CCmdInfo> list;
    tests.GetCommandInfoList(list); // nothing to join: nothing happens
    EXPECT_TRUE(list.IsEmpty());

    AppendCommandLine(list, u"QC");
    AppendCommandLine(list, u"CHART 'a/b'");
    tests.GetCommandInfoList(list);
    EXPECT_EQ(Lines(list), (Lines16{u"QC", u"CHART 'a/b' /  TEST = 2 "}));
    // Now the list holds a "/": the next text joins without one.
    tests.GetCommandInfoList(list);
    EXPECT_EQ(Lines(list).back(), u"CHART 'a/b' /  TEST = 2   TEST = 2 ");
}

TEST_F(ChartSettings, ShewhartRecordKeepsItsOrderAndLeavesThePagesIntegersOut)
{
    CShewhartData chart;
    Shewhart s;
    s.source.Add(CGUIDataVariable(u"Y", NmsEnum::VT_NUMERIC, 2));
    s.sigma = Given(1.5);
    s.upper = Given(8);
    s.avgn = 1;
    s.total = 1;
    s.limits = 1;
    s.type = 4;
    s.sigmaInUse = s.centerInUse = s.aggEnabled = s.totalEnabled = 1;
    s.Into(chart);

    const Bytes zero = DataRecord(1, 2, 0.0, 0.0, 1);
    const Bytes expected =
        Cat({Int32(1), Int32(0), Int32(1), Int32(0), Int32(1), Int32(4),
             // source (one element block), group, chart, frequency
             Word(1), Int32(0), Int32(0), Int32(1), Int32(2), Int32(0), Int32(0), Word(0), Word(0), Word(0),
             // center, sigma, probability, preset and sigma bounds
             zero, DataRecord(0, 2, 0.0, 1.5, 1), zero, zero, zero, DataRecord(0, 2, 0.0, 8.0, 1), zero, zero});
    EXPECT_EQ(Store([&](CArchive& ar) { chart.Serialize(ar); }), expected);

    // Loaded, the page's own integers start clear.
    CShewhartData back;
    Load(expected, [&](CArchive& ar) { back.Serialize(ar); });
    const Shewhart b = Shewhart::From(back);
    EXPECT_EQ(std::vector<int>({b.sigmaInUse, b.centerInUse, b.aggEnabled, b.totalEnabled}),
              std::vector<int>({0, 0, 0, 0}));
}

TEST_F(ChartSettings, XMrAndRunTestsRecordsKeepTheirOrder)
{
    CXMrData chart;
    XMr x;
    x.chart = Vars({u"Y"});
    x.width = CGUIData<int>(0, 4, 2, 0, 1);
    x.mr = Given(1.25, 0);
    x.centerLine = 1;
    x.limits = 1;
    x.Into(chart);
    const Bytes zero = DataRecord(1, 0, 0.0, 0.0, 1);
    const Bytes expected =
        Cat({Int32(1), Int32(1), Word(0), Word(1), Int32(0), Int32(0), Int32(1), Int32(0), Int32(0), Int32(0),
             // width: state, flag 1, default, value, flag 2
             Int32(0), Int32(0), Int32(2), Int32(4), Int32(1),
             // center, MR, sigma, probability and sigma bounds
             zero, DataRecord(0, 0, 0.0, 1.25, 1), zero, zero, zero, zero, zero});
    EXPECT_EQ(Store([&](CArchive& ar) { chart.Serialize(ar); }), expected);

    CQcTestsData tests;
    tests.SetAll(0, 1, 0, 1, 1, 0, 0, 1, 0);
    EXPECT_EQ(Store([&](CArchive& ar) { tests.Serialize(ar); }),
              Cat({Int32(0), Int32(1), Int32(0), Int32(1), Int32(1), Int32(0), Int32(0), Int32(1), Int32(0)}));
}

TEST_F(ChartSettings, TheRunTestsComeLastAndWhatThePageOffersIsNotStored)
{
    Shewhart s;
    s.chart = Vars({u"T1", u"T2"});
    s.frequency = Vars({u"W"});
    s.agg = s.aggEnabled = 1;
    s.type = 5;
    s.limits = 2;
    s.sLower = Given(2);
    s.sUpper = kEmpty; // an emptied bound stays empty in the record
    SetShewhart(s);
    shewhart.GetQcTestsData()->SetAll(0, 1, 1, 0, 0, 0, 0, 0, 0);

    const Bytes bytes = Store([&](CArchive& ar) { shewhart.Serialize(ar); }, CArchive::namedLists);
    // The run tests come last: nine flags.
    EXPECT_EQ(Bytes(bytes.end() - 36, bytes.end()),
              Cat({Int32(0), Int32(1), Int32(1), Int32(0), Int32(0), Int32(0), Int32(0), Int32(0), Int32(0)}));
    CShewhartTabData back;
    Load(bytes, CArchive::namedLists, [&](CArchive& ar) { back.Serialize(ar); });
    // Whether AGG is offered is the page's to decide again.
    EXPECT_EQ(Commands(back), (Lines16{u"QC", u"WEIGHT  W", u"SHEWHART T1 T2* / TYPE=NP SLIMITS=2,  TEST = 1 2 "}));

    // A copy is the session's: it keeps what the page offered.
    const CShewhartTabData copy(shewhart);
    EXPECT_EQ(Commands(copy).back(), u"SHEWHART T1 T2* / TYPE=NP SLIMITS=2, AGG  TEST = 1 2 ");
}
