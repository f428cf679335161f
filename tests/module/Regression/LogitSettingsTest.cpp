// Logistic regression settings: each page's lines against docs/commands.md,
// the pages together in the tab, the model page's odd GetAll, the
// categories following the model, and the records.
#include "Source/DlgStat2.h"
#include "private/Regression/KDGLogitTabData.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/DialogTesting.h"

#include <gtest/gtest.h>

#include <cstdint>

using namespace kaltest;
using Reports = std::vector<std::pair<std::string, int>>;

namespace {

CGUIArray<CGUIDataVariable> Mixed(std::initializer_list<std::u16string> names)
{
    CGUIArray<CGUIDataVariable> list;
    for (const auto& name : names)
        list.Add(CGUIDataVariable(name, name.ends_with(u'$') ? NmsEnum::VT_STRING : NmsEnum::VT_NUMERIC));
    return list;
}

std::vector<std::u16string> Names(const CGUIArray<CGUIDataVariable>& list)
{
    std::vector<std::u16string> names;
    for (const auto& v : list)
        names.push_back(v.GetVariableName().Str());
    return names;
}

// The model page's settings, from the defaults.
struct Model {
    CGUIArray<CGUIDataVariable> dependent = Vars({u"Y"});
    CGUIArray<CGUIDataVariable> independent = Vars({u"X", u"X2"});
    CGUIArray<CGUIDataVariable> conditional{};
    int constant = 1, save = 0, constantEnable = 1, saveEnable = 1;
    CString file{};
    int saveCombo = 0;
    CGUIData<double> confidence = CLogitData::GetDefaultConfidenceEdit();
    int confiState = 0, setsPresent = 0;

    void ApplyTo(CLogitData& data) const
    {
        data.SetAll(Vars({}), dependent, independent, conditional, constant, save, constantEnable, saveEnable, file,
                    saveCombo, confidence, confiState, setsPresent);
    }
};

struct Opts {
    CGUIData<double> convergence = CLogitOptsData::GetDefaultConvergenceEdit();
    CGUIData<double> tolerance = CLogitOptsData::GetDefaultToleranceEdit();
    CGUIData<double> enter = CLogitOptsData::GetDefaultEnterEdit();
    CGUIData<double> remove = CLogitOptsData::GetDefaultRemoveEdit();
    CGUIData<int> iterations = CLogitOptsData::GetDefaultIterationsEdit();
    CGUIData<int> maxStep = CLogitOptsData::GetDefaultMaxStepEdit();
    CGUIData<int> force = CLogitOptsData::GetDefaultForceEdit();
    int estimation = 0, direction = 0;

    void ApplyTo(CLogitOptsData& data) const
    {
        data.SetAll(convergence, tolerance, enter, remove, iterations, maxStep, force, estimation, direction);
    }
};

class LogitSettings : public ::testing::Test {
protected:
    FakeHost host;
    HostScope scope{&host};
    CLogitTabData tab;

    void SetModel(const Model& model) { model.ApplyTo(*tab.GetLogitData()); }
    void SetOpts(const Opts& opts) { opts.ApplyTo(*tab.GetLogitOptsData()); }
    void SetCategories(std::initializer_list<std::u16string> names, int coding = 0, int reference = 0, int miss = 0)
    {
        tab.GetLogitCategoriesData()->SetAll(Vars({}), Mixed(names), coding, reference, miss);
    }
    void SetSets(std::initializer_list<std::u16string> names, int use = 1, int hold = 0)
    {
        tab.GetLogitSetsData()->SetAll(Vars({}), Vars(names), use, hold);
        tab.GetLogitSetsData()->ApplyTo(*tab.GetLogitData());
    }
    Lines16 Commands() const { return LinesOf(tab); }
};

} // namespace

TEST_F(LogitSettings, TheModelLineTakesConditionalTermsAndTheConstantAsDocumented)
{
    SetModel({});
    EXPECT_EQ(Commands(), (Lines16{u"LOGIT", u"MODEL Y = CONSTANT+X+X2", u"ESTIMATE "}));
    // The model page alone writes no estimate line without choice sets.
    EXPECT_EQ(LinesOf(*tab.GetLogitData()), (Lines16{u"LOGIT", u"MODEL Y = CONSTANT+X+X2"}));

    const struct {
        Model model;
        std::u16string line;
    } cases[] = {
        {{.independent = Vars({})}, u"MODEL Y = CONSTANT"},
        {{.constant = 0}, u"MODEL Y = X+X2"},
        {{.constantEnable = 0}, u"MODEL Y = X+X2"},
        {{.conditional = Vars({u"C1", u"C2"})}, u"MODEL Y = C1+C2; CONSTANT+X+X2"},
        {{.independent = Vars({}), .conditional = Vars({u"C1"}), .constant = 0}, u"MODEL Y = C1; "},
        {{.dependent = Vars({u"Y", u"dose (mg)"}), .independent = Vars({u"it's"})},
         u"MODEL Y 'dose (mg)' = CONSTANT+'it''s'"},
    };
    for (const auto& c : cases) {
        SetModel(c.model);
        EXPECT_EQ(Commands()[1], c.line);
    }
}

