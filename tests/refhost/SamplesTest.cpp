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
const char* const kPairwiseMatrixLines = "GLM\nHYPOTHESIS\nEFFECT = A\nCONTRAST [ 1 -1 0; 1 0 -1; 0 1 -1 ]\n"
                                         "ERROR 'A*B'\nTEST\n";
const char* const kChoiceLines = "LOGIT\n"
                                 "SET avail1 avail2 avail3 / INDICATORS\n"
                                 "MODEL mode = cost1+cost2+cost3; CONSTANT+income\n"
                                 "ESTIMATE / CONFI = 0.9 ITER = 100\n";

const char* const kCoranLines =
    "CORAN\nFREQ count\nMODEL variety$ = grade$\nESTIMATE / SUPPLEMENTARY = region$ NORMALIZE = PRINCIPAL\n";
const char* const kDiscrimLines =
    "DISCRIM\nMODEL B = X+X2+W / CROSSVALIDATE\nPRIORS 0.2 0.3 0.5\nSTART / FORWARD\nSTEP / AUTO\nSTOP \n";
const char* const kRobustLines = "DISCRIM\nMODEL B = X+X2+W / ROBUST = MCD TRIM = 0.1\nPRIORS / SAMPLE\nESTIMATE\n";
const char* const kManovaTestLines =
    "MANOVA\nHYPOTHESIS\nEFFECT = A\nCONTRAST / DIFFERENCE\nERROR 'B'\nTEST / MTEST = WILKS, PILLAI\n";

const char* const kSimulationLines = "LOGIT\nSIMULATE / DRAWS = 5000 RSEED = 17\nSCENARIO income = 30\n"
                                     "SCENARIO income = 60, age = 30\n";

const char* const kLossLines = "NONLIN\nMODEL height = top/(1 + EXP(-rate*(days - mid)))\nLOSS = ABS(RESIDUAL)\n"
                               "PARAMETERS top = 60, rate = 0.1, mid = 30\nESTIMATE / METHOD = SIMPLEX\n";

const char* const kSmoothLines =
    "SMOOTH\nMODEL height = days\nSAVE 'smoothed.kvd' / SMOOTHED\nESTIMATE / LOWESS SPAN = 0.4\n";

const char* const kPlsLines = "PLS\nMODEL yield yield2 = dose+rain+weight\nESTIMATE / COMPONENTS = 3 CV = 5\n";

const char* const kProbitLines = "PROBIT\nMODEL dead = CONSTANT+LOG10(dose) / TOTAL = total\n"
                                 "ESTIMATE / NATURAL = ESTIMATE SAMPLE = BOOT(1000)\n";

const char* const kBayesLines =
    "BAYES\nMODEL yield = CONSTANT+dose+rain\n"
    "PRIOR / COEF = NORMAL(0, 25) VARIANCE = JEFFREYS\nESTIMATE / DRAWS = 20000 RSEED = 7\n";

const char* const kVarCompLines = "VARCOMP\nMODEL Y = CONSTANT+A+B+A*B\nCATEGORY A B / REPLACE\nRANDOM B A*B\n"
                                  "ESTIMATE / METHOD = REML\n";
