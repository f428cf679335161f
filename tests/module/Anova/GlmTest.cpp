// General linear model: the term rules, the lines of the tab settings, the
// model page's builder and checks driven headless, and the model record.
#include "private/Anova/KDGGLMTabDlg.h"
#include "private/Anova/KDGModelTerms.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/DialogTesting.h"

#include <gtest/gtest.h>

using namespace kaltest;

namespace {

using Terms = std::vector<CString>;

CGUIArray<CString> TermArray(std::initializer_list<std::u16string> terms)
{
    CGUIArray<CString> array;
    for (const auto& term : terms)
        array.Add(CString(term));
    return array;
}

TEST(ModelTerms, BuildQuotedTermsAndRefuseControlCharacters)
{
    EXPECT_EQ(CModelTerms::Interaction({u"A", u"dose (mg)"}), CString(u"A*'dose (mg)'"));
    EXPECT_EQ(CModelTerms::Power(u"X", 3), CString(u"X*X*X"));
    EXPECT_EQ(CModelTerms::Nested(u"B", {u"A"}), CString(u"B(A)"));
    EXPECT_EQ(CModelTerms::Nested(u"B(A)", {u"C"}), CString(u"B(A C)"));
    EXPECT_TRUE(CModelTerms::MainEffect(u"a\nESTIMATE").IsEmpty());
    EXPECT_TRUE(CModelTerms::Nested(u"B", {u"x\ty"}).IsEmpty());

    EXPECT_EQ(CModelTerms::FullFactorial({u"A", u"B", u"C", u"D"}),
              (Terms{u"A", u"B", u"C", u"D", u"A*B", u"A*C", u"A*D", u"B*C", u"B*D", u"C*D", u"A*B*C", u"A*B*D",
                     u"A*C*D", u"B*C*D", u"A*B*C*D"}));
    EXPECT_TRUE(CModelTerms::FullFactorial({u"A"}).empty());
    EXPECT_TRUE(CModelTerms::FullFactorial(Terms(CModelTerms::kMaxFactorialVariables + 1, u"A")).empty());

    CGUIArray<CString> terms = TermArray({u"A", u"B"});
    CModelTerms::AddUnique(terms, {u"B", u"A*B", u"", u"A*B"});
    EXPECT_EQ(terms, TermArray({u"A", u"B", u"A*B"}));
    const auto knows = [](std::unordered_set<CString> names) {
        return [names](const CString& name) { return names.count(name) > 0; };
    };
    EXPECT_EQ(CModelTerms::FindUnknownVariable(TermArray({u"A", u"'x y'*B(A)"}), knows({u"A", u"B"})), 1);
    EXPECT_EQ(CModelTerms::FindUnknownVariable(TermArray({u"A", u"'x y'*B(A)"}), knows({u"A", u"B", u"x y"})), -1);
}

class GlmSettings : public ::testing::Test {
protected:
    FakeHost host;
    HostScope scope{&host};
    CGLMTabData tab;

