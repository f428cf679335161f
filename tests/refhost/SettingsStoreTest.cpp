// The settings store file: round trips, entries of unknown classes, and
// files that cannot be read.
#include "refhost/SettingsStore.h"
#include "Source/DlgStat2.h"
#include "private/Anova/KDGAnovaTabData.h"
#include "tests/support/FakeHost.h"
#include "tests/support/Process.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <fstream>

#include <unistd.h>

using namespace kalhost;

namespace {

CAnovaTabData* Anova()
{
    auto* data = new CAnovaTabData;
    CGUIArray<CGUIDataVariable> dependent;
    dependent.Add(CGUIDataVariable(u"Y", NmsEnum::VT_NUMERIC, 2));
    data->GetAnovaData()->SetAll({}, dependent, {}, {}, 1, 0, 1, 3, 5, u"out.kvd");
    return data;
}

std::vector<std::u16string> LinesOf(const CGUIBaseObj& settings)
{
    CLIST<CCmdInfo> list;
    settings.GetCommandInfoList(list);
    return kaltest::Lines(list);
}

} // namespace

TEST(SettingsStoreFile, RoundTripsObjectsAndCarriesUnknownClasses)
{
    kaltest::FakeHost host;
    kaltest::HostScope scope(&host);
    kaltest::TempDir dir;
    const std::filesystem::path file = dir.Path() + "/settings.store";

    WriteStoreFile(file, {{2066, "CNotInThisModuleData", {1, 2, 3}}});
    {
        SettingsStore withForeign;
        withForeign.Load(file);
        withForeign.Register(2008, Anova());
        EXPECT_TRUE(withForeign.Save(file).written);
    }
    SettingsStore loaded;
    EXPECT_EQ(loaded.Load(file).loaded, 1u);
    ASSERT_NE(loaded.Get(2008), nullptr);
    EXPECT_EQ(LinesOf(*loaded.Get(2008)), LinesOf(*std::unique_ptr<CAnovaTabData>(Anova())));
    const auto entries = ReadStoreFile(file).entries;
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries[0].className, "CNotInThisModuleData");
    EXPECT_EQ(entries[0].record, (std::vector<BYTE>{1, 2, 3}));
    EXPECT_EQ(entries[1].className, "CAnovaTabData");
    // Nothing changed: the file is not rewritten.
    EXPECT_FALSE(loaded.Save(file).written);
    // No temporary file is left behind.
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.Path()), {}), 1);
}

TEST(SettingsStoreFile, DamageCostsTheDamagedEntryOnly)
{
    kaltest::FakeHost host;
    std::unique_ptr<CAnovaTabData> anova(Anova());
    const std::vector<StoreEntry> originals = {
        SaveEntry(2008, *anova), {2066, "CNotInThisModuleData", {1, 2, 3}}, SaveEntry(2009, *anova)};
    const std::vector<BYTE> whole = StoreBytes(originals);
    const auto isOriginal = [&](const StoreEntry& e) {
        return std::any_of(originals.begin(), originals.end(), [&](const StoreEntry& o) {
            return o.id == e.id && o.className == e.className && o.record == e.record;
        });
    };
    // Every single-byte flip and every cut keeps each entry it did not touch
    // and reports the rest; nothing damaged is ever taken for an entry.
    for (std::size_t i = 8; i < whole.size(); ++i) {
        std::vector<BYTE> flipped = whole;
        flipped[i] ^= 0x24;
        const StoreContents c = ReadStoreBytes(flipped, "flip");
        EXPECT_TRUE(std::all_of(c.entries.begin(), c.entries.end(), isOriginal)) << i;
        EXPECT_EQ(c.entries.size() + (i < 20 ? 0 : 1), originals.size()) << i;
        EXPECT_EQ(c.damaged.size(), i < 20 ? 0u : 1u) << i;

        const StoreContents cut = ReadStoreBytes({whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(i)}, "c");
        EXPECT_TRUE(std::all_of(cut.entries.begin(), cut.entries.end(), isOriginal)) << i;
        EXPECT_EQ(cut.entries.size() + cut.damaged.size() + cut.missing, i < 20 ? 1u : originals.size()) << i;
    }

    // A damaged part set aside reads back as the same damage, with its id.
    std::vector<BYTE> flipped = whole;
    flipped[40] ^= 1;
    const StoreContents damaged = ReadStoreBytes(flipped, "flip");
    ASSERT_EQ(damaged.damaged.size(), 1u);
    EXPECT_EQ(damaged.damaged[0].id, 2008u);
    EXPECT_NE(damaged.damaged[0].reason.find("entry for command 2008: damaged"), std::string::npos);
    const StoreContents aside = ReadStoreBytes(StoreBytes({}, damaged.damaged), "aside");
    ASSERT_EQ(aside.damaged.size(), 1u);
    EXPECT_EQ(aside.damaged[0].bytes, damaged.damaged[0].bytes);
}

