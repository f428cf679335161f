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

TEST_F(CorrelationsSettings, DefaultsWriteTheFirstMeasureAndKeepOneTrailingBlank)
{
    SetPage({.rows = {u"X", u"X2"}});
    EXPECT_EQ(Commands(), (Lines16{u"CORR", u"PEARSON X X2 "}));
}

TEST_F(CorrelationsSettings, EachDataTypeReadsItsOwnListOfMeasures)
{
    tab.GetCorrOptionsData()->SetWindowState(0);
    const std::array<int, 5> measures = {2, 2, 4, 1, 4};
    const std::u16string keywords[] = {u"SSCP", u"MINKOWSKI", u"MU2", u"CRAMER", u"TANIMOTO"};
    for (int type = 0; type < 5; ++type) {
        SetPage({.rows = {u"X", u"Y"}, .dataType = type, .measures = measures});
        EXPECT_EQ(Line(), keywords[type] + u" X Y");
    }
    // A data type the resources do not know has no keyword.
    SetPage({.rows = {u"X"}, .dataType = 7});
    EXPECT_EQ(Line(), u" X");
}

TEST_F(CorrelationsSettings, TwoSetsCrossTheRowsWithTheColumns)
{
    SetPage({.rows = {u"X", u"X2"}, .columns = {u"Y", u"'odd'"}, .sets = 1});
    EXPECT_EQ(Line(), u"PEARSON X X2*Y '''odd''' ");
    SetPage({.rows = {u"X", u"X2"}, .columns = {u"Y"}, .sets = 0});
    EXPECT_EQ(Line(), u"PEARSON X X2 ");
}

TEST_F(CorrelationsSettings, PairwiseDeletionFollowsTheDataTypeAndTheEstimation)
{
    SetPage({.rows = {u"X", u"Y"}, .deletion = 1});
    EXPECT_EQ(Line(), u"PEARSON X Y / PAIRWISE");
    SetOptions({.em = 1});
    EXPECT_EQ(Line(), u"PEARSON X Y / EM NORMAL = 0, 0");
    SetOptions({.hadi = 1});
    EXPECT_EQ(Line(), u"PEARSON X Y / HADI");
    // Choices of an options page out of use do not count.
    tab.GetCorrOptionsData()->SetWindowState(0);
    SetPage({.rows = {u"X", u"Y"}, .deletion = 1, .measures = {1, 0, 0, 0, 0}});
    EXPECT_EQ(Line(), u"COVARIANCE X Y / PAIRWISE");
    tab.GetCorrOptionsData()->SetWindowState(1);

    // Other data types write their deletion whatever the options say.
    SetPage({.rows = {u"X", u"Y"}, .dataType = 2, .deletion = 1});
    SetOptions({.em = 1});
    EXPECT_EQ(Line(), u"SPEARMAN X Y / PAIRWISE / EM NORMAL = 0, 0");
    SetOptions({.hadi = 1});
    EXPECT_EQ(Line(), u"SPEARMAN X Y / PAIRWISE / HADI");
    SetOptions({});
    EXPECT_EQ(Line(), u"SPEARMAN X Y / PAIRWISE");
}

TEST_F(CorrelationsSettings, ProbabilitiesGoWithThePearsonChoiceWhateverTheDataType)
{
    const std::u16string corrections[] = {u" / BONF", u" / DUNN", u" / PROB", u" "};
    for (int correction = 0; correction < 4; ++correction) {
        SetPage({.rows = {u"X"}});
        SetOptions({.probabilities = 1, .correction = correction == 3 ? 9 : correction});
        EXPECT_EQ(Line(), u"PEARSON X" + corrections[correction]);
    }
    SetOptions({.probabilities = 1, .correction = 2});
    SetPage({.rows = {u"X"}, .measures = {1, 0, 0, 0, 0}});
    EXPECT_EQ(Line(), u"COVARIANCE X ");
    SetPage({.rows = {u"X"}, .dataType = 2, .measures = {0, 0, 1, 0, 0}});
    EXPECT_EQ(Line(), u"KENDALL X / PROB");
    SetPage({.rows = {u"X"}, .dataType = 2, .measures = {2, 0, 1, 0, 0}});
    EXPECT_EQ(Line(), u"KENDALL X ");
}

TEST_F(CorrelationsSettings, EmAndHadiClausesFollowTheirChoicesAndTheValueRules)
{
    SetPage({.rows = {u"X"}});
    SetOptions({.em = 1, .normalFirst = Entered(0.1, 0), .normalSecond = Entered(3, 0)});
    EXPECT_EQ(Line(), u"PEARSON X / EM NORMAL = 0.1, 3");
    SetOptions({.em = 1, .distribution = 1});
    EXPECT_EQ(Line(), u"PEARSON X / EM T");
    SetOptions({.em = 1, .distribution = 1, .df = Entered(8, 5)});
    EXPECT_EQ(Line(), u"PEARSON X / EM T = 8");
    SetOptions({.em = 1,
                .distribution = 1,
                .iterations = CGUIData<int>(0, 50, 20, 0, 1),
                .convergence = Entered(0.0001, 0.001)});
    EXPECT_EQ(Line(), u"PEARSON X / EM T ITER = 50 CONV = 0.0001");
    // An unknown distribution writes EM alone.
    SetOptions({.em = 1, .distribution = 4, .df = Entered(8, 5)});
    EXPECT_EQ(Line(), u"PEARSON X / EM");
    SetOptions({.hadi = 1});
    EXPECT_EQ(Line(), u"PEARSON X / HADI");
    SetOptions({.hadi = 1, .tolerance = Entered(0.01, 0.0001)});
    EXPECT_EQ(Line(), u"PEARSON X / HADI TOL = 0.01");
    // Values without their switch write nothing.
    SetOptions({.distribution = 1, .df = Entered(8, 5), .tolerance = Entered(0.01, 0.0001)});
    EXPECT_EQ(Line(), u"PEARSON X ");

    // Every option: the defaults are written too, except that the normal
    // parameters are written as they always are.
    host.writeEveryOption = true;
    SetOptions({.em = 1, .distribution = 1});
    EXPECT_EQ(Line(), u"PEARSON X / EM T = 5 ITER = 20 CONV = 0.001");
    SetOptions({.em = 1});
    EXPECT_EQ(Line(), u"PEARSON X / EM NORMAL = 0, 0 ITER = 20 CONV = 0.001");
    SetOptions({.hadi = 1});
    EXPECT_EQ(Line(), u"PEARSON X / HADI TOL = 0.0001");
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
