// Linear regression settings: the estimation page under each owner it
// serves, choices only settings can hold, and the records' bytes; the lines
// the dialog reaches are held by tests/scripts/regression-*.kal.
#include "Source/DlgStat2.h"
#include "private/Regression/KDGRegressionTabData.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/DialogTesting.h"

#include <gtest/gtest.h>

using namespace kaltest;
using Reports = std::vector<std::pair<std::string, int>>;

namespace {

// The estimation page's settings, built from the defaults with changes.
struct Options {
    CGUIData<double> tolerance = CRegressionOptionsData::GetDefaultToleranceEdit();
    CGUIData<double> pEnter = CRegressionOptionsData::GetDefaultProbabilityEnterEdit();
    CGUIData<double> pRemove = CRegressionOptionsData::GetDefaultProbabilityRemoveEdit();
    CGUIData<double> fEnter = CRegressionOptionsData::GetDefaultFStatisticEnterEdit();
    CGUIData<double> fRemove = CRegressionOptionsData::GetDefaultFStatisticRemoveEdit();
    CGUIData<double> confidence = CRegressionOptionsData::GetDefaultConfiEdit();
    CGUIData<int> maxStep = CRegressionOptionsData::GetDefaultMaxStepEdit();
    CGUIData<int> force = CRegressionOptionsData::GetDefaultForceEdit();
    int mixture = 0, estimation = 0, direction = 0, stepping = 0, criterion = 0, mixtureEnabled = 0, mixtureStatus = 0;

    void ApplyTo(CRegressionOptionsData& data) const
    {
        data.SetAll(tolerance, pEnter, pRemove, fEnter, fRemove, confidence, maxStep, force, mixture, estimation,
                    direction, stepping, criterion, mixtureEnabled, mixtureStatus);
    }
};

class RegressionSettings : public ::testing::Test {
protected:
    FakeHost host;
    HostScope scope{&host};
    CRegressionTabData tab;

    void SetModel(std::initializer_list<std::u16string> dependents, std::initializer_list<std::u16string> independents,
                  CGUIDataWnd<int> constant = {1, 1}, CGUIData<int> cases = CGUIData<int>(0), int save = 0,
                  int saveIndex = 6, const CString& file = {})
    {
        tab.GetRegressionData()->SetAll(Vars({}), Vars(dependents), Vars(independents), cases, constant, save,
                                        saveIndex, file, 1);
    }
    void SetOptions(const Options& options) { options.ApplyTo(*tab.GetRegressionOptionsData()); }
    Lines16 Commands() const { return LinesOf(tab); }
};

} // namespace

