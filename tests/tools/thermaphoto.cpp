// SPDX-License-Identifier: MIT
#include "tests/tools/thermaphoto.h"

#include <QJsonDocument>

namespace testing {
namespace {

/// What was written to the file, as text, whatever ends its lines here.
QByteArray text(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().replace("\r\n", "\n") : QByteArray();
}

/// Files take what the program says: under Wine the last words in a pipe can get lost.
Ended run(const QString& program, const QStringList& arguments, const QString& folder)
{
    constexpr int patience = 120000; // ms; only a hanging program takes it
    const QTemporaryDir said;
    QProcess process;
    process.setProcessEnvironment(bareEnvironment());
    process.setWorkingDirectory(folder);
    process.setStandardOutputFile(said.filePath(QStringLiteral("output")));
    process.setStandardErrorFile(said.filePath(QStringLiteral("errors")));
    process.start(program, arguments);
    if (!process.waitForFinished(patience)) {
        process.kill();
        process.waitForFinished();
    }
    const bool isNormal = process.exitStatus() == QProcess::NormalExit;
    return {isNormal ? process.exitCode() : -1, text(said.filePath(QStringLiteral("output"))),
            text(said.filePath(QStringLiteral("errors")))};
}

} // namespace

QList<QByteArray> Ended::errorLines() const
{
    QList<QByteArray> lines = errors.split('\n');
    lines.removeAll({});
    return lines;
}

QJsonArray Ended::json() const
{
    return QJsonDocument::fromJson(output).array();
}

QProcessEnvironment bareEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "LANG"})
        environment.remove(QLatin1String(variable));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    environment.insert(QStringLiteral("LSAN_OPTIONS"),
                       QStringLiteral("print_suppressions=0:suppressions=" QT_LEAKS));
    environment.insert(QStringLiteral("thermaphoto"), QStringLiteral(THERMAPHOTO));
    return environment;
}

Ended thermaphoto(const QStringList& arguments, const QString& folder)
{
    return run(QStringLiteral(THERMAPHOTO), arguments, folder);
}

Ended shell(const QString& command, const QString& folder)
{
    return run(QStringLiteral("sh"), {QStringLiteral("-c"), command}, folder);
}

QByteArray Sample::bytes() const
{
    const simulator::Scene scene(simulator::SceneKind::Window, 7);
    return simulator::photograph(scene.field(3, scene.usualHotSpot()), settings);
}

const std::vector<Sample>& samples()
{
    static const auto of = [](int modelIndex, bool raw, bool fahrenheit, quint32 machineId) {
        simulator::PhotographSettings settings;
        settings.modelIndex = modelIndex;
        settings.raw = raw;
        settings.fahrenheit = fahrenheit;
        settings.machineId = machineId;
        return settings;
    };
    static const std::vector<Sample> all{
        {"layout 0, gray, C", of(0, false, false, 5)}, {"layout 0, gray, F", of(0, false, true, 6)},
        {"layout 0, raw, C", of(0, true, false, 5)},   {"layout 0, raw, F", of(0, true, true, 5)},
        {"layout 1, gray, C", of(1, false, false, 6)}, {"layout 1, gray, F", of(1, false, true, 5)},
        {"layout 1, raw, C", of(1, true, false, 5)},   {"layout 1, raw, F", of(1, true, true, 6)}};
    return all;
}

} // namespace testing
