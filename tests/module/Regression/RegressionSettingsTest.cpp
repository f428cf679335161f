// Linear regression settings: the lines of each page and of the tab, the
// estimation page under each owner it serves, and the records' bytes.
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

TEST_F(RegressionSettings, TheModelLineFollowsTheConstantAndItsEnableState)
{
    SetModel({u"Y"}, {u"X1", u"X2"}, {0, 1});
    EXPECT_EQ(Commands()[1], u"MODEL Y = X1+X2");
    SetModel({u"Y"}, {}, {1, 1});
    EXPECT_EQ(Commands()[1], u"MODEL Y = CONSTANT");
    // Checked but disabled (a mixture model, matrix data): no constant.
    SetModel({u"Y"}, {u"X1"}, {1, 0});
    EXPECT_EQ(Commands()[1], u"MODEL Y = X1");
    SetModel({u"Y", u"Y2"}, {u"dose (mg)", u"X"}, {1, 1});
    EXPECT_EQ(Commands()[1], u"MODEL Y Y2 = CONSTANT+'dose (mg)'+X");
}

TEST_F(RegressionSettings, ExitPrecedesTheModuleOnlyAfterQualityCharts)
{
    SetModel({u"Y"}, {u"X"});
    for (const auto& [module, first] : std::vector<std::pair<std::u16string, std::u16string>>{
             {u"QC", u"EXIT"}, {u"REGRESS", u"REGRESS"}, {u"ANOVA", u"REGRESS"}, {u"", u"REGRESS"}}) {
        host.commandModule = CString(module);
        const Lines16 lines = Commands();
        EXPECT_EQ(lines[0], first) << std::string(module.begin(), module.end());
        EXPECT_EQ(lines.size(), first == u"EXIT" ? 4u : 3u);
    }
}

TEST_F(RegressionSettings, TheNumberOfCasesIsStatedForMatrixDataOnly)
{
    SetModel({u"Y"}, {u"X"}, {1, 0}, Changed(30, 0));
    host.dataTypeCode = KAL_DATA_MATRIX;
    EXPECT_EQ(Commands()[1], u"MODEL Y = X/N=30");
    // Even at its default, the number goes with matrix data.
    SetModel({u"Y"}, {u"X"}, {1, 0});
    EXPECT_EQ(Commands()[1], u"MODEL Y = X/N=0");
    host.dataTypeCode = KAL_DATA_ORDINARY;
    SetModel({u"Y"}, {u"X"}, {1, 1}, Changed(30, 0));
    EXPECT_EQ(Commands()[1], u"MODEL Y = CONSTANT+X");
    host.hasSheet = false;
    EXPECT_EQ(Commands()[1], u"MODEL Y = CONSTANT+X");
}

TEST_F(RegressionSettings, TheSaveLineTakesItsKindFromTheModelsSaveList)
{
    SetModel({u"Y"}, {u"X"}, {1, 1}, CGUIData<int>(0), 1, 6, u"fit.kvd");
    EXPECT_EQ(Commands(),
              (Lines16{u"REGRESS", u"MODEL Y = CONSTANT+X", u"SAVE 'fit.kvd' / RESIDUALS/DATA", u"ESTIMATE /"}));
    SetModel({u"Y"}, {u"X"}, {1, 1}, CGUIData<int>(0), 1, 2, u"it's.kvd");
    EXPECT_EQ(Commands()[2], u"SAVE 'it''s.kvd' / COEFFICIENTS");
    SetModel({u"Y"}, {u"X"}, {1, 1}, CGUIData<int>(0), 0, 2, u"fit.kvd");
    EXPECT_EQ(Commands().size(), 3u);
}

