// Tests of the last model: how the pairwise comparisons find the model the
// host stores, the lines they write, their refusal without a model and
// their record.
#include "private/Anova/KDGAnovaTabData.h"
#include "private/Anova/KDGGLMTabData.h"
#include "private/Anova/KDGHypPairwiseData.h"
#include "private/Anova/KDGHypothesisTabDlg.h"
#include "private/Anova/KDGLastModel.h"
#include "private/Anova/KDGMatrixText.h"
#include "private/Anova/KDGPairwiseTabDlg.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/DialogTesting.h"

#include <gtest/gtest.h>

using namespace kaltest;

namespace {

CGUIArray<CString> TextArray(std::initializer_list<std::u16string> texts)
{
    CGUIArray<CString> array;
    for (const auto& text : texts)
        array.Add(CString(text));
    return array;
}

class StoredModels : public HeadlessDialogTest {
protected:
    StoredModels() : HeadlessDialogTest({u"Y", u"Y2", u"A", u"B", u"X"}) {}

    // A general linear model of Y and Y2 by A, B(A) and X, A and C categorical.
    void StoreGlm()
    {
        auto glm = std::make_unique<CGLMTabData>();
        glm->GetGLMData()->SetAll(Vars({}), Vars({u"Y", u"Y2"}), Vars({u"C", u"A"}), TextArray({u"A", u"B(A)", u"X"}),
                                  CGLMData::GetDefaultDegreeEdit(), CGUIData<int>(0), CGUIDataWnd<int>(1, 1), 0, 0, 6,
                                  {});
        host.store[2010] = std::move(glm);
    }
    CPairwiseData& Pairwise(UINT command)
    {
        tab.SetstrDialog(command);
        return *tab.GetPairwiseData();
    }
    CPairwiseTabData tab;
};

TEST_F(StoredModels, TheLastModelComesFromTheStoreOfItsCommand)
{
    EXPECT_FALSE(CLastModel::For(2012).IsEstimated());
    StoreGlm();
    const CLastModel glm = CLastModel::For(2012);
    EXPECT_TRUE(glm.IsEstimated());
    EXPECT_EQ(glm.GetFactors(), Names({u"A"})); // C is in no term
    EXPECT_EQ(glm.GetTerms(), TextArray({u"A", u"B(A)", u"X"}));
    EXPECT_FALSE(CLastModel::For(2077).IsEstimated());

    auto anova = std::make_unique<CAnovaTabData>();
    anova->GetAnovaData()->SetAll(Vars({}), Vars({u"Y"}), Vars({u"A", u"B"}), Vars({u"X"}), 0, 0, 0, 1, 6, {});
    host.store[2008] = std::move(anova);
    EXPECT_EQ(CLastModel::For(2077).GetTerms(), TextArray({u"A", u"B", u"A*B", u"X"}));
    EXPECT_EQ(CLastModel::ModuleId(2077), CAnovaData::kModuleAnova);
}

TEST_F(StoredModels, PairwiseChoicesFollowTheModelAndWriteTheirLines)
{
    StoreGlm();
    CPairwiseData& pairwise = Pairwise(2012);
    pairwise.SetAll(Vars({}), Vars({u"Y2", u"Gone"}), u"Gone", u"B(A)", 3, CGUIData<double>(0.95), 0);
    pairwise.FillListSource();
    EXPECT_EQ(LinesOf(tab), (Lines16{u"GLM", u"HYPOTHESIS", u"POST A / TUKEY DEPEND = Y2", u"ERROR 'B(A)'", u"TEST"}));

    const std::pair<int, std::u16string> methods[] = {{0, u" LSD"}, {1, u" BONF"}, {2, u" SIDAK"}, {4, u" SCHEFFE"}};
    for (const auto& [method, keyword] : methods) {
        pairwise.SetAll(Vars({}), Vars({}), u"dose (mg)", u"'x y'*A", method, Changed(0.9, 0.95), 1);
        EXPECT_EQ(LinesOf(tab)[2], u"POST 'dose (mg)' /" + keyword + u" CONFI = 0.9 MATRIX");
        EXPECT_EQ(LinesOf(tab)[3], u"ERROR '''x y''*A'");
    }
    pairwise.SetAll(Vars({}), Vars({}), u"A", u"", 3, CGUIData<double>(0.95), 0);
    EXPECT_EQ(LinesOf(Pairwise(2077)), (Lines16{u"ANOVA", u"HYPOTHESIS", u"POST A / TUKEY", u"TEST"}));
}

TEST_F(StoredModels, PairwiseOkWaitsForAModelWithAFactor)
{
    tab.SetstrDialog(2012);
    const auto run = [this] {
        return Open<CPairwiseTabDlg>(tab, {0, 0, 0, 0}, [](CHeadlessSession& s) {
            s.Ok();
            if (s.IsOpen())
                s.Cancel();
        });
    };
    EXPECT_EQ(run(), IDCANCEL);
    EXPECT_EQ(host.messages, std::vector<UINT>{CPairwiseDlg::kMsgNoModel});
    StoreGlm();
    EXPECT_EQ(run(), IDOK);
    EXPECT_EQ(LinesOf(tab)[2], u"POST A / TUKEY");
}

TEST(PairwiseRecord, StoresChoicesThenListsThenConfidence)
{
    CPairwiseData pairwise;
    pairwise.SetAll(Vars({}), Vars({}), u"A", u"B(A)", 1, CGUIData<double>(0.95), 1);
    const Bytes expected =
        Cat({Int32(1), Int32(1), Text(u"A"), Text(u"B(A)"), Word(0), Word(0), DataRecord(1, 0, 0.95, 0.95)});
    EXPECT_EQ(Store([&](CArchive& ar) { pairwise.Serialize(ar); }), expected);
    CPairwiseData back;
    Load(expected, [&](CArchive& ar) { back.Serialize(ar); });
    EXPECT_EQ(Store([&](CArchive& ar) { back.Serialize(ar); }), expected);
}

TEST(MatrixText, RowsOfNumbersAreCheckedAndWrittenEvenly)
{
    EXPECT_EQ(CMatrixText::Format(CMatrixText::Parse(u" 1  -1 0;;0 1 -1 ; ")), CString(u"1 -1 0; 0 1 -1"));
    EXPECT_EQ(CMatrixText::Check(CMatrixText::Parse(u"1 x")), CMatrixText::Problem::NotANumber);
    EXPECT_EQ(CMatrixText::Check(CMatrixText::Parse(u"1 2; 3")), CMatrixText::Problem::Ragged);
    EXPECT_EQ(CMatrixText::Check(CMatrixText::Parse(u"")), CMatrixText::Problem::None);
    EXPECT_DOUBLE_EQ(CMatrixText::RowSum({u"0.5", u"-1.5", u"1"}), 0.0);
}

TEST_F(StoredModels, HypothesisLinesForEffectsContrastsCombinationsAndErrors)
{
    CHypothesisTabData test;
    test.SetstrDialog(2013);
    CHypothesisData& hypothesis = *test.GetHypothesisData();
    CHypothesisErrorData& error = *test.GetHypothesisErrorData();
    hypothesis.SetAll(0, u"A*B", 2, Changed(2, 1), {});
    error.SetAll(u"", 1, u"'x y'*A", u"");
    EXPECT_EQ(LinesOf(test), (Lines16{u"GLM", u"HYPOTHESIS", u"EFFECT = A*B", u"CONTRAST / POLYNOMIAL ORDER = 2",
                                      u"ERROR '''x y''*A'", u"TEST"}));
    hypothesis.SetAll(0, u"A", 3, CGUIData<int>(1), TextArray({u"1 -1 0", u"0  1 -1"}));
    error.SetAll(u"0;0", 2, u"", u"2 0;0 2");
    EXPECT_EQ(LinesOf(test), (Lines16{u"GLM", u"HYPOTHESIS", u"EFFECT = A", u"CONTRAST [ 1 -1 0; 0 1 -1 ]",
                                      u"DMATRIX [ 0; 0 ]", u"ERROR [2 0; 0 2]", u"TEST"}));
    // A row that could start a line of its own is never written.
    hypothesis.SetAll(1, u"A", 1, CGUIData<int>(1), TextArray({u"A[1] = A[2]", u"bad\nTEST"}));
    error.SetAll(u"", 0, u"", u"");
    test.SetstrDialog(2009);
    EXPECT_EQ(LinesOf(test), (Lines16{u"ANOVA", u"HYPOTHESIS", u"SPECIFY A[1] = A[2]", u"TEST"}));
}

TEST_F(StoredModels, HypothesisOkChecksContrastsAndMatrixSizes)
{
    StoreGlm();
    CHypothesisTabData test;
    test.SetstrDialog(2013);
    const INT_PTR result = Open<CHypothesisTabDlg>(test, {2105, 0, 0, 0}, [](CHeadlessSession& s) {
        s.Click(CHypothesisDlgIds::IDC_CONTRAST_CUSTOM);
        s.Cell(CHypothesisDlgIds::IDC_GRID, 1, 1, u"1 1");
        s.Ok(); // does not sum to zero
        s.Cell(CHypothesisDlgIds::IDC_GRID, 1, 1, u"1 -1");
        s.Page(1);
        s.Type(CHypothesisErrorDlgIds::IDC_DMATRIX, u"0; 0");
        s.Ok(); // one contrast, two rows
        s.Type(CHypothesisErrorDlgIds::IDC_DMATRIX, u"3");
        s.Click(CHypothesisErrorDlgIds::IDC_ERROR_MATRIX_KIND);
        s.Type(CHypothesisErrorDlgIds::IDC_ERROR_MATRIX, u"1");
        s.Ok(); // two dependent variables
        s.Type(CHypothesisErrorDlgIds::IDC_ERROR_MATRIX, u"1 0; 0 1");
        s.Ok();
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(host.messages, (std::vector<UINT>{2108, 2109, 2111}));
    EXPECT_EQ(LinesOf(test)[3], u"CONTRAST [ 1 -1 ]");
}

} // namespace

TEST_F(StoredModels, PairwiseMatrixHasAContrastRowForEveryPairOfLevels)
{
    EXPECT_EQ(CMatrixText::Format(CHypPairwiseData::PairwiseRows(3)), CString(u"1 -1 0; 1 0 -1; 0 1 -1"));
    EXPECT_EQ(CHypPairwiseData::PairwiseRows(CHypPairwiseData::kMaxLevels).size(), 190u);
    EXPECT_TRUE(CHypPairwiseData::PairwiseRows(1).empty());
    CHypPairwiseData matrix;
    matrix.SetstrDialog(2027);
    matrix.SetAll(u"dose (mg)", CGUIData<int>(2), u"B(A)");
    EXPECT_EQ(LinesOf(matrix), (Lines16{u"MANOVA", u"HYPOTHESIS", u"EFFECT = 'dose (mg)'", u"CONTRAST [ 1 -1 ]",
                                        u"ERROR 'B(A)'", u"TEST"}));
}
