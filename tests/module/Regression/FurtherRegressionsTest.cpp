// What scripts cannot reach in the further regressions: the check of typed
// expressions and of typed regressor values, problem by problem (control
// characters among them), and the records of the settings: a loaded record
// writes the same lines and stores the same bytes again, and a record cut
// short is refused.
#include "private/Regression/KDGBayesianData.h"
#include "private/Regression/KDGExpression.h"
#include "private/Regression/KDGLogitPostData.h"
#include "private/Regression/KDGLogitQuantilesData.h"
#include "private/Regression/KDGLogitSimulateData.h"
#include "private/Regression/KDGNonLinearTabData.h"
#include "private/Regression/KDGPlsTabData.h"
#include "private/Regression/KDGProbitTabData.h"
#include "private/Regression/KDGSmoothTabData.h"
#include "tests/support/DialogTesting.h"

#include <gtest/gtest.h>

using namespace kaltest;
using P = CExpressionCheck::Problem;

namespace {

std::vector<CString> Texts(std::initializer_list<const char16_t*> texts)
{
    return {texts.begin(), texts.end()};
}

CGUIArray<CString> Column(std::initializer_list<const char16_t*> texts)
{
    CGUIArray<CString> column;
    for (const char16_t* text : texts)
        column.Add(text);
    return column;
}

const CExpressionCheck kCheck(Texts({u"X", u"dose (mg)", u"it's"}), Texts({u"b0", u"b1"}), Texts({u"RESIDUAL"}));

class FurtherRegressions : public ::testing::Test {
protected:
    FakeHost host;
    HostScope scope{&host};
};

} // namespace

TEST(ExpressionCheck, ReadsFormulasAndListsTheirNamesOnceInOrderOfUse)
{
    const struct {
        const char16_t* text;
        std::vector<CString> names;
    } cases[] = {
        {u"b0*EXP(-b1*X)", Texts({u"b0", u"b1", u"X"})},
        {u"  b0 + b1*X + b0^2^-1 ", Texts({u"b0", u"b1", u"X"})},
        {u"(b0 + .5)/(1 + 2.5E+2*((X)))", Texts({u"b0", u"X"})},
        {u"max(b0, 1e-3, -X) + LOG10(b1)", Texts({u"b0", u"X", u"b1"})},
        {u"b1*'dose (mg)' + 'it''s'", Texts({u"b1", u"dose (mg)", u"it's"})},
        {u"ABS(residual)", Texts({u"residual"})},
        {u"--b0", Texts({u"b0"})},
    };
    for (const auto& c : cases) {
        const CExpressionCheck::Result result = kCheck.Check(c.text, false);
        EXPECT_EQ(result.problem, P::None) << CString(c.text).ToUtf8();
        EXPECT_EQ(result.names, c.names) << CString(c.text).ToUtf8();
    }
}

TEST(ExpressionCheck, RefusesTheFirstProblemItFinds)
{
    const struct {
        const char16_t* text;
        P problem;
        const char16_t* name = u"";
    } cases[] = {
        {u"", P::Empty},
        {u"   ", P::Empty},
        // A line end could start a command of its own, even where trimming
        // would take it away.
        {u"b0*X\n", P::ControlCharacter},
        {u"b0*X\nESTIMATE", P::ControlCharacter},
        {u"b0\t*X", P::ControlCharacter},
        {u"b0*(X", P::Unbalanced},
        {u"b0*X)(", P::Unbalanced},
        {u"b0*'a(b'", P::UnknownName, u"a(b"},
        {u"b0 X", P::Syntax},
        {u"2X + b0", P::Syntax},
        {u"b0 +", P::Syntax},
        {u"*b0", P::Syntax},
        {u"b0*1e", P::Syntax},
        {u"b0*()", P::Syntax},
        {u"b0*EXP()", P::Syntax},
        {u"b0; b1", P::Syntax},
        {u"b0*'X", P::Syntax},
        {u"b0*''", P::Syntax},
        {u"b0*Z", P::UnknownName, u"Z"},
        {u"b0*x", P::UnknownName, u"x"},
        {u"b0*FOO(X)", P::UnknownName, u"FOO"},
        {u"b0*EXP", P::UnknownName, u"EXP"},
    };
    for (const auto& c : cases) {
        const CExpressionCheck::Result result = kCheck.Check(c.text, false);
        EXPECT_EQ(result.problem, c.problem) << CString(c.text).ToUtf8();
        EXPECT_EQ(result.name, CString(c.name)) << CString(c.text).ToUtf8();
    }
    // A model has to estimate something; a loss need not.
    EXPECT_EQ(kCheck.Check(u"X*EXP(X)", true).problem, P::NoParameter);
    EXPECT_EQ(kCheck.Check(u"X*EXP(b1)", true).problem, P::None);
    EXPECT_EQ(kCheck.Check(u"ABS(RESIDUAL)", false).problem, P::None);
}

