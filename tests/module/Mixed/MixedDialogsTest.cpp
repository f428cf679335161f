// The mixed models and mixed regression driven headless, for what their
// sessions in tests/scripts cannot show: every ranged edit refused with the
// focus kept, a record byte for byte and cut short, and every stored session
// written again after a restart from a record that stores back unchanged.
#include "Msg/MixedModelMsg.h"
#include "Msg/MixedRegressionMsg.h"
#include "Source/DlgStat2.h"
#include "platform/HeadlessDriver.h"
#include "private/Mixed/KDGHypothesistestTabDlg.h"
#include "private/Mixed/KDGMixedDataTabDlg.h"
#include "private/Mixed/KDGMixedModelHierarchicalLinearMixedModelTabDlg.h"
#include "private/Mixed/KDGMixedModelLinearMixedModelTabDlg.h"
#include "private/Mixed/KDGMixedModelVarianceComponentsTabDlg.h"
#include "private/Mixed/KDGMixedTabDlg.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/DialogTesting.h"

#include <gtest/gtest.h>

using namespace kaltest;

namespace {

class MixedDialogs : public HeadlessDialogTest {
protected:
    MixedDialogs() : HeadlessDialogTest({u"Y", u"Y2", u"X", u"X2", u"W", u"A", u"G$"})
    {
        host.sheet.variables[5].categorical = true; // A
    }

    // A linear mixed model OK accepts: Y by A, a random intercept per G$.
    static void LinearModel(CHeadlessSession& s)
    {
        Move(s, CGLMDlg::IDC_SOURCE_LIST, {u"Y"}, CGLMDlg::IDC_ADD_DEPENDENT);
        Move(s, CGLMDlg::IDC_SOURCE_LIST, {u"A", u"X"}, CGLMDlg::IDC_FULL_FACTORIAL);
        s.Page(1);
        Move(s, CMixedRandomDlg::IDC_SOURCE_LIST, {u"G$"}, CMixedRandomDlg::IDC_ADD_SUBJECT);
    }
    static void VarCompModel(CHeadlessSession& s)
    {
        Move(s, CVarCompDlg::IDC_SOURCE_LIST, {u"Y"}, CVarCompDlg::IDC_ADD_DEPENDENT);
        Move(s, CVarCompDlg::IDC_SOURCE_LIST, {u"G$"}, CVarCompDlg::IDC_ADD_RANDOM);
    }
    static void RegressionModel(CHeadlessSession& s)
    {
        Move(s, CMixRegModelDlg::IDC_SOURCE_LIST, {u"Y"}, CMixRegModelDlg::IDC_ADD_DEPENDENT);
        Move(s, CMixRegModelDlg::IDC_SOURCE_LIST, {u"X"}, CMixRegModelDlg::IDC_ADD_RANDOM);
        Move(s, CMixRegModelDlg::IDC_SOURCE_LIST, {u"G$"}, CMixRegModelDlg::IDC_ADD_GROUP);
    }

    // The record of the settings stored under `id`, loaded into fresh
    // settings, must store back to the same bytes and write the lines the
    // session printed.
    template <class TData>
    void ExpectRestartKeeps(const CMenuGroupMsg& handler, UINT id, const Lines16& printed)
    {
        SCOPED_TRACE(id);
        const Bytes record = Store([&](CArchive& ar) { host.store.at(id)->Serialize(ar); }, CArchive::namedLists);
        TData restored;
        Load(record, CArchive::namedLists, [&](CArchive& ar) { restored.Serialize(ar); });
        EXPECT_EQ(Store([&](CArchive& ar) { restored.Serialize(ar); }, CArchive::namedLists), record);
        EXPECT_EQ(LinesAfterRestart<TData>(host, handler, id), printed);
        TData cut;
        EXPECT_THROW(Load(Bytes(record.begin(), record.end() - 4), CArchive::namedLists,
                          [&](CArchive& ar) { cut.Serialize(ar); }),
                     CArchiveException);
    }
};

} // namespace

