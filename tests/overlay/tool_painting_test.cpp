// SPDX-License-Identifier: MIT
#include "overlay/tool_painting.h"
#include "tests/overlay/painting_scene.h"
#include "tests/support/test_run.h"

#include <QPainter>

#include <future>
#include <vector>

using testing::difference;
using testing::PaintingScene;
using testing::scenes;

class ToolPaintingTest : public QObject
{
    Q_OBJECT

private slots:
    void everySceneIsPaintedAsDescribed()
    {
        for (unsigned number = 0; number < scenes; ++number) {
            const PaintingScene scene = testing::madeUpScene(number);
            const bool margins = number % 2 == 1;
            for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
                const QImage found = overlay::paintedTools(
                    scene, scene, {scene.geometry, ratio, Qt::green, margins});
                QCOMPARE(found.devicePixelRatio(), ratio);
                const QString fault = difference(
                    found, testing::drawnByDescription(scene, ratio, margins), number, ratio);
                QVERIFY2(fault.isEmpty(), qPrintable(fault));
            }
        }
    }

    /// In eight threads at once, and without the layers of one ever meeting those of another.
    void manyThreadsPaintTheSame()
    {
        std::vector<std::future<QString>> threads;
        for (unsigned thread = 0; thread < 8; ++thread)
            threads.push_back(std::async(std::launch::async, [thread] {
                for (unsigned i = 0; i < scenes / 4; ++i) {
                    const unsigned number = (i + 23 * thread) % scenes;
                    const PaintingScene scene = testing::madeUpScene(number);
                    QString fault =
                        difference(overlay::paintedTools(scene, scene, {scene.geometry}),
                                   testing::drawnByDescription(scene, 1, false), number, 1);
                    if (!fault.isEmpty())
                        return fault;
                }
                return QString();
            }));
        for (std::future<QString>& thread : threads)
            QCOMPARE(thread.get(), QString());
    }

    /// Whoever paints again and again gets the same, whatever changed in between.
    void keptLayersAreNeverOutOfDate()
    {
        overlay::ToolLayers layers;
        for (unsigned number = 0; number < scenes; ++number) {
            PaintingScene scene = testing::madeUpScene(number);
            for (int change = 0; change < 5; ++change) {
                if (change == 1 && !scene.lineList.isEmpty())
                    scene.lineList.last().colour = Qt::magenta;
                if (change == 2 && !scene.pointList.isEmpty())
                    scene.pointList.first().x += 3;
                if (change == 3)
                    overlay::select(scene, overlay::ToolKind::Circle, 0);
                if (change == 4)
                    scene.currentType = QStringLiteral("null");
                const overlay::Sheet sheet{scene.geometry};
                QImage found(sheet.pixels(), QImage::Format_ARGB32_Premultiplied);
                found.fill(Qt::transparent);
                QPainter painter(&found);
                layers.paint(painter, scene, scene, sheet);
                painter.end();
                const QString fault =
                    difference(found, testing::drawnByDescription(scene, 1, false), number, 1);
                QVERIFY2(fault.isEmpty(), qPrintable(fault));
            }
        }
    }

    void withoutExtentThereIsNoPicture()
    {
        for (const overlay::Geometry& geometry :
             {overlay::Geometry{}, overlay::Geometry{0, 10, 10, 10},
              overlay::Geometry{10, 10, -3, 10}})
            QVERIFY(overlay::paintedTools({}, {}, {geometry}).isNull());
        const QImage empty = overlay::paintedTools({}, {}, {{30, 0, 40, 0}});
        QCOMPARE(empty.size(), QSize(30, 40));
        QCOMPARE(qAlpha(empty.pixel(0, 0)), 0);
    }
};

int main(int argc, char** argv)
{
    return testing::run<ToolPaintingTest>(argc, argv);
}

#include "tool_painting_test.moc"
