// The archive against byte sequences worked out by hand from the desktop
// framework's format, and its behaviour on broken input.
#include "tests/support/ArchiveBytes.h"

#include <gtest/gtest.h>

#include <unistd.h>

using namespace kaltest;

namespace {

CString Repeated(int count, char16_t ch)
{
    return CString(ch, count);
}

CString LoadString(const Bytes& bytes)
{
    CString s;
    Load(bytes, [&](CArchive& ar) { ar >> s; });
    return s;
}

ULONGLONG LoadCount(const Bytes& bytes)
{
    ULONGLONG n = 0;
    Load(bytes, [&](CArchive& ar) { n = ar.ReadCount(); });
    return n;
}

CArchiveException::Cause CauseOf(const Bytes& bytes, void (*read)(CArchive&))
{
    try {
        Load(bytes, read);
    } catch (const CArchiveException& e) {
        return e.m_cause;
    }
    return CArchiveException::none;
}

} // namespace

TEST(ArchiveStrings, EachLengthFormMatchesTheFrameworkBytes)
{
    struct Case {
        int length;
        Bytes header;
    };
    // Marker FF FE FF, then the length: a byte below FF, FF + WORD below
    // FFFE, else FF FFFF + DWORD.
    const Case cases[] = {
        {0, {0xFF, 0xFE, 0xFF, 0x00}},
        {254, {0xFF, 0xFE, 0xFF, 0xFE}},
        {255, {0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0x00}},
        {65533, {0xFF, 0xFE, 0xFF, 0xFF, 0xFD, 0xFF}},
        {65534, {0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFE, 0xFF, 0x00, 0x00}},
        {65535, {0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0x00}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.length);
        const CString text = Repeated(c.length, u'\u00E9');
        const Bytes expected = Cat({c.header, Units(static_cast<std::size_t>(c.length), u'\u00E9')});
        EXPECT_EQ(Store([&](CArchive& ar) { ar << text; }), expected);
        EXPECT_EQ(LoadString(expected), text);
    }
}

TEST(ArchiveStrings, EightBitFormLoadsAsLatin1)
{
    EXPECT_EQ(LoadString({0x03, 'a', 'b', 0xE9}), CString(u"ab\u00E9"));
    EXPECT_EQ(LoadString({0x00}), CString());
    // Long 8-bit form: FF + WORD length.
    const Bytes longForm = Cat({{0xFF, 0x2C, 0x01}, Bytes(300, 'x')});
    EXPECT_EQ(LoadString(longForm), Repeated(300, u'x'));
}

TEST(ArchiveStrings, NonAsciiUnitsSurviveARoundTrip)
{
    const CString text = CString::FromUtf8("Gr\xC3\xB6\xC3\x9F"
                                           "e \xF0\x9F\x93\x88");
    CString back;
    const Bytes bytes = Store([&](CArchive& ar) { ar << text; });
    Load(bytes, [&](CArchive& ar) { ar >> back; });
    EXPECT_EQ(back, text);
    EXPECT_EQ(back.ToUtf8(), "Gr\xC3\xB6\xC3\x9F"
                             "e \xF0\x9F\x93\x88");
}

TEST(ArchiveCounts, ThreeFormsMatchTheFrameworkBytes)
{
    const std::pair<ULONGLONG, Bytes> cases[] = {
        {0, {0x00, 0x00}},
        {0xFFFE, {0xFE, 0xFF}},
        {0xFFFF, {0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0x00}},
        {0xFFFFFFFEull, {0xFF, 0xFF, 0xFE, 0xFF, 0xFF, 0xFF}},
        {0xFFFFFFFFull, {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 0, 0}},
    };
    for (const auto& [count, bytes] : cases) {
        SCOPED_TRACE(count);
        EXPECT_EQ(Store([&](CArchive& ar) { ar.WriteCount(count); }), bytes);
        EXPECT_EQ(LoadCount(bytes), count);
    }
}

