// Reads arbitrary bytes as a settings store and runs every entry it can
// load through its dialog's OK, as kalhost commands does: a store may be
// refused and an entry set aside, never crash. Whatever loads stores and
// loads again to the same record.
//
// Random bytes rarely get past the entries' checksums, so under libFuzzer a
// mutator of its own changes the records of a store that reads and frames
// them again with valid checksums: the wrong values reach the records'
// loading and their dialogs' checks of each field.
#include "Source/DlgStat2.h"
#include "platform/Diagnostics.h"
#include "refhost/HostGlobal.h"
#include "refhost/ModuleLoader.h"
#include "refhost/SettingsStore.h"

#include "Msg/AnalysisofVarianceMsg.h"
#include "Msg/CorrelationsMsg.h"
#include "Msg/QualityAnalysisMsg.h"
#include "Msg/RegressionMsg.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <sstream>

namespace {

struct Harness {
    Harness() : resources(kalhost::ResourceTable::LoadEmbedded()), host(*resources, out, out)
    {
        KalUseRes::SetGlobalResourceHandle(resources.get());
        host.SetDataSheet(std::make_unique<kalhost::DataSheet>(kalhost::DataSheet::Sample()));
        module = static_cast<CDlgStat2*>(GetModuleFactory(&host));
        for (CMenuGroupMsg* handler : {static_cast<CMenuGroupMsg*>(module->GetAnalysisofVarianceMsg()),
                                       static_cast<CMenuGroupMsg*>(module->GetCorrelationsMsg()),
                                       static_cast<CMenuGroupMsg*>(module->GetQualityAnalysisMsg()),
                                       static_cast<CMenuGroupMsg*>(module->GetRegressionMsg())})
            for (const auto& row : handler->Rows())
                if (row.confirm)
                    rows.push_back(&row);
        kal::SetAssertionSink([](const std::string&, int) {});
    }

    std::ostringstream out;
    std::unique_ptr<kalhost::ResourceTable> resources;
    kalhost::HostGlobal host;
    CDlgStat2* module = nullptr;
    std::vector<const MenuCommandRow*> rows;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static Harness harness;
    std::vector<kalhost::StoreEntry> entries;
    try {
        entries = kalhost::ReadStoreBytes(std::vector<BYTE>(data, data + size), "fuzz.store").entries;
    } catch (const kalhost::StoreError&) {
        return 0;
    }
    for (const auto& entry : entries) {
        std::unique_ptr<CGUIBaseObj> settings;
        try {
            settings = kalhost::LoadEntry(entry);
        } catch (const kalhost::StoreError&) {
            continue;
        }
        if (!settings)
            continue;
        const kalhost::StoreEntry saved = kalhost::SaveEntry(entry.id, *settings);
        if (kalhost::SaveEntry(entry.id, *kalhost::LoadEntry(saved)).record != saved.record)
            std::abort(); // a record that loads must store and load again unchanged
        for (const MenuCommandRow* row : harness.rows) {
            if (entry.className != row->settingsClass)
                continue;
            CLIST<CCmdInfo> lines;
            try {
                row->confirm(&harness.host, row->id, *row, settings.get(), lines);
            } catch (const CException&) {
                // kalhost sets such an entry aside.
            }
        }
    }
    return 0;
}

#ifdef KAL_LIBFUZZER
extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

// Mutates one record of a store that reads (or the bytes as they are, now
// and then and when nothing reads) and writes the store again.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned int seed)
{
    std::vector<kalhost::StoreEntry> entries;
    try {
        entries = kalhost::ReadStoreBytes(std::vector<BYTE>(data, data + size), "fuzz.store").entries;
    } catch (const kalhost::StoreError&) {
    }
    if (entries.empty() || seed % 8 == 0)
        return LLVMFuzzerMutate(data, size, maxSize);
    auto& record = entries[seed % entries.size()].record;
    const std::size_t length = record.size();
    record.resize(length + 64);
    record.resize(LLVMFuzzerMutate(record.data(), length, record.size()));
    const std::vector<BYTE> bytes = kalhost::StoreBytes(entries);
    if (bytes.size() > maxSize)
        return LLVMFuzzerMutate(data, size, maxSize);
    std::memcpy(data, bytes.data(), bytes.size());
    return bytes.size();
}
#endif