TEST_F(LogitSettings, TheSaveLineNeedsBothSaveFlagsAndNamesItsKindFromList2697)
{
    for (const auto& [index, kind] :
         std::vector<std::pair<int, std::u16string>>{{0, u"COEFFICIENTS"}, {1, u"MODEL"}, {3, u"RESIDUALS/DATA"}}) {
        SetModel({.save = 1, .file = u"fit.kvd", .saveCombo = index});
        EXPECT_EQ(Commands()[2], u"SAVE 'fit.kvd' / " + kind);
    }
    SetModel({.save = 1, .saveEnable = 0, .file = u"fit.kvd"});
    EXPECT_EQ(Commands().size(), 3u);
    SetModel({.save = 0, .file = u"fit.kvd"});
    EXPECT_EQ(Commands().size(), 3u);
}

TEST_F(LogitSettings, OnlyChoiceSetsMakeTheModelPageWriteTheEstimateLineWithItsConfidence)
{
    const CLogitData& model = *tab.GetLogitData();
    SetModel({.confidence = Changed(0.9, 0.95)});
    EXPECT_EQ(LinesOf(model).size(), 2u);
    SetModel({.setsPresent = 1});
    EXPECT_EQ(LinesOf(model).back(), u"ESTIMATE ");
    SetModel({.confidence = Changed(0.9, 0.95), .setsPresent = 1});
    EXPECT_EQ(LinesOf(model).back(), u"ESTIMATE / CONFI = 0.9");
    // The edit was out of use at OK.
    SetModel({.confidence = Changed(0.9, 0.95), .confiState = 1, .setsPresent = 1});
    EXPECT_EQ(LinesOf(model).back(), u"ESTIMATE ");

    host.writeEveryOption = true;
    host.decimalSeparator = u',';
    SetModel({.setsPresent = 1});
    EXPECT_EQ(LinesOf(model).back(), u"ESTIMATE / CONFI = 0,95");
    SetModel({.confidence = CGUIData<double>(1, 0.95, 0.95, 1, 1), .setsPresent = 1});
    EXPECT_EQ(LinesOf(model).back(), u"ESTIMATE ");
    SetModel({});
    EXPECT_EQ(LinesOf(model).size(), 2u);
}

TEST_F(LogitSettings, GetAllTakesTheSaveComboInAndLeavesTheCallersVariable)
{
    CLogitData model;
    Model values{.save = 1, .file = u"f.kvd", .saveCombo = 3};
    values.ApplyTo(model);
    CGUIArray<CGUIDataVariable> s, d, i, c;
    int constant = 0, save = 0, constantEnable = 0, saveEnable = 0, saveCombo = 1, confiState = 7, sets = 7;
    CString file{};
    CGUIData<double> confidence;
    EXPECT_EQ(model.GetAll(s, d, i, c, constant, save, constantEnable, saveEnable, file, saveCombo, confidence,
                           confiState, sets),
              1);
    EXPECT_EQ(saveCombo, 1);
    EXPECT_EQ(model.GetSaveCombo(), 1);
    EXPECT_EQ(LinesOf(model).back(), u"SAVE 'f.kvd' / MODEL");
    // Everything else went out.
    EXPECT_EQ(Names(d), std::vector<std::u16string>{u"Y"});
    EXPECT_EQ(Names(i), (std::vector<std::u16string>{u"X", u"X2"}));
    EXPECT_EQ(std::vector<int>({constant, save, constantEnable, saveEnable, confiState, sets}),
              std::vector<int>({1, 1, 1, 1, 0, 0}));
    EXPECT_EQ(file, CString(u"f.kvd"));
    EXPECT_EQ(confidence, CLogitData::GetDefaultConfidenceEdit());
}

