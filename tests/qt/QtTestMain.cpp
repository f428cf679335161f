// The Qt tests run without a display, on Qt's offscreen platform.
#include "refhost/qt/QtView.h"

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    kalhost::qt::QtApplication application(argc, argv, true);
    return RUN_ALL_TESTS();
}
