#include "platform/CString.h"

#include "tests/support/Printers.h"

#include <gtest/gtest.h>

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
    EXPECT_EQ(CString::FromUtf8("a\xFF" "b").Str(), std::u16string(u"a\uFFFDb"));
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
}