TEST_F(LogitSettings, CategoriesNameTheModelsCategoricalIndependentsBeforeTheModelLine)
{
    SetModel({.independent = Mixed({u"X", u"G$", u"A"}), .conditional = Vars({u"C"})});
    const CLogitData& model = *tab.GetLogitData();
    EXPECT_EQ(model.GetCondforCatnString(u"A"), 1);
    for (const char16_t* name : {u"Y", u"C", u"Z", u""})
        EXPECT_EQ(model.GetCondforCatnString(name), 0);

    // Y (dependent) and Z (no term) are left out.
    SetCategories({u"Z", u"G$", u"Y", u"A"});
    EXPECT_EQ(Commands(),
              (Lines16{u"LOGIT", u"CATEGORY G$ A / EFFECT", u"MODEL Y = C; CONSTANT+X+G$+A", u"ESTIMATE "}));
    SetCategories({u"A"}, 1, 0, 1);
    EXPECT_EQ(Commands()[1], u"CATEGORY A / DUMMY REF = LAST MISS");
    SetCategories({u"A"}, 1, 1);
    EXPECT_EQ(Commands()[1], u"CATEGORY A / DUMMY REF = FIRST");
    SetCategories({u"Z"});
    EXPECT_EQ(Commands().size(), 3u);

    // A page on its own writes what it holds; an unknown coding is reported.
    CLogitCategoriesData alone;
    alone.SetAll(Vars({}), Vars({u"Z"}), 5, 0, 0);
    AssertionCapture capture;
    EXPECT_EQ(LinesOf(alone), Lines16{u"CATEGORY Z"});
    ASSERT_EQ(capture.reports.size(), 1u);
    EXPECT_EQ(capture.reports[0].first, "Source/KDGLogitCategoriesData");
}

TEST_F(LogitSettings, ChoiceSetsDeclareTheirVariablesAndSwitchTheModelsEstimateLine)
{
    SetModel({});
    SetCategories({u"X"});
    SetSets({u"S1", u"S2", u"S3"}, 1, 1);
    EXPECT_EQ(tab.GetLogitData()->GetSetsPresent(), 1);
    EXPECT_EQ(Commands(), (Lines16{u"LOGIT", u"CATEGORY X / EFFECT", u"SET S1 S2 S3 / INDICATORS",
                                   u"MODEL Y = CONSTANT+X+X2", u"ESTIMATE "}));
    SetSets({u"S1", u"S2"});
    EXPECT_EQ(Commands()[2], u"SET S1 S2");

    // Not in use, or nothing to declare: no line.
    const Lines16 withoutSets{u"LOGIT", u"CATEGORY X / EFFECT", u"MODEL Y = CONSTANT+X+X2", u"ESTIMATE "};
    SetSets({u"S1", u"S2"}, 0);
    EXPECT_EQ(tab.GetLogitData()->GetSetsPresent(), 0);
    EXPECT_EQ(Commands(), withoutSets);
    SetSets({}, 1);
    EXPECT_EQ(Commands(), withoutSets);
    // A page out of use makes no choice model.
    EXPECT_EQ(tab.GetLogitData()->GetSetsPresent(), 1);
    tab.GetLogitSetsData()->SetWindowState(0);
    tab.GetLogitSetsData()->ApplyTo(*tab.GetLogitData());
    EXPECT_EQ(tab.GetLogitData()->GetSetsPresent(), 0);
}

TEST_F(LogitSettings, TheEstimationPageWritesOrJoinsTheEstimateLine)
{
    SetModel({});
    Opts opts;
    opts.convergence = Changed(1e-8, 1e-6);
    opts.iterations = Changed(100, 50);
    opts.enter = Changed(0.1, 0.15); // stepwise only
    SetOpts(opts);
    EXPECT_EQ(Commands().back(), u"ESTIMATE / CONV = 1e-08 ITER = 100");

    // Choice sets: the model page's line is joined, with or without its
    // confidence clause.
    SetModel({.setsPresent = 1});
    EXPECT_EQ(Commands().back(), u"ESTIMATE / CONV = 1e-08 ITER = 100");
    SetModel({.confidence = Changed(0.9, 0.95), .setsPresent = 1});
    EXPECT_EQ(Commands().back(), u"ESTIMATE / CONFI = 0.9 CONV = 1e-08 ITER = 100");
    SetOpts({});
    EXPECT_EQ(Commands().back(), u"ESTIMATE / CONFI = 0.9");
    EXPECT_EQ(Commands().size(), 3u);

    // Stepwise, and with choice sets complete whatever the method.
    SetModel({});
    SetOpts({.estimation = 1});
    EXPECT_EQ(Commands(),
              (Lines16{u"LOGIT", u"MODEL Y = CONSTANT+X+X2", u"START / BACKWARD", u"STEP / AUTO", u"STOP "}));
    opts.estimation = 1;
    opts.direction = 1;
    opts.force = Changed(1, 0);
    opts.maxStep = Changed(5, 10);
    opts.remove = Changed(0.2, 0.15);
    opts.tolerance = Changed(1e-10, 1e-12);
    SetOpts(opts);
    EXPECT_EQ(Commands()[2],
              u"START / FORWARD CONV = 1e-08 TOL = 1e-10 ITER = 100 FORCE = 1 MAXSTEP = 5 ENTER = 0.1 REMOVE = 0.2");
    SetModel({.setsPresent = 1});
    EXPECT_EQ(Commands().back(), u"ESTIMATE / CONV = 1e-08 TOL = 1e-10 ITER = 100");
    EXPECT_EQ(Commands().size(), 3u);

    host.writeEveryOption = true;
    SetModel({});
    SetOpts({});
    EXPECT_EQ(Commands().back(), u"ESTIMATE / CONV = 1e-06 TOL = 1e-12 ITER = 50");
    host.writeEveryOption = false;

    SetOpts({.estimation = 2});
    AssertionCapture capture;
    EXPECT_EQ(Commands().size(), 2u);
    ASSERT_EQ(capture.reports.size(), 1u);
    EXPECT_EQ(capture.reports[0].first, "Source/KDGLogitOptsData");
}