TEST_F(RegressionSettings, CompleteEstimationWritesChangedValuesAndTheMixtureOfOrdinaryData)
{
    SetModel({u"Y"}, {u"X"});
    Options options;
    options.tolerance = Changed(1e-8, 1e-12);
    options.confidence = Changed(0.9, 0.95);
    SetOptions(options);
    EXPECT_EQ(Commands().back(), u"ESTIMATE / TOL = 1e-08 CONFI = 0.9");

    // The mixture clause needs the check, its enable state and ordinary data.
    options = Options();
    options.mixture = 1;
    SetOptions(options);
    EXPECT_EQ(Commands().back(), u"ESTIMATE /");
    options.mixtureEnabled = 1;
    SetOptions(options);
    EXPECT_EQ(Commands().back(), u"ESTIMATE / MIX");
    host.dataTypeCode = KAL_DATA_MATRIX;
    EXPECT_EQ(Commands().back(), u"ESTIMATE /");
    host.dataTypeCode = KAL_DATA_ORDINARY;

    // Every option on request, except a value marked never to be written.
    host.writeEveryOption = true;
    host.decimalSeparator = u',';
    options = Options();
    options.confidence.m_nFlag1 = 1;
    SetOptions(options);
    EXPECT_EQ(Commands().back(), u"ESTIMATE / TOL = 1e-12");
    options.confidence.m_nFlag1 = 0;
    SetOptions(options);
    EXPECT_EQ(Commands().back(), u"ESTIMATE / TOL = 1e-12 CONFI = 0,95");
}

TEST_F(RegressionSettings, StepwiseEstimationWritesStartStepAndStop)
{
    SetModel({u"Y"}, {u"X1", u"X2", u"X3"});
    Options options;
    options.estimation = 1;
    SetOptions(options);
    EXPECT_EQ(Commands(),
              (Lines16{u"REGRESS", u"MODEL Y = CONSTANT+X1+X2+X3", u"START / BACKWARD", u"STEP / AUTO", u"STOP "}));

    options.direction = 1;
    options.criterion = 1;
    options.force = Changed(2, 0);
    options.maxStep = Changed(20, 15);
    options.fEnter = Changed(5.0, 4.0);
    options.pEnter = Changed(0.05, 0.15); // not the criterion: not written
    options.confidence = Changed(0.99, 0.95);
    SetOptions(options);
    const Lines16 lines = Commands();
    EXPECT_EQ(Lines16(lines.begin() + 2, lines.end()),
              (Lines16{u"START / FORWARD FORCE = 2 MAXSTEP = 20 FENTER = 5", u"STEP / AUTO", u"STOP / CONFI = 0.99"}));

    options.criterion = 0;
    options.pRemove = Changed(0.2, 0.15);
    options.stepping = 1; // interactive: the user steps in the host
    SetOptions(options);
    EXPECT_EQ(Commands().back(), u"START / FORWARD FORCE = 2 MAXSTEP = 20 ENTER = 0.05 REMOVE = 0.2");
    EXPECT_EQ(Commands().size(), 3u);
}

