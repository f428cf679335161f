// The missing-value analysis's record: each page's plain members, then its
// holders, pages in page order; loaded back it writes the same lines, and a
// record cut short throws. Its lines and rules are in tests/scripts.
#include "private/Missing/KDGMissingTabData.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/DialogTesting.h"

#include <gtest/gtest.h>

using namespace kaltest;

namespace {

class MissingRecord : public HeadlessDialogTest {
protected:
    MissingRecord() : HeadlessDialogTest({u"Y"}) {}
};

} // namespace

TEST_F(MissingRecord, StoresThePagesInOrderAndLoadsBackTheSameLines)
{
    CMissingTabData tab;
    CGUIArray<CGUIDataVariable> none;
    tab.GetMissingData()->SetAll(none, none, none, 1, Changed(7.5, 0.0), 1, 1, u"f.kvd");
    tab.GetEstimateData()->SetAll(3, Changed(30, 20), CMissingEstimateData::GetDefaultConvergenceEdit(), 1, 2);
    const Bytes expected =
        Cat({Int32(1), Int32(1), Int32(1), Text(u"f.kvd"), Word(0), Word(0), Word(0), DataRecord(0, 0, 0.0, 7.5),
             Int32(3), Int32(1), Int32(2), DataRecord(0, 0, 20, 30), DataRecord(1, 0, 0.001, 0.001)});
    EXPECT_EQ(Store([&](CArchive& ar) { tab.Serialize(ar); }), expected);

    CMissingTabData back;
    Load(expected, [&](CArchive& ar) { back.Serialize(ar); });
    // Regression imputation: its own module, and no EM clauses.
    EXPECT_EQ(LinesOf(back), (Lines16{u"MISSREG", u"MODEL ", u"PATTERN / CUTOFF = 7.5", u"SAVE 'f.kvd' / DATA",
                                      u"ESTIMATE / REGRESSION MATRIX = CORR"}));
    EXPECT_THROW(Load(Bytes(expected.begin(), expected.end() - 1), [&](CArchive& ar) { back.Serialize(ar); }),
                 CArchiveException);
}

TEST_F(MissingRecord, AVariablesPageOutsideItsTabWritesTheDeletionModule)
{
    CMissingData alone;
    EXPECT_EQ(LinesOf(alone), (Lines16{u"MISSING", u"MODEL ", u"PATTERN"}));
}
