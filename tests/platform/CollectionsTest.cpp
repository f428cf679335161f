// The framework's array at its bounds (every index outside it, and every
// size or count that would reach past it, is refused with
// CInvalidArgException and leaves the array as it was), and its copies,
// which share the elements until one of them changes.
#include "platform/Collections.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

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

TEST(CArraySharing, CopiesShareTheElementsUntilOneOfThemChanges)
{
    const CArray<CString> names{u"dose", u"time", u"weight"};
    // Every way of changing a copy leaves the original as it was.
    const std::vector<std::function<void(CArray<CString>&)>> edits = {
        [](CArray<CString>& a) { a.SetAt(0, u"x"); },
        [](CArray<CString>& a) { a[1] = u"x"; },
        [](CArray<CString>& a) { a.ElementAt(2) += u"!"; },
        [](CArray<CString>& a) { a.Add(u"x"); },
        [](CArray<CString>& a) { a.InsertAt(0, u"x"); },
        [](CArray<CString>& a) { a.RemoveAt(1); },
        [](CArray<CString>& a) { a.RemoveMarked({true}); },
        [](CArray<CString>& a) { a.SetSize(1); },
        [](CArray<CString>& a) { a.RemoveAll(); },
        [](CArray<CString>& a) { a.Append(a); },
        [](CArray<CString>& a) {
            for (auto& name : a)
                name.MakeUpper();
        },
    };
    for (std::size_t i = 0; i < edits.size(); ++i) {
        CArray<CString> changed = names;
        EXPECT_TRUE(changed.SharesElementsWith(names)) << i;
        edits[i](changed);
        EXPECT_FALSE(changed.SharesElementsWith(names)) << i;
        EXPECT_NE(changed, names) << i;
        EXPECT_EQ(names, (CArray<CString>{u"dose", u"time", u"weight"})) << i;
    }
    // Changing the original leaves its copies as they were, too.
    CArray<CString> original = names;
    const CArray<CString> copy = original;
    original[0] = u"y";
    EXPECT_EQ(copy[0], CString(u"dose"));

    // An array appended to itself holds its elements twice; reading through
    // a const array keeps sharing.
    CArray<CString> twice = names;
    twice.Append(twice);
    EXPECT_EQ(twice.GetSize(), 6);
    EXPECT_EQ(twice[5], CString(u"weight"));
    const CArray<CString>& reader = original;
    CArray<CString> shared = reader;
    for (const auto& name : reader)
        EXPECT_FALSE(name.IsEmpty());
    EXPECT_TRUE(shared.SharesElementsWith(original));
}
