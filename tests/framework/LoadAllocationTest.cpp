// A count far beyond the data must not be allocated: the largest single
// allocation is recorded while huge counts are loaded from archives a few
// bytes long.
#include "framework/GUIArray.h"
#include "tests/support/AllocationHooks.h"
#include "tests/support/ArchiveBytes.h"

#include <gtest/gtest.h>

namespace {

std::atomic<std::size_t> g_largest{0};

void RecordSize(std::size_t size)
{
    std::size_t seen = g_largest.load();
    while (size > seen && !g_largest.compare_exchange_weak(seen, size)) {
    }
}

void ResetLargestAllocation()
{
    g_largest = 0;
    kaltest::g_onAllocate = &RecordSize;
}

std::size_t LargestAllocationSinceReset()
{
    return g_largest.load();
}

} // namespace

using namespace kaltest;

template <class List>
std::size_t LargestAllocationLoading(const Bytes& bytes, UINT schema)
{
    List list;
    ResetLargestAllocation();
    try {
        Load(bytes, schema, [&](CArchive& ar) { list.Serialize(ar); });
        ADD_FAILURE() << "the load succeeded";
    } catch (const CArchiveException& e) {
        EXPECT_EQ(e.m_cause, CArchiveException::endOfFile);
    }
    return LargestAllocationSinceReset();
}

TEST(LoadAllocation, HugeCountsInShortArchivesAllocateLittle)
{
    // FFFF, FFFFFFFF, then a QWORD of 2^40 elements, then 40 bytes of data.
    const Bytes huge = Cat({{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 0, 0, 0, 1, 0, 0}, Bytes(40, 0x01)});
    constexpr std::size_t kLimit = 1 << 20;
    EXPECT_LT(LargestAllocationLoading<CGUIArray<CGUIDataVariable>>(huge, CArchive::plainLists), kLimit);
    EXPECT_LT(LargestAllocationLoading<CGUIArray<CGUIDataVariable>>(huge, CArchive::namedLists), kLimit);
    EXPECT_LT(LargestAllocationLoading<CGUIArray<int>>(huge, CArchive::plainLists), kLimit);
    EXPECT_LT(LargestAllocationLoading<CGUIArray<double>>(huge, CArchive::plainLists), kLimit);
    EXPECT_LT(LargestAllocationLoading<CGUIArray<CString>>(huge, CArchive::plainLists), kLimit);
    EXPECT_LT((LargestAllocationLoading<CGUIArray<CGUIArray<CGUIDataVariable>>>(huge, CArchive::plainLists)), kLimit);

    // A string whose length claims four billion units.
    CString text;
    ResetLargestAllocation();
    EXPECT_THROW(
        Load({0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFE, 'a', 0}, [&](CArchive& ar) { ar >> text; }),
        CArchiveException);
    EXPECT_LT(LargestAllocationSinceReset(), kLimit);
}
