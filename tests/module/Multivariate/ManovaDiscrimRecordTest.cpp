// The records of the MANOVA and discriminant settings: the field order of
// each record, what a load gives back (stored again, the same bytes), and
// a record cut short, which throws instead of giving half the settings.
#include "private/Multivariate/KDGDiscrimTabData.h"
#include "private/Multivariate/KDGManovaBetweenData.h"
#include "private/Multivariate/KDGManovaHypothesisTabDlg.h"
#include "private/Multivariate/KDGManovaWithinData.h"
#include "private/Multivariate/KDGMultivariateManovaEstimateTabData.h"
#include "private/Multivariate/KDGRdiscrimData.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/DialogTesting.h"

#include <gtest/gtest.h>

using namespace kaltest;

namespace {

// One numeric variable of a plain list record, its name left out.
Bytes Variable()
{
    return Cat({Int32(0), Int32(0), Int32(NmsEnum::VT_NUMERIC), Int32(0), Int32(0), Int32(0)});
}

template <class T>
Bytes StoreOf(T& settings)
{
    return Store([&](CArchive& ar) { settings.Serialize(ar); });
}

// Loaded from `bytes`, `T` stores the same bytes; `bytes` cut short throws.
template <class T>
void ExpectRoundTripAndCutShort(const Bytes& bytes)
{
    T back;
    Load(bytes, [&](CArchive& ar) { back.Serialize(ar); });
    EXPECT_EQ(StoreOf(back), bytes);
    T cut;
    EXPECT_THROW(Load(Bytes(bytes.begin(), bytes.end() - 3), [&](CArchive& ar) { cut.Serialize(ar); }),
                 CArchiveException);
}

CGUIArray<CString> Texts(std::initializer_list<std::u16string> texts)
{
    CGUIArray<CString> array;
    for (const auto& text : texts)
        array.Add(CString(text));
    return array;
}

} // namespace

TEST(ManovaRecords, BetweenAndWithinSubjectsKeepTheirFieldOrder)
{
    CManovaBetweenData between;
    between.SetAll(Vars({}), Vars({u"Y", u"Y2"}), Vars({u"A"}), Vars({}), 1, 1, 1, 0, 1, 0, 2);
    // missing, univariate, the four statistics, contrast; the four lists.
    const Bytes betweenBytes = Cat({Int32(1), Int32(1), Int32(1), Int32(0), Int32(1), Int32(0), Int32(2), Word(0),
                                    Word(2), Variable(), Variable(), Word(1), Variable(), Word(0)});
    EXPECT_EQ(StoreOf(between), betweenBytes);
    ExpectRoundTripAndCutShort<CManovaBetweenData>(betweenBytes);

    CManovaWithinData within;
    CGUIArray<int> levels;
    levels.Add(2);
    levels.Add(2);
    within.SetAll(Vars({}), Vars({u"Y", u"Y2", u"Y3", u"Y4"}), Vars({}), Texts({u"dose", u"time"}), levels,
                  Texts({u"", u"1,4"}), 0, 1, 1, 1, 1, 1, 0);
    // The three corrections and four statistics; the lists; then names,
    // metrics and levels, as the repeated-measures page keeps them.
    const Bytes head = Cat({Int32(0), Int32(1),      Int32(1),      Int32(1),   Int32(1),   Int32(1),    Int32(0),
                            Word(0),  Word(4),       Variable(),    Variable(), Variable(), Variable(),  Word(0),
                            Word(2),  Text(u"dose"), Text(u"time"), Word(2),    Text(u""),  Text(u"1,4")});
    const Bytes withinBytes = StoreOf(within);
    ASSERT_GT(withinBytes.size(), head.size());
    EXPECT_EQ(Bytes(withinBytes.begin(), withinBytes.begin() + static_cast<std::ptrdiff_t>(head.size())), head);
    ExpectRoundTripAndCutShort<CManovaWithinData>(withinBytes);
}

TEST(ManovaRecords, TabsStoreTheirPagesInPageOrder)
{
    CMultivariateManovaEstimateTabData estimate;
    estimate.GetModelData()->SetAll(Vars({}), Vars({u"T1", u"T2"}), Vars({u"A"}), Texts({u"A"}),
                                    CGLMData::GetDefaultDegreeEdit(), CGUIData<int>(0), CGUIDataWnd<int>(1, 1), 0, 0, 6,
                                    {});
    const Bytes estimateBytes = StoreOf(estimate);
    CManovaModelData model = *estimate.GetModelData();
    EXPECT_EQ(Bytes(estimateBytes.begin(), estimateBytes.begin() + static_cast<std::ptrdiff_t>(StoreOf(model).size())),
              StoreOf(model));
    ExpectRoundTripAndCutShort<CMultivariateManovaEstimateTabData>(estimateBytes);

    CManovaHypothesisTabData test;
    test.GetStatisticsData()->SetAll(1, 0, 0, 1);
    const Bytes testBytes = StoreOf(test);
    // The statistics page ends the record.
    EXPECT_EQ(Bytes(testBytes.end() - 16, testBytes.end()), Cat({Int32(1), Int32(0), Int32(0), Int32(1)}));
    ExpectRoundTripAndCutShort<CManovaHypothesisTabData>(testBytes);
}

TEST(DiscrimRecords, ModelPagesAndTheRobustFractions)
{
    CDiscrimTabData tab;
    tab.GetDiscrimData()->SetAll(Vars({}), Vars({u"G"}), Vars({u"X", u"X2"}), 1, 2, u"0.4 0.6", 1, 1, 3, u"s.kvd");
    // quadratic, priors, cross-validation, save, save kind; the priors and
    // file texts; the lists.
    const Bytes model = Cat({Int32(1), Int32(2), Int32(1), Int32(1), Int32(3), Text(u"0.4 0.6"), Text(u"s.kvd"),
                             Word(0), Word(1), Variable(), Word(2), Variable(), Variable()});
    const Bytes tabBytes = StoreOf(tab);
    ASSERT_GT(tabBytes.size(), model.size());
    EXPECT_EQ(Bytes(tabBytes.begin(), tabBytes.begin() + static_cast<std::ptrdiff_t>(model.size())), model);
    ExpectRoundTripAndCutShort<CDiscrimTabData>(tabBytes);

    CRdiscrimData robust;
    robust.SetAll(Vars({}), Vars({u"G"}), Vars({u"X"}), 0, 1, CGUIData<double>(0.25),
                  CGUIData<double>(0, 0.3, 0.5, 0, 1), 0, {}, 0, 0, 0, {});
    // The two fractions end the record: the trimming at its default, the
    // breakdown point changed.
    const Bytes robustBytes = StoreOf(robust);
    EXPECT_EQ(Bytes(robustBytes.end() - 56, robustBytes.end()),
              Cat({DataRecord(1, 0, 0.25, 0.25), DataRecord(0, 0, 0.5, 0.3)}));
    ExpectRoundTripAndCutShort<CRdiscrimData>(robustBytes);
}
