// The control charts in sessions: choices that survive a restart through
// kalhost, and the module line the host's command runner records.
#include "host/KalUseRes.h"
#include "private/Quality/KDGXMrTabData.h"
#include "refhost/HostGlobal.h"
#include "tests/support/FakeHost.h"
#include "tests/support/Kalhost.h"

#include <gtest/gtest.h>

#include <sstream>

using kaltest::Kalhost;
using kaltest::TempDir;

TEST(ChartSession, ChoicesSurviveARestartButTheKnownCenterIsInUseForTheSessionOnly)
{
    TempDir dir;
    const std::string store = dir.Path() + "/charts.store";
    const auto first = Kalhost({"--store", store, "play", "-"},
                               "open 2041\n"
                               "select 4386 T1 T2\nclick 4367\nselect 4386 A B\nclick 4366\n"
                               "choose 4370 5\nselect 4386 W\nclick 4365\ncheck 4396 1\ncheck 4398 1\n"
                               "click 4376\ntype 4375\ntype 4377 12.5\npage 1\ncheck 3981 0\nok\n"
                               "open 2043\nselect 5431 Y\nclick 5433\ntype 5441 1.25\nclick 5437\n"
                               "page 1\ncheck 3984 0\nok\n");
    ASSERT_EQ(first.status, 0) << first.err;
    EXPECT_EQ(first.out, "QC\nWEIGHT  W\nSHEWHART T1 T2*A B / TYPE=NP LIMITS=,12.5 AGG TOTAL  TEST = 1 2 3 5 6 7 8 \n"
                         "QC\nXMR   Y /   SIGMA = 1.25 PLIMITS=0,0 MEDIAN   TEST = 0 \n");
    EXPECT_EQ(Kalhost({"--store", store, "commands", "2041"}).out,
              "QC\nWEIGHT  W\nSHEWHART T1 T2*A B / TYPE=NP LIMITS=,12.5 AGG TOTAL  TEST = 1 2 3 5 6 7 8 \n");
    EXPECT_EQ(Kalhost({"--store", store, "commands", "2043"}).out,
              "QC\nXMR   Y /   SIGMA = 1.25 PLIMITS=0,0 MEDIAN   TEST = 0 \n");

    // Whether the known center is in use belongs to the page, not to the
    // record: after a restart its check is clear and its value is kept.
    const auto center =
        Kalhost({"--store", store, "open", "2041", "--actions", "-"}, "check 4392 1\ntype 4368 7\nok\n");
    EXPECT_NE(center.out.find(" CENTER=7"), std::string::npos) << center.out;
    EXPECT_EQ(Kalhost({"--store", store, "commands", "2041"}).out.find("CENTER"), std::string::npos);
    const auto reopened = Kalhost({"--store", store, "open", "2041", "--actions", "-"},
                                  "expect checked 4392 0\nexpect text 4368 7\ncancel\n");
    EXPECT_EQ(reopened.status, 1) << reopened.err;
}

TEST(ChartSession, TheChartLinesMakeQcTheCurrentModule)
{
    auto resources = kalhost::ResourceTable::LoadEmbedded();
    KalUseRes::SetGlobalResourceHandle(resources.get());
    {
        std::ostringstream out, err;
        kalhost::HostGlobal host(*resources, out, err);
        kaltest::HostScope scope(&host);
        host.SetCurrentCommandModule(u"ANOVA");
        host.RegisterSettings(2043, new CXMrTabData);
        host.RunCommand(2043, {});
        EXPECT_EQ(out.str(), "QC\nXMR    /  PLIMITS=0,0 MEAN \n");
        EXPECT_EQ(host.GetCurrentCommandModule(), CString(u"QC"));
    }
    KalUseRes::SetGlobalResourceHandle(nullptr);
}

TEST(ChartSession, ARegressionAfterSeveralChartsLeavesTheQualityModuleFirst)
{
    const auto played = Kalhost({"play", "-"}, "open 2037\nselect 5461 Y\nclick 5463\nok\n"
                                               "open 2034\nok\n"
                                               "open 2051\nselect 4101 Y\nclick 4104\nok\n");
    ASSERT_EQ(played.status, 0) << played.err;
    EXPECT_EQ(played.out, "QC\nMA Y / PLIMITS=0,0\nQC\nARL XBAR / N=5 MAXSHIFT=3 STEP=0.5 L=3\n"
                          "EXIT\nREGRESS\nMODEL Y = CONSTANT\nESTIMATE /\n");
}