TEST_F(MixedDialogs, EveryRangedEditRefusesBadEntriesAndKeepsTheFocus)
{
    CMixedModelLinearMixedModelTabData linear;
    ExpectRangedEditsRefuse<CMixedEstimationData>(host, 2, 0, [&](int, UINT, const Script& refuse) {
        linear = CMixedModelLinearMixedModelTabData();
        return Open<CMixedModelLinearMixedModelTabDlg>(linear, {2356, 2356, 0, 0}, [&](CHeadlessSession& s) {
            LinearModel(s);
            refuse(s);
        });
    });
    CMixedModelVarianceComponentsTabData components;
    ExpectRangedEditsRefuse<CVarCompData>(host, 0, 0, [&](int, UINT, const Script& refuse) {
        components = CMixedModelVarianceComponentsTabData();
        return Open<CMixedModelVarianceComponentsTabDlg>(components, {2392, 2197, 0, 0}, [&](CHeadlessSession& s) {
            VarCompModel(s);
            s.Choose(CVarCompDlg::IDC_METHOD_COMBO, CVarCompData::kMethodReml); // iterations in use
            refuse(s);
        });
    });
    CMixedTabData regression;
    ExpectRangedEditsRefuse<CMixRegEstimationData>(host, 1, 0, [&](int, UINT, const Script& refuse) {
        regression = CMixedTabData();
        return Open<CMixedTabDlg>(regression, {2194, 0, 0, 0}, [&](CHeadlessSession& s) {
            RegressionModel(s);
            s.Choose(CMixRegModelDlg::IDC_LINK_COMBO, 1); // quadrature in use
            refuse(s);
        });
    });
}

TEST_F(MixedDialogs, TheEstimationRecordKeepsItsOrder)
{
    CMixedEstimationData estimation;
    estimation.SetAll(1, CGUIData<int>(0, 50, 100, 0, 1), CMixedEstimationData::GetDefaultConvEdit(),
                      CGUIData<double>(0, 0.9, 0.95, 0, 1), 1);
    // The method and the prediction, then iterations, convergence, confidence.
    const Bytes expected = Cat({Int32(1), Int32(1), DataRecord(0, 0, 100, 50, 1), DataRecord(1, 0, 1e-6, 1e-6, 1),
                                DataRecord(0, 0, 0.95, 0.9, 1)});
    EXPECT_EQ(Store([&](CArchive& ar) { estimation.Serialize(ar); }), expected);
    CMixedEstimationData back;
    Load(expected, [&](CArchive& ar) { back.Serialize(ar); });
    EXPECT_EQ(LinesOf(back), (Lines16{u"ESTIMATE / METHOD = ML ITER = 50 CONFI = 0.9 BLUP"}));
    CMixedEstimationData cut;
    EXPECT_THROW(Load(Bytes(expected.begin(), expected.end() - 8), [&](CArchive& ar) { cut.Serialize(ar); }),
                 CArchiveException);
}

