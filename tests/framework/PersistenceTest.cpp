// Value holders and lists in the archive, against bytes worked out by hand.
#include "framework/GUIArray.h"
#include "framework/GUIData.h"
#include "tests/support/ArchiveBytes.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <unistd.h>

using namespace kaltest;

namespace {

// IEEE 754 doubles, little-endian.
const Bytes kDouble0_001 = {0xFC, 0xA9, 0xF1, 0xD2, 0x4D, 0x62, 0x50, 0x3F};
const Bytes kDouble2_5 = {0, 0, 0, 0, 0, 0, 0x04, 0x40};

CGUIArray<CGUIDataVariable> TwoVariables()
{
    CGUIArray<CGUIDataVariable> list;
    list.Add(CGUIDataVariable(u"Y", NmsEnum::VT_NUMERIC, 3, u"yield", 0));
    list.Add(CGUIDataVariable(u"B$", NmsEnum::VT_STRING, 7, {}, 1));
    return list;
}

} // namespace

TEST(ValueHolderArchive, DoubleRecordIsStoredInTheFrameworkFieldOrder)
{
    const CGUIData<double> value(0, 2.5, 0.001, 0, 1);
    // state, flag 1, default, value, flag 2
    const Bytes expected = Cat({Int32(0), Int32(0), kDouble0_001, kDouble2_5, Int32(1)});
    EXPECT_EQ(Store([&](CArchive& ar) { const_cast<CGUIData<double>&>(value).Serialize(ar); }), expected);

    CGUIData<double> back(7, 9.0, 9.0, 7, 7);
    Load(expected, [&](CArchive& ar) { back.Serialize(ar); });
    EXPECT_EQ(back, value);
}

TEST(ValueHolderArchive, AnUnsignedValueBeyondTheIntRangeComesBack)
{
    CGUIData<unsigned int> count(0, 4000000000u, 15u, 1, 0);
    CGUIData<unsigned int> countBack;
    Load(Store([&](CArchive& ar) { count.Serialize(ar); }), [&](CArchive& ar) { countBack.Serialize(ar); });
    EXPECT_EQ(countBack, count);
}

TEST(VariableListArchive, PlainLayoutIsCountThenTwentyFourByteBlocks)
{
    auto list = TwoVariables();
    // A row per variable.
    // clang-format off
    const Bytes expected = Cat({
        {0x02, 0x00},
        Int32(0), Int32(0), Int32(1), Int32(3), Int32(0), Int32(0),
        Int32(0), Int32(0), Int32(3), Int32(7), Int32(0), Int32(1),
    });
    // clang-format on
    EXPECT_EQ(Store([&](CArchive& ar) { list.Serialize(ar); }), expected);

    CGUIArray<CGUIDataVariable> back;
    back.Add(CGUIDataVariable(u"stale", NmsEnum::VT_NUMERIC));
    Load(expected, [&](CArchive& ar) { back.Serialize(ar); });
    ASSERT_EQ(back.GetSize(), 2);
    // Names are not part of the plain layout.
    EXPECT_TRUE(back[0].GetVariableName().IsEmpty());
    EXPECT_EQ(back[0].GetVariableType(), NmsEnum::VT_NUMERIC);
    EXPECT_EQ(back[0].GetColumn(), 3);
    EXPECT_EQ(back[1].GetVariableType(), NmsEnum::VT_STRING);
    EXPECT_EQ(back[1].GetColumn(), 7);
    EXPECT_EQ(back[1].IsSelected(), 1);

    CGUIArray<CGUIDataVariable> empty;
    EXPECT_EQ(Store([&](CArchive& ar) { empty.Serialize(ar); }), (Bytes{0x00, 0x00}));
}

