// SPDX-License-Identifier: MIT
#include "live/qt_camera_capture.h"
#include "tests/support/test_run.h"

#include <QAbstractVideoBuffer>
#include <QMetaEnum>
#include <QMetaMethod>
#include <QThread>

#include <memory>

namespace {

/// A valid frame's memory that behaves as told.
class Buffer : public QAbstractVideoBuffer
{
public:
    Buffer(QByteArray bytes, bool mappable)
        : QAbstractVideoBuffer(NoHandle), m_bytes(std::move(bytes)), m_mappable(mappable)
    {
    }
    MapMode mapMode() const override { return m_mode; }
    uchar* map(MapMode mode, int* bytes, int* bytesPerLine) override
    {
        if (!m_mappable)
            return nullptr;
        m_mode = mode;
        *bytes = m_bytes.size();
        *bytesPerLine = 480;
        return reinterpret_cast<uchar*>(m_bytes.data());
    }
    void unmap() override { m_mode = NotMapped; }

private:
    QByteArray m_bytes;
    bool m_mappable;
    MapMode m_mode = NotMapped;
};

QVideoFrame frameOf(const QByteArray& bytes, bool mappable = true, const QSize& size = {240, 320},
                    QVideoFrame::PixelFormat format = QVideoFrame::Format_YUYV)
{
    return {new Buffer(bytes, mappable), size, format}; // the frame owns its buffer
}

/// One colour all over, then 362, 340, 97.
QByteArray bytesOf(int luma, int u = 128, int v = 128)
{
    QByteArray bytes;
    for (int pair = 0; pair < 240 * 320 / 2; ++pair) {
        for (const int byte : {luma, u, luma, v})
            bytes.append(char(byte));
    }
    return bytes + QByteArray::fromHex("6a0154016100");
}

/// What a capture emits, in order.
class Listener
{
public:
    explicit Listener(const QtCameraCapture& capture)
    {
        QObject::connect(&capture, &QtCameraCapture::display_Qimage, &m_context,
                         [this](const QImage& picture) {
                             order.append(QStringLiteral("picture"));
                             pictures.append(picture);
                         });
        QObject::connect(&capture, &QtCameraCapture::Send_MaxTemp, &m_context,
                         [this](float maximum, float threshold, float emissivity) {
                             order.append(QStringLiteral("numbers"));
                             numbers = {maximum, threshold, emissivity};
                         });
        QObject::connect(&capture, &QtCameraCapture::frameAvailable, &m_context,
                         [this] { order.append(QStringLiteral("never")); });
        QObject::connect(&capture, &QtCameraCapture::frameAvailableX, &m_context,
                         [this] { order.append(QStringLiteral("never")); });
    }
    QStringList order;
    QList<QImage> pictures;
    QList<float> numbers;

private:
    QObject m_context;
};

} // namespace