TEST(SettingsStoreFile, OtherFormatsAndOtherFiles)
{
    // Format 1 (no checksums) is read; its unreadable tail is one damaged part.
    std::vector<BYTE> v1 = {'K',  'A', 'L', 'S', 'T', 'O', 'R', 'E', 1, 0, 0, 0, 2, 0, // two entries
                            0xD8, 7,   0,   0,   3,   'C', 'X', 'y', 2, 0, 9, 8};
    const StoreContents old = ReadStoreBytes(v1, "old");
    ASSERT_EQ(old.entries.size(), 1u);
    EXPECT_EQ(old.entries[0].id, 2008u);
    EXPECT_EQ(old.entries[0].className, "CXy");
    EXPECT_EQ(old.entries[0].record, (std::vector<BYTE>{9, 8}));
    EXPECT_EQ(old.damaged.size(), 1u);

    std::vector<BYTE> newer = StoreBytes({});
    newer[8] = 3;
    const DWORD check = StoreChecksum(newer.data(), 16);
    std::memcpy(&newer[16], &check, 4);
    EXPECT_THROW(ReadStoreBytes(newer, "newer"), StoreError);
    EXPECT_THROW(ReadStoreBytes({'a', ',', 'b', '\n'}, "csv"), StoreError);
    EXPECT_TRUE(ReadStoreBytes({}, "empty").entries.empty());
}

TEST(SettingsStoreFile, TwoSessionsKeepEachOthersChoices)
{
    kaltest::FakeHost host;
    kaltest::TempDir dir;
    const std::filesystem::path file = dir.Path() + "/settings.store";
    {
        SettingsStore first;
        first.Register(2008, new CAnovaTabData);
        first.Save(file);
    }
    SettingsStore a;
    SettingsStore b;
    a.Load(file);
    b.Load(file);
    // a confirms new choices for 2008; b has it unconfirmed, and adds 2009.
    a.Register(2008, Anova());
    a.Touch(2008);
    b.Register(2009, Anova());
    a.Save(file);
    b.Save(file);
    const auto entries = ReadStoreFile(file).entries;
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries[0].record, SaveEntry(2008, *std::unique_ptr<CAnovaTabData>(Anova())).record);
    EXPECT_EQ(entries[1].id, 2009u);
}

