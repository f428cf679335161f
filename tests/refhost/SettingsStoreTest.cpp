// The settings store file: round trips, entries of unknown classes, and
// files that cannot be read.
#include "Source/DlgStat2.h"
#include "private/Anova/KDGAnovaTabData.h"
#include "refhost/SettingsStore.h"
#include "tests/support/FakeHost.h"
#include "tests/support/Process.h"

#include <gtest/gtest.h>

#include <fstream>

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

    // A record longer than what its class reads.
    StoreEntry entry = SaveEntry(2008, *std::unique_ptr<CAnovaTabData>(Anova()));
    entry.record.push_back(0);
    WriteStoreFile(file, {entry});
    SettingsStore target;
    EXPECT_THROW(target.Load(file), StoreError);

    std::ofstream(file, std::ios::binary | std::ios::trunc) << "junk";
    const auto aside = KeepAside(file);
    EXPECT_EQ(aside.filename(), "settings.store.unreadable");
    std::ofstream(file, std::ios::binary | std::ios::trunc) << "junk";
    EXPECT_EQ(KeepAside(file).filename(), "settings.store.unreadable-2");
    EXPECT_FALSE(std::filesystem::exists(file));
}
