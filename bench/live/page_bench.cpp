// What a frame costs on the live page, and what a record costs within a frame's time.
#include "live/alarm_records.h"
#include "live/camer_window.h"
#include "live/live_frame.h"
#include "live/qt_camera_capture.h"

#include <QAbstractVideoBuffer>
#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <cmath>

namespace {

constexpr int pictureWidth = 600;
constexpr int pictureHeight = 800;
constexpr double frameTime = 0.040; // s, at 25 frames/s

class Buffer : public QAbstractVideoBuffer
{
public:
    explicit Buffer(const QByteArray& bytes) : QAbstractVideoBuffer(NoHandle), m_bytes(bytes) {}
    MapMode mapMode() const override { return m_mode; }
    uchar* map(MapMode mode, int* bytes, int* bytesPerLine) override
    {
        m_mode = mode;
        *bytes = m_bytes.size();
        *bytesPerLine = live::frameColumns * 2;
        return reinterpret_cast<uchar*>(m_bytes.data());
    }
    void unmap() override { m_mode = NotMapped; }

private:
    QByteArray m_bytes;
    MapMode m_mode = NotMapped;
};

/// A warm spot with sensor noise.
QByteArray scene()
{
    QByteArray bytes(live::frameBytes, '\0');
    unsigned state = 1;
    for (int y = 0; y < live::frameRows; ++y) {
        for (int x = 0; x < live::frameColumns; ++x) {
            const double warm = std::exp(-(std::pow(x - 120, 2) + std::pow(y - 150, 2)) / 3000.0);
            const int noise = int((state = state * 1664525U + 1013904223U) >> 30);
            const int at = (y * live::frameColumns + x) * 2;
            bytes[at] = char(30 + noise + int(200 * warm));
            bytes[at + 1] = char(x % 2 == 1 ? 128 + int(90 * warm) : 170 - int(120 * warm));
        }
    }
    return bytes;
}

QVideoFrame videoFrame(int maximumTenths = 362)
{
    QByteArray bytes = scene();
    bytes[live::maximumOffset] = char(maximumTenths & 0xFF);
    bytes[live::maximumOffset + 1] = char(maximumTenths >> 8);
    return {new Buffer(bytes), QSize(live::frameColumns, live::frameRows),
            QVideoFrame::Format_YUYV};
}

/// The page with its picture at 600 × 800, on the screen.
class Page
{
public:
    Page()
    {
        window.show();
        QApplication::processEvents();
        const auto* const label = window.findChild<QLabel*>(QStringLiteral("label_17"));
        window.resize(window.size() + QSize(pictureWidth, pictureHeight) - label->size());
        QApplication::processEvents();
        if (label->size() != QSize(pictureWidth, pictureHeight))
            qFatal("the picture is %d x %d", label->width(), label->height());
    }
    camer_window window;
};

/// From the surface to the painted label; every frame brings another temperature.
void frameOnThePage(benchmark::State& state)
{
    Page page;
    const QVideoFrame frames[] = {videoFrame(362), videoFrame(363)};
    std::size_t next = 0;
    for (auto _ : state) {
        page.window.capture->present(frames[next ^= 1U]);
        QApplication::processEvents();
    }
}

/// The least that showing a picture takes: pixmap, smooth scaling, painting.
void frameFloor(benchmark::State& state)
{
    QLabel label;
    label.setFixedSize(pictureWidth, pictureHeight);
    label.show();
    QApplication::processEvents();
    QtCameraCapture capture;
    QImage picture;
    QObject::connect(&capture, &QtCameraCapture::display_Qimage, &label,
                     [&picture](const QImage& image) { picture = image; });
    capture.present(videoFrame());
    for (auto _ : state) {
        label.setPixmap(QPixmap::fromImage(picture).scaled(label.size(), Qt::KeepAspectRatio,
                                                           Qt::SmoothTransformation));
        QApplication::processEvents();
    }
}

QList<QImage> pictures()
{
    QtCameraCapture capture;
    QList<QImage> images;
    QObject::connect(&capture, &QtCameraCapture::display_Qimage, &capture,
                     [&images](const QImage& image) { images.append(image); });
    for (int i = 0; i < live::recordPictures; ++i)
        capture.present(videoFrame());
    return images;
}

/// Writing the record and bringing the lists up to date, with as many records there already.
/// "frames" is the share of one frame's time at 25 frames/s.
void alarmRecord(benchmark::State& state)
{
    const QTemporaryDir folder;
    for (int i = 0; i < int(state.range(0)); ++i)
        QDir(folder.path()).mkdir(QStringLiteral("2000010112%1").arg(i, 4, 10, QLatin1Char('0')));
    Page page;
    page.window.setAlarmFolder(folder.path());
    page.window.recentFrames = pictures();
    QApplication::processEvents();
    int records = 0;
    for (auto _ : state) {
        page.window.saveAlarmRecord();
        state.PauseTiming();
        for (const QString& name : live::recordNames(folder.path())) {
            if (name.startsWith(QLatin1String("2000")))
                continue;
            QDir(folder.filePath(name)).removeRecursively();
            QFile::remove(folder.filePath(name + QStringLiteral(".ini")));
            ++records;
        }
        page.window.refreshHistory();
        state.ResumeTiming();
    }
    if (records != int(state.iterations()))
        state.SkipWithError("records are missing");
    state.counters["frames"] =
        benchmark::Counter(double(state.iterations()) * frameTime,
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

/// A page over a folder of many records, from nothing to both lists.
void historyListed(benchmark::State& state)
{
    const QTemporaryDir folder;
    for (int i = 0; i < int(state.range(0)); ++i)
        QDir(folder.path()).mkdir(QStringLiteral("2000010112%1").arg(i, 4, 10, QLatin1Char('0')));
    Page page;
    for (auto _ : state) {
        page.window.setAlarmFolder(folder.path());
        QApplication::processEvents();
        state.PauseTiming();
        page.window.setAlarmFolder(QString());
        state.ResumeTiming();
    }
}

BENCHMARK(frameOnThePage)->Unit(benchmark::kMicrosecond);
BENCHMARK(frameFloor)->Unit(benchmark::kMicrosecond);
BENCHMARK(alarmRecord)->Arg(0)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(historyListed)->Arg(5000)->Unit(benchmark::kMillisecond);

} // namespace
