// The sample scripts under samples/ through kalhost as a user runs them:
// each writes its lines, and after a restart the settings store gives the
// last OK's lines back and reopens the dialog with its choices.
#include "tests/support/Process.h"

#include <gtest/gtest.h>

using kaltest::RunProcess;
using kaltest::TempDir;

namespace {

std::vector<std::string> Args(std::vector<std::string> first, const std::vector<std::string>& more)
{
    first.insert(first.end(), more.begin(), more.end());
    return first;
}

struct Sample {
    std::string script;
    std::string data; // a data file under samples/, or none
    std::string lines;
    std::string id;            // the command the last session ran
    std::string stored;        // what `commands ID` writes after a restart
    std::string reopenActions; // reopening after a restart: checks of what the dialog shows
    int reopenStatus;
    std::string reopenError; // part of the message, when it fails
    std::string reopenLines; // what its OK writes
};

const char* const kRepeatedLines = "ANOVA\n"
                                   "DEPEND T1 T2 T3/ REPEAT = 3, NAMES = harvest\n"
                                   "CATEGORY A B / REPLACE\n"
                                   "COVAR \n"
                                   "ESTIMATE / NTEST = SW HTEST = LEVENE SS = TYPE3\n";
const char* const kStepwiseLines = "REGRESS\n"
                                   "MODEL Y = CONSTANT+X+X2+W\n"
                                   "SAVE 'residuals.kvd' / RESIDUALS\n"
                                   "START / FORWARD FENTER = 5\n"
                                   "STEP / AUTO\n"
                                   "STOP / CONFI = 0.9\n";
const char* const kGlmLines = "GLM\n"
                              "MODEL Y = CONSTANT+A+B+A*B+X+X*X\n"
                              "CATEGORY A B / REPLACE\n"
                              "ESTIMATE / SS = TYPE3\n";
const char* const kPairwiseLines = "GLM\nHYPOTHESIS\nPOST A / BONF CONFI = 0.9\nERROR 'A*B'\nTEST\n";
const char* const kHypothesisLines = "GLM\nHYPOTHESIS\nEFFECT = A\nCONTRAST [ 1 -1 0; 0 1 -1 ]\nERROR 'A*B'\nTEST\n";
const char* const kChoiceLines = "LOGIT\n"
                                 "SET avail1 avail2 avail3 / INDICATORS\n"
                                 "MODEL mode = cost1+cost2+cost3; CONSTANT+income\n"
                                 "ESTIMATE / CONFI = 0.9 ITER = 100\n";

} // namespace

