#include "platform/Process.h"
#include "platform/testing/Input.h"

#include <gtest/gtest.h>

int main(int argc, char* argv[])
{
    orvplatform::prepareProcess();
    testing::InitGoogleTest(&argc, argv);
    orvplatform::testing::ensureApplication();
    return RUN_ALL_TESTS();
}
