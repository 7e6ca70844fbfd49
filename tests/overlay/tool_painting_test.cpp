// SPDX-License-Identifier: MIT
#include "overlay/tool_painting.h"
#include "tests/overlay/painting_scene.h"
#include "tests/support/test_run.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <future>
#include <random>
#include <vector>

using testing::difference;
using testing::PaintingScene;
using testing::scenes;

namespace {

/// Whether each pixel is like the pixels round its place in the whole picture: no stroke has moved
/// by more than one.
bool isLikePartOf(const QImage& whole, const QImage& one, const QRect& part)
{
    constexpr int unseen = 8; // of 255
    const auto channels = [](QRgb pixel) {
        return std::array<int, 4>{qAlpha(pixel), qRed(pixel), qGreen(pixel), qBlue(pixel)};
    };
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRect round = QRect(part.left() + x - 1, part.top() + y - 1, 3, 3) & whole.rect();
            std::array<int, 4> low{255, 255, 255, 255};
            std::array<int, 4> high{};
            for (int row = round.top(); row <= round.bottom(); ++row) {
                const auto* line = reinterpret_cast<const QRgb*>(whole.constScanLine(row));
                for (int column = round.left(); column <= round.right(); ++column) {
                    const auto values = channels(line[column]);
                    for (std::size_t i = 0; i < values.size(); ++i) {
                        low[i] = std::min(low[i], values[i]);
                        high[i] = std::max(high[i], values[i]);
                    }
                }
            }
            const auto values = channels(reinterpret_cast<const QRgb*>(one.constScanLine(y))[x]);
            for (std::size_t i = 0; i < values.size(); ++i) {
                if (values[i] < low[i] - unseen || values[i] > high[i] + unseen)
                    return false;
            }
        }
    }
    return one.size() == part.size();
}

} // namespace

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

    /// A part is that part of the whole. A stroke that reaches far out of it can be moved by a
    /// fraction of a pixel.
    void partsAreOfTheWhole()
    {
        std::mt19937 random(1);
        const auto upTo = [&random](int most) {
            return int(random() % unsigned(most + 1));
        };
        for (const int scale : {1, 2, 5, 12}) {
            overlay::Tools tools;
            for (int i = 0; i < 3; ++i) {
                const auto name = QString::number(i);
                tools.pointList.append({name, upTo(239), upTo(319)});
                tools.lineList.append({name, upTo(239), upTo(319), upTo(239), upTo(319)});
                tools.rectList.append({name, upTo(239), upTo(319), upTo(239), upTo(319)});
                tools.circleList.append({name, 120, 160, 0, 0, upTo(119)});
            }
            overlay::select(tools, overlay::ToolKind::Line, 1);
            const overlay::Spots spots{{30, 40}, {200, 300}, {120, 160}};
            const overlay::Sheet sheet{{240 * scale + 2, 240 * scale, 320 * scale, 320 * scale}};
            const QImage whole = overlay::paintedTools(tools, spots, sheet);
            const QRect all(QPoint(), whole.size());
            QVERIFY(overlay::paintedTools(tools, spots, sheet, QRect()).isNull());
            QCOMPARE(overlay::paintedTools(tools, spots, sheet, all), whole);
            for (int part = 0; part < 20; ++part) {
                const QRect place(upTo(all.width() - 1) - 20, upTo(all.height() - 1) - 30,
                                  21 + upTo(300), 31 + upTo(200));
                const QImage found = overlay::paintedTools(tools, spots, sheet, place);
                QCOMPARE(found.size(), place.size());
                const QRect inside = place & all;
                QVERIFY2(
                    isLikePartOf(whole, found.copy(inside.translated(-place.topLeft())), inside),
                    qPrintable(QStringLiteral("part %1 at %2").arg(part).arg(scale)));
            }
        }
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