TEST(SettingsStoreFile, AnEntryThatCannotWriteItsLinesIsSetAsideAndTheOthersLoad)
{
    kaltest::FakeHost host;
    kaltest::HostScope scope(&host);
    kaltest::TempDir dir;
    const std::filesystem::path file = dir.Path() + "/settings.store";
    // Well formed, but two levels and one metric: its lines cannot be written.
    CAnovaTabData broken;
    broken.GetRepeatMeasuresData()->SetAll(1, {CString(u"a")}, {2, 3}, {CString()});
    std::unique_ptr<CAnovaTabData> good(Anova());
    WriteStoreFile(file, {SaveEntry(2008, broken), SaveEntry(2009, *good)});

    // Wired as its dialog wires it, the first entry's repeat clause finds
    // its line and cannot be written.
    SettingsStore store;
    const auto report = store.Load(file, [](UINT id, CGUIBaseObj& settings) {
        if (auto* tab = dynamic_cast<CAnovaTabData*>(&settings))
            tab->GetRepeatMeasuresData()->SetOwnerID(id == 2008 ? 2263 : 0);
        CLIST<CCmdInfo> lines;
        settings.GetCommandInfoList(lines);
    });
    ASSERT_EQ(report.rejected.size(), 1u);
    EXPECT_EQ(report.rejected[0].id, 2008u);
    EXPECT_NE(report.rejected[0].reason.find("entry for command 2008 (CAnovaTabData)"), std::string::npos);
    ASSERT_NE(store.Get(2009), nullptr);
    EXPECT_EQ(store.Get(2008), nullptr);

    // Set aside, it is dropped from the store at the next save.
    const auto aside = KeepAside(file, report.rejected);
    EXPECT_EQ(aside.filename(), "settings.store.unreadable");
    EXPECT_EQ(ReadStoreFile(aside).entries.size(), 1u);
    store.Forget(report.rejected);
    EXPECT_TRUE(store.Save(file).written);
    const auto kept = ReadStoreFile(file).entries;
    ASSERT_EQ(kept.size(), 1u);
    EXPECT_EQ(kept[0].id, 2009u);
    EXPECT_EQ(KeepAside(file, report.rejected).filename(), "settings.store.unreadable-2");
}

TEST(SettingsStoreFile, SavesKeepTheModeFollowLinksAndLeaveNoTemporaries)
{
    kaltest::FakeHost host;
    kaltest::TempDir dir;
    namespace fs = std::filesystem;
    const fs::path real = dir.Path() + "/real.store";
    const fs::path link = dir.Path() + "/link.store";
    SettingsStore store;
    store.Register(2008, Anova());
    store.Save(real);
    fs::permissions(real, fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("real.store", link);

    store.Save(link);
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(fs::status(real).permissions() & fs::perms::all, fs::perms::owner_read | fs::perms::owner_write);

    // A save that a killed process left half done is cleaned away; one of a
    // process still running is not.
    const std::string stale = real.string() + ".tmp-999999999";
    const std::string running = real.string() + ".tmp-" + std::to_string(::getpid());
    std::ofstream(stale) << "half";
    std::ofstream(running) << "half";
    RemoveStaleTemporaries(link);
    EXPECT_FALSE(fs::exists(stale));
    EXPECT_TRUE(fs::exists(running));

    // A directory is neither read nor written nor moved.
    const fs::path folder = dir.Path() + "/folder.store";
    fs::create_directory(folder);
    store.Touch(2008);
    EXPECT_THROW(store.Save(folder), StoreAccessError);
    SettingsStore other;
    EXPECT_THROW(other.Load(folder), StoreAccessError);
    EXPECT_TRUE(fs::is_directory(folder));
}

TEST(SettingsStoreFile, OnlyRegularStoresOrFreeNamesAreTakenOver)
{
    kaltest::TempDir dir;
    namespace fs = std::filesystem;
    const std::string csv = dir.Write("d.csv", "a,b\n1,2\n");
    const std::string empty = dir.Write("empty.store", "");
    EXPECT_THROW(InspectStoreFile(csv), StoreAccessError);
    EXPECT_THROW(InspectStoreFile("/dev/null"), StoreAccessError);
    EXPECT_THROW(InspectStoreFile(dir.Path()), StoreAccessError);
    EXPECT_THROW(InspectStoreFile(dir.Path() + "/no/such.store"), StoreAccessError);
    EXPECT_TRUE(InspectStoreFile(empty).exists);
    EXPECT_FALSE(InspectStoreFile(dir.Path() + "/new.store").exists);
    EXPECT_TRUE(fs::exists(csv)); // left as it was
}
