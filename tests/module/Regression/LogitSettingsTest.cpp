// Logistic regression settings: what only settings can hold, the model
// page's odd GetAll, the categories following the model, and the records;
// the lines the dialog reaches are held by tests/scripts/logit-*.kal.
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
    EXPECT_EQ(Names(i), (std::vector<std::u16string>{u"X", u"X2"}));
    EXPECT_EQ(file, CString(u"f.kvd"));
}

// What the pages cannot hold, the settings write sensibly: categories that
// are no term of the model are left out, an unknown coding or method is
// reported, a choice-sets page out of use makes no choice model.
TEST_F(LogitSettings, ChoicesOnlySettingsCanHoldAreLeftOutOrReported)
{
    SetModel({.independent = Mixed({u"X", u"G$", u"A"}), .conditional = Vars({u"C"})});
    SetCategories({u"Z", u"G$", u"Y", u"A"});
    EXPECT_EQ(Commands(),
              (Lines16{u"LOGIT", u"CATEGORY G$ A / EFFECT", u"MODEL Y = C; CONSTANT+X+G$+A", u"ESTIMATE "}));

    CLogitCategoriesData alone;
    alone.SetAll(Vars({}), Vars({u"Z"}), 5, 0, 0);
    AssertionCapture capture;
    EXPECT_EQ(LinesOf(alone), Lines16{u"CATEGORY Z"});
    SetCategories({});
    SetOpts({.estimation = 2});
    EXPECT_EQ(Commands().size(), 2u);
    ASSERT_EQ(capture.reports.size(), 2u);
    EXPECT_EQ(capture.reports[0].first, "Source/KDGLogitCategoriesData");
    EXPECT_EQ(capture.reports[1].first, "Source/KDGLogitOptsData");

    SetSets({u"S1", u"S2"});
    EXPECT_EQ(tab.GetLogitData()->GetSetsPresent(), 1);
    tab.GetLogitSetsData()->SetWindowState(0);
    tab.GetLogitSetsData()->ApplyTo(*tab.GetLogitData());
    EXPECT_EQ(tab.GetLogitData()->GetSetsPresent(), 0);
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
