// SPDX-License-Identifier: MIT
#include "tests/overlay/painting_scene.h"

#include <QCoreApplication>
#include <QDir>

#include <array>
#include <random>

namespace testing {
namespace {

using overlay::Marker;

class Dice
{
public:
    explicit Dice(unsigned seed) : m_engine(seed) {}
    /// From `first` to `last`. Not std::uniform_int_distribution, whose results differ between
    /// libraries.
    int roll(int first, int last) { return first + int(m_engine() % unsigned(last - first + 1)); }
    bool oneIn(int count) { return roll(1, count) == 1; }

private:
    std::mt19937 m_engine;
};

overlay::Geometry madeUpGeometry(Dice& dice)
{
    const int width = dice.roll(40, 420);
    const int height = dice.oneIn(3) ? width * 4 / 3 : dice.roll(40, 520);
    switch (dice.roll(0, 4)) {
    case 0: // as a report has it
        return {721, 720, 960, 960};
    case 1: // no margins
        return {width, width, height, height};
    case 2: // left and right
        return {width + dice.roll(1, 90), width, height, height};
    case 3: // above and below
        return {width, width, height + dice.roll(1, 90), height};
    default: // all round, or too little room
        return {width + dice.roll(-30, 60), width, height + dice.roll(-30, 60), height};
    }
}

Marker madeUpMarker(Dice& dice)
{
    if (dice.oneIn(8))
        return {-1, -1};
    if (dice.oneIn(8))
        return {qint16(dice.roll(-32768, 32767)), qint16(dice.roll(-32768, 32767))};
    return {qint16(dice.roll(0, 239)), qint16(dice.oneIn(6) ? 0 : dice.roll(0, 319))};
}

} // namespace

PaintingScene madeUpScene(unsigned number)
{
    Dice dice(number);
    PaintingScene scene;
    const auto column = [&] {
        return dice.oneIn(12) ? dice.roll(0, 1) * 240 : dice.roll(5, 200);
    };
    const auto row = [&] {
        return dice.oneIn(12) ? dice.roll(0, 1) * 320 : dice.roll(5, 280);
    };
    const auto name = [&](const char* letter) {
        return QLatin1String(letter) + QString::number(dice.roll(0, 120));
    };
    const auto colour = [&] {
        return dice.oneIn(3) ? QColor(255, 0, 0)
                             : QColor(dice.roll(0, 255), dice.roll(0, 255), dice.roll(0, 255),
                                      dice.oneIn(6) ? 120 : 255);
    };
    const auto isPlaced = [&] {
        return !dice.oneIn(9);
    };
    for (int i = dice.roll(0, 9); i > 0; --i)
        scene.pointList.append(
            {name("P"), isPlaced() ? column() : -1, row(), dice.oneIn(9) ? 30 : 9, colour()});
    for (int i = dice.roll(0, 9); i > 0; --i)
        scene.lineList.append(
            {name("L"), isPlaced() ? column() : -1, row(), column(), row(), colour()});
    for (int i = dice.roll(0, 9); i > 0; --i)
        scene.rectList.append(
            {name("R"), isPlaced() ? column() : -1, row(), column(), row(), colour()});
    for (int i = dice.roll(0, 9); i > 0; --i)
        scene.circleList.append({name("C"), isPlaced() ? column() : -1, row(), column(), row(),
                                 dice.oneIn(5) ? -1 : dice.roll(0, 119), colour()});
    scene.currentType = QString::fromLatin1(
        std::array<const char*, 6>{"null", "P", "L", "R", "C", ""}[std::size_t(dice.roll(0, 5))]);
    scene.selectedIndex = dice.roll(-1, 6);
    scene.markerA = madeUpMarker(dice);
    scene.markerB = madeUpMarker(dice);
    scene.markerC = madeUpMarker(dice);
    scene.geometry = madeUpGeometry(dice);
    return scene;
}

QString difference(const QImage& actual, const QImage& expected, unsigned number, double ratio)
{
    const QImage found = actual.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (found == expected)
        return {};
    QString where;
    if (found.size() != expected.size()) {
        where = QStringLiteral("%1 x %2").arg(found.width()).arg(found.height());
    } else {
        for (int y = 0; y < found.height() && where.isEmpty(); ++y) {
            for (int x = 0; x < found.width() && where.isEmpty(); ++x) {
                if (found.pixel(x, y) != expected.pixel(x, y))
                    where = QStringLiteral("(%1, %2) is %3 instead of %4")
                                .arg(x)
                                .arg(y)
                                .arg(found.pixel(x, y), 8, 16)
                                .arg(expected.pixel(x, y), 8, 16);
            }
        }
    }
    const QDir folder(QCoreApplication::applicationDirPath());
    found.save(folder.filePath(QStringLiteral("tool_painting_found.png")));
    expected.save(folder.filePath(QStringLiteral("tool_painting_expected.png")));
    return QStringLiteral("scene %1 at %2: %3").arg(number).arg(ratio).arg(where);
}

} // namespace testing