TEST(ExpressionCheck, ParametersArePlainNamesThatAreNoFunction)
{
    for (const char16_t* name : {u"b0", u"rate", u"_k", u"top.1", u"k$"})
        EXPECT_TRUE(CExpressionCheck::IsParameterName(name)) << CString(name).ToUtf8();
    for (const char16_t* name : {u"", u"1a", u"a b", u"EXP", u"sqrt", u"a-b", u"'a'"})
        EXPECT_FALSE(CExpressionCheck::IsParameterName(name)) << CString(name).ToUtf8();
}

TEST_F(FurtherRegressions, TypedValuesNameKnownRegressorsOnceWithNumbers)
{
    const std::vector<CString> known = Texts({u"X", u"X2", u"dose (mg)"});
    const CValueList::Result read = CValueList::Parse(u" X=20 ,X2 = -5.5e1; 'dose (mg)' = .5", known);
    ASSERT_EQ(read.problem, CValueList::Problem::None);
    EXPECT_EQ(CValueList::Format(read.values), CString(u"X = 20, X2 = -55, 'dose (mg)' = 0.5"));
    EXPECT_TRUE(CValueList::Parse(u"  ", known).values.empty());

    using V = CValueList::Problem;
    const std::pair<const char16_t*, V> refused[] = {
        {u"X 20", V::Syntax},           {u"= 20", V::Syntax},
        {u"X = 1,", V::Syntax},         {u"W = 1", V::UnknownName},
        {u"X = 1, X = 2", V::Repeated}, {u"X = ten", V::NotANumber},
        {u"X = 1e400", V::NotANumber},  {u"X = 1\n", V::ControlCharacter},
    };
    for (const auto& [text, problem] : refused)
        EXPECT_EQ(CValueList::Parse(text, known).problem, problem) << CString(text).ToUtf8();

    // Where the comma is the decimal separator it belongs to the numbers,
    // and entries are separated by semicolons only.
    host.decimalSeparator = u',';
    const CValueList::Result comma = CValueList::Parse(u"X = 1,5; X2 = 2", known);
    ASSERT_EQ(comma.problem, CValueList::Problem::None);
    EXPECT_EQ(CValueList::Format(comma.values), CString(u"X = 1,5; X2 = 2"));
    EXPECT_EQ(CValueList::Parse(u"X = 1, X2 = 2", known).problem, CValueList::Problem::NotANumber);
}

