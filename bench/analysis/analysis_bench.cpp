// Opening a photograph, measuring tools, listing a disk, and how far from what the work costs
// alone.
#include "analysis/analysis_widget.h"
#include "analysis/photo_window.h"
#include "analysis/tool_statistics.h"
#include "overlay/my_label.h"
#include "platform/removable_drives.h"
#include "resources/resources.h"
#include "tests/analysis/photograph_writer.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QListWidget>
#include <QPaintEvent>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <map>
#include <random>
#include <string>

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
    for (auto _ : state) {
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
    for (auto _ : state) {
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
    for (auto _ : state) {
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
    const QVector<overlay::RectTool> rects{rect};
    analysis::FileBuffer buffer;
    auto photograph = std::make_unique<analysis::Photograph>();
    int next = 0;
    for (auto _ : state) {
        buffer.clear();
        const int count = buffer.read(files[next ^= 1]);
        analysis::read(buffer.bytes(), count, 0, *photograph);
        benchmark::DoNotOptimize(
            analysis::toolRows({{}, {}, rects, {}}, photograph->temperatures, {}));
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
    for (auto _ : state)
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

/// Resident memory in megabytes, where the system tells.
double residentMegabytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toDouble() * 4096 / 1e6;
}

bool firstScreenShown(const photo_window& window)
{
    const QListWidget* list = nullptr;
    for (const QListWidget* found : window.findChildren<QListWidget*>())
        list = found->objectName().isEmpty() ? found : list;
    for (int i = 0; i < list->count(); ++i) {
        if (!list->visualItemRect(list->item(i)).intersects(list->viewport()->rect()))
            return i > 0;
        if (window.thumbnails.at(i).isNull())
            return false;
    }
    return true;
}

void diskListed(benchmark::State& state)
{
    const QString root = diskOf(int(state.range(0)));
    platform::setDriveProvider([root] { return QStringList{root}; });
    double growth = 0;
    for (auto _ : state) {
        const double before = residentMegabytes();
        photo_window window(nullptr);
        window.resize(1080, 690);
        window.show();
        while (!firstScreenShown(window))
            QApplication::processEvents();
        growth = std::max(growth, residentMegabytes() - before);
    }
    state.counters["MB"] = growth;
    platform::setDriveProvider({});
}

/// Reading the same files once, nothing else.
void filesReadAlone(benchmark::State& state)
{
    const QDir folder(diskOf(int(state.range(0))) + QStringLiteral("DCIM_100"));
    analysis::FileBuffer buffer;
    for (auto _ : state) {
        for (const QString& name : folder.entryList({QStringLiteral("*.bmp")}, QDir::Files))
            benchmark::DoNotOptimize(buffer.read(folder.filePath(name)));
    }
}

BENCHMARK(openingFloor)->Unit(benchmark::kMicrosecond);
BENCHMARK(photographOpened)->Unit(benchmark::kMicrosecond);
BENCHMARK(doubleClickToPicture)->Unit(benchmark::kMicrosecond);
BENCHMARK(readAndMeasured)->Unit(benchmark::kMicrosecond);
BENCHMARK(toolTable)->ArgName("largest")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);
BENCHMARK(diskListed)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(filesReadAlone)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

/// The console's table, and behind it the figures that have a budget, in processor time.
class BudgetReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs)
            if (!run.error_occurred)
                m_seconds[run.benchmark_name()] = run.cpu_accumulated_time / double(run.iterations);
    }
    void Finalize() override
    {
        ConsoleReporter::Finalize();
        print("photograph opened / floor (budget 2)", "photographOpened", "openingFloor");
        print("photograph opened / 5 ms (budget 1)", "photographOpened", 5e-3);
        print("tool table of 100 / 1 ms (budget 1)", "toolTable/largest:0", 1e-3);
        print("1,000 photographs listed / 0.3 s (budget 1)", "diskListed/1000", 0.3);
        print("10,000 photographs listed / 1.5 s (budget 1)", "diskListed/10000", 1.5);
        print("10,000 photographs listed / reading them", "diskListed/10000",
              "filesReadAlone/10000");
        const double numpy = withNumpy();
        if (numpy > 0)
            print("read and measured / the same in numpy", "readAndMeasured", numpy);
        else
            std::puts("numpy is not installed: not compared with it");
    }

private:
    /// Seconds for one photograph; 0 without numpy.
    static double withNumpy()
    {
        for (const char* python : {"/usr/bin/python3", "python3"}) {
            QProcess script;
            script.start(QString::fromLatin1(python),
                         {QStringLiteral(NUMPY_SCRIPT), photographFile(0), QStringLiteral("300")});
            if (script.waitForFinished(60000) && script.exitCode() == 0)
                return script.readAllStandardOutput().trimmed().toDouble();
        }
        return 0;
    }
    void print(const char* title, const char* ours, const char* other) const
    {
        const auto found = m_seconds.find(other);
        if (found != m_seconds.end())
            print(title, ours, found->second);
    }
    void print(const char* title, const char* ours, double other) const
    {
        const auto found = m_seconds.find(ours);
        if (found != m_seconds.end())
            std::printf("%-56s %.3f\n", title, found->second / other);
    }
    std::map<std::string, double> m_seconds;
};

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("HOME", scratch().path().toUtf8());
    benchmark::Initialize(&argc, argv);
    const QApplication application(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    resources::load();
    BudgetReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
}