TEST_F(RegressionSettings, EachOwnerOfTheEstimationPageGetsItsClauses)
{
    struct Case {
        UINT owner;
        int stepping; // 0 automatic, 1 interactive
        Lines16 lines;
        std::size_t reports;
    };
    const std::string source = "Source/KDGRegressionOptionsData";
    const Lines16 regressionAuto{u"START / BACKWARD MAXSTEP = 20", u"STEP / AUTO", u"STOP / CONFI = 0.9"};
    const Lines16 regressionInteractive{u"START / BACKWARD MAXSTEP = 20"};
    const Case cases[] = {
        {0, 0, regressionAuto, 0},
        {0, 1, regressionInteractive, 0},
        {2213, 0, regressionAuto, 0},
        {2217, 1, regressionInteractive, 0},
        {2259, 0, regressionAuto, 0},
        {2259, 1, regressionInteractive, 0},
        // The discriminant analysis: no maximum step and no confidence; its
        // interactive stepping names the number of steps.
        {2211, 0, {u"START / BACKWARD", u"STEP / AUTO", u"STOP "}, 0},
        {2211, 1, {u"START / BACKWARD", u"STEP / NUMBER = 20"}, 0},
        // An owner the page does not know: reported where it matters, the
        // rest written as for the regression.
        {4242, 0, {u"START / BACKWARD", u"STEP / AUTO", u"STOP / CONFI = 0.9"}, 1},
        {4242, 1, {u"START / BACKWARD"}, 2},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << "owner " << c.owner << ", stepping " << c.stepping);
        CRegressionOptionsData data;
        data.SetOwnerID(c.owner);
        Options options;
        options.estimation = 1;
        options.stepping = c.stepping;
        options.maxStep = Changed(20, 15);
        options.confidence = Changed(0.9, 0.95);
        options.ApplyTo(data);
        AssertionCapture capture;
        EXPECT_EQ(LinesOf(data), c.lines);
        EXPECT_EQ(capture.reports.size(), c.reports);
        for (const auto& report : capture.reports)
            EXPECT_EQ(report.first, source);
    }

    // Complete estimation: the discriminant analysis writes no confidence.
    for (const auto& [owner, line] : std::vector<std::pair<UINT, std::u16string>>{
             {0, u"ESTIMATE / CONFI = 0.9"}, {2213, u"ESTIMATE / CONFI = 0.9"}, {2211, u"ESTIMATE /"}}) {
        CRegressionOptionsData data;
        data.SetOwnerID(owner);
        Options options;
        options.confidence = Changed(0.9, 0.95);
        options.ApplyTo(data);
        EXPECT_EQ(LinesOf(data), Lines16{line}) << owner;
    }
}

TEST_F(RegressionSettings, UnexpectedChoicesAreReportedAndTheirClausesLeftOut)
{
    const std::string source = "Source/KDGRegressionOptionsData";
    CRegressionOptionsData data;
    Options options;
    options.estimation = 1;
    options.direction = 2;
    options.criterion = 5;
    options.ApplyTo(data);
    {
        AssertionCapture capture;
        EXPECT_EQ(LinesOf(data), (Lines16{u"START /", u"STEP / AUTO", u"STOP "}));
        EXPECT_EQ(capture.reports.size(), 2u);
    }
    options.estimation = -1;
    options.ApplyTo(data);
    AssertionCapture capture;
    EXPECT_TRUE(LinesOf(data).empty());
    ASSERT_EQ(capture.reports.size(), 1u);
    EXPECT_EQ(capture.reports[0].first, source);
}

TEST_F(RegressionSettings, TheDiscriminantOwnerStartsFromTheClassicalTolerance)
{
    CRegressionOptionsData fresh;
    fresh.SetOwnerID(2211);
    fresh.ReassignDefaultValue();
    EXPECT_EQ(fresh.GetTolerance(), CGUIData<double>(1, 0.001, 0.001, 0, 1));
    EXPECT_EQ(LinesOf(fresh), Lines16{u"ESTIMATE /"});

    // A tolerance the user chose stays, and so does the regression's.
    CRegressionOptionsData chosen;
    chosen.SetOwnerID(2211);
    Options options;
    options.tolerance = Changed(1e-5, 1e-12);
    options.ApplyTo(chosen);
    chosen.ReassignDefaultValue();
    EXPECT_EQ(chosen.GetTolerance().m_Value, 1e-5);
    CRegressionOptionsData regression;
    regression.ReassignDefaultValue();
    EXPECT_EQ(regression.GetTolerance(), CRegressionOptionsData::GetDefaultToleranceEdit());
}

TEST_F(RegressionSettings, APredictionWithoutItsCheckWritesNothingAndTheSaveListEndsAtItsEntries)
{
    CRegressionPredictData predict;
    predict.SetAll(u"new.kvd", u"p.kvd", CRegressionPredictData::GetDefaultConfidenceEdit(), 0, 1, 1);
    EXPECT_TRUE(LinesOf(predict).empty());
    CString option;
    EXPECT_EQ(CRegressionPredictData::GetSaveComboCommand(CRegressionPredictData::GetSaveComboCount(), option), 0);
}

