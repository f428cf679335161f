// The process-capability dialog driven headless: its lines, refused
// entries, and its record.
#include "Source/DlgStat2.h"
#include "platform/HeadlessDriver.h"
#include "private/Quality/KDGPcaDlg.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/DialogTesting.h"

#include <gtest/gtest.h>

#include <limits>

using namespace kaltest;
using P = CPcaDlg;

namespace {

class Capability : public HeadlessDialogTest {
protected:
    Capability() : HeadlessDialogTest({u"Y", u"Lot", u"Shift$"}) {}

    INT_PTR Run(const Script& script) { return Open<CPcaDlg>(pca, {0, 0, 0, 0}, script); }
    CPcaData pca;
};

} // namespace

TEST_F(Capability, WritesTheLimitsGivenAndTheChosenIndices)
{
    struct Case {
        Script script;
        std::u16string line;
    };
    const Case cases[] = {
        {[](CHeadlessSession& s) { s.Type(P::IDC_USL_EDIT, u"12"); }, u"CAPABILITY Y / USL=12 CP PP NORMTEST"},
        {[](CHeadlessSession& s) {
             Move(s, P::IDC_SOURCE_LIST, {u"Shift$"}, P::IDC_ADD_GROUP);
             s.Type(P::IDC_LSL_EDIT, u"-1.5");
             s.Type(P::IDC_USL_EDIT, u"");
             s.Click(P::IDC_OVERALL_RADIO);
             s.Check(P::IDC_POTENTIAL_CHECK, 0);
             s.Check(P::IDC_PERFORMANCE_CHECK, 0);
             s.Check(P::IDC_NORMALITY_CHECK, 0);
         },
         u"CAPABILITY Y*Shift$ / LSL=-1.5 SIGMA=OVERALL"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Run([&](CHeadlessSession& s) {
                      if (s.Items(P::IDC_MEASURE_LIST).empty())
                          Move(s, P::IDC_SOURCE_LIST, {u"Y"}, P::IDC_ADD_MEASURE);
                      c.script(s);
                      s.Ok();
                  }),
                  IDOK);
        EXPECT_EQ(LinesOf(pca), (Lines16{u"QC", c.line}));
    }
}

TEST_F(Capability, RefusesAStudyWithoutMeasurementsOrSensibleLimits)
{
    Run([this](CHeadlessSession& s) {
        s.Select(P::IDC_SOURCE_LIST, Names({u"Shift$"}));
        EXPECT_FALSE(s.IsEnabled(P::IDC_ADD_MEASURE));
        ExpectRefused(s, P::kMsgNoMeasurement, P::IDC_MEASURE_LIST);
        Move(s, P::IDC_SOURCE_LIST, {u"Y"}, P::IDC_ADD_MEASURE);
        ExpectRefused(s, P::kMsgNoLimit, P::IDC_LSL_EDIT);
        s.Type(P::IDC_LSL_EDIT, u"10");
        s.Type(P::IDC_USL_EDIT, u"10");
        ExpectRefused(s, P::kMsgLimitsOrder, P::IDC_USL_EDIT);
        s.Type(P::IDC_USL_EDIT, u"20");
        s.Type(P::IDC_TARGET_EDIT, u"25");
        ExpectRefused(s, P::kMsgOutOfRange, P::IDC_TARGET_EDIT);
        s.Reset();
        EXPECT_EQ(s.Text(P::IDC_LSL_EDIT), CString());
        EXPECT_TRUE(s.Items(P::IDC_MEASURE_LIST).empty());
        EXPECT_TRUE(s.IsChecked(P::IDC_NORMALITY_CHECK));
        s.Cancel();
    });
}

TEST_F(Capability, TheRecordKeepsTheChoicesThenTheListsThenTheLimits)
{
    const auto given = [](double v) { return CGUIData<double>(0, v, 0.0, 0, 1); };
    const double kNone = std::numeric_limits<double>::quiet_NaN();
    pca.SetAll(Vars({}), Vars({u"Y"}), Vars({}), given(1), given(2), CPcaData::GetDefaultNoneGiven(), 1, 1, 0, 1);
    const Bytes expected = Cat({Int32(1), Int32(1), Int32(0), Int32(1), Word(0), Word(1), Int32(0), Int32(0), Int32(1),
                                Int32(0), Int32(0), Int32(0), Word(0), DataRecord(0, 0, 0.0, 1.0, 1),
                                DataRecord(0, 0, 0.0, 2.0, 1), DataRecord(1, 0, kNone, kNone, 1)});
    EXPECT_EQ(Store([&](CArchive& ar) { pca.Serialize(ar); }), expected);
    CPcaData back;
    Load(Store([&](CArchive& ar) { pca.Serialize(ar); }, CArchive::namedLists), CArchive::namedLists,
         [&](CArchive& ar) { back.Serialize(ar); });
    EXPECT_EQ(LinesOf(back), (Lines16{u"QC", u"CAPABILITY Y / LSL=1 USL=2 SIGMA=OVERALL CP NORMTEST"}));
    EXPECT_THROW(Load(Bytes(expected.begin(), expected.end() - 1), [&](CArchive& ar) { back.Serialize(ar); }),
                 CArchiveException);
}
