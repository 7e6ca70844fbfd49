// SPDX-License-Identifier: MIT
#include "overlay/my_label.h"
#include "tests/overlay/mouse.h"
#include "tests/overlay/painting_scene.h"
#include "tests/support/test_run.h"

using testing::difference;
using testing::PaintingScene;
using testing::scenes;

namespace {

void take(MyLabel& label, const PaintingScene& scene)
{
    const overlay::Tools& tools = scene;
    const overlay::Spots& spots = scene;
    static_cast<overlay::Tools&>(label) = tools;
    static_cast<overlay::Spots&>(label) = spots;
}

} // namespace

/// The label shows what paintedTools() paints, at the screen's ratio: CTest runs this program at
/// several.
class PaintedLabelTest : public QObject
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
            static_cast<overlay::Geometry&>(label) = scene.geometry;
            label.grab();
            const QString fault = difference(
                label.overlay.toImage(), testing::drawnByDescription(scene, 1, false), number, 1);
            QVERIFY2(fault.isEmpty(), qPrintable(fault));
        }
    }
};

int main(int argc, char** argv)
{
    return testing::run<PaintedLabelTest>(argc, argv);
}

#include "painted_label_test.moc"