TEST(Samples, EachScriptWritesItsLinesAndIsRememberedAcrossARestart)
{
    const Sample samples[] = {
        {"anova-repeated.kal", "", kRepeatedLines, "2008", kRepeatedLines,
         // Reopened, the model and both pages show the last choices.
         "expect items 1071 T1 T2 T3\npage 1\nexpect checked 4193 1\npage 2\nexpect checked 1087 1\n"
         "expect checked 1081 1\nok\n",
         0, "", kRepeatedLines},
        {"correlations.kal", "",
         "CORR\nSAVE 'harvests.kvd'\nPEARSON T1 T2 T3 / PAIRWISE BONF\nCORR\nSPEARMAN Y Y2*X X2 / EM T = 8\n"
         "CORR\nCITYBLOCK Y Y2 X X2 / SAMPLE = BOOT(500)\n",
         "2002", "CORR\nCITYBLOCK Y Y2 X X2 / SAMPLE = BOOT(500)\n",
         // The options page, out of use for distances, is back with its
         // choices for a measure it serves.
         "click 1423\nexpect items 1438 Y Y2 X X2\npage 1\nexpect checked 1402 1\nexpect checked 1412 1\n"
         "expect text 1399 8\nok\n",
         0, "", "CORR\nPEARSON Y Y2 X X2 / EM T = 8 SAMPLE = BOOT(500)\n"},
        {"glm.kal", "", kGlmLines, "2010", kGlmLines,
         // The terms come back; without the quadratic term the model is smaller.
         "expect items 2138 A B A*B X X*X\nexpect items 2126 A B\nselect 2138 X*X\nclick 2139\nok\n", 0, "",
         "GLM\nMODEL Y = CONSTANT+A+B+A*B+X\nCATEGORY A B / REPLACE\nESTIMATE / SS = TYPE3\n"},
        {"glm-pairwise.kal", "",
         "GLM\nMODEL Y = CONSTANT+A+B+A*B\nCATEGORY A B / REPLACE\nESTIMATE / SS = TYPE3\n" +
             std::string(kPairwiseLines),
         "2012", kPairwiseLines, "expect combo 2166 3\nexpect checked 2161 1\nexpect text 2168 0.9\nok\n", 0, "",
         kPairwiseLines},
        {"glm-hypothesis.kal", "",
         "GLM\nMODEL Y = CONSTANT+A+B+A*B\nCATEGORY A B / REPLACE\nESTIMATE / SS = TYPE3\n" +
             std::string(kHypothesisLines),
         "2013", kHypothesisLines, "expect checked 2189 1\npage 1\nexpect checked 2205 1\nok\n", 0, "",
         kHypothesisLines},
        {"regression.kal", "",
         std::string("REGRESS\nMODEL Y = CONSTANT+X+X2\nSAVE 'residuals.kvd' / RESIDUALS\n"
                     "ESTIMATE / CONFI = 0.9 NTEST = SW\n") +
             kStepwiseLines,
         "2051", kStepwiseLines,
         "expect items 4103 X X2 W\npage 1\nexpect checked 4172 1\nexpect text 4153 5\nexpect enabled 4151 0\n"
         "page 3\nexpect enabled 4176 0\ncancel\n",
         1, "", ""},
        {"logit.kal", "commute.csv",
         std::string("LOGIT\nCATEGORY region / DUMMY REF = FIRST\nMODEL car = CONSTANT+income+age+region\n"
                     "ESTIMATE / ITER = 100\nDECILE / GROUPS = 8\n") +
             kChoiceLines,
         "2004", kChoiceLines,
         // With choice sets the deciles page is out of use.
         "expect items 2684 cost1 cost2 cost3\nexpect text 2694 0.9\npage 2\nexpect checked 2727 1\npage 3\n"
         "expect enabled 2742 0\npage 4\ncancel\n",
         2, "page 4 is not available", ""},
        {"shewhart.kal", "fill-weights.csv",
         "QC\nSHEWHART weight*lot / TYPE=XBAR SLIMITS=3,3  TEST = 1 2 \n"
         "QC\nSHEWHART defective*lot / TYPE=P CENTER=0.15 PLIMITS=0.005,0.995  TEST = 1 2 \n",
         "", "", "", 1, "", ""},
        {"xmr.kal", "fill-weights.csv", "QC\nXMR   weight /  WIDTH = 3  CENTER = 500 SLIMITS=3,3 MEAN \n", "", "", "",
         1, "", ""},
        {"quality-graphs.kal", "fill-weights.csv",
         "QC\nBOX weight*lot / NOTCH OUTLIERS CENTER\nQC\nRUNCHART weight*lot / RUNS\n"
         "QC\nHISTOGRAM weight / BINS=12 LSL=495 USL=505 TARGET=500 NORMAL\n",
         "2045", "QC\nHISTOGRAM weight / BINS=12 LSL=495 USL=505 TARGET=500 NORMAL\n",
         "expect text 5595 12\nexpect items 5592 weight\ncancel\n", 1, "", ""},
        {"capability.kal", "fill-weights.csv",
         "QC\nCAPABILITY weight*lot / LSL=495 USL=505 TARGET=500 CP PP NORMTEST\n", "2047",
         "QC\nCAPABILITY weight*lot / LSL=495 USL=505 TARGET=500 CP PP NORMTEST\n",
         "expect text 5556 495\nexpect items 5545 lot\ncancel\n", 1, "", ""},
        {"run-lengths.kal", "",
         "QC\nARL XBAR / N=4 MAXSHIFT=3 STEP=0.5 L=3\nQC\nARL EWMA / N=5 MAXSHIFT=2 STEP=0.25 L=2.7 LAMBDA=0.1\n",
         "2038", "QC\nARL EWMA / N=5 MAXSHIFT=2 STEP=0.25 L=2.7 LAMBDA=0.1\n",
         "expect combo 5512 1\nexpect text 5519 \"&Parameter λ (weight):\"\nexpect text 5513 5\ncancel\n", 1, "", ""},
        {"time-weighted.kal", "fill-weights.csv",
         "QC\nEWMA weight*lot / LAMBDA=0.1 TARGET=500 SLIMITS=2.7,2.7\n"
         "QC\nCUSUM weight*lot / TARGET=500 K=0.25 H=4 FIR\nQC\nMA weight*lot / SPAN=4 PLIMITS=0,0  TEST = 1 2 \n",
         "2035", "QC\nCUSUM weight*lot / TARGET=500 K=0.25 H=4 FIR\n",
         // The CUSUM page shows its own controls, not the limits.
         "expect checked 5478 1\nexpect text 5488 4\nexpect visible 5470 0\ncancel\n", 1, "", ""},
        {"missing.kal", "",
         "MISSEM\nMODEL Y Y2 X X2\nGROUP A\nPATTERN / CUTOFF = 5\nSAVE 'completed.kvd' / DATA\n"
         "ESTIMATE / EM ITER = 50 MCAR MATRIX = SSCP\n",
         "", "", "", 1, "", ""},
        {"survival.kal", "",
         "SURVIVAL\nMODEL T1 = X+X2 / CENSOR = W(2) STRATA = A\nESTIMATE / LOGNORMAL CONFI = 0.9\n"
         "SURVIVAL\nMODEL T1 / CENSOR = W(2) STRATA = B\nKM \nTEST / LOGRANK BRESLOW\n",
         "2059", "SURVIVAL\nMODEL T1 = X+X2 / CENSOR = W(2) STRATA = A\nESTIMATE / LOGNORMAL CONFI = 0.9\n",
         "expect text 8608 2\nexpect items 8615 X X2\npage 1\nexpect combo 8633 2\ncancel\n", 1, "", ""},
        {"response-surface.kal", "",
         "RSM\nMODEL Y Y2 = X+X2\nBLOCK A\nFACTOR X(10,20) X2(100,400) / CODED\n"
         "ESTIMATE / QUADRATIC CANONICAL LACKFIT CONFI = 0.9\n"
         "RSM\nMODEL Y Y2 = X+X2\nFACTOR X(10,20) X2(100,400)\nGOAL Y / MAXIMIZE LOW = 5 HIGH = 9\n"
         "GOAL Y2 / TARGET = 2 LOW = 1 HIGH = 3 WEIGHT = 2\nOPTIMIZE / DESIRABILITY\n"
         "RSM\nMODEL Y = X+X2+W\nFACTOR X(10,20) X2(100,400) W(1,2)\nPLOT X2*X / SURFACE HOLD W = 1.5\n",
         "2079", "RSM\nMODEL Y = X+X2+W\nFACTOR X(10,20) X2(100,400) W(1,2)\nPLOT X2*X / SURFACE HOLD W = 1.5\n",
         // The ranges and the axes come back by name; a held value is kept.
         "page 1\nexpect combo 8793 1\nexpect combo 8794 0\ntype 8798 50\nok\n", 0, "",
         "RSM\nMODEL Y = X+X2+W\nFACTOR X(10,20) X2(100,400) W(1,2)\nPLOT X2*X / SURFACE POINTS = 50 HOLD W = 1.5\n"},
    };
    for (const Sample& sample : samples) {
        SCOPED_TRACE(sample.script);
        TempDir dir;
        std::vector<std::string> options{"--store", dir.Path() + "/settings.store"};
        if (!sample.data.empty())
            options = Args({"--data", std::string(KAL_SOURCE_DIR) + "/samples/" + sample.data}, options);
        const auto played = RunProcess(
            KALHOST_PATH, Args(options, {"play", std::string(KAL_SOURCE_DIR) + "/samples/" + sample.script}));
        EXPECT_EQ(played.status, 0) << played.err;
        EXPECT_EQ(played.err, "");
        EXPECT_EQ(played.out, sample.lines);
        if (sample.id.empty())
            continue;

        EXPECT_EQ(RunProcess(KALHOST_PATH, Args(options, {"commands", sample.id})).out, sample.stored);
        const auto reopened =
            RunProcess(KALHOST_PATH, Args(options, {"open", sample.id, "--actions", "-"}), sample.reopenActions);
        EXPECT_EQ(reopened.status, sample.reopenStatus) << reopened.err;
        if (sample.reopenError.empty())
            EXPECT_EQ(reopened.err, "");
        else
            EXPECT_NE(reopened.err.find(sample.reopenError), std::string::npos) << reopened.err;
        EXPECT_EQ(reopened.out, sample.reopenLines);
    }
}
