// SPDX-License-Identifier: MIT
// Opening a photograph, measuring tools, listing a disk, and how far from what the work costs
// alone.
#include "analysis/photograph/tool_statistics.h"
#include "analysis/windows/analysis_widget.h"
#include "analysis/windows/photo_window.h"
#include "bench/child_process.h"
#include "overlay/my_label.h"
#include "platform/removable_drives.h"
#include "tests/analysis/photograph_writer.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QListWidget>
#include <QPaintEvent>
#include <QScrollBar>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <cmath>
#include <filesystem>
#include <malloc.h>
#include <random>

namespace {

const QTemporaryDir& scratch()
{
    static const QTemporaryDir folder;
    return folder;
}

testing::Shot warmSpot(int variant)
{
    testing::Shot shot;
    shot.maximum10 = 830;
    shot.minimum10 = 185;
    shot.gray = [variant](int x, int y) {
        const double d = std::hypot(x - 150 + variant, y - 200);
        return int(40 + x * 0.15 + y * 0.1 + 140 * std::exp(-d * d / 3000));
    };
    return shot;
}

/// Two photographs, so that opening one after the other always changes everything.
QString photographFile(int variant)
{
    const QString path = scratch().filePath(QStringLiteral("%1.bmp").arg(variant));
    if (!QFile::exists(path)) {
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        file.write(testing::photographBytes(warmSpot(variant)));
    }
    return path;
}

/// The analysis window and the size of its picture in the main window's usual size.
class Opened
{
public:
    Opened()
    {
        window.resize(1060, 660);
        window.show();
        QApplication::processEvents();
        size = label->size();
        window.hide();
    }
    Analysis_Widget window;
    MyLabel* label = window.findChild<MyLabel*>(QStringLiteral("label"));
    QSize size;
};

/// From the file to the false-colour picture on the label, tables filled. As in the browser, the
/// window is laid out only after loading. What Qt does to paint the window's widgets is left out.
void photographOpened(benchmark::State& state)
{
    const QString files[] = {photographFile(0), photographFile(1)};
    int next = 0;
    Opened opened;
    const QSize beforeLayout(100, 30);
    for ([[maybe_unused]] auto _ : state) {
        opened.label->resize(beforeLayout);
        opened.window.set_Image_addr(files[next ^= 1], 0);
        opened.label->resize(opened.size);
        QPaintEvent paint(opened.window.rect());
        QApplication::sendEvent(&opened.window, &paint);
    }
}

/// All of it, as between the double click and the picture.
void doubleClickToPicture(benchmark::State& state)
{
    const QString files[] = {photographFile(0), photographFile(1)};
    int next = 0;
    for ([[maybe_unused]] auto _ : state) {
        Analysis_Widget window;
        window.set_Image_addr(files[next ^= 1], 0);
        window.resize(1060, 660);
        window.show();
        QApplication::processEvents();
    }
}

/// Reading the file and one smooth scale to the same size.
void openingFloor(benchmark::State& state)
{
    const QString files[] = {photographFile(0), photographFile(1)};
    int next = 0;
    const QSize size = Opened().size;
    for ([[maybe_unused]] auto _ : state) {
        QFile file(files[next ^= 1]);
        file.open(QIODevice::ReadOnly);
        const QByteArray bytes = file.readAll();
        const QImage picture(reinterpret_cast<const uchar*>(bytes.constData()) + 54, 240, 320, 720,
                             QImage::Format_RGB888);
        benchmark::DoNotOptimize(QPixmap::fromImage(
            picture.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
    }
}

void readAndMeasured(benchmark::State& state)
{
    const QString files[] = {photographFile(0), photographFile(1)};
    const overlay::RectTool rect{QStringLiteral("R0"), 40, 50, 199, 249, {}};
    overlay::Tools tools;
    tools.rectList = {rect};
    analysis::FileBuffer buffer;
    auto photograph = std::make_unique<analysis::Photograph>();
    int next = 0;
    for ([[maybe_unused]] auto _ : state) {
        buffer.clear();
        const int count = buffer.read(files[next ^= 1]);
        analysis::read(buffer.bytes(), count, 0, *photograph);
        benchmark::DoNotOptimize(analysis::toolRows(tools, photograph->temperatures, {}));
    }
    state.SetItemsProcessed(state.iterations());
}

/// 25 tools of each kind, anywhere and of any size, or as large as the picture.
void placeTools(MyLabel& label, bool largest)
{
    std::mt19937 random(7);
    const auto upTo = [&random](int end) {
        return std::uniform_int_distribution<int>(0, end - 1)(random);
    };
    const auto corners = [&](auto tool) {
        tool.x1 = largest ? 0 : upTo(240);
        tool.y1 = largest ? 0 : upTo(320);
        tool.x2 = largest ? 239 : upTo(240);
        tool.y2 = largest ? 319 : upTo(320);
        return tool;
    };
    for (int i = 0; i < 25; ++i) {
        overlay::PointTool point;
        point.name = QStringLiteral("P%1").arg(i);
        point.x = upTo(240);
        point.y = upTo(320);
        label.pointList.append(point);
        overlay::LineTool line;
        line.name = QStringLiteral("L%1").arg(i);
        label.lineList.append(corners(line));
        overlay::RectTool rect;
        rect.name = QStringLiteral("R%1").arg(i);
        label.rectList.append(corners(rect));
        overlay::CircleTool circle;
        circle.name = QStringLiteral("C%1").arg(i);
        circle.cx = largest ? 120 : upTo(240);
        circle.cy = largest ? 160 : upTo(320);
        circle.radius = largest ? 119 : upTo(120);
        label.circleList.append(circle);
    }
}

void toolTable(benchmark::State& state)
{
    Analysis_Widget window;
    window.set_Image_addr(photographFile(0), 0);
    placeTools(*window.findChild<MyLabel*>(QStringLiteral("label")), state.range(0) != 0);
    window.resize(1060, 660);
    window.show();
    QApplication::processEvents();
    for ([[maybe_unused]] auto _ : state)
        window.updat_Tool_Temp();
}

/// A disk of so many photographs: hard links to a hundred files, so that their content fits.
QString diskOf(int photographs)
{
    const QString root = scratch().filePath(QStringLiteral("disk%1/").arg(photographs));
    const QString folder = root + QStringLiteral("DCIM_100/");
    if (QFile::exists(folder))
        return root;
    QDir().mkpath(folder);
    for (int i = 0; i < 100; ++i)
        QFile::copy(photographFile(i % 2),
                    folder + QStringLiteral("A%1.bmp").arg(i, 5, 10, QLatin1Char('0')));
    for (int i = 100; i < photographs; ++i) {
        const auto path = [&folder](int number) {
            return std::filesystem::path(
                (folder + QStringLiteral("A%1.bmp").arg(number, 5, 10, QLatin1Char('0')))
                    .toStdString());
        };
        std::filesystem::create_hard_link(path(i % 100), path(i));
    }
    return root;
}

/// What the program has allocated and not given back, in megabytes.
double allocatedMegabytes()
{
    const struct mallinfo2 memory = mallinfo2();
    return double(memory.uordblks + memory.hblkhd) / 1e6;
}

/// While it lives, this disk is the only one.
class OnlyDisk
{
public:
    explicit OnlyDisk(const QString& root)
    {
        platform::setDriveProvider([root] { return QStringList{root}; });
    }
    ~OnlyDisk() { platform::setDriveProvider({}); }
    OnlyDisk(const OnlyDisk&) = delete;
    OnlyDisk& operator=(const OnlyDisk&) = delete;
};

/// The browser with its first screen of thumbnails.
class Browser
{
public:
    Browser()
    {
        m_window.resize(1080, 690);
        m_window.show();
        for (auto* found : m_window.findChildren<QListWidget*>())
            m_list = found->objectName().isEmpty() ? found : m_list;
        waitForScreen();
    }
    /// Shows the screen that lies so far between the first, 0, and the last, 1.
    void showScreen(double place)
    {
        QScrollBar& bar = *m_list->verticalScrollBar();
        bar.setValue(int(place * bar.maximum()));
        waitForScreen();
    }

private:
    void waitForScreen() const
    {
        do
            QApplication::processEvents();
        while (!isScreenShown());
    }
    bool isScreenShown() const
    {
        bool inView = false;
        for (int i = 0; i < m_list->count(); ++i) {
            const bool before = inView;
            inView = m_list->visualItemRect(m_list->item(i)).intersects(m_list->viewport()->rect());
            if (before && !inView)
                return true;
            if (inView && m_window.thumbnails.at(i).isNull())
                return false;
        }
        return inView;
    }
    photo_window m_window{nullptr};
    QListWidget* m_list = nullptr;
};

void diskListed(benchmark::State& state)
{
    const OnlyDisk disk(diskOf(int(state.range(0))));
    for ([[maybe_unused]] auto _ : state)
        const Browser browser;
}

/// More thumbnails come into view than are kept.
void diskScrolled(benchmark::State& state)
{
    constexpr int screens = 60;
    const OnlyDisk disk(diskOf(int(state.range(0))));
    const double before = allocatedMegabytes();
    double most = 0;
    for ([[maybe_unused]] auto _ : state) {
        Browser browser;
        for (int screen = 0; screen <= screens; ++screen) {
            browser.showScreen(double(screen) / screens);
            most = std::max(most, allocatedMegabytes() - before);
        }
    }
    state.counters["MB"] = most;
}

/// Reading the same files once, nothing else.
void filesReadAlone(benchmark::State& state)
{
    const QDir folder(diskOf(int(state.range(0))) + QStringLiteral("DCIM_100"));
    analysis::FileBuffer buffer;
    for ([[maybe_unused]] auto _ : state) {
        for (const QString& name : folder.entryList({QStringLiteral("*.bmp")}, QDir::Files))
            benchmark::DoNotOptimize(buffer.read(folder.filePath(name)));
    }
}

/// The same as readAndMeasured, as an engineer would script it.
void readAndMeasuredInNumpy(benchmark::State& state)
{
    constexpr int rounds = 300;
    const QStringList arguments{QStringLiteral(NUMPY_SCRIPT), photographFile(0),
                                QString::number(rounds)};
    for ([[maybe_unused]] auto _ : state) {
        const bench::ChildProcess script = bench::run(bench::pythonWithNumpy(), arguments);
        if (!script.succeeded)
            state.SkipWithError("NumPy is not installed");
        state.SetIterationTime(script.output.trimmed().toDouble());
    }
}

BENCHMARK(openingFloor)->MeasureProcessCPUTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(photographOpened)->MeasureProcessCPUTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(doubleClickToPicture)->MeasureProcessCPUTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(readAndMeasured)->Unit(benchmark::kMicrosecond);
BENCHMARK(readAndMeasuredInNumpy)->Iterations(1)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(toolTable)->ArgName("largest")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);
BENCHMARK(diskListed)->Arg(1000)->Arg(10000)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(diskScrolled)->Arg(1000)->Arg(10000)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(filesReadAlone)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

} // namespace