TEST_F(LogitSettings, TheDecilesLineFollowsTheEstimation)
{
    SetModel({});
    SetOpts({.estimation = 1});
    CLogitDecilesData& deciles = *tab.GetLogitDecilesData();
    EXPECT_EQ(Commands().size(), 5u);
    deciles.SetAll(1, 0, CLogitDecilesData::GetDefaultGroupsEdit());
    EXPECT_EQ(Commands().back(), u"DECILE ");
    EXPECT_EQ(Commands()[4], u"STOP ");
    deciles.SetAll(1, 1, Changed(8, 10));
    EXPECT_EQ(Commands().back(), u"DECILE / GROUPS = 8 WIDTH");
    host.writeEveryOption = true;
    deciles.SetAll(1, 0, CLogitDecilesData::GetDefaultGroupsEdit());
    EXPECT_EQ(Commands().back(), u"DECILE / GROUPS = 10");
    // Out of use (choice sets): nothing.
    deciles.SetWindowState(0);
    EXPECT_EQ(Commands().size(), 5u);
}

TEST(LogitCategories, FollowModelKeepsDeclaredTermsAndDeclaresTextAndNewlyMarkedOnes)
{
    FakeHost host;
    HostScope scope(&host);
    host.SetVariables({u"X", u"A", u"B", u"G$", u"H$"});
    host.sheet.variables[1].categorical = true; // A
    host.sheet.variables[2].categorical = true; // B

    CGUIArray<CGUIDataVariable> source = Mixed({u"X", u"B", u"gone"});
    CGUIArray<CGUIDataVariable> categorical = Mixed({u"gone", u"X"});
    categorical[1].SetSelected(1);
    CGUIArray<CGUIDataVariable> terms = Mixed({u"X", u"A", u"B", u"G$"});
    terms[1].SetSelected(1);
    CLogitCategoriesData::FollowModel(terms, source, categorical);
    // X kept with its selection, then in model order A, newly in the
    // model, and G$, text; B was offered before and the user left it
    // numeric.
    EXPECT_EQ(Names(categorical), (std::vector<std::u16string>{u"X", u"A", u"G$"}));
    EXPECT_EQ(categorical[0].IsSelected(), 1);
    EXPECT_EQ(categorical[1].IsSelected(), 0);
    EXPECT_EQ(Names(source), Names(terms));
    EXPECT_EQ(source[1].IsSelected(), 0);

    // Taken out, A stays out; a string variable comes back.
    categorical = Mixed({u"X"});
    CLogitCategoriesData::FollowModel(terms, source, categorical);
    EXPECT_EQ(Names(categorical), (std::vector<std::u16string>{u"X", u"G$"}));
}