TEST_F(RegressionSettings, ModelRecordBytes)
{
    CRegressionData model;
    CGUIArray<CGUIDataVariable> source;
    source.Add(CGUIDataVariable(u"Y", NmsEnum::VT_NUMERIC, 4));
    model.SetAll(source, Vars({}), Vars({}), Changed(50, 0), {0, 1}, 1, 3, u"r.kvd", 1);
    // base: nothing; save check, save index, file name, state word; then the
    // constant (value, window state), source, dependent, independent, cases.
    const Bytes expected =
        Cat({Int32(1), Int32(3), Text(u"r.kvd"), Int32(1), Int32(0), Int32(1), Word(1), Int32(0), Int32(0), Int32(1),
             Int32(4), Int32(0), Int32(0), Word(0), Word(0), DataRecord(0, 0, 0, 50)});
    EXPECT_EQ(Store([&](CArchive& ar) { model.Serialize(ar); }), expected);
}

TEST_F(RegressionSettings, EstimationRecordBytesPutTheConfidenceLast)
{
    CRegressionOptionsData options;
    Options values;
    values.pRemove = Changed(0.5, 0.15);
    values.maxStep = Changed(7, 15);
    values.mixture = 1;
    values.estimation = 1;
    values.criterion = 1;
    values.mixtureEnabled = 1;
    values.ApplyTo(options);
    // The seven ints in member order, then tolerance, the probabilities,
    // the F values, maximum step, force and the confidence.
    const Bytes expected = Cat({Int32(1), Int32(1), Int32(0), Int32(0), Int32(1), Int32(1), Int32(0),
                                DataRecord(1, 0, 1e-12, 1e-12), DataRecord(1, 0, 0.15, 0.15),
                                DataRecord(0, 0, 0.15, 0.5), DataRecord(1, 0, 4.0, 4.0), DataRecord(1, 0, 3.9, 3.9),
                                DataRecord(0, 0, 15, 7), DataRecord(1, 0, 0, 0), DataRecord(1, 0, 0.95, 0.95)});
    EXPECT_EQ(Store([&](CArchive& ar) { options.Serialize(ar); }), expected);
}

TEST_F(RegressionSettings, PredictionRecordBytes)
{
    CRegressionPredictData predict;
    predict.SetAll(u"u", u"pv", CGUIData<double>(0, 0.5, 0.95, 0, 1), 1, 0, 1);
    // use file, save file, predict, save, save index, then the confidence.
    const Bytes expected = Cat({Text(u"u"), Text(u"pv"), Int32(1), Int32(0), Int32(1), DataRecord(0, 0, 0.95, 0.5)});
    EXPECT_EQ(Store([&](CArchive& ar) { predict.Serialize(ar); }), expected);
}

TEST_F(RegressionSettings, TabRecordHoldsThePagesInMemberOrder)
{
    SetModel({u"Y"}, {u"X", u"X2"}, {0, 1}, CGUIData<int>(0), 1, 4, u"m.kvd");
    Options options;
    options.tolerance = Changed(1e-6, 1e-12);
    SetOptions(options);
    tab.GetAnovaOptionsData()->SetAll(1, 0, 0, 0, 1);
    tab.GetAnovaOptionsData()->SetAllCheckState(1, 1, 1, 0, 0);
    tab.GetRegressionPredictData()->SetAll(u"c.kvd", {}, CRegressionPredictData::GetDefaultConfidenceEdit(), 1, 0, 0);

    const auto record = [](auto& page) { return Store([&](CArchive& ar) { page.Serialize(ar); }); };
    const Bytes bytes = Store([&](CArchive& ar) { tab.Serialize(ar); });
    EXPECT_EQ(bytes, Cat({record(*tab.GetRegressionData()), record(*tab.GetAnovaOptionsData()),
                          record(*tab.GetRegressionOptionsData()), record(*tab.GetRegressionPredictData()),
                          record(*tab.GetBootStrapData())}));
}
