// Control-chart settings: the lines of both charts and of the run tests,
// the record bytes, and copies.
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

TEST_F(ChartSettings, ShewhartDefaultsWriteTheModuleAndTheChartLine)
{
    EXPECT_EQ(Commands(shewhart), (Lines16{u"QC", u"SHEWHART * / TYPE=XBAR PLIMITS=0,0"}));
    Shewhart s;
    s.chart = Vars({u"T1", u"T2"});
    s.group = Vars({u"A", u"dose level"});
    s.type = 8;
    SetShewhart(s);
    EXPECT_EQ(Commands(shewhart), (Lines16{u"QC", u"SHEWHART T1 T2*A 'dose level' / TYPE=MEDIAN PLIMITS=0,0"}));

    // Asking for every option forces none of the chart's values.
    host.writeEveryOption = true;
    EXPECT_EQ(ShewhartLine(), u"SHEWHART T1 T2*A 'dose level' / TYPE=MEDIAN PLIMITS=0,0");
}

TEST_F(ChartSettings, FrequencyLineIsAWeightOnlyForAggregatedProportions)
{
    // (Aggregated, chart type) -> the line's keyword.
    const std::tuple<int, int, std::u16string> cases[] = {
        {1, 4, u"WEIGHT  W"}, {1, 5, u"WEIGHT  W"}, {0, 4, u"FREQUENCY  W"}, {1, 6, u"FREQUENCY  W"}};
    for (const auto& [agg, type, line] : cases) {
        Shewhart s;
        s.frequency = Vars({u"W"});
        s.agg = agg;
        s.type = type;
        SetShewhart(s);
        EXPECT_EQ(Commands(shewhart)[1], line) << type;
    }
}

TEST_F(ChartSettings, CenterAndSigmaAreWrittenOnlyWhileInUse)
{
    Shewhart s;
    s.center = Given(10.25);
    s.sigma = Given(1.5);
    SetShewhart(s);
    EXPECT_EQ(ShewhartLine(), u"SHEWHART * / TYPE=XBAR PLIMITS=0,0");
    s.sigmaInUse = 1;
    SetShewhart(s);
    EXPECT_EQ(ShewhartLine(), u"SHEWHART * / TYPE=XBAR SIGMA=1.5 PLIMITS=0,0");
    // In use, a center of 0 is a center like any other.
    s.center = CShewhartData::GetDefaultCenterEdit();
    s.centerInUse = 1;
    SetShewhart(s);
    EXPECT_EQ(ShewhartLine(), u"SHEWHART * / TYPE=XBAR CENTER=0 SIGMA=1.5 PLIMITS=0,0");
}

TEST_F(ChartSettings, OnlyTheChosenLimitsAreWrittenAndABoundMayBeMissing)
{
    Shewhart s;
    s.chart = Vars({u"Y"});
    s.pLower = Given(0.001);
    s.pUpper = Given(0.999);
    s.lower = Given(-2.5);
    s.upper = Given(8);
    s.sLower = Given(3);
    s.sUpper = Given(2.5);
    const std::pair<int, std::u16string> chosen[] = {
        {0, u" PLIMITS=0.001,0.999"}, {1, u" LIMITS=-2.5,8"}, {2, u" SLIMITS=3,2.5"}, {3, u""}, {-1, u""}};
    for (const auto& [radio, clause] : chosen) {
        s.limits = radio;
        SetShewhart(s);
        EXPECT_EQ(ShewhartLine(), u"SHEWHART Y* / TYPE=XBAR" + clause) << radio;
    }

    // 0 is a bound like any other; an emptied bound keeps its place, and
    // without either bound there is no clause.
    s.limits = 1;
    s.upper = CShewhartData::GetDefaultLimitsUpperEdit();
    SetShewhart(s);
    EXPECT_EQ(ShewhartLine(), u"SHEWHART Y* / TYPE=XBAR LIMITS=-2.5,0");
    s.upper = kEmpty;
    SetShewhart(s);
    EXPECT_EQ(ShewhartLine(), u"SHEWHART Y* / TYPE=XBAR LIMITS=-2.5,");
    s.lower = kEmpty;
    s.upper = Given(8);
    SetShewhart(s);
    EXPECT_EQ(ShewhartLine(), u"SHEWHART Y* / TYPE=XBAR LIMITS=,8");
    s.limits = 0;
    s.pLower = s.pUpper = CShewhartData::GetDefaultPLimitsLowerEdit();
    SetShewhart(s);
    EXPECT_EQ(ShewhartLine(), u"SHEWHART Y* / TYPE=XBAR PLIMITS=0,0");
    s.pLower = s.pUpper = kEmpty;
    SetShewhart(s);
    EXPECT_EQ(ShewhartLine(), u"SHEWHART Y* / TYPE=XBAR");
}

TEST_F(ChartSettings, AggAndTotalCountOnlyWhileOffered)
{
    Shewhart s;
    s.avgn = s.agg = s.total = s.z = 1;
    SetShewhart(s);
    EXPECT_EQ(ShewhartLine(), u"SHEWHART * / TYPE=XBAR PLIMITS=0,0 AVGN Z");
    s.aggEnabled = s.totalEnabled = 1;
    SetShewhart(s);
    EXPECT_EQ(ShewhartLine(), u"SHEWHART * / TYPE=XBAR PLIMITS=0,0 AVGN AGG TOTAL Z");
}