TEST(LogitSource, TheModelFollowsTheSheetAndTheCategoriesFollowTheModel)
{
    FakeHost host;
    IModule* module = GetModuleFactory(&host);
    host.SetVariables({u"Y", u"X", u"G$", u"S"});

    CLogitTabData tab;
    Model{.dependent = Vars({u"Y", u"gone"}),
          .independent = Mixed({u"gone", u"X", u"G$"}),
          .conditional = Vars({u"gone"})}
        .ApplyTo(*tab.GetLogitData());
    tab.GetLogitCategoriesData()->SetAll(Vars({}), Vars({u"gone"}), 0, 0, 0);
    tab.GetLogitSetsData()->SetAll(Vars({}), Vars({u"S", u"gone"}), 1, 0);
    tab.FillListSource();
    const CLogitData& model = *tab.GetLogitData();
    EXPECT_EQ(Names(model.GetListOfVariablesList()), (std::vector<std::u16string>{u"Y", u"X", u"G$", u"S"}));
    EXPECT_EQ(Names(model.GetDependentVariableList()), std::vector<std::u16string>{u"Y"});
    EXPECT_EQ(model.GetConditionalVariableList().GetSize(), 0);
    EXPECT_EQ(Names(tab.GetLogitCategoriesData()->GetSourceList()), (std::vector<std::u16string>{u"X", u"G$"}));
    EXPECT_EQ(Names(tab.GetLogitCategoriesData()->GetCategoryList()), std::vector<std::u16string>{u"G$"});
    EXPECT_EQ(Names(tab.GetLogitSetsData()->GetSetList()), std::vector<std::u16string>{u"S"});
    module->Release();
}

TEST_F(LogitSettings, ModelRecordBytes)
{
    CLogitData model;
    CGUIArray<CGUIDataVariable> conditional{};
    conditional.Add(CGUIDataVariable(u"C", NmsEnum::VT_NUMERIC, 4));
    Model{.dependent = Vars({}),
          .independent = Vars({}),
          .conditional = conditional,
          .constant = 0,
          .save = 1,
          .saveEnable = 0,
          .file = u"r",
          .saveCombo = 2,
          .confidence = Changed(0.5, 0.95),
          .confiState = 1,
          .setsPresent = 1}
        .ApplyTo(model);

    // base: nothing; constant, save, the two enable flags, save index,
    // confidence state, sets present; the file name; the source, dependent,
    // independent and conditional lists; the confidence (state, flag,
    // default, value, flag).
    const Bytes expected =
        Cat({Int32(0), Int32(1), Int32(1), Int32(0), Int32(2),      Int32(1),     Int32(1), Text(u"r"),
             Word(0),  Word(0),  Word(0),  Word(1),  Int32(0),      Int32(0),     Int32(1), Int32(4),
             Int32(0), Int32(0), Int32(0), Int32(0), Float64(0.95), Float64(0.5), Int32(1)});
    EXPECT_EQ(Store([&](CArchive& ar) { model.Serialize(ar); }), expected);
}

TEST_F(LogitSettings, TabRecordHoldsThePagesInOrderAndALoadedTabWritesTheSameLines)
{
    SetModel({.independent = Mixed({u"X", u"G$"}),
              .save = 1,
              .file = u"m.kvd",
              .saveCombo = 2,
              .confidence = Changed(0.99, 0.95)});
    SetCategories({u"G$"}, 1, 1, 1);
    SetSets({u"S1", u"S2"}, 1, 1);
    SetOpts({.iterations = Changed(80, 50)});
    tab.GetLogitDecilesData()->SetAll(1, 1, Changed(4, 10));
    tab.GetLogitDecilesData()->SetWindowState(0);
    const Lines16 lines = Commands();
    EXPECT_EQ(lines,
              (Lines16{u"LOGIT", u"CATEGORY G$ / DUMMY REF = FIRST MISS", u"SET S1 S2 / INDICATORS",
                       u"MODEL Y = CONSTANT+X+G$", u"SAVE 'm.kvd' / RESIDUALS", u"ESTIMATE / CONFI = 0.99 ITER = 80"}));

    const auto record = [](auto& page) { return Store([&](CArchive& ar) { page.Serialize(ar); }); };
    EXPECT_EQ(Store([&](CArchive& ar) { tab.Serialize(ar); }),
              Cat({record(*tab.GetLogitData()), record(*tab.GetLogitCategoriesData()), record(*tab.GetLogitSetsData()),
                   record(*tab.GetLogitOptsData()), record(*tab.GetLogitDecilesData())}));

    const Bytes named = Store([&](CArchive& ar) { tab.Serialize(ar); }, CArchive::namedLists);
    CLogitTabData back;
    Load(named, CArchive::namedLists, [&](CArchive& ar) { back.Serialize(ar); });
    back.GetLogitDecilesData()->SetWindowState(0); // window states are the session's, not stored
    EXPECT_EQ(LinesOf(back), lines);
    // A copy's categories page looks at the copy's model, not the original's.
    CLogitTabData copy(back);
    copy.GetLogitDecilesData()->SetWindowState(0);
    Model{.independent = Vars({u"X"})}.ApplyTo(*back.GetLogitData());
    EXPECT_EQ(LinesOf(copy), lines);
    EXPECT_EQ(LinesOf(back)[1], u"SET S1 S2 / INDICATORS");
}
