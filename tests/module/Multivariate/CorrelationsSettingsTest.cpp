// Correlations settings: the measure line and the clauses the options and
// resampling pages join to it, and the record bytes.
#include "Source/DlgStat2.h"
#include "private/Multivariate/KDGCorrelationsTabData.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/DialogTesting.h"

#include <gtest/gtest.h>

#include <array>

using namespace kaltest;

namespace {

// A number the user entered: no longer its default.
CGUIData<double> Entered(double value, double defaultValue)
{
    return CGUIData<double>(0, value, defaultValue, 0, 1);
}

struct Page {
    std::initializer_list<std::u16string> rows;
    std::initializer_list<std::u16string> columns = {};
    int sets = 0;
    int dataType = 0;
    int deletion = 0;
    std::array<int, 5> measures = {};
    int save = 0;
    CString file = {};
};

struct Options {
    int probabilities = 0;
    int em = 0;
    int hadi = 0;
    int correction = 0;
    int distribution = 0;
    CGUIData<double> normalFirst = CCorrOptionsData::GetDefaultNormalFirstEdit();
    CGUIData<double> normalSecond = CCorrOptionsData::GetDefaultNormalSecondEdit();
    CGUIData<double> df = CCorrOptionsData::GetDefaultDfEdit();
    CGUIData<int> iterations = CCorrOptionsData::GetDefaultIterationsEdit();
    CGUIData<double> convergence = CCorrOptionsData::GetDefaultConvergenceEdit();
    CGUIData<double> tolerance = CCorrOptionsData::GetDefaultToleranceEdit();
};

void Set(CCorrelationsData& data, const Page& p)
{
    data.SetAll(Vars({}), Vars(p.rows), Vars(p.columns), p.save, p.sets, p.dataType, p.deletion, p.measures[0],
                p.measures[1], p.measures[2], p.measures[3], p.measures[4], p.file);
}

void Set(CCorrOptionsData& data, const Options& o)
{
    data.SetAll(o.normalFirst, o.normalSecond, o.df, o.iterations, o.convergence, o.tolerance, o.probabilities, o.em,
                o.hadi, o.correction, o.distribution);
}

class CorrelationsSettings : public ::testing::Test {
protected:
    FakeHost host;
    HostScope scope{&host};
    CCorrelationsTabData tab;

    void SetPage(const Page& p) { Set(*tab.GetCorrelationsData(), p); }
    void SetOptions(const Options& o) { Set(*tab.GetCorrOptionsData(), o); }
    Lines16 Commands() const { return LinesOf(tab); }
    std::u16string Line() const { return Commands().back(); }
};

} // namespace

// What the dialog cannot set: a data type or an adjustment the resources do
// not know writes no keyword; probabilities follow the Pearson choice of
// continuous data whatever the data type.
TEST_F(CorrelationsSettings, UnknownChoicesWriteNoKeywordAndProbabilitiesFollowThePearsonChoice)
{
    SetPage({.rows = {u"X"}, .dataType = 7});
    tab.GetCorrOptionsData()->SetWindowState(0);
    EXPECT_EQ(Line(), u" X");
    tab.GetCorrOptionsData()->SetWindowState(1);
    SetOptions({.probabilities = 1, .correction = 9});
    SetPage({.rows = {u"X"}});
    EXPECT_EQ(Line(), u"PEARSON X ");
    SetOptions({.probabilities = 1, .correction = 2});
    SetPage({.rows = {u"X"}, .dataType = 2, .measures = {0, 0, 1, 0, 0}});
    EXPECT_EQ(Line(), u"KENDALL X / PROB");
    SetPage({.rows = {u"X"}, .dataType = 2, .measures = {2, 0, 1, 0, 0}});
    EXPECT_EQ(Line(), u"KENDALL X ");
}

TEST_F(CorrelationsSettings, TheSaveLineComesFirstAndPagesWithoutTheirTabWriteNoMeasureLine)
{
    SetPage({.rows = {u"X"}, .save = 1, .file = u"it's.kvd"});
    EXPECT_EQ(Commands(), (Lines16{u"CORR", u"SAVE 'it''s.kvd'", u"PEARSON X "}));

    CCorrelationsData alone;
    Set(alone, {.rows = {u"X"}, .deletion = 1, .save = 1, .file = u"m.kvd"});
    CLIST<CCmdInfo> list;
    alone.GetCommandInfoList(list);
    EXPECT_EQ(Lines(list), (Lines16{u"CORR", u"SAVE 'm.kvd'"}));

    AssertionCapture capture;
    CCorrOptionsData options;
    Set(options, {.em = 1});
    options.GetCommandInfoList(list);
    EXPECT_EQ(Lines(list), (Lines16{u"CORR", u"SAVE 'm.kvd'"}));
    EXPECT_TRUE(capture.reports.empty());

    // Under another owner the page reports and writes nothing.
    CCorrelationsData otherOwner;
    options.SetParent(&otherOwner);
    options.GetCommandInfoList(list);
    EXPECT_EQ(Lines(list), (Lines16{u"CORR", u"SAVE 'm.kvd'"}));
    EXPECT_EQ(capture.reports, (std::vector<std::pair<std::string, int>>{{"Source/KDGCorrOptionsData", 274}}));
}

