// The records of the regression, T-squared and Pareto charts: their member
// order, the same bytes stored again after a load, a cut-short record
// refused; and a T-squared record whose matrices the dialog never checked
// writes no matrix clause.
#include "private/Quality/KDGParetoData.h"
#include "private/Quality/KDGRegressData.h"
#include "private/Quality/KDGTsqData.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/DialogTesting.h"

#include <gtest/gtest.h>

#include <limits>

using namespace kaltest;

namespace {

// The module over a fake host, for the texts of the module lines.
class QualityChartRecords : public HeadlessDialogTest {
protected:
    QualityChartRecords() : HeadlessDialogTest({u"Y"}) {}
};

CGUIData<double> Given(double v)
{
    return CGUIData<double>(0, v, 0.0, 0, 1);
}

// Stores `settings`, loads the bytes into a fresh object, and expects that
// object to store the same bytes and write the same lines; a record one
// byte short is refused.
template <class TData>
void ExpectRecordSurvives(TData& settings, const Bytes& expected)
{
    const Bytes stored = Store([&](CArchive& ar) { settings.Serialize(ar); });
    EXPECT_EQ(stored, expected);
    TData back;
    Load(stored, [&](CArchive& ar) { back.Serialize(ar); });
    EXPECT_EQ(Store([&](CArchive& ar) { back.Serialize(ar); }), stored);
    TData named;
    Load(Store([&](CArchive& ar) { settings.Serialize(ar); }, CArchive::namedLists), CArchive::namedLists,
         [&](CArchive& ar) { named.Serialize(ar); });
    EXPECT_EQ(LinesOf(named), LinesOf(settings));
    EXPECT_THROW(Load(Bytes(stored.begin(), stored.end() - 1), [&](CArchive& ar) { back.Serialize(ar); }),
                 CArchiveException);
}

// A list of one numeric variable as a record holds it: its count, then the
// element block without the name.
Bytes OneVariable()
{
    return Cat({Word(1), Int32(0), Int32(0), Int32(1), Int32(0), Int32(0), Int32(0)});
}

} // namespace

TEST_F(QualityChartRecords, EachChartKeepsItsChoicesThenItsListsThenItsNumbers)
{
    const double kNone = std::numeric_limits<double>::quiet_NaN();
    const Bytes noList = Word(0);

    CRegressData regress;
    regress.SetAll(Vars({}), Vars({u"Y"}), Vars({u"X"}), Given(1.5), CRegressData::GetDefaultNoneGiven(), Given(0.99),
                   Given(3), CRegressData::GetDefaultNoneGiven(), 1);
    ExpectRecordSurvives(regress, Cat({Int32(1), noList, OneVariable(), OneVariable(), DataRecord(0, 0, 0.0, 1.5, 1),
                                       DataRecord(1, 0, kNone, kNone, 1), DataRecord(0, 0, 0.0, 0.99, 1),
                                       DataRecord(0, 0, 0.0, 3.0, 1), DataRecord(1, 0, kNone, kNone, 1)}));
    EXPECT_EQ(LinesOf(regress), (Lines16{u"QC", u"REGCHART Y = X / SIGMA=1.5 SLIMITS=3,"}));

    CTsqData tsq;
    tsq.SetAll(Vars({}), Vars({u"Y"}), Vars({}), 1, u"1", u"2", Given(0.01), CTsqData::GetDefaultNoneGiven(), 1);
    ExpectRecordSurvives(tsq, Cat({Int32(1), Int32(1), Text(u"1"), Text(u"2"), noList, OneVariable(), noList,
                                   DataRecord(0, 0, 0.0, 0.01, 1), DataRecord(1, 0, kNone, kNone, 1)}));

    CParetoData pareto;
    pareto.SetAll(Vars({}), Vars({u"Y"}), Vars({}), 0, 1, Given(10), 1);
    ExpectRecordSurvives(
        pareto, Cat({Int32(0), Int32(1), Int32(1), noList, OneVariable(), noList, DataRecord(0, 0, 0.0, 10.0, 1)}));
    EXPECT_EQ(LinesOf(pareto), (Lines16{u"QC", u"PARETO Y / OTHER=10 PERCENT"}));
}

TEST_F(QualityChartRecords, KnownMatricesThatAreNotNumbersWriteNoClause)
{
    CTsqData tsq;
    const auto line = [&](const CString& mean, const CString& covariance) {
        tsq.SetAll(Vars({}), Vars({u"Y", u"Y2"}), Vars({}), 1, mean, covariance, CTsqData::GetDefaultNoneGiven(),
                   CTsqData::GetDefaultNoneGiven(), 0);
        return LinesOf(tsq).back();
    };
    EXPECT_EQ(line(u"1 2", u"1 0;0 1"), u"TSQUARE Y Y2 / MEAN=[ 1 2 ] COVAR=[ 1 0; 0 1 ]");
    // A record the dialog never checked cannot add a clause of its own.
    EXPECT_EQ(line(u"1 ] DECOMPOSE [ 2", u"1 0; 0 1\nEXIT"), u"TSQUARE Y Y2 ");
}
