// The framework's array at its bounds: every index outside it, and every
// size or count that would reach past it, is refused with
// CInvalidArgException and leaves the array as it was.
#include "platform/Collections.h"

#include <gtest/gtest.h>

#include <functional>

TEST(CArrayBounds, AccessOutsideTheArrayIsRefusedAndChangesNothing)
{
    CArray<int> a{1, 2, 3};
    const CArray<int>& constant = a;
    const std::function<void()> outside[] = {
        [&] { (void)constant.GetAt(-1); }, [&] { (void)constant[3]; }, [&] { (void)a.ElementAt(3); },
        [&] { a.SetAt(-1, 9); },           [&] { a.SetAt(3, 9); },     [&] { a.InsertAt(-1, 9); },
        [&] { a.InsertAt(4, 9); },         [&] { a.RemoveAt(-1); },    [&] { a.RemoveAt(2, 2); },
        [&] { a.RemoveAt(0, -1); },        [&] { a.SetSize(-1); },     [&] { (void)CArray<int>().GetAt(0); },
    };
    for (std::size_t i = 0; i < std::size(outside); ++i) {
        EXPECT_THROW(outside[i](), CInvalidArgException) << i;
        EXPECT_EQ(a, (CArray<int>{1, 2, 3})) << i;
    }
    // The bounds themselves are inside.
    a.InsertAt(3, 4);
    a.SetAt(0, 0);
    a.RemoveAt(1, 3);
    EXPECT_EQ(a, CArray<int>{0});
    EXPECT_EQ(a[a.GetUpperBound()], 0);
}