TEST_F(CorrelationsSettings, ResamplingJoinsTheMeasureLineAfterTheOptions)
{
    SetPage({.rows = {u"X", u"Y"}});
    tab.GetBootStrapData()->SetAll(CBootStrapData::methodBootstrap, CGUIData<int>(500), CGUIData<int>(0),
                                   CGUIData<unsigned int>(42u));
    EXPECT_EQ(Line(), u"PEARSON X Y / SAMPLE = BOOT(500) RSEED = 42");
    SetOptions({.em = 1});
    EXPECT_EQ(Line(), u"PEARSON X Y / EM NORMAL = 0, 0 SAMPLE = BOOT(500) RSEED = 42");

    // A page out of use adds nothing; the measure line then ends without
    // the options' blank.
    SetOptions({});
    tab.GetCorrOptionsData()->SetWindowState(0);
    EXPECT_EQ(Line(), u"PEARSON X Y / SAMPLE = BOOT(500) RSEED = 42");
    SetPage({.rows = {u"X", u"Y"}, .deletion = 1});
    tab.GetBootStrapData()->SetDeletionTypePairwise(1);
    EXPECT_EQ(Line(), u"PEARSON X Y / PAIRWISE SAMPLE = BOOT(500) RSEED = 42");
    // A method the analysis cannot use writes nothing.
    tab.GetBootStrapData()->SetAll(CBootStrapData::methodSubsampling, CGUIData<int>(500), CGUIData<int>(0),
                                   CGUIData<unsigned int>(0u));
    EXPECT_EQ(Line(), u"PEARSON X Y / PAIRWISE");
    tab.GetBootStrapData()->SetDeletionTypePairwise(0);
    tab.GetBootStrapData()->SetWindowState(0);
    EXPECT_EQ(Line(), u"PEARSON X Y / PAIRWISE");
    tab.GetCorrelationsData()->SetWindowState(0);
    EXPECT_TRUE(Commands().empty());
}

TEST_F(CorrelationsSettings, RecordBytesFollowTheStoredFieldOrder)
{
    CCorrelationsData page;
    CGUIArray<CGUIDataVariable> rows;
    rows.Add(CGUIDataVariable(u"X", NmsEnum::VT_NUMERIC, 7));
    page.SetAll(Vars({}), rows, Vars({}), 1, 1, 2, 1, 2, 1, 3, 2, 4, u"c.kvd");
    // The nine choices, the file name, then source, rows and columns.
    const Bytes pageBytes =
        Cat({Int32(1), Int32(1), Int32(2), Int32(1), Int32(2), Int32(1), Int32(3), Int32(2), Int32(4), Text(u"c.kvd"),
             Word(0), Word(1), Int32(0), Int32(0), Int32(1), Int32(7), Int32(0), Int32(0), Word(0)});
    EXPECT_EQ(Store([&](CArchive& ar) { page.Serialize(ar); }), pageBytes);

    CCorrOptionsData options;
    Set(options, {.probabilities = 1,
                  .hadi = 1,
                  .correction = 2,
                  .distribution = 1,
                  .df = Entered(8, 5),
                  .iterations = CGUIData<int>(0, 50, 20, 0, 1)});
    // The five choices, then iterations, convergence, tolerance, the two
    // normal parameters (never written for "every option") and df.
    const Bytes optionBytes =
        Cat({Int32(1), Int32(0), Int32(1), Int32(2), Int32(1), Int32(0), Int32(0), Int32(20), Int32(50), Int32(1),
             DataRecord(1, 0, 0.001, 0.001), DataRecord(1, 0, 0.0001, 0.0001), DataRecord(1, 1, 0.0, 0.0),
             DataRecord(1, 1, 0.0, 0.0), DataRecord(0, 0, 5.0, 8.0)});
    EXPECT_EQ(Store([&](CArchive& ar) { options.Serialize(ar); }), optionBytes);
}
