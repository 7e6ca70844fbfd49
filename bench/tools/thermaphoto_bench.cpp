// SPDX-License-Identifier: MIT
// thermaphoto on a folder of photographs, its start included, and the same job done by a script.
// One iteration is one photograph; the time is processor time.
#include "bench/child_process.h"
#include "simulator/photograph.h"
#include "simulator/scene.h"
#include "tests/support/folder.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <unistd.h>

namespace {

/// So many that the program's start hardly counts; fewer for the formats that take long.
int photographs(const QString& format)
{
    return format == QLatin1String("csv") || format == QLatin1String("png") ? 20 : 200;
}

/// For what starting the program must not touch at all.
constexpr int many = 4000;

const char* const tools = R"({"points": [[120, 160], [10, 20]], "lines": [[10, 300, 200, 20]],
    "rectangles": [[30, 60, 100, 100]], "circles": [[150, 200, 40]]})";

void link(const QString& from, const QString& to)
{
    if (::link(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0)
        qFatal("%s cannot be linked", qPrintable(to));
}

/// Folders of photographs, the tools, and an empty folder for what comes out.
class Folders
{
public:
    Folders()
    {
        testing::putFile(toolFile(), tools);
        for (const int count : {20, 200, many})
            QDir().mkdir(photographFolder(count));
        for (int i = 0; i < 20; ++i) {
            const simulator::Scene scene(simulator::SceneKind(i % 4), unsigned(i));
            const QByteArray bytes =
                simulator::photograph(scene.field(i, scene.usualHotSpot()), {});
            const auto name = [](int number) {
                return QStringLiteral("/IR_%1.bmp").arg(number);
            };
            testing::putFile(photographFolder(20) + name(i), bytes);
            for (int copy = i; copy < 200; copy += 20)
                testing::putFile(photographFolder(200) + name(copy), bytes);
            for (int copy = i; copy < many; copy += 20)
                link(photographFolder(20) + name(i), photographFolder(many) + name(copy));
        }
    }
    QString toolFile() const { return m_folder.filePath(QStringLiteral("tools.json")); }
    QString photographFolder(int count) const { return m_folder.filePath(QString::number(count)); }
    QString emptyOutput() const
    {
        QDir output(m_folder.filePath(QStringLiteral("out")));
        output.removeRecursively();
        output.mkpath(QStringLiteral("."));
        return output.path();
    }

private:
    QTemporaryDir m_folder;
};

const Folders& folders()
{
    static const Folders instance;
    return instance;
}

void thermaphoto(benchmark::State& state, const QString& job)
{
    const int count = photographs(job);
    for ([[maybe_unused]] auto _ : state) {
        QStringList arguments{QStringLiteral("--jobs"), QStringLiteral("1"),
                              folders().photographFolder(count)};
        if (job == QLatin1String("measure"))
            arguments =
                QStringList{job, "--format", "json", "--tools", folders().toolFile()} + arguments;
        else
            arguments =
                QStringList{"export", "--format", job, "-o", folders().emptyOutput()} + arguments;
        const bench::ChildProcess ran = bench::run(QStringLiteral(THERMAPHOTO), arguments);
        if (!ran.succeeded)
            state.SkipWithError("thermaphoto failed");
        state.SetIterationTime(ran.processor / count);
    }
}

/// As the user waits, on so many cores. Also tells how many a second one core measures.
void measureMany(benchmark::State& state)
{
    for ([[maybe_unused]] auto _ : state) {
        const bench::ChildProcess ran =
            bench::run(QStringLiteral(THERMAPHOTO),
                       {"measure", "--format", "json", "--tools", folders().toolFile(), "--jobs",
                        QString::number(state.range(0)), folders().photographFolder(many)});
        if (!ran.succeeded)
            state.SkipWithError("thermaphoto failed");
        state.SetIterationTime(ran.elapsed / many);
        state.counters["perCoreSecond"] = many / ran.processor;
    }
}

void inNumpy(benchmark::State& state, const QString& job)
{
    const int count = photographs(job);
    for ([[maybe_unused]] auto _ : state) {
        const bench::ChildProcess script = bench::run(
            bench::pythonWithNumpy(), {QStringLiteral(NUMPY_SCRIPT), job,
                                       folders().photographFolder(count), folders().emptyOutput()});
        if (!script.succeeded)
            state.SkipWithError("NumPy is not installed");
        state.SetIterationTime(script.output.trimmed().toDouble() / count);
    }
}

void once(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Iterations(1)->UseManualTime()->Unit(benchmark::kMicrosecond);
}

BENCHMARK_CAPTURE(thermaphoto, measure, "measure")->Apply(once);
BENCHMARK_CAPTURE(thermaphoto, npy, "npy")->Apply(once);
BENCHMARK_CAPTURE(thermaphoto, tiff, "tiff")->Apply(once);
BENCHMARK_CAPTURE(thermaphoto, csv, "csv")->Apply(once);
BENCHMARK_CAPTURE(thermaphoto, png, "png")->Apply(once);
BENCHMARK(measureMany)->Arg(1)->Arg(2)->Apply(once);
BENCHMARK_CAPTURE(inNumpy, measure, "measure")->Apply(once);
BENCHMARK_CAPTURE(inNumpy, npy, "npy")->Apply(once);
BENCHMARK_CAPTURE(inNumpy, tiff, "tiff")->Apply(once);
BENCHMARK_CAPTURE(inNumpy, csv, "csv")->Apply(once);
BENCHMARK_CAPTURE(inNumpy, png, "png")->Apply(once);
BENCHMARK_CAPTURE(inNumpy, read, "read")->Apply(once); // the files alone

} // namespace
