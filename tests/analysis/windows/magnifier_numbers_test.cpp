// SPDX-License-Identifier: MIT
#include "tests/analysis/windows/magnifier_test.h"

#include <QClipboard>

using testing::MagnifiedPixels;

/// What the magnifier writes into its cells, and what of it is copied.
class MagnifierNumbersTest : public testing::MagnifierFixture
{
    Q_OBJECT

private slots:
    /// In both units, what the analysis window says when the mouse is there.
    void everyNumberIsTheReadOut()
    {
        open();
        turn(-15);
        for (const int index : {0, 1}) {
            unit().setCurrentIndex(index);
            QCoreApplication::processEvents();
            int compared = 0;
            for (int top = 20; top < 340; top += 41) {
                for (int left = 20; left < 260; left += 41) {
                    point(std::min(left, 239), std::min(top, 319));
                    compared += compareCells();
                }
            }
            QVERIFY(compared >= 240 * 320);
        }
    }

    void outsideThePictureIsNothing()
    {
        open();
        for (const QPoint& pixel :
             {QPoint(0, 0), QPoint(239, 319), QPoint(0, 319), QPoint(239, 0), QPoint(2, 160)}) {
            point(pixel.x(), pixel.y());
            QVERIFY(compareCells() < 121);
        }
    }

    void copiesItsNumbers()
    {
        open();
        point(238, 1);
        turn(3);
        pressIn(Qt::Key_C, Qt::ControlModifier);
        // gray = (7x + 13y) mod 256, and −30 °C … 50 °C over 255 gray values; by hand:
        // (236, 0): 1652 mod 256 = 116, and 116 × 80 / 255 − 30 = 6.392
        const QStringList lines = QGuiApplication::clipboard()->text().split(QLatin1Char('\n'));
        QCOMPARE(lines.size(), 6);
        QCOMPARE(lines.at(0), QStringLiteral("y \\ x (°C)\t236\t237\t238\t239"));
        QCOMPARE(lines.at(1), QStringLiteral("0\t6.4\t8.6\t10.8\t13.0"));
        QCOMPARE(lines.at(4), QStringLiteral("3\t18.6\t20.8\t23.0\t25.2"));
        QCOMPARE(lines.at(5), QString());
    }

    /// The corrected readings on request, never in place of the stored ones; and it says which.
    void offersTheCorrectedSet()
    {
        open();
        point(100, 100);
        auto& box = *testing::part<QCheckBox>(magnifier(), "corrected");
        const auto& set = *testing::part<QLabel>(magnifier(), "set");
        QVERIFY(!box.isVisible() && !set.isVisible());
        const QString stored = readOutOfMagnifier();
        analysis::ViewedPhotograph& viewed = window->commands().viewed();
        viewed.setCorrection(analysis::Correction{0.95, 0.6, 20});
        QTRY_VERIFY(box.isVisible() && set.isVisible());
        QCOMPARE(set.text(), QStringLiteral("存储的读数"));
        QCOMPARE(readOutOfMagnifier(), stored);
        QTest::mouseClick(&box, Qt::LeftButton, {}, {8, box.height() / 2});
        QCOMPARE(set.text(), viewed.correctionName());
        const auto reading = double((*viewed.corrected())[100 * 320 + 100]);
        const QString written = QString::number(reading, 'f', 1);
        QVERIFY(!stored.endsWith(QStringLiteral(" %1°C").arg(written)));
        QCOMPARE(readOutOfMagnifier(), QStringLiteral("X: 100  Y: 100  %1°C").arg(written));
        QCOMPARE(pixels().content().cells[60].text, written);
        pressIn(Qt::Key_C, Qt::ControlModifier);
        QVERIFY(QGuiApplication::clipboard()->text().startsWith(
            QStringLiteral("y \\ x (°C; %1)\t95\t").arg(viewed.correctionName())));
        viewed.setCorrection({});
        QTRY_VERIFY(!box.isVisible() && !set.isVisible());
        QCOMPARE(readOutOfMagnifier(), stored);
    }

private:
    /// Compares every cell with the read-out of the window; how many lie inside the picture.
    int compareCells()
    {
        const MagnifiedPixels::Content& content = pixels().content();
        const QString sign = unit().currentText();
        const QPoint centre = middle();
        int inside = 0;
        for (int row = 0; row < content.size; ++row) {
            for (int column = 0; column < content.size; ++column) {
                const auto& cell = content.cells[std::size_t(row * content.size + column)];
                const int x = centre.x() + column - content.size / 2;
                const int y = centre.y() + row - content.size / 2;
                const bool isInside = x >= 0 && x < 240 && y >= 0 && y < 320;
                const bool isRight =
                    isInside ? cell.text + sign == reading(x, y) && cell.colour.isValid()
                             : cell.text.isEmpty() && !cell.colour.isValid();
                if (!isRight) {
                    QTest::qFail(
                        qPrintable(QStringLiteral("%1, %2: %3").arg(x).arg(y).arg(cell.text)),
                        __FILE__, __LINE__);
                    return inside;
                }
                inside += int(isInside);
            }
        }
        return inside;
    }
};

int main(int argc, char** argv)
{
    return testing::run<MagnifierNumbersTest>(argc, argv);
}

#include "magnifier_numbers_test.moc"
