// SPDX-License-Identifier: MIT
// Every benchmark program: offscreen, with a home folder of its own, and silent, as logging would
// be measured too.
#include "tests/support/test_run.h"

#include <benchmark/benchmark.h>

int main(int argc, char** argv)
{
    testing::prepareEnvironment();
    benchmark::Initialize(&argc, argv);
    benchmark::AddCustomContext("qt", qVersion());
    const QApplication application(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    resources::load();
    testing::profile().reset();
    benchmark::RunSpecifiedBenchmarks();
}
