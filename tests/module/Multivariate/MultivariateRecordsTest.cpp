// The records of factor analysis, the two cluster analyses, correspondence
// analysis, set correlation and both kinds of trees: the factor model page's
// bytes field by field, and every record stored again after a load giving
// the same bytes, whatever was chosen; a record cut short throws.
#include "private/Multivariate/KDGAddTreeData.h"
#include "private/Multivariate/KDGCoranTabData.h"
#include "private/Multivariate/KDGFactorTabData.h"
#include "private/Multivariate/KDGJoinTabData.h"
#include "private/Multivariate/KDGMultivarClusterKmeansTabData.h"
#include "private/Multivariate/KDGSetCorTabData.h"
#include "private/Multivariate/KDGTreesTabData.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/DialogTesting.h"

#include <gtest/gtest.h>

using namespace kaltest;

namespace {

class MultivariateRecords : public HeadlessDialogTest {
protected:
    MultivariateRecords() : HeadlessDialogTest({u"Y", u"Y2", u"A"}) {}

    // Stored, loaded into a fresh object, stored again: the same bytes; and
    // every shorter record refuses to load.
    template <class TData>
    void ExpectStoresAgainWhatItLoads(TData& data)
    {
        const Bytes first = Store([&](CArchive& ar) { data.Serialize(ar); });
        TData back;
        Load(first, [&](CArchive& ar) { back.Serialize(ar); });
        EXPECT_EQ(Store([&](CArchive& ar) { back.Serialize(ar); }), first);
        for (std::size_t cut : {std::size_t{1}, first.size() / 2, first.size() - 1}) {
            TData partial;
            EXPECT_THROW(Load(Bytes(first.begin(), first.begin() + static_cast<std::ptrdiff_t>(cut)),
                              [&](CArchive& ar) { partial.Serialize(ar); }),
                         CArchiveException)
                << cut;
        }
    }
};

// A numeric variable's block: table and name slots, its type, the two ints
// and the second text's slot between them.
Bytes Numeric()
{
    return Cat({Int32(0), Int32(0), Int32(1), Int32(0), Int32(0), Int32(0)});
}

} // namespace

TEST_F(MultivariateRecords, TheFactorModelPageIsItsChoicesTheFileTheListsThenTheCases)
{
    CFactorData model;
    model.SetAll(Vars({}), Vars({u"Y", u"Y2"}), 2, 1, Changed(120, 0), 1, 3, u"f.kvd");
    const Bytes expected = Cat({Int32(2), Int32(1), Int32(1), Int32(3), Text(u"f.kvd"), Word(0), Word(2), Numeric(),
                                Numeric(), DataRecord(0, 0, 0, 120)});
    EXPECT_EQ(Store([&](CArchive& ar) { model.Serialize(ar); }), expected);

    // Names survive where the schema carries them, and the lines follow.
    CFactorData back;
    Load(Store([&](CArchive& ar) { model.Serialize(ar); }, CArchive::namedLists), CArchive::namedLists,
         [&](CArchive& ar) { back.Serialize(ar); });
    EXPECT_EQ(LinesOf(back), (Lines16{u"FACTOR", u"SAVE 'f.kvd' / LOADINGS", u"MODEL Y Y2", u"ESTIMATE / MLA COVA"}));
}

TEST_F(MultivariateRecords, EveryRecordStoresAgainWhatItLoads)
{
    CFactorTabData factor;
    factor.GetFactorOptionsData()->SetAll(1, Changed(0.5, 1.0), Changed(3, 2), 2, Changed(0.5, 0.0), Changed(50, 25),
                                          CFactorOptionsData::GetDefaultConvEdit(), 1);
    factor.GetFactorData()->SetAll(Vars({u"Y", u"Y2", u"A"}), Vars({u"Y", u"Y2"}), 1, 0, Changed(10, 0), 1, 0,
                                   u"scores.kvd");
    ExpectStoresAgainWhatItLoads(factor);

    CJoinTabData join;
    join.GetJoinData()->SetAll(Vars({u"Y"}), Vars({u"Y", u"Y2"}), 1, 4, Changed(1.5, 3.0), 5);
    join.GetJoinOptionsData()->SetAll(1, 1, Changed(4, 2), u"tree.kvd");
    ExpectStoresAgainWhatItLoads(join);

    CMultivarClusterKmeansTabData kmeans;
    kmeans.GetKmeansData()->SetAll(Vars({}), Vars({u"Y", u"Y2"}), Changed(5, 3), 2, CKmeansData::GetDefaultPowerEdit(),
                                   1);
    kmeans.GetKmeansOptionsData()->SetAll(Vars({u"A"}), Vars({u"A"}), 2, Changed(7u, 0u), Changed(40, 20),
                                          Changed(0.01, 0.0001), 1, u"groups.kvd", 1);
    ExpectStoresAgainWhatItLoads(kmeans);

    CCoranTabData coran;
    coran.GetCoranData()->SetAll(Vars({u"Y", u"A"}), Vars({u"A"}), Vars({u"Y", u"Y2"}), Vars({}), Vars({u"Y2"}));
    coran.GetCoranOptionsData()->SetAll(Changed(3, 2), 4, 1, u"points.kvd");
    ExpectStoresAgainWhatItLoads(coran);

    CSetCorTabData sets;
    sets.GetSetCorData()->SetAll(Vars({u"Y"}), Vars({u"Y"}), Vars({}), Vars({u"Y2"}), Vars({u"A"}), 0, 1, 1, 0);
    sets.GetBootStrapData()->SetAll(1, Changed(500, 1000), CBootStrapData::GetDefaultSampleSizeEdit(), Changed(9u, 0u));
    ExpectStoresAgainWhatItLoads(sets);

    CTreesTabData trees;
    trees.GetTreesData()->SetAll(Vars({u"A"}), Vars({u"Y"}), Vars({u"A", u"Y2"}), 1, 1, 2, u"leaves.kvd");
    trees.GetTreesOptionsData()->SetAll(2, 1, Changed(8, 5), CTreesOptionsData::GetDefaultDepthEdit(), 1,
                                        Changed(5, 10));
    ExpectStoresAgainWhatItLoads(trees);

    CAddTreeData additive;
    additive.SetAll(Vars({u"Y"}), Vars({u"Y", u"Y2", u"A"}), 1, 1, 4, Changed(1.5, 3.0), 1, 1, u"fitted.kvd");
    ExpectStoresAgainWhatItLoads(additive);
}
