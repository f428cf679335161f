// The response-surface records: the factor page's units, lists and ranges
// (NaN where an end is not given), the optimization's goals and the plot's
// axes and held values; loaded back they write the same lines, and a record
// cut short throws. Lines and rules: tests/scripts/rsm-*.kal.
#include "private/ResponseSurface/KDGRsmOptimizationTabData.h"
#include "private/ResponseSurface/KDGRsmPlotData.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/DialogTesting.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace kaltest;

namespace {

class RsmRecord : public HeadlessDialogTest {
protected:
    RsmRecord() : HeadlessDialogTest({u"Y"}) {}

    template <class T>
    static CGUIArray<T> Array(std::initializer_list<T> values)
    {
        CGUIArray<T> array;
        for (const T& value : values)
            array.Add(value);
        return array;
    }
    static Bytes Doubles(std::initializer_list<double> values)
    {
        Bytes bytes = Word(static_cast<std::uint16_t>(values.size()));
        for (const double value : values)
            bytes = Cat({bytes, Float64(value)});
        return bytes;
    }
    static Bytes Texts(std::initializer_list<std::u16string_view> texts)
    {
        Bytes bytes = Word(static_cast<std::uint16_t>(texts.size()));
        for (const auto text : texts)
            bytes = Cat({bytes, Text(text)});
        return bytes;
    }
    // Coded units, no variables and ranges for two factors that are not
    // there: lists are counts only in a plain record.
    static void SetFactors(CRsmFactorsData& factors)
    {
        CGUIArray<CGUIDataVariable> none;
        factors.SetAll(none, none, none, none, Array({1.0, nan}), Array({2.0, 3.0}), 1);
    }
    static Bytes FactorsRecord()
    {
        return Cat({Int32(1), Word(0), Word(0), Word(0), Word(0), Doubles({1.0, nan}), Doubles({2.0, 3.0})});
    }

    static inline const double nan = std::nan("");
};

} // namespace

TEST_F(RsmRecord, TheOptimizationStoresItsRangesAndGoalsAndLosesNone)
{
    CRsmOptimizationTabData tab;
    SetFactors(*tab.GetFactorsData());
    tab.GetOptimizationData()->SetAll(Array<CString>({u"Y", u"Z"}), Array({1, 3}), Array({5.0, 1.0}), Array({nan, 2.0}),
                                      Array({9.0, 3.0}), Array({nan, 2.0}), 0,
                                      CRsmOptimizationData::GetDefaultRadiusEdit());
    const Bytes expected =
        Cat({FactorsRecord(), Int32(0), Texts({u"Y", u"Z"}), Word(2), Int32(1), Int32(3), Doubles({5.0, 1.0}),
             Doubles({nan, 2.0}), Doubles({9.0, 3.0}), Doubles({nan, 2.0}), DataRecord(1, 0, 1.0, 1.0)});
    const Bytes stored = Store([&](CArchive& ar) { tab.Serialize(ar); });
    EXPECT_EQ(stored, expected);

    CRsmOptimizationTabData back;
    Load(stored, [&](CArchive& ar) { back.Serialize(ar); });
    // The factors' names are not in a plain record: no factor line; the
    // goals keep theirs.
    EXPECT_EQ(LinesOf(back), (Lines16{u"RSM", u"MODEL  = ", u"GOAL Y / MAXIMIZE LOW = 5 HIGH = 9",
                                      u"GOAL Z / TARGET = 2 LOW = 1 HIGH = 3 WEIGHT = 2", u"OPTIMIZE / DESIRABILITY"}));
    EXPECT_THROW(Load(Bytes(stored.begin(), stored.end() - 9), [&](CArchive& ar) { back.Serialize(ar); }),
                 CArchiveException);
}

TEST_F(RsmRecord, ThePlotKeepsItsAxesAndHeldValuesAcrossARecord)
{
    CRsmPlotData plot;
    SetFactors(*plot.GetFactorsData());
    plot.GetPlotData()->SetAll(1, u"A", u"B", Array<CString>({u"A", u"C", u"D"}), Array({4.0, 0.5, nan}),
                               CRsmPlotPageData::GetDefaultPointsEdit());
    const Bytes stored = Store([&](CArchive& ar) { plot.Serialize(ar); });
    EXPECT_EQ(stored, Cat({FactorsRecord(), Int32(1), Text(u"A"), Text(u"B"), Texts({u"A", u"C", u"D"}),
                           Doubles({4.0, 0.5, nan}), DataRecord(1, 0, 25, 25)}));
    CRsmPlotData back;
    Load(stored, [&](CArchive& ar) { back.Serialize(ar); });
    // An axis's held value is not written, nor a factor held at the middle.
    EXPECT_EQ(LinesOf(back), (Lines16{u"RSM", u"MODEL  = ", u"PLOT A*B / SURFACE HOLD C = 0.5"}));
    EXPECT_THROW(Load(Bytes(stored.begin(), stored.end() - 1), [&](CArchive& ar) { back.Serialize(ar); }),
                 CArchiveException);
}
