// The settings store file: round trips, entries of unknown classes, and
// files that cannot be read.
#include "refhost/SettingsStore.h"
#include "Source/DlgStat2.h"
#include "private/Anova/KDGAnovaTabData.h"
#include "tests/support/FakeHost.h"
#include "tests/support/Process.h"

#include <gtest/gtest.h>

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

    {
        SettingsStore store;
        store.Register(2008, Anova());
        WriteStoreFile(file, {{2052, "CRidgeRegressionData", {1, 2, 3}}});
        SettingsStore withForeign;
        withForeign.Load(file);
        withForeign.Register(2008, Anova());
        withForeign.Save(file);
    }
    SettingsStore loaded;
    loaded.Load(file);
    ASSERT_NE(loaded.Get(2008), nullptr);
    EXPECT_EQ(LinesOf(*loaded.Get(2008)), LinesOf(*std::unique_ptr<CAnovaTabData>(Anova())));
    const auto entries = ReadStoreFile(file);
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries[0].className, "CRidgeRegressionData");
    EXPECT_EQ(entries[0].record, (std::vector<BYTE>{1, 2, 3}));
    EXPECT_EQ(entries[1].className, "CAnovaTabData");
    // No temporary file is left behind.
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.Path()), {}), 1);
}

TEST(SettingsStoreFile, BrokenFilesAreRefusedWholeAndCanBeKeptAside)
{
    kaltest::FakeHost host;
    kaltest::TempDir dir;
    const std::filesystem::path file = dir.Path() + "/settings.store";
    SettingsStore store;
    store.Register(2008, Anova());
    store.Save(file);
    std::ifstream in(file, std::ios::binary);
    const std::string whole((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());

    const auto refused = [&](const std::string& bytes) {
        std::ofstream(file, std::ios::binary | std::ios::trunc) << bytes;
        SettingsStore target;
        target.Register(7, new CAnovaTabData);
        try {
            target.Load(file);
        } catch (const StoreError&) {
            return target.Get(7) != nullptr; // nothing half-loaded
        }
        return false;
    };
    for (const std::size_t cut : {std::size_t{0}, std::size_t{5}, std::size_t{12}, whole.size() / 2, whole.size() - 1})
        EXPECT_TRUE(refused(whole.substr(0, cut))) << cut;
    EXPECT_TRUE(refused(whole + "x"));
    EXPECT_TRUE(refused("NOTSTORE" + whole.substr(8)));
    EXPECT_FALSE(refused(whole));

    // A record longer than what its class reads is set aside on its own.
    StoreEntry entry = SaveEntry(2008, *std::unique_ptr<CAnovaTabData>(Anova()));
    entry.record.push_back(0);
    WriteStoreFile(file, {entry});
    SettingsStore target;
    const auto rejected = target.Load(file);
    ASSERT_EQ(rejected.size(), 1u);
    EXPECT_NE(rejected[0].reason.find("longer than its settings"), std::string::npos) << rejected[0].reason;
    EXPECT_EQ(target.Get(2008), nullptr);

    std::ofstream(file, std::ios::binary | std::ios::trunc) << "junk";
    const auto aside = KeepAside(file);
    EXPECT_EQ(aside.filename(), "settings.store.unreadable");
    std::ofstream(file, std::ios::binary | std::ios::trunc) << "junk";
    EXPECT_EQ(KeepAside(file).filename(), "settings.store.unreadable-2");
    EXPECT_FALSE(std::filesystem::exists(file));
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
    const auto rejected = store.Load(file, [](UINT id, CGUIBaseObj& settings) {
        if (auto* tab = dynamic_cast<CAnovaTabData*>(&settings))
            tab->GetRepeatMeasuresData()->SetOwnerID(id == 2008 ? 2263 : 0);
        CLIST<CCmdInfo> lines;
        settings.GetCommandInfoList(lines);
    });
    ASSERT_EQ(rejected.size(), 1u);
    EXPECT_EQ(rejected[0].entry.id, 2008u);
    EXPECT_NE(rejected[0].reason.find("its lines cannot be written"), std::string::npos) << rejected[0].reason;
    ASSERT_NE(store.Get(2009), nullptr);
    EXPECT_EQ(store.Get(2008), nullptr);

    const auto aside = KeepAside(file, {rejected[0].entry});
    EXPECT_EQ(aside.filename(), "settings.store.unreadable");
    EXPECT_EQ(ReadStoreFile(aside).size(), 1u);
    EXPECT_TRUE(std::filesystem::exists(file));
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
    EXPECT_THROW(store.Save(folder), StoreAccessError);
    SettingsStore other;
    EXPECT_THROW(other.Load(folder), StoreAccessError);
    EXPECT_TRUE(fs::is_directory(folder));
}

TEST(SettingsStoreFile, KalhostSetsAsideWhatItCannotUseAndKeepsTheRest)
{
    kaltest::FakeHost host;
    kaltest::TempDir dir;
    const std::string file = dir.Path() + "/settings.store";
    std::unique_ptr<CAnovaTabData> settings(Anova());
    StoreEntry broken = SaveEntry(2008, *settings);
    broken.record.push_back(7);
    WriteStoreFile(file, {broken, SaveEntry(2009, *settings)});

    const auto dump = kaltest::RunProcess(KALHOST_PATH, {"store-dump", file});
    EXPECT_EQ(dump.status, 0);
    EXPECT_NE(dump.out.find("command 2008, CAnovaTabData, " + std::to_string(broken.record.size()) +
                            " bytes\n  (unreadable: entry for command 2008 (CAnovaTabData): the record is longer"),
              std::string::npos)
        << dump.out;

    const auto r = kaltest::RunProcess(KALHOST_PATH, {"--store", file, "commands", "2008"});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_NE(r.err.find("the record is longer than its settings"), std::string::npos) << r.err;
    EXPECT_NE(r.err.find("kept in " + file + ".unreadable; the session goes on"), std::string::npos) << r.err;
    EXPECT_NE(r.out.find("DEPEND \n"), std::string::npos) << r.out; // the defaults
    EXPECT_EQ(ReadStoreFile(file + ".unreadable").size(), 1u);
    const auto kept = ReadStoreFile(file);
    ASSERT_EQ(kept.size(), 1u);
    EXPECT_EQ(kept[0].id, 2009u);

    // A store that cannot be read at all stays where it is, and the run stops.
    std::filesystem::create_directory(dir.Path() + "/folder");
    const auto folder = kaltest::RunProcess(KALHOST_PATH, {"--store", dir.Path() + "/folder", "list"});
    EXPECT_EQ(folder.status, 2);
    EXPECT_NE(folder.err.find("it is a directory"), std::string::npos) << folder.err;
    EXPECT_TRUE(std::filesystem::is_directory(dir.Path() + "/folder"));
    EXPECT_FALSE(std::filesystem::exists(dir.Path() + "/folder.unreadable"));
}
