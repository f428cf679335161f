// The regressions on the shared model page, where a script cannot reach:
// the records of the model and robust pages, and the estimator and module
// that belong to the dialog's type and survive records, resets and copies.
#include "private/Regression/KDGRidgeRegressionData.h"
#include "private/Regression/KDGRobustTabData.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/DialogTesting.h"

#include <gtest/gtest.h>

using namespace kaltest;

namespace {

class RegressionModels : public HeadlessDialogTest {
protected:
    RegressionModels() : HeadlessDialogTest({u"Y", u"X", u"W"}) {}
};

} // namespace

TEST_F(RegressionModels, TheRobustRecordKeepsMemberOrderAndComesBackWhole)
{
    CMregLtsTabData data;
    data.GetModelData()->SetAll(Vars({}), Vars({u"Y"}), Vars({u"X"}), Vars({u"W"}), CGUIData<int>(0),
                                CGUIDataWnd<int>{0, 1});
    CRobustOptionsData* options = data.GetOptionsData();
    options->SetAll(Changed(0.75, 0.5), CRobustOptionsData::GetDefaultBreakdownEdit(),
                    CRobustOptionsData::GetDefaultEfficiencyEdit(), CRobustOptionsData::GetDefaultSubsamplesEdit(),
                    Changed(7, 0), 3, CRobustOptionsData::GetDefaultTuningEdit(), 1,
                    CRobustOptionsData::GetDefaultIterationsEdit(), CRobustOptionsData::GetDefaultConvergenceEdit(), 1,
                    0, u"fit.kvd");

    // The options page in member order: the five values of the subset
    // search, function, tuning, scale, the two of reweighting, the save.
    const Bytes optionsRecord =
        Cat({DataRecord(0, 0, 0.5, 0.75), DataRecord(1, 0, 0.5, 0.5), DataRecord(1, 0, 0.95, 0.95),
             DataRecord(1, 0, 500, 500), DataRecord(0, 0, 0, 7), Int32(3), DataRecord(1, 0, 1.345, 1.345), Int32(1),
             DataRecord(1, 0, 50, 50), DataRecord(1, 0, 1e-4, 1e-4), Int32(1), Int32(0), Text(u"fit.kvd")});
    EXPECT_EQ(Store([&](CArchive& ar) { options->Serialize(ar); }), optionsRecord);

    const Bytes bytes = Store([&](CArchive& ar) { data.Serialize(ar); }, CArchive::namedLists);
    CMregLtsTabData back;
    Load(bytes, CArchive::namedLists, [&](CArchive& ar) { back.Serialize(ar); });
    EXPECT_EQ(Store([&](CArchive& ar) { back.Serialize(ar); }, CArchive::namedLists), bytes);
    const Lines16 lines{u"ROBUST", u"MODEL Y = X / WEIGHT = W", u"SAVE 'fit.kvd' / RESIDUALS",
                        u"ESTIMATE / LTS COVERAGE = 0.75 SEED = 7"};
    EXPECT_EQ(LinesOf(back), lines);

    CMregLtsTabData cut;
    EXPECT_THROW(
        Load(Bytes(bytes.begin(), bytes.end() - 4), CArchive::namedLists, [&](CArchive& ar) { cut.Serialize(ar); }),
        CArchiveException);
}

TEST_F(RegressionModels, TheEstimatorAndModuleBelongToTheDialogNotToTheRecord)
{
    // M-regression's record read into the settings of another estimator
    // keeps that estimator: the record holds values only.
    CMregTabData m;
    m.GetModelData()->SetAll(Vars({}), Vars({u"Y"}), Vars({u"X"}), Vars({}), CGUIData<int>(0), CGUIDataWnd<int>{1, 1});
    const Bytes bytes = Store([&](CArchive& ar) { m.Serialize(ar); });
    CMregMmregTabData mm;
    Load(bytes, [&](CArchive& ar) { mm.Serialize(ar); });
    EXPECT_EQ(mm.GetOptionsData()->GetEstimator(), RobustEstimator::Mm);

    kal::ResetFields(mm);
    EXPECT_EQ(mm.GetOptionsData()->GetEstimator(), RobustEstimator::Mm);
    EXPECT_EQ(mm.GetModelData()->GetModuleId(), CMregMmregTabData::kModuleRobust);
    const CMregTabData copy(m);
    EXPECT_EQ(LinesOf(copy), (Lines16{u"ROBUST", u"MODEL Y = CONSTANT+X", u"ESTIMATE / M WEIGHT = HUBER C = 1.345"}));

    CRidgeRegressionData ridge;
    kal::ResetFields(ridge);
    EXPECT_EQ(LinesOf(ridge), (Lines16{u"RIDGE", u"MODEL  = CONSTANT", u"ESTIMATE / K = 0.1"}));
}