TEST_F(FurtherRegressions, RecordsGiveTheirLinesBackAndRefuseBeingCutShort)
{
    CNonLinearTabData nonlinear;
    nonlinear.GetNonLinearData()->SetAll(Vars({u"Y", u"X"}), Vars({u"Y"}), u"b0*EXP(b1*X)", u"", Column({u"b0", u"b1"}),
                                         Column({u"10", u"-0.1"}), Column({u"", u"-1"}), Column({u"", u""}));
    nonlinear.GetNonLinSaveData()->SetAll(1, 0, u"fit.kvd");
    CLogitSimulateData simulate;
    simulate.SetAll(Changed(500, 1000), Changed(17u, 0u), CLogitSimulateData::GetDefaultConfidenceEdit(),
                    Column({u"X = 1", u"X = 2, X2 = 3"}));
    CLogitPostData post;
    post.SetAll(1, u"X = 20", 1, 1, 1, Changed(0.3, 0.5));
    CBayesianData bayes;
    bayes.SetAll(Vars({}), Vars({u"Y"}), Vars({u"X"}), 0, 1, Changed(1.0, 0.0), Changed(4.0, 100.0), 1,
                 CBayesianData::GetDefaultShapeEdit(), CBayesianData::GetDefaultScaleEdit(), Changed(500, 10000),
                 Changed(50, 1000), CBayesianData::GetDefaultSeedEdit(), CBayesianData::GetDefaultCredibleEdit());
    CLogitQuantilesData quantiles;
    CProbitTabData probit;
    CSmoothTabData smooth;
    CPlsTabData pls;

    const auto check = [](auto& settings, const char* what) {
        using T = std::remove_reference_t<decltype(settings)>;
        SCOPED_TRACE(what);
        const Bytes bytes = Store([&](CArchive& ar) { settings.Serialize(ar); }, CArchive::namedLists);
        T back;
        Load(bytes, CArchive::namedLists, [&](CArchive& ar) { back.Serialize(ar); });
        EXPECT_EQ(LinesOf(back), LinesOf(settings));
        EXPECT_EQ(Store([&](CArchive& ar) { back.Serialize(ar); }, CArchive::namedLists), bytes);
        T cut;
        EXPECT_THROW(
            Load(Bytes(bytes.begin(), bytes.end() - 1), CArchive::namedLists, [&](CArchive& ar) { cut.Serialize(ar); }),
            CArchiveException);
    };
    check(nonlinear, "nonlinear");
    check(simulate, "simulation");
    check(post, "post-estimation");
    check(bayes, "Bayesian");
    check(quantiles, "quantiles");
    check(probit, "probit");
    check(smooth, "smoothing");
    check(pls, "partial least squares");

    EXPECT_EQ(LinesOf(nonlinear), (Lines16{u"NONLIN", u"MODEL Y = b0*EXP(b1*X)", u"PARAMETERS b0 = 10, b1 = -0.1",
                                           u"LIMITS b1 >= -1", u"SAVE 'fit.kvd' / RESIDUALS", u"ESTIMATE "}));
    EXPECT_EQ(LinesOf(simulate),
              (Lines16{u"LOGIT", u"SIMULATE / DRAWS = 500 RSEED = 17", u"SCENARIO X = 1", u"SCENARIO X = 2, X2 = 3"}));
    EXPECT_EQ(LinesOf(bayes),
              (Lines16{u"BAYES", u"MODEL Y = X", u"PRIOR / COEF = NORMAL(1, 4) VARIANCE = IGAMMA(0.01, 0.01)",
                       u"ESTIMATE / DRAWS = 500 BURNIN = 50"}));
}

TEST_F(FurtherRegressions, TheLossBelongsToTheLossDialogsModelPageAlone)
{
    CNonLinearData model;
    model.SetAll(Vars({}), Vars({u"Y"}), u"a*X", u"ABS(RESIDUAL)", Column({u"a"}), Column({u"1"}), Column({u""}),
                 Column({u""}));
    model.SetOwnerID(2205);
    EXPECT_EQ(LinesOf(model), (Lines16{u"NONLIN", u"MODEL Y = a*X", u"PARAMETERS a = 1"}));
    model.SetOwnerID(CNonLinearData::kLossOwner);
    EXPECT_EQ(LinesOf(model), (Lines16{u"NONLIN", u"MODEL Y = a*X", u"LOSS = ABS(RESIDUAL)", u"PARAMETERS a = 1"}));
    // A text holding a line end never reaches a line, whatever a record held.
    model.SetAll(Vars({}), Vars({u"Y"}), u"a*X\nSTOP", u"ABS(RESIDUAL)\n", Column({u"a"}), Column({u"1"}),
                 Column({u""}), Column({u""}));
    EXPECT_EQ(LinesOf(model), (Lines16{u"NONLIN", u"MODEL Y = ", u"PARAMETERS a = 1"}));
}