TEST_F(RegressionSettings, EachOwnerOfTheEstimationPageGetsItsClauses)
{
    struct Case {
        UINT owner;
        int stepping; // 0 automatic, 1 interactive
        Lines16 lines;
        Reports reports;
    };
    const std::string source = "Source/KDGRegressionOptionsData";
    const Lines16 regressionAuto{u"START / BACKWARD MAXSTEP = 20", u"STEP / AUTO", u"STOP / CONFI = 0.9"};
    const Lines16 regressionInteractive{u"START / BACKWARD MAXSTEP = 20"};
    const Case cases[] = {
        {0, 0, regressionAuto, {}},
        {0, 1, regressionInteractive, {}},
        {2213, 0, regressionAuto, {}},
        {2217, 1, regressionInteractive, {}},
        {2259, 0, regressionAuto, {}},
        {2259, 1, regressionInteractive, {}},
        // The discriminant analysis: no maximum step and no confidence; its
        // interactive stepping names the number of steps.
        {2211, 0, {u"START / BACKWARD", u"STEP / AUTO", u"STOP "}, {}},
        {2211, 1, {u"START / BACKWARD", u"STEP / NUMBER = 20"}, {}},
        // An owner the page does not know: reported where it matters, the
        // rest written as for the regression.
        {4242, 0, {u"START / BACKWARD", u"STEP / AUTO", u"STOP / CONFI = 0.9"}, {{source, 362}}},
        {4242, 1, {u"START / BACKWARD"}, {{source, 362}, {source, 425}}},
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
        EXPECT_EQ(capture.reports, c.reports);
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
        EXPECT_EQ(capture.reports, (Reports{{source, 337}, {source, 387}}));
    }
    options.estimation = -1;
    options.ApplyTo(data);
    AssertionCapture capture;
    EXPECT_TRUE(LinesOf(data).empty());
    EXPECT_EQ(capture.reports, (Reports{{source, 449}}));
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

TEST_F(RegressionSettings, PredictionWritesItsSaveLineFirstThenThePrediction)
{
    CRegressionPredictData predict;
    predict.SetAll(u"new cases.kvd", u"p.kvd", CRegressionPredictData::GetDefaultConfidenceEdit(), 1, 1, 1);
    EXPECT_EQ(LinesOf(predict), (Lines16{u"SAVE 'p.kvd' / PREDICTED/DATA", u"PREDICT 'new cases.kvd' / CONFI = 0.95"}));
    // The level is written whatever it is, with the host's separator.
    host.decimalSeparator = u',';
    predict.SetAll(u"it's.kvd", u"p.kvd", CGUIData<double>(1, 0.9, 0.95, 0, 1), 1, 0, 1);
    EXPECT_EQ(LinesOf(predict), Lines16{u"PREDICT 'it''s.kvd' / CONFI = 0,9"});
    predict.SetAll(u"new.kvd", u"p.kvd", CRegressionPredictData::GetDefaultConfidenceEdit(), 0, 1, 1);
    EXPECT_TRUE(LinesOf(predict).empty());

    EXPECT_EQ(CRegressionPredictData::GetSaveComboCount(), 2);
    CString option;
    EXPECT_EQ(CRegressionPredictData::GetSaveComboCommand(1, option), 1);
    EXPECT_EQ(option, CString(u"PREDICTED/DATA"));
    EXPECT_EQ(CRegressionPredictData::GetSaveComboCommand(2, option), 0);
}

TEST_F(RegressionSettings, LaterPagesJoinTheEstimateLineInPageOrder)
{
    SetModel({u"Y"}, {u"X"});
    tab.GetRegressionPredictData()->SetAll(u"new.kvd", {}, CRegressionPredictData::GetDefaultConfidenceEdit(), 1, 0, 0);
    tab.GetAnovaOptionsData()->SetAll(1, 0, 1, 1, 2);
    tab.GetAnovaOptionsData()->SetAllCheckState(1, 1, 1, 0, 0); // as under owner 2260
    tab.GetBootStrapData()->SetAll(CBootStrapData::methodJackknife, CGUIData<int>(1000), CGUIData<int>(0),
                                   CGUIData<unsigned int>(0u));
    EXPECT_EQ(Commands(), (Lines16{u"REGRESS", u"MODEL Y = CONSTANT+X", u"ESTIMATE / NTEST = KS, SW SAMPLE = JACK",
                                   u"PREDICT 'new.kvd' / CONFI = 0.95"}));

    // Stepwise: nothing for the later pages to join.
    Options options;
    options.estimation = 1;
    SetOptions(options);
    tab.GetRegressionPredictData()->SetWindowState(0);
    EXPECT_EQ(Commands(),
              (Lines16{u"REGRESS", u"MODEL Y = CONSTANT+X", u"START / BACKWARD", u"STEP / AUTO", u"STOP "}));

    // Pages out of use write nothing, the model page included.
    tab.GetRegressionOptionsData()->SetWindowState(0);
    EXPECT_EQ(Commands(), (Lines16{u"REGRESS", u"MODEL Y = CONSTANT+X"}));
    tab.GetRegressionData()->SetWindowState(0);
    EXPECT_TRUE(Commands().empty());
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
