// SPDX-License-Identifier: MIT
// What a report costs beside what nothing can save: packing its one picture into a PDF file.
#include "analysis/report/report_canvas.h"
#include "tests/analysis/sample_report.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

void pictureAlone(benchmark::State& state)
{
    const QImage canvas = analysis::reportCanvas(testing::sampleReport("EN", 0, 20));
    for ([[maybe_unused]] auto _ : state) {
        QByteArray pdf;
        QBuffer buffer(&pdf);
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        QPainter painter(&writer);
        painter.setRenderHint(QPainter::LosslessImageRendering);
        painter.drawImage(0, 0, canvas);
    }
}
BENCHMARK(pictureAlone)->Unit(benchmark::kMillisecond);

void wholeReport(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("report.pdf");
    const analysis::Report report = testing::sampleReport("EN", 0, int(state.range(0)));
    for ([[maybe_unused]] auto _ : state) {
        if (!analysis::writeReport(report, path))
            state.SkipWithError("the report was not written");
    }
    state.counters["bytes"] = double(QFileInfo(path).size());
}
BENCHMARK(wholeReport)->Arg(20)->Arg(200)->Unit(benchmark::kMillisecond);

} // namespace
