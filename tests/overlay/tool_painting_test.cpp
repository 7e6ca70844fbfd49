#include "overlay/my_label.h"
#include "tests/overlay/mouse.h"
#include "tests/overlay/painting_scene.h"
#include "tests/support/test_run.h"

#include <QCoreApplication>
#include <QDir>

using testing::PaintingScene;

namespace {

constexpr unsigned scenes = 200;

/// Empty when the pictures are the same in every pixel; else where they differ, with both pictures
/// saved beside the program.
QString difference(const QImage& actual, const QImage& expected, unsigned number, double ratio)
{
    const QImage found = actual.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QString where;
    if (found.size() != expected.size()) {
        where = QStringLiteral("%1 x %2").arg(found.width()).arg(found.height());
    } else {
        for (int y = 0; y < found.height() && where.isEmpty(); ++y)
            for (int x = 0; x < found.width() && where.isEmpty(); ++x)
                if (found.pixel(x, y) != expected.pixel(x, y))
                    where = QStringLiteral("(%1, %2) is %3 instead of %4")
                                .arg(x)
                                .arg(y)
                                .arg(found.pixel(x, y), 8, 16)
                                .arg(expected.pixel(x, y), 8, 16);
    }
    if (where.isEmpty())
        return {};
    const QDir folder(QCoreApplication::applicationDirPath());
    found.save(folder.filePath(QStringLiteral("tool_painting_found.png")));
    expected.save(folder.filePath(QStringLiteral("tool_painting_expected.png")));
    return QStringLiteral("scene %1 at %2: %3").arg(number).arg(ratio).arg(where);
}

void take(MyLabel& label, const PaintingScene& scene)
{
    label.pointList = scene.pointList;
    label.lineList = scene.lineList;
    label.rectList = scene.rectList;
    label.circleList = scene.circleList;
    label.currentType = scene.currentType;
    label.selectedIndex = scene.selectedIndex;
    label.markerA = scene.markerA;
    label.markerB = scene.markerB;
    label.markerC = scene.markerC;
}

} // namespace

class ToolPaintingTest : public QObject
{
    Q_OBJECT

private slots:
    void theLabelShowsEverySceneAsDescribed()
    {
        QWidget window;
        window.resize(900, 1100);
        MyLabel& label = *new MyLabel(&window);
        testing::showAndPaint(window);
        const double ratio = label.devicePixelRatioF();
        for (unsigned number = 0; number < scenes; ++number) {
            const PaintingScene scene = testing::madeUpScene(number);
            take(label, scene);
            label.resize(scene.geometry.labelWidth, scene.geometry.labelHeight);
            QPixmap picture(scene.geometry.imageWidth, scene.geometry.imageHeight);
            picture.fill(Qt::gray);
            label.setPixmap(picture);
            label.grab();
            QCOMPARE(label.labelWidth, scene.geometry.labelWidth);
            QCOMPARE(label.imageHeight, scene.geometry.imageHeight);
            const QString fault =
                difference(label.overlay.toImage(), testing::drawnByDescription(scene, ratio, true),
                           number, ratio);
            QVERIFY2(fault.isEmpty(), qPrintable(fault));
        }
    }

    void theFrozenLabelToo()
    {
        MyLabel label;
        for (unsigned number = 0; number < scenes; ++number) {
            const PaintingScene scene = testing::madeUpScene(number);
            take(label, scene);
            label.frozenGeometry = true;
            label.labelWidth = scene.geometry.labelWidth;
            label.imageWidth = scene.geometry.imageWidth;
            label.labelHeight = scene.geometry.labelHeight;
            label.imageHeight = scene.geometry.imageHeight;
            label.grab();
            const QString fault = difference(
                label.overlay.toImage(), testing::drawnByDescription(scene, 1, false), number, 1);
            QVERIFY2(fault.isEmpty(), qPrintable(fault));
        }
    }
};

int main(int argc, char** argv)
{
    return testing::run<ToolPaintingTest>(argc, argv);
}

#include "tool_painting_test.moc"
