// SPDX-License-Identifier: MIT
#include "fuzz/support/surroundings.h"

#include "fuzz/support/target.h"
#include "tests/support/test_run.h"

#include <QApplication>
#include <QFile>

namespace fuzz {

void prepare(bool windows)
{
    testing::prepareEnvironment();
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    if (windows) {
        // Never deleted: libFuzzer leaves without an orderly end.
        static int argc = 1;
        static char name[] = "fuzz";
        static char* argv[] = {name, nullptr};
        [[maybe_unused]] static auto* const application = new QApplication(argc, argv);
        QApplication::setQuitOnLastWindowClosed(false);
        resources::load();
    }
    testing::profile().reset();
}

void putFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    mustHold(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
                 file.write(bytes) == bytes.size(),
             "the input can be put where it is read");
}

} // namespace fuzz
