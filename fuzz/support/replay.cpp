// SPDX-License-Identifier: MIT
/// Runs a fuzz target over known inputs, given as files and folders of files. Fails when one of the
/// arguments holds none: a test that tried nothing would be no test.

#include "fuzz/support/target.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

namespace {

bool replay(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "cannot read %s\n", qPrintable(path));
        return false;
    }
    const QByteArray bytes = file.readAll();
    // Named first: a finding ends the program.
    std::printf("%s\n", qPrintable(path));
    std::fflush(stdout);
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                           std::size_t(bytes.size()));
    return true;
}

bool replayAll(const QString& argument)
{
    if (!QFileInfo(argument).isDir())
        return replay(argument);
    int count = 0;
    QDirIterator files(argument, QDir::Files);
    while (files.hasNext()) {
        if (!replay(files.next()))
            return false;
        ++count;
    }
    if (count == 0)
        std::fprintf(stderr, "no inputs in %s\n", qPrintable(argument));
    return count > 0;
}

} // namespace

int main(int argc, char** argv)
{
    LLVMFuzzerInitialize(&argc, &argv);
    bool good = argc > 1;
    for (int i = 1; i < argc; ++i)
        good = replayAll(QString::fromLocal8Bit(argv[i])) && good;
    return good ? 0 : 1;
}