TEST(ArchiveNumbers, AreLittleEndianOfTheirFixedWidth)
{
    const Bytes bytes = Store(
        [](CArchive& ar) { ar << static_cast<BYTE>(0x12) << static_cast<WORD>(0x3456) << -2 << 0x89ABCDEFu << 0.5; });
    EXPECT_EQ(bytes,
              (Bytes{0x12, 0x56, 0x34, 0xFE, 0xFF, 0xFF, 0xFF, 0xEF, 0xCD, 0xAB, 0x89, 0, 0, 0, 0, 0, 0, 0xE0, 0x3F}));
}

TEST(ArchiveErrors, ShortDataEndsInEndOfFile)
{
    EXPECT_EQ(CauseOf({0x01, 0x02, 0x03},
                      [](CArchive& ar) {
                          int v;
                          ar >> v;
                      }),
              CArchiveException::endOfFile);
    EXPECT_EQ(CauseOf({0xFF, 0xFE, 0xFF, 0x05, 'a', 0},
                      [](CArchive& ar) {
                          CString s;
                          ar >> s;
                      }),
              CArchiveException::endOfFile);
    EXPECT_EQ(CauseOf({0xFF}, [](CArchive& ar) { (void)ar.ReadCount(); }), CArchiveException::endOfFile);
    // A string claiming four billion units in a few bytes.
    EXPECT_EQ(CauseOf({0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFE, 'a', 0},
                      [](CArchive& ar) {
                          CString s;
                          ar >> s;
                      }),
              CArchiveException::endOfFile);
}

TEST(ArchiveErrors, TheWrongDirectionIsRefused)
{
    CMemFile file;
    CArchive storing(&file, CArchive::store);
    int value = 0;
    try {
        storing >> value;
        FAIL() << "loading from a storing archive";
    } catch (const CArchiveException& e) {
        EXPECT_EQ(e.m_cause, CArchiveException::writeOnly);
    }

    CMemFile data(Bytes{1, 0, 0, 0});
    CArchive loading(&data, CArchive::load);
    try {
        loading << 7;
        FAIL() << "storing into a loading archive";
    } catch (const CArchiveException& e) {
        EXPECT_EQ(e.m_cause, CArchiveException::readOnly);
    }
    loading >> value;
    EXPECT_EQ(value, 1);
}

TEST(ArchiveErrors, ASecondUnicodeMarkerIsMalformed)
{
    EXPECT_EQ(CauseOf({0xFF, 0xFE, 0xFF, 0xFF, 0xFE, 0xFF, 0x00},
                      [](CArchive& ar) {
                          CString s;
                          ar >> s;
                      }),
              CArchiveException::badIndex);
}

TEST(ArchiveFile, StoresAndLoadsThroughAFile)
{
    const auto path = std::filesystem::temp_directory_path() / ("kal-archive-" + std::to_string(::getpid()));
    {
        CFile file(path, CFile::modeCreate | CFile::modeWrite);
        CArchive ar(&file, CArchive::store);
        ar << CString(u"file") << 42;
        ar.Close();
    }
    CFile file(path, CFile::modeRead);
    CArchive ar(&file, CArchive::load);
    CString text;
    int number = 0;
    ar >> text >> number;
    EXPECT_EQ(text, CString(u"file"));
    EXPECT_EQ(number, 42);
    std::filesystem::remove(path);

    EXPECT_THROW(CFile(path / "missing", CFile::modeRead), CFileException);
}

TEST(ArchiveFile, AnArchiveThatCannotBeWrittenOutSaysTheDiskIsFull)
{
    if (!std::filesystem::exists("/dev/full"))
        GTEST_SKIP() << "no /dev/full here";
    CFile file("/dev/full", CFile::modeWrite);
    CArchive ar(&file, CArchive::store);
    ar << CString(u"settings") << 42;
    try {
        ar.Close();
        ADD_FAILURE() << "the archive closed as if written";
    } catch (const CFileException& e) {
        EXPECT_EQ(e.m_cause, CFileException::diskFull);
    }
}
