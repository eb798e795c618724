// The core tests, each process in folders of its own.
#include "ambiente_isolado.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    tramelo::teste::AmbienteIsolado ambiente;
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