const char* const kMixRegLines = "MIXREG\nMODEL Y2 = CONSTANT+X+X2 / LINK = LOGISTIC\nRANDOM INTERCEPT+X2 / GROUP = B\n"
                                 "ESTIMATE / CORRELATED QUAD = 20\n";

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
        {"glm-pairwise-matrix.kal", "",
         "GLM\nMODEL Y = CONSTANT+A+B+A*B\nCATEGORY A B / REPLACE\nESTIMATE / SS = TYPE3\n" +
             std::string(kPairwiseMatrixLines),
         "2011", kPairwiseMatrixLines, "expect text 2244 3\nexpect combo 2246 3\nok\n", 0, "", kPairwiseMatrixLines},
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
        {"quality-charts.kal", "tool-wear.csv",
         "QC\nREGCHART wear = parts / SLIMITS=3,3\n"
         "QC\nTSQUARE diameter length*batch / MEAN=[ 25 60 ] COVAR=[ 0.04 0.01; 0.01 0.09 ] DECOMPOSE\n"
         "QC\nPARETO defect$ / CUMULATIVE OTHER=10\n",
         "2046", "QC\nPARETO defect$ / CUMULATIVE OTHER=10\n",
         "expect items 9002 defect$\nexpect checked 9011 1\nexpect text 9013 10\ncancel\n", 1, "", ""},
        {"run-lengths.kal", "",
         "QC\nARL XBAR / N=4 MAXSHIFT=3 STEP=0.5 L=3\nQC\nARL EWMA / N=5 MAXSHIFT=2 STEP=0.25 L=2.7 LAMBDA=0.1\n",
         "2038", "QC\nARL EWMA / N=5 MAXSHIFT=2 STEP=0.25 L=2.7 LAMBDA=0.1\n",
         "expect combo 5512 1\nexpect text 5519 \"&Parameter λ (weight):\"\nexpect text 5513 5\ncancel\n", 1, "", ""},
        {"discrim.kal", "", std::string(kDiscrimLines) + kRobustLines, "2022", kRobustLines,
         // Reopened, the roles, the fraction and the priors come back.
         "expect items 6156 X X2 W\nexpect text 6174 0.1\nexpect checked 6163 1\nok\n", 0, "", kRobustLines},
        {"manova.kal", "",
         "MANOVA\nMODEL T1 T2 T3 = CONSTANT+A+B/ REPEAT = 3, NAMES = time\nCATEGORY A B / REPLACE\n"
         "ESTIMATE / SS = TYPE3\nMANOVA\nDEPEND Y Y2\nCATEGORY A B / REPLACE\nCOVAR X\n"
         "ESTIMATE / MTEST = WILKS, PILLAI CONTRAST = DIFFERENCE\nMANOVA\n"
         "MODEL T1 T2 T3 = CONSTANT+A/ REPEAT = 3, NAMES = harvest\nCATEGORY A / REPLACE\n"
         "ESTIMATE / SPHERICITY = GG, HF, LB\n" +
             std::string(kManovaTestLines),
         "2026", kManovaTestLines,
         // The test comes back with its choices, over the model it was made for.
         "expect checked 2187 1\npage 1\nexpect checked 2205 1\npage 2\nexpect checked 6044 0\nok\n", 0, "",
         kManovaTestLines},
        {"time-weighted.kal", "fill-weights.csv",
         "QC\nEWMA weight*lot / LAMBDA=0.1 TARGET=500 SLIMITS=2.7,2.7\n"
         "QC\nCUSUM weight*lot / TARGET=500 K=0.25 H=4 FIR\nQC\nMA weight*lot / SPAN=4 PLIMITS=0,0  TEST = 1 2 \n",
         "2035", "QC\nCUSUM weight*lot / TARGET=500 K=0.25 H=4 FIR\n",
         // The CUSUM page shows its own controls, not the limits.
         "expect checked 5478 1\nexpect text 5488 4\nexpect visible 5470 0\ncancel\n", 1, "", ""},
        {"multivariate.kal", "orchards.csv",
         "FACTOR\nSAVE 'scores.kvd' / SCORES\nMODEL height girth crown yield sugar acidity\n"
         "ESTIMATE / IPA NUMBER = 2 ROTATE = OBLIMIN GAMMA=0.5 SORT\n"
         "CLUSTER\nSAVE 'clusters.kvd' / NUMBER = 4\n"
         "JOIN height girth crown yield / DISTANCE = SQEUCLIDEAN LINKAGE = WARD STANDARDIZE\n"
         "CLUSTER\nSAVE 'groups.kvd' / DISTANCE\n"
         "KMEANS height girth crown yield / NUMBER = 4 DISTANCE = EUCLIDEAN STANDARDIZE INIT = RANDOM RSEED = 1234\n" +
             std::string(kCoranLines) +
             "SETCOR\nMODEL yield sugar acidity = height girth crown / XPARTIAL = tree\n"
             "ESTIMATE / RAO PILLAI SAMPLE = BOOT(500)\n"
             "TREES\nMODEL grade$ = variety$ height girth crown\nESTIMATE / CLASS PRUNE\n"
             "CLUSTER\nADDTREE height girth crown yield sugar acidity / DISTANCE = PEARSON FITTED\n",
         "2020", kCoranLines,
         // Reopened, both pages show the last choices.
         "expect items 6645 variety$\nexpect items 6657 count\npage 1\nexpect combo 6664 3\ncancel\n", 1, "", ""},
        {"logit-follow-ups.kal", "commute.csv",
         "LOGIT\nMODEL car = CONSTANT+income+age\nESTIMATE \nLOGIT\nPREDICT / AT income = 40\nMARGINS / AVERAGE\n"
         "CLASSIFY / CUT = 0.4\nLOGIT\nQUANTILES region / GROUPS = 5\n" +
             std::string(kSimulationLines),
         "2007", kSimulationLines,
         // The model is read again: its text names it, and the scenarios are back.
         "expect text 7542 car = income+age\nexpect text 7544 5000\nok\n", 0, "", kSimulationLines},
        {"nonlinear.kal", "growth.csv",
         "NONLIN\nMODEL height = top/(1 + EXP(-rate*(days - mid)))\nPARAMETERS top = 60, rate = 0.1, mid = 30\n"
         "LIMITS top >= 0\nSAVE 'growth.kvd' / RESIDUALS/DATA\nESTIMATE / METHOD = MARQUARDT ITER = 200\n" +
             std::string(kLossLines),
         "2031", kLossLines,
         // The loss and the parameters are back; the start of the rate changes.
         "expect text 7609 ABS(RESIDUAL)\ncell 7611 2 2 0.2\nok\n", 0, "",
         "NONLIN\nMODEL height = top/(1 + EXP(-rate*(days - mid)))\nLOSS = ABS(RESIDUAL)\n"
         "PARAMETERS top = 60, rate = 0.2, mid = 30\nESTIMATE / METHOD = SIMPLEX\n"},
        {"smooth.kal", "growth.csv", kSmoothLines, "2058", kSmoothLines,
         // Back with the span and the file; the spline writes only its own number.
         "expect text 7816 0.4\nexpect text 7823 smoothed.kvd\nclick 7802\nok\n", 0, "",
         "SMOOTH\nMODEL height = days\nSAVE 'smoothed.kvd' / SMOOTHED\nESTIMATE / SPLINE\n"},
        {"pls.kal", "plants.csv", kPlsLines, "2064", kPlsLines,
         // Back with cross-validation; a fixed number leaves the folds out.
         "expect checked 7862 1\nexpect items 7859 dose rain weight\nclick 7861\nok\n", 0, "",
         "PLS\nMODEL yield yield2 = dose+rain+weight\nESTIMATE / COMPONENTS = 3\n"},
        {"probit.kal", "dose-response.csv", kProbitLines, "2032", kProbitLines,
         // Back with counts and the bootstrap; the dose as it is.
         "expect checked 7707 1\nexpect items 7709 total\nchoose 7722 0\nok\n", 0, "",
         "PROBIT\nMODEL dead = CONSTANT+dose / TOTAL = total\nESTIMATE / NATURAL = ESTIMATE SAMPLE = BOOT(1000)\n"},
        {"bayesian.kal", "plants.csv", kBayesLines, "2050", kBayesLines,
         // Back with the normal prior; the inverse gamma states its parameters.
         "expect checked 7763 1\nexpect text 7767 25\nclick 7770\nok\n", 0, "",
         "BAYES\nMODEL yield = CONSTANT+dose+rain\nPRIOR / COEF = NORMAL(0, 25) VARIANCE = IGAMMA(0.01, 0.01)\n"
         "ESTIMATE / DRAWS = 20000 RSEED = 7\n"},
        {"mixed-models.kal", "",
         "MIXED\nMODEL Y = CONSTANT+A+X\nCATEGORY A / REPLACE\nRANDOM INTERCEPT+X / SUBJECT = B TYPE = UN\n"
         "ESTIMATE / METHOD = REML\nMIXED\nHYPOTHESIS\nEFFECT = A\nCONTRAST / DIFFERENCE\nTEST / DDF = KR\n"
         "MIXED\nMODEL Y = CONSTANT+X+X2+W+X*W / CENTER = GROUP\nRANDOM INTERCEPT+X / SUBJECT = B TYPE = UN\n"
         "ESTIMATE / METHOD = ML\n" +
             std::string(kVarCompLines),
         "2069", kVarCompLines,
         // Reopened, the factors and the method are back; without the
         // interactions only the soils are random.
         "expect items 8186 B\nexpect items 8190 A\nexpect combo 8198 2\ncheck 8207 0\nok\n", 0, "",
         "VARCOMP\nMODEL Y = CONSTANT+A+B\nCATEGORY A B / REPLACE\nRANDOM B\nESTIMATE / METHOD = REML\n"},
        {"mixed-regression.kal", "",
         "MIXREG\nDATA T1 T2 T3 / WIDE ID = B TIMES = 0 1 3\nSAVE 'harvests-long.kvd'\n" + std::string(kMixRegLines),
         "2015", kMixRegLines, "expect items 8250 X2\nexpect combo 8259 1\npage 1\nexpect text 8281 20\nok\n", 0, "",
         kMixRegLines},
        {"regression-models.kal", "plants.csv",
         "RIDGE\nMODEL yield = CONSTANT+dose+rain\nSAVE 'ridge-trace.kvd' / COEFFICIENTS\n"
         "ESTIMATE / KGRID = 0,0.5,0.01\n"
         "LADREG\nMODEL yield = CONSTANT+dose+rain / WEIGHT = weight\n"
         "ESTIMATE / QUANTILE = 0.9 CI = BOOTSTRAP SAMPLES = 1000\n"
         "ROBUST\nMODEL yield = CONSTANT+dose+rain\nSAVE 'lts.kvd' / RESIDUALS/WEIGHTS\n"
         "ESTIMATE / LTS COVERAGE = 0.75 SEED = 2024\n"
         "ROBUST\nMODEL yield = CONSTANT+dose+rain\nESTIMATE / M WEIGHT = BISQUARE C = 4.685 SCALE = HUBER\n"
         "RANKREG\nMODEL yield = CONSTANT+dose+rain\nESTIMATE / SCORES = NORMAL WEIGHTS = HBR\n"
         "TSLS\nMODEL yield2 = CONSTANT+dose+yield\nENDOGENOUS yield\nINSTRUMENTS rain\nESTIMATE / FIRST\n",
         "2070",
         "ROBUST\nMODEL yield = CONSTANT+dose+rain\nSAVE 'lts.kvd' / RESIDUALS/WEIGHTS\n"
         "ESTIMATE / LTS COVERAGE = 0.75 SEED = 2024\n",
         // The trimmed fit comes back with its coverage and file; without
         // saving only the estimation follows the model.
         "expect items 7003 dose rain\npage 1\nexpect text 7082 0.75\nexpect text 7103 lts.kvd\n"
         "check 7101 0\nok\n",
         0, "", "ROBUST\nMODEL yield = CONSTANT+dose+rain\nESTIMATE / LTS COVERAGE = 0.75 SEED = 2024\n"},
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
