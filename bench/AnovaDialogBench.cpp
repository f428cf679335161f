// The ANOVA tab dialog headless on a large data sheet: open, select and
// move 1,000 variables, confirm, write the lines. Reported at 10,000 and
// 100,000 variables; a linear dialog shows a ratio near 10.
#include "Source/DlgStat2.h"
#include "bench/BenchRatio.h"
#include "platform/HeadlessDriver.h"
#include "private/Anova/KDGAnovaTabDlg.h"
#include "tests/support/FakeHost.h"

#include <string>

namespace {

constexpr int kMoved = 1000;

void OpenMoveConfirm(benchmark::State& state, int variables, std::string baselines)
{
    kaltest::FakeHost host;
    host.sheet.variables.reserve(static_cast<std::size_t>(variables));
    for (int i = 0; i < variables; ++i)
        host.sheet.variables.push_back({u"V" + std::u16string(CString::FromNumber(i).Str()), NmsEnum::VT_NUMERIC, false});
    IModule* module = GetModuleFactory(&host);
    CHeadlessDriver driver;
    CDialogDriver* previous = AfxSetDialogDriver(&driver);
    std::vector<CString> chosen;
    for (int i = 0; i < kMoved; ++i)
        chosen.push_back(CString(host.sheet.variables[static_cast<std::size_t>(i * (variables / kMoved))].name));
    driver.SetScript([&chosen](CHeadlessSession& s) {
        s.Select(CAnovaDlg::IDC_SOURCE_LIST, chosen);
        s.Click(CAnovaDlg::IDC_ADD_COVARIATE);
        s.Ok();
    });

    for (auto _ : state) {
        CAnovaTabData data;
        CAnovaTabDlg dialog;
        dialog.SetData(&data);
        data.FillListSource();
        if (dialog.DoModal() != IDOK)
            state.SkipWithError("the dialog did not confirm");
        CLIST<CCmdInfo> lines;
        data.GetCommandInfoList(lines);
        benchmark::DoNotOptimize(lines.GetCount());
    }
    state.SetLabel(baselines);
    AfxSetDialogDriver(previous);
    module->Release();
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::RegisterBenchmark("anova_dialog/10000", OpenMoveConfirm, 10'000, std::string())
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("anova_dialog/100000", OpenMoveConfirm, 100'000, "baseline=anova_dialog/10000")
        ->Unit(benchmark::kMillisecond);
    return kalbench::RunBenchmarks(argc, argv);
}