    void SetModel(std::initializer_list<std::u16string> dependents, std::initializer_list<std::u16string> categorical,
                  std::initializer_list<std::u16string> terms, int constant = 1)
    {
        tab.GetGLMData()->SetAll(Vars({}), Vars(dependents), Vars(categorical), TermArray(terms),
                                 CGLMData::GetDefaultDegreeEdit(), CGUIData<int>(0), CGUIDataWnd<int>(constant, 1), 1,
                                 0, 6, {});
        tab.GetRepeatMeasuresData()->SetOwnerID(CGLMTabDlg::kRepeatMeasuresOwner);
        tab.GetRegressionOptionsData()->SetOwnerID(CGLMTabDlg::kEstimationOwner);
        tab.GetAnovaOptionsData()->SetAllCheckState(1, 1, 1, 1, 1);
    }
};

TEST_F(GlmSettings, LinesOfModelCategoriesRepeatedMeasuresAndStepwiseEstimation)
{
    SetModel({u"Y"}, {u"A", u"B", u"C"}, {u"A", u"B(A)", u"X*X"});
    EXPECT_EQ(LinesOf(tab), (Lines16{u"GLM", u"MODEL Y = CONSTANT+A+B(A)+X*X", u"CATEGORY A B / REPLACE MISS",
                                     u"ESTIMATE / SS = TYPE3"}));

    SetModel({u"T1", u"T2"}, {}, {}, 0);
    CGUIArray<CString> names = TermArray({u"time"}), metric = TermArray({u""});
    CGUIArray<int> levels;
    levels.Add(2);
    tab.GetRepeatMeasuresData()->SetAll(1, names, levels, metric);
    host.dataTypeCode = 2; // a matrix: its number of cases is written
    EXPECT_EQ(LinesOf(tab)[1], u"MODEL T1 T2 = /N=0 REPEAT = 2, NAMES = time");
    EXPECT_EQ(LinesOf(tab)[2], u"CATEGORY / OFF");

    CRegressionOptionsData& estimation = *tab.GetRegressionOptionsData();
    kal::WithFields(estimation, [&](auto&... fields) {
        estimation.GetAll(fields...);
        std::get<6>(std::tie(fields...)) = Changed(8, 15); // at most eight steps
        std::get<9>(std::tie(fields...)) = 1;              // stepwise
        return estimation.SetAll(fields...);
    });
    const Lines16 lines = LinesOf(tab);
    EXPECT_EQ(Lines16(lines.begin() + 3, lines.end()),
              (Lines16{u"START / BACKWARD MAXSTEP = 8", u"STEP / AUTO", u"STOP "}));
}

TEST_F(GlmSettings, ModelRecordKeepsTermsAndFieldOrder)
{
    CGLMData model;
    model.SetAll(Vars({}), Vars({u"Y"}), Vars({}), TermArray({u"A*B"}), CGLMData::GetDefaultDegreeEdit(),
                 CGUIData<int>(0), CGUIDataWnd<int>(1, 1), 1, 1, 5, u"r.kvd");
    // missing, save, save index, file; source, dependent, categorical lists;
    // the terms; degree, cases and constant holders.
    const Bytes expected = Cat({Int32(1), Int32(1), Int32(5), Text(u"r.kvd"), Word(0), Word(1), Int32(0), Int32(0),
                                Int32(1), Int32(0), Int32(0), Int32(0), Word(0), Word(1), Text(u"A*B"),
                                DataRecord(1, 0, 2, 2), DataRecord(1, 0, 0, 0), Int32(1), Int32(1)});
    EXPECT_EQ(Store([&](CArchive& ar) { model.Serialize(ar); }), expected);
    CGLMData back;
    Load(expected, [&](CArchive& ar) { back.Serialize(ar); });
    EXPECT_EQ(back.GetTerms(), TermArray({u"A*B"}));
    EXPECT_THROW(Load(Bytes(expected.begin(), expected.end() - 5), [&](CArchive& ar) { back.Serialize(ar); }),
                 CArchiveException);
}

class GlmDialog : public HeadlessDialogTest {
protected:
    GlmDialog() : HeadlessDialogTest({u"Y", u"Y2", u"A", u"B$", u"X"}) {}
    INT_PTR Run(const Script& script) { return Open<CGLMTabDlg>(data, {2100, 0, 0, 0}, script); }
    CGLMTabData data;
    using Ids = CGLMDlgIds;
};

TEST_F(GlmDialog, BuilderButtonsFollowTheSelectionAndAddEachTermOnce)
{
    Run([](CHeadlessSession& s) {
        EXPECT_FALSE(s.IsEnabled(Ids::IDC_ADD_MAIN));
        s.Select(Ids::IDC_SOURCE_LIST, Names({u"A", u"B$"}));
        EXPECT_TRUE(s.IsEnabled(Ids::IDC_FULL_FACTORIAL));
        EXPECT_FALSE(s.IsEnabled(Ids::IDC_ADD_POLYNOMIAL)); // B$ is a string
        s.Click(Ids::IDC_FULL_FACTORIAL);
        s.Click(Ids::IDC_ADD_MAIN);
        s.Select(Ids::IDC_SOURCE_LIST, Names({u"X"}));
        s.Type(Ids::IDC_DEGREE, u"3");
        s.Click(Ids::IDC_ADD_POLYNOMIAL);
        s.Select(Ids::IDC_TERM_LIST, Names({u"X*X*X", u"B$"}));
        s.Click(Ids::IDC_NEST);
        EXPECT_EQ(s.Items(Ids::IDC_TERM_LIST), Names({u"A", u"B$(X)", u"A*B$", u"X*X*X(X)"}));
        s.Select(Ids::IDC_TERM_LIST, Names({u"X*X*X(X)"}));
        s.Click(Ids::IDC_REMOVE_TERM);
        s.Ok();
    });
    EXPECT_EQ(LinesOf(data)[1], u"MODEL  = CONSTANT+A+B$(X)+A*B$");
}

TEST_F(GlmDialog, OkRefusesTermsOfVariablesTheDataSheetLacksAndABadDegree)
{
    data.GetGLMData()->SetAll(Vars({}), Vars({}), Vars({}), TermArray({u"A", u"Gone*A"}),
                              CGLMData::GetDefaultDegreeEdit(), CGUIData<int>(0), CGUIDataWnd<int>(1, 1), 0, 0, 6, {});
    const INT_PTR result = Run([](CHeadlessSession& s) {
        s.Ok();
        EXPECT_TRUE(s.IsOpen());
        EXPECT_EQ(s.Dialog().GetFocusCtrl(), &s.Find(Ids::IDC_TERM_LIST));
        s.Click(Ids::IDC_REMOVE_TERM); // the refused term is the one selected
        s.Type(Ids::IDC_DEGREE, u"12");
        s.Ok();
        EXPECT_TRUE(s.IsOpen());
        s.Type(Ids::IDC_DEGREE, u"2");
        s.Ok();
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(host.messages, (std::vector<UINT>{CGLMDlg::kMsgUnknownTermVariable, 2012}));
    EXPECT_EQ(data.GetGLMData()->GetTerms(), TermArray({u"A"}));
}

} // namespace