class QtCameraCaptureTest : public QObject
{
    Q_OBJECT

private slots:
    void signalsInTheirOrder()
    {
        const QMetaObject& meta = QtCameraCapture::staticMetaObject;
        const QList<QPair<QByteArray, QList<QByteArray>>> expected{
            {"frameAvailable(QImage,const uint16_t*,const float*)", {"image", "gray", "temp"}},
            {"frameAvailableX(QVideoFrame)", {"frame"}},
            {"display_Qimage(QImage)", {"pho"}},
            {"Send_MaxTemp(float,float,float)", {"maxTem", "warn", "fsl"}}};
        QCOMPARE(meta.methodCount() - meta.methodOffset(), expected.size());
        for (int i = 0; i < expected.size(); ++i) {
            const QMetaMethod method = meta.method(meta.methodOffset() + i);
            QCOMPARE(method.methodType(), QMetaMethod::Signal);
            QCOMPARE(method.methodSignature(), expected[i].first);
            QCOMPARE(method.parameterNames(), expected[i].second);
        }
        QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("QAbstractVideoSurface"));
    }

    void videoFramesCanBeQueued()
    {
        const QtCameraCapture capture;
        QVERIFY(QMetaType::isRegistered(QMetaType::type("QVideoFrame")));
    }

    void formatNamesAreInTheMetaObject()
    {
        const QMetaObject& meta = QtCameraCapture::staticMetaObject;
        const int index = meta.indexOfEnumerator("PixelFormat");
        QVERIFY(index >= meta.enumeratorOffset());
        const QMetaEnum formats = meta.enumerator(index);
        const QByteArrayList names =
            QByteArray(
                "Format_Invalid Format_ARGB32 Format_ARGB32_Premultiplied Format_RGB32 "
                "Format_RGB24 "
                "Format_RGB565 Format_RGB555 Format_ARGB8565_Premultiplied Format_BGRA32 "
                "Format_BGRA32_Premultiplied Format_BGR32 Format_BGR24 Format_BGR565 Format_BGR555 "
                "Format_BGRA5658_Premultiplied Format_AYUV444 Format_AYUV444_Premultiplied "
                "Format_YUV444 Format_YUV420P Format_YV12 Format_UYVY Format_YUYV Format_NV12 "
                "Format_NV21 Format_IMC1 Format_IMC2 Format_IMC3 Format_IMC4 Format_Y8 Format_Y16 "
                "Format_Jpeg Format_CameraRaw Format_AdobeDng NPixelFormats Format_User")
                .split(' ');
        QCOMPARE(formats.keyCount(), names.size());
        for (int i = 0; i < names.size(); ++i)
            QCOMPARE(QByteArray(formats.key(i)), names[i]);
        for (int i = 0; i <= 32; ++i)
            QCOMPARE(formats.value(i), i);
        QCOMPARE(formats.keyToValue("Format_User"), 1000);
    }

    void offersThirtyTwoFormats()
    {
        const QtCameraCapture capture;
        for (const auto type :
             {QAbstractVideoBuffer::NoHandle, QAbstractVideoBuffer::GLTextureHandle}) {
            const QList<QVideoFrame::PixelFormat> formats = capture.supportedPixelFormats(type);
            QCOMPARE(formats.size(), 32);
            for (int i = 0; i < 32; ++i)
                QCOMPARE(int(formats[i]), i + 1);
        }
    }

    void publishesPictureThenNumbers()
    {
        QtCameraCapture capture;
        const Listener heard(capture);
        QVERIFY(capture.present(frameOf(bytesOf(100, 128, 129))));
        QCOMPARE(heard.order, QStringList({QStringLiteral("picture"), QStringLiteral("numbers")}));
        QCOMPARE(heard.pictures.first().size(), QSize(240, 320));
        QCOMPARE(heard.pictures.first().format(), QImage::Format_RGB888);
        QImage expected(240, 320, QImage::Format_RGB888);
        expected.fill(QColor(101, 99, 100));
        QCOMPARE(heard.pictures.first(), expected);
        QVERIFY(heard.numbers == QList<float>({36.2F, 34.0F, 0.97F}));
    }

    void whatTheFrameSaysOfItselfIsIgnored()
    {
        QtCameraCapture capture;
        const Listener heard(capture);
        QVERIFY(capture.present(frameOf(bytesOf(7) + QByteArray(1000, 'x'), true, {640, 480},
                                        QVideoFrame::Format_RGB32)));
        QCOMPARE(heard.pictures.first().pixelColor(239, 319), QColor(7, 7, 7));
    }

    void anInvalidFrameIsRefused()
    {
        QtCameraCapture capture;
        const Listener heard(capture);
        QVERIFY(!capture.present(QVideoFrame()));
        QCOMPARE(heard.order, QStringList());
    }

    void unusableFramesAreSkipped_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("mappable");
        QTest::newRow("cannot be mapped") << bytesOf(1) << false;
        QTest::newRow("one byte short") << bytesOf(1).left(153605) << true;
        QTest::newRow("picture only") << bytesOf(1).left(153600) << true;
        QTest::newRow("empty") << QByteArray() << true;
    }
    void unusableFramesAreSkipped()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, mappable);
        QtCameraCapture capture;
        const Listener heard(capture);
        const QVideoFrame frame = frameOf(bytes, mappable);
        QVERIFY(capture.present(frame));
        QCOMPARE(heard.order, QStringList());
        QVERIFY(!frame.isMapped());
        QVERIFY(capture.present(frameOf(bytesOf(1))));
        QCOMPARE(heard.order.size(), 2);
    }

    void theFrameIsUnmapped()
    {
        QtCameraCapture capture;
        const QVideoFrame frame = frameOf(bytesOf(1));
        QVERIFY(capture.present(frame));
        QVERIFY(!frame.isMapped());
    }

    void picturesOutliveTheNextFrameAndTheCapture()
    {
        auto capture = std::make_unique<QtCameraCapture>();
        const Listener heard(*capture);
        capture->present(frameOf(bytesOf(10)));
        capture->present(frameOf(bytesOf(200)));
        capture.reset();
        QCOMPARE(heard.pictures[0].pixelColor(0, 0), QColor(10, 10, 10));
        QCOMPARE(heard.pictures[1].pixelColor(0, 0), QColor(200, 200, 200));
    }

    void framesMayComeFromAnotherThread()
    {
        QtCameraCapture capture;
        QObject context;
        QList<QImage> pictures;
        connect(&capture, &QtCameraCapture::display_Qimage, &context, [&](const QImage& picture) {
            QCOMPARE(QThread::currentThread(), context.thread());
            pictures.append(picture);
        });
        const std::unique_ptr<QThread> backend(QThread::create([&capture] {
            capture.present(frameOf(bytesOf(10)));
            capture.present(frameOf(bytesOf(200)));
        }));
        backend->start();
        QVERIFY(backend->wait());
        QTRY_COMPARE(pictures.size(), 2);
        QCOMPARE(pictures[0].pixelColor(0, 0), QColor(10, 10, 10));
    }
};

int main(int argc, char** argv)
{
    return testing::run<QtCameraCaptureTest>(argc, argv);
}

#include "qt_camera_capture_test.moc"