TEST(VariableListArchive, ALongListIsTheSameThroughADiskFileAndAMemoryFile)
{
    // Several of the archive's blocks and a part of one: memory files are
    // written and read in place, disk files through a buffer.
    CGUIArray<CGUIDataVariable> list;
    for (int i = 0; i < 10'000; ++i)
        list.Add(CGUIDataVariable(u"V", i % 3 ? NmsEnum::VT_NUMERIC : NmsEnum::VT_STRING, i, {}, i % 7 == 0));
    const Bytes inMemory = Store([&](CArchive& ar) { list.Serialize(ar); });
    ASSERT_EQ(inMemory.size(), 2 + 10'000 * CGUIDataVariable::kBlockSize); // a 16-bit count, then the blocks

    const auto path = std::filesystem::temp_directory_path() / ("kal-list-" + std::to_string(::getpid()));
    {
        CFile file(path, CFile::modeCreate | CFile::modeWrite);
        CArchive ar(&file, CArchive::store);
        list.Serialize(ar);
        ar.Close();
    }
    CGUIArray<CGUIDataVariable> fromDisk;
    {
        CFile file(path, CFile::modeRead);
        EXPECT_EQ(file.GetLength(), inMemory.size());
        CArchive ar(&file, CArchive::load);
        fromDisk.Serialize(ar);
    }
    std::filesystem::remove(path);
    EXPECT_EQ(Store([&](CArchive& ar) { fromDisk.Serialize(ar); }), inMemory);
    ASSERT_EQ(fromDisk.GetSize(), 10'000);
    EXPECT_EQ(fromDisk[9'999].GetColumn(), 9'999);
    EXPECT_EQ(fromDisk[7'000].IsSelected(), 1);
    EXPECT_EQ(fromDisk[7'001].IsSelected(), 0);
}

TEST(VariableListArchive, NamedLayoutKeepsNamesAndLabels)
{
    auto list = TwoVariables();
    // A row per variable.
    // clang-format off
    const Bytes expected = Cat({
        {0x02, 0x00},
        {0xFF, 0xFE, 0xFF, 0x01}, Units(1, u'Y'), Int32(1), Int32(3),
        {0xFF, 0xFE, 0xFF, 0x05}, {'y', 0, 'i', 0, 'e', 0, 'l', 0, 'd', 0}, Int32(0),
        {0xFF, 0xFE, 0xFF, 0x02}, {'B', 0, '$', 0}, Int32(3), Int32(7),
        {0xFF, 0xFE, 0xFF, 0x00}, Int32(1),
    });
    // clang-format on
    EXPECT_EQ(Store([&](CArchive& ar) { list.Serialize(ar); }, CArchive::namedLists), expected);
    CGUIArray<CGUIDataVariable> back;
    Load(expected, CArchive::namedLists, [&](CArchive& ar) { back.Serialize(ar); });
    ASSERT_EQ(back.GetSize(), 2);
    EXPECT_EQ(back[0].GetVariableName(), CString(u"Y"));
    EXPECT_EQ(back[0].GetLabel(), CString(u"yield"));
    EXPECT_EQ(back[1].GetVariableName(), CString(u"B$"));
    EXPECT_EQ(back[1].IsSelected(), 1);
    EXPECT_EQ(back[1].GetNameHash(), CTextIndex::Hash(u"B$")); // long lists are indexed by it
}

TEST(ListArchive, TextNumberAndNestedListsRoundTrip)
{
    CGUIArray<CString> names{CString(u"a"), CString(u"level two")};
    CGUIArray<int> levels{2, -3};
    CGUIArray<double> weights{0.5};
    CGUIArray<CGUIArray<CGUIDataVariable>> sets;
    sets.Add(TwoVariables());
    sets.Add(CGUIArray<CGUIDataVariable>());

    const Bytes bytes = Store([&](CArchive& ar) {
        names.Serialize(ar);
        levels.Serialize(ar);
        weights.Serialize(ar);
        sets.Serialize(ar);
    });
    // The int list in the middle is count + raw values.
    const Bytes intPart = Cat({{0x02, 0x00}, Int32(2), Int32(-3)});
    EXPECT_NE(std::search(bytes.begin(), bytes.end(), intPart.begin(), intPart.end()), bytes.end());

    CGUIArray<CString> names2;
    CGUIArray<int> levels2;
    CGUIArray<double> weights2;
    CGUIArray<CGUIArray<CGUIDataVariable>> sets2;
    Load(bytes, [&](CArchive& ar) {
        names2.Serialize(ar);
        levels2.Serialize(ar);
        weights2.Serialize(ar);
        sets2.Serialize(ar);
    });
    EXPECT_EQ(names2, names);
    EXPECT_EQ(levels2, levels);
    EXPECT_EQ(weights2, weights);
    ASSERT_EQ(sets2.GetSize(), 2);
    EXPECT_EQ(sets2[0].GetSize(), 2);
    EXPECT_EQ(sets2[1].GetSize(), 0);
}

TEST(ArchiveRobustness, AFailedLoadLeavesTheListAsItWas)
{
    auto list = TwoVariables();
    const Bytes truncated = {0x05, 0x00, 0, 0, 0, 0};
    EXPECT_THROW(Load(truncated, [&](CArchive& ar) { list.Serialize(ar); }), CArchiveException);
    ASSERT_EQ(list.GetSize(), 2);
    EXPECT_EQ(list[0].GetVariableName(), CString(u"Y"));
}
