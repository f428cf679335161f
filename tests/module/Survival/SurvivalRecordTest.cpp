// The survival dialogs' records: the model page's plain members, then its
// lists and the code, then the second page; loaded back they write the same
// lines, and a record cut short throws. Lines and rules: tests/scripts.
#include "private/Survival/KDGSurvivalNParTabData.h"
#include "private/Survival/KDGSurvivalTabData.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/DialogTesting.h"

#include <gtest/gtest.h>

using namespace kaltest;

namespace {

class SurvivalRecord : public HeadlessDialogTest {
protected:
    SurvivalRecord() : HeadlessDialogTest({u"Y"}) {}

    static Bytes ModelPage(const char16_t* file)
    {
        // Six empty lists: the source and the five roles.
        return Cat({Int32(1), Int32(2), Text(file), Word(0), Word(0), Word(0), Word(0), Word(0), Word(0),
                    DataRecord(0, 0, 0, 9)});
    }
    static void SetModel(CSurvivalData& model, const char16_t* file)
    {
        CGUIArray<CGUIDataVariable> none;
        model.SetAll(none, none, none, none, none, none, Changed(9, 0), 1, 2, file);
    }
};

} // namespace

TEST_F(SurvivalRecord, TheRegressionStoresItsModelThenItsEstimation)
{
    CSurvivalTabData tab;
    SetModel(*tab.GetModelData(), u"s.kvd");
    tab.GetOptionsData()->SetAll(1, 2, 3, CSurvivalOptionsData::GetDefaultIterationsEdit(), Changed(0.01, 0.0001),
                                 CSurvivalOptionsData::GetDefaultConfidenceEdit());
    const Bytes expected = Cat({ModelPage(u"s.kvd"), Int32(1), Int32(2), Int32(3), DataRecord(1, 0, 25, 25),
                                DataRecord(0, 0, 0.0001, 0.01), DataRecord(1, 0, 0.95, 0.95)});
    EXPECT_EQ(Store([&](CArchive& ar) { tab.Serialize(ar); }), expected);

    CSurvivalTabData back;
    Load(expected, [&](CArchive& ar) { back.Serialize(ar); });
    // Parametric: the distribution is written and the ties are not.
    EXPECT_EQ(LinesOf(back),
              (Lines16{u"SURVIVAL", u"MODEL  ", u"SAVE 's.kvd' / HAZARD", u"ESTIMATE / LOGLOGISTIC CONV=0.01"}));
    EXPECT_THROW(Load(Bytes(expected.begin(), expected.end() - 1), [&](CArchive& ar) { back.Serialize(ar); }),
                 CArchiveException);
}

TEST_F(SurvivalRecord, TheNonparametricTestsFollowTheStrataOfItsModelPage)
{
    CSurvivalNParTabData tab;
    SetModel(*tab.GetModelData(), u"k.kvd");
    tab.GetNParData()->SetAll(1, Changed(4.0, 0.0), 0, 1, 1, 0, CSurvivalNParData::GetDefaultConfidenceEdit());
    const Bytes expected = Cat({ModelPage(u"k.kvd"), Int32(1), Int32(0), Int32(1), Int32(1), Int32(0),
                                DataRecord(0, 0, 0.0, 4.0), DataRecord(1, 0, 0.95, 0.95)});
    EXPECT_EQ(Store([&](CArchive& ar) { tab.Serialize(ar); }), expected);

    CSurvivalNParTabData back;
    Load(expected, [&](CArchive& ar) { back.Serialize(ar); });
    const Lines16 withoutStrata{u"SURVIVAL", u"MODEL  ", u"SAVE 'k.kvd' / HAZARD", u"LTAB / WIDTH = 4"};
    EXPECT_EQ(LinesOf(back), withoutStrata);

    // With a stratum variable the checked tests follow.
    CGUIArray<CGUIDataVariable> none;
    CGUIArray<CGUIDataVariable> strata;
    strata.Add(CGUIDataVariable(u"G", NmsEnum::VT_NUMERIC, 0, u"", 0));
    back.GetModelData()->SetAll(none, none, none, none, strata, none, Changed(9, 0), 0, 2, u"");
    Lines16 withStrata{u"SURVIVAL", u"MODEL  / STRATA = G", u"LTAB / WIDTH = 4", u"TEST / BRESLOW TARONE"};
    EXPECT_EQ(LinesOf(back), withStrata);
    EXPECT_THROW(Load(Bytes(expected.begin(), expected.end() - 4), [&](CArchive& ar) { back.Serialize(ar); }),
                 CArchiveException);
}