TEST_F(ChartSettings, RunTestsJoinTheChartLineOnlyWhenNotAllArePerformed)
{
    auto* tests = shewhart.GetQcTestsData();
    const std::pair<std::vector<int>, std::u16string> cases[] = {
        {{1, 1, 1, 1, 1, 1, 1, 1, 1}, u""},
        {{1, 0, 0, 0, 0, 0, 0, 0, 0}, u""}, // perform-all alone
        {{0, 0, 0, 0, 0, 0, 0, 0, 0}, u"  TEST = 0 "},
        {{0, 1, 0, 1, 0, 0, 0, 0, 1}, u"  TEST = 1 3 8 "},
    };
    for (const auto& [f, text] : cases) {
        tests->SetAll(f[0], f[1], f[2], f[3], f[4], f[5], f[6], f[7], f[8]);
        EXPECT_EQ(Commands(shewhart), (Lines16{u"QC", u"SHEWHART * / TYPE=XBAR PLIMITS=0,0" + text}));
    }
    // Out of use, the page adds nothing.
    tests->SetWindowState(0);
    EXPECT_EQ(ShewhartLine(), u"SHEWHART * / TYPE=XBAR PLIMITS=0,0");
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

TEST_F(ChartSettings, XMrWritesEachKnownValueOnceByItsState)
{
    XMr x;
    x.chart = Vars({u"Y"});
    x.Into(*xmr.GetXMrData());
    EXPECT_EQ(Commands(xmr), (Lines16{u"QC", u"XMR   Y /  PLIMITS=0,0 MEAN "}));
    host.writeEveryOption = true;
    EXPECT_EQ(XMrLine(), u"XMR   Y /  WIDTH = 2  CENTER = 0    MR = 0  SIGMA = 0 PLIMITS=0,0 MEAN ");
    host.writeEveryOption = false;

    x.width = CGUIData<int>(0, 3, 2, 0, 1);
    x.center = Given(10, 0);
    x.sigma = Given(0.5, 0);
    x.centerLine = 1;
    x.Into(*xmr.GetXMrData());
    EXPECT_EQ(XMrLine(), u"XMR   Y /  WIDTH = 3  CENTER = 10  SIGMA = 0.5 PLIMITS=0,0 MEDIAN ");

    x.width = CXMrData::GetDefaultWidthEdit();
    x.center = x.sigma = CXMrData::GetDefaultCenterEdit();
    x.mr = Given(1.25, 0);
    x.centerLine = 2; // no such button: no center-line keyword
    x.limits = 1;
    x.sLower = kEmpty;
    x.sUpper = Given(2.5, 0);
    x.Into(*xmr.GetXMrData());
    EXPECT_EQ(XMrLine(), u"XMR   Y /     MR = 1.25 SLIMITS=,2.5");
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

    CShewhartData back;
    Load(expected, [&](CArchive& ar) { back.Serialize(ar); });
    const Shewhart b = Shewhart::From(back);
    EXPECT_EQ(std::vector<int>({b.avgn, b.agg, b.total, b.z, b.limits, b.type}), std::vector<int>({1, 0, 1, 0, 1, 4}));
    EXPECT_EQ(std::vector<int>({b.sigmaInUse, b.centerInUse, b.aggEnabled, b.totalEnabled}),
              std::vector<int>({0, 0, 0, 0}));
    EXPECT_EQ(b.sigma, Given(1.5));
    EXPECT_EQ(b.upper, Given(8));
    EXPECT_EQ(b.source.GetSize(), 1);

    const Bytes cut(expected.begin(), expected.end() - 20);
    CShewhartData broken;
    EXPECT_THROW(Load(cut, [&](CArchive& ar) { broken.Serialize(ar); }), CArchiveException);
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

TEST_F(ChartSettings, TabRecordsRoundTripTheirPagesAndCopiesCarryThem)
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

    const CShewhartTabData copy(shewhart);
    EXPECT_EQ(Commands(copy).back(), u"SHEWHART T1 T2* / TYPE=NP SLIMITS=2, AGG  TEST = 1 2 ");
    CGUIBaseObj* parent = nullptr;
    const_cast<CShewhartTabData&>(copy).GetQcTestsData()->GetParent(parent);
    EXPECT_EQ(parent, &copy);

    XMr x;
    x.chart = Vars({u"Y"});
    x.sigma = Given(2, 0);
    x.Into(*xmr.GetXMrData());
    const Bytes xBytes = Store([&](CArchive& ar) { xmr.Serialize(ar); }, CArchive::namedLists);
    CXMrTabData xBack;
    Load(xBytes, CArchive::namedLists, [&](CArchive& ar) { xBack.Serialize(ar); });
    EXPECT_EQ(Commands(xBack), Commands(xmr));
    const Bytes cut(xBytes.begin(), xBytes.end() - 1);
    EXPECT_THROW(Load(cut, CArchive::namedLists, [&](CArchive& ar) { xBack.Serialize(ar); }), CArchiveException);
}