TEST_F(MixedDialogs, StoredSessionsWriteTheSameLinesAfterARestart)
{
    CMixedModelMsg models(&host);
    CMixedRegressionMsg regression(&host);
    const auto run = [this](CMenuGroupMsg& handler, UINT id, const Script& script) {
        driver.SetScript(script);
        const std::size_t before = host.runs.size();
        handler.OnKVCommand(id);
        EXPECT_EQ(host.runs.size(), before + 1) << id;
        return host.runs.empty() ? Lines16{} : host.runs.back().second;
    };

    const Lines16 linear = run(models, 2067, [](CHeadlessSession& s) {
        LinearModel(s);
        Move(s, CMixedRandomDlg::IDC_SOURCE_LIST, {u"X"}, CMixedRandomDlg::IDC_ADD_RANDOM);
        s.Choose(CMixedRandomDlg::IDC_COVARIANCE_COMBO, 1);
        s.Page(2);
        s.Type(CMixedEstimationDlg::IDC_ITER_EDIT, u"40");
        s.Ok();
    });
    EXPECT_EQ(linear, (Lines16{u"MIXED", u"MODEL Y = CONSTANT+X+A+X*A", u"CATEGORY A / REPLACE",
                               u"RANDOM INTERCEPT+X / SUBJECT = G$ TYPE = UN", u"ESTIMATE / METHOD = REML ITER = 40"}));
    ExpectRestartKeeps<CMixedModelLinearMixedModelTabData>(models, 2067, linear);

    const Lines16 levels = run(models, 2068, [](CHeadlessSession& s) {
        using L = CHlmLevelsDlg;
        Move(s, L::IDC_SOURCE_LIST, {u"Y"}, L::IDC_ADD_DEPENDENT);
        Move(s, L::IDC_SOURCE_LIST, {u"G$"}, L::IDC_ADD_UNIT);
        Move(s, L::IDC_SOURCE_LIST, {u"X"}, L::IDC_ADD_LEVEL1);
        Move(s, L::IDC_SOURCE_LIST, {u"W"}, L::IDC_ADD_LEVEL2);
        Move(s, L::IDC_SOURCE_LIST, {u"X"}, L::IDC_ADD_SLOPE);
        s.Check(L::IDC_CROSS_LEVEL_CHECK, 1);
        s.Choose(L::IDC_CENTER_COMBO, 2);
        s.Ok();
    });
    ExpectRestartKeeps<CMixedModelHierarchicalLinearMixedModelTabData>(models, 2068, levels);

    const Lines16 components = run(models, 2069, [](CHeadlessSession& s) {
        VarCompModel(s);
        Move(s, CVarCompDlg::IDC_SOURCE_LIST, {u"A"}, CVarCompDlg::IDC_ADD_FIXED);
        s.Check(CVarCompDlg::IDC_INTERACTIONS_CHECK, 1);
        s.Choose(CVarCompDlg::IDC_METHOD_COMBO, CVarCompData::kMethodMl);
        s.Type(CVarCompDlg::IDC_CONV_EDIT, u"0.001");
        s.Ok();
    });
    ExpectRestartKeeps<CMixedModelVarianceComponentsTabData>(models, 2069, components);

    // The test offers the terms of the linear mixed model stored above.
    const Lines16 test = run(models, 2073, [](CHeadlessSession& s) {
        EXPECT_EQ(s.ComboSelection(CHypothesisDlg::IDC_EFFECT), 0);
        s.Choose(CHypothesisDlg::IDC_EFFECT, 1);
        s.Click(CHypothesisDlg::IDC_CONTRAST_POLYNOMIAL);
        s.Page(1);
        s.Click(CMixedTestDlg::IDC_DDF_CONTAINMENT);
        s.Ok();
    });
    EXPECT_EQ(test,
              (Lines16{u"MIXED", u"HYPOTHESIS", u"EFFECT = A", u"CONTRAST / POLYNOMIAL", u"TEST / DDF = CONTAINMENT"}));
    ExpectRestartKeeps<CHypothesistestTabData>(models, 2073, test);

    const Lines16 mixreg = run(regression, 2015, [](CHeadlessSession& s) {
        RegressionModel(s);
        s.Choose(CMixRegModelDlg::IDC_LINK_COMBO, 2);
        s.Page(1);
        s.Type(CMixRegEstimationDlg::IDC_QUAD_EDIT, u"15");
        s.Ok();
    });
    ExpectRestartKeeps<CMixedTabData>(regression, 2015, mixreg);

    const Lines16 structure = run(regression, 2016, [](CHeadlessSession& s) {
        using D = CMixRegDataDlg;
        s.Click(D::IDC_WIDE_RADIO);
        Move(s, D::IDC_SOURCE_LIST, {u"G$"}, D::IDC_ADD_ID);
        Move(s, D::IDC_SOURCE_LIST, {u"Y", u"Y2"}, D::IDC_ADD_REPEATED);
        s.Type(D::IDC_TIMES_EDIT, u"1 2.5");
        s.Ok();
    });
    EXPECT_EQ(structure, (Lines16{u"MIXREG", u"DATA Y Y2 / WIDE ID = G$ TIMES = 1 2.5"}));
    ExpectRestartKeeps<CMixedDataTabData>(regression, 2016, structure);
}
