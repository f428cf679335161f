#include "platform/CString.h"

#include "tests/support/Printers.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

TEST(CStringText, EditingOperationsFollowTheFramework)
{
    CString s(u"  DEPEND Y / X  ");
    EXPECT_EQ(s.Find(u'/'), 11);
    EXPECT_EQ(s.Find(u"Y"), 9);
    EXPECT_EQ(s.Find(u"Z"), -1);
    EXPECT_EQ(s.Find(u'Y', 10), -1);
    EXPECT_EQ(CString(s).Trim(), CString(u"DEPEND Y / X"));
    EXPECT_EQ(CString(s).TrimLeft(), CString(u"DEPEND Y / X  "));
    EXPECT_EQ(CString(s).TrimRight(), CString(u"  DEPEND Y / X"));

    CString t(u"a-b-c");
    EXPECT_EQ(t.Replace(u"-", u" + "), 2);
    EXPECT_EQ(t, CString(u"a + b + c"));
    EXPECT_EQ(t.Left(3), CString(u"a +"));
    EXPECT_EQ(t.Mid(4, 1), CString(u"b"));
    EXPECT_EQ(t.Right(1), CString(u"c"));
    EXPECT_EQ(t.Left(100), t);
    EXPECT_EQ(t.Mid(100), CString());
    EXPECT_EQ(t.Right(-1), CString());
}

TEST(CStringText, Utf8EdgesRoundTripAndRepairBadInput)
{
    const std::string text = "x \xE2\x82\xAC \xF0\x9D\x84\x9E";
    EXPECT_EQ(CString::FromUtf8(text).ToUtf8(), text);
    EXPECT_EQ(CString::FromUtf8(text).GetLength(), 6); // the clef takes two units
    EXPECT_EQ(CString::FromUtf8("a\xFF"
                                "b")
                  .Str(),
              std::u16string(u"a\uFFFDb"));
    EXPECT_EQ(CString::FromUtf8("\xE2\x82").Str(), std::u16string(u"\uFFFD\uFFFD"));
    EXPECT_EQ(CString::FromUtf8("\xC0\x80").Str(), std::u16string(u"\uFFFD\uFFFD")); // overlong NUL
}

TEST(CStringNumbers, DoublesUseTheShortestSixDigitForm)
{
    EXPECT_EQ(CString::FromNumber(0.95), CString(u"0.95"));
    EXPECT_EQ(CString::FromNumber(1e-12), CString(u"1e-12"));
    EXPECT_EQ(CString::FromNumber(15.0), CString(u"15"));
    EXPECT_EQ(CString::FromNumber(1234567.0), CString(u"1.23457e+06"));
    EXPECT_EQ(CString::FromNumber(0.001), CString(u"0.001"));
    EXPECT_EQ(CString::FromNumber(-2.5, u','), CString(u"-2,5"));
    EXPECT_EQ(CString::FromNumber(-7), CString(u"-7"));
    EXPECT_EQ(CString::FromNumber(4000000000u), CString(u"4000000000"));
}

TEST(CStringText, ControlCharactersAreDetected)
{
    EXPECT_FALSE(ContainsControlCharacter(CString(u"plain name")));
    EXPECT_TRUE(ContainsControlCharacter(CString(u"two\nlines")));
    EXPECT_TRUE(ContainsControlCharacter(CString(u"tab\there")));
    EXPECT_TRUE(ContainsControlCharacter(CString(std::u16string(u"nul\0x", 5))));
    EXPECT_TRUE(ContainsControlCharacter(CString(u"del\u007F")));

    // Long texts are tested in blocks: a control character is found at
    // either edge of a block and in the rest after the last whole one.
    const std::u16string plain(200, u'a');
    EXPECT_FALSE(ContainsControlCharacter(CString(plain + u" ~\u0080\u00FF")));
    for (const std::size_t at : {0, 63, 64, 127, 128, 191, 192, 199}) {
        for (const char16_t control : {u'\x01', u'\x1F', u'\x7F'}) {
            std::u16string text = plain;
            text[at] = control;
            EXPECT_TRUE(ContainsControlCharacter(CString(text))) << at;
        }
    }

    // A text found (or known) free of them is not read again, until it
    // changes: in place, or in a copy.
    for (CString line : {CString(u"COVAR a b"), CString::KnownPrintable(u"COVAR a b")}) {
        EXPECT_FALSE(ContainsControlCharacter(line));
        CString copy = line;
        copy += u"\n";
        EXPECT_TRUE(ContainsControlCharacter(copy));
        line.SetAt(0, u'\t');
        EXPECT_TRUE(ContainsControlCharacter(line));
    }
}

TEST(CStringSharing, CopiesShareTheBufferUntilOneOfThemChanges)
{
    const CString name(u"dose level");
    CString copy = name;
    EXPECT_TRUE(copy.SharesBufferWith(name));
    // Every way of changing a copy leaves the original as it was.
    const std::vector<std::function<void(CString&)>> edits = {
        [](CString& s) { s += u"!"; },
        [](CString& s) { s.SetAt(0, u'D'); },
        [](CString& s) { s.Replace(u" ", u"_"); },
        [](CString& s) { s.Remove(u'e'); },
        [](CString& s) { s.TrimLeft(u'd'); },
        [](CString& s) { s.MakeUpper(); },
        [](CString& s) { s.Empty(); },
        [](CString& s) { s = CString(u"x"); },
        [](CString& s) { EXPECT_EQ(s.TakeText(), u"dose level"); },
    };
    for (const auto& edit : edits) {
        CString changed = name;
        edit(changed);
        EXPECT_FALSE(changed.SharesBufferWith(name));
        EXPECT_EQ(name, CString(u"dose level"));
    }

    // Assigning a string to itself, and appending it to itself.
    copy = copy;
    EXPECT_EQ(copy, name);
    CString twice = name;
    twice += twice;
    EXPECT_EQ(twice, CString(u"dose leveldose level"));
    EXPECT_EQ(name, CString(u"dose level"));

    // Parts that are the whole share too; empty strings own nothing.
    EXPECT_TRUE(name.Mid(0).SharesBufferWith(name));
    EXPECT_FALSE(name.Left(4).SharesBufferWith(name));
    CString moved = std::move(copy);
    EXPECT_TRUE(moved.SharesBufferWith(name));
    EXPECT_TRUE(copy.IsEmpty()); // NOLINT(bugprone-use-after-move): a moved-from string is empty
    EXPECT_FALSE(CString().SharesBufferWith(CString()));

    // A string of its own gives its text away and is left empty.
    CString own(u"COVAR ");
    EXPECT_EQ(own.TakeText(), u"COVAR ");
    EXPECT_TRUE(own.IsEmpty());
    CString sole(u'x', 64); // beyond the small-string buffer: the text moves
    const char16_t* buffer = sole.Str().data();
    EXPECT_EQ(sole.TakeText().data(), buffer);
    EXPECT_EQ(CString().TakeText(), u"");
}
