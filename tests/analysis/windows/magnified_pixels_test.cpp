// SPDX-License-Identifier: MIT
#include "analysis/windows/magnified_pixels.h"
#include "tests/support/paint_counter.h"
#include "tests/support/test_run.h"

#include <cmath>
#include <set>

using analysis::inkOn;
using analysis::MagnifiedPixels;
using Content = MagnifiedPixels::Content;

namespace {

/// Each cell of a colour of its own, but the first row outside the picture.
Content made(int size, const QString& text = QStringLiteral("36.5"))
{
    Content content{size, {}, text.size()};
    for (int row = 0; row < size; ++row) {
        for (int column = 0; column < size; ++column) {
            if (row == 0)
                content.cells.push_back({});
            else
                content.cells.push_back({QColor(4 * row, 5 * column, 200), text});
        }
    }
    return content;
}

/// The contrast ratio of two colours as accessibility guidelines define it.
double contrast(const QColor& a, const QColor& b)
{
    const auto light = [](const QColor& colour) {
        double sum = 0.05;
        const std::array<std::pair<int, double>, 3> parts{
            {{colour.red(), 0.2126}, {colour.green(), 0.7152}, {colour.blue(), 0.0722}}};
        for (const auto& [value, weight] : parts) {
            const double v = value / 255.0;
            sum += weight * (v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4));
        }
        return sum;
    };
    return std::max(light(a), light(b)) / std::min(light(a), light(b));
}

} // namespace

class MagnifiedPixelsTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_widget = std::make_unique<MagnifiedPixels>();
        m_widget->resize(500, 400);
    }
    void cleanup() { m_widget.reset(); }

    void inkIsReadOnEveryColour()
    {
        std::set<QRgb> inks;
        for (int red = 0; red < 256; red += 15) {
            for (int green = 0; green < 256; green += 15) {
                for (int blue = 0; blue < 256; blue += 15) {
                    const QColor ground(red, green, blue);
                    QVERIFY(contrast(inkOn(ground), ground) >= 4.5);
                    inks.insert(inkOn(ground).rgb());
                }
            }
        }
        QCOMPARE(inks, (std::set<QRgb>{qRgb(0, 0, 0), qRgb(255, 255, 255)}));
    }

    void cellsAreSquareInTheMiddle()
    {
        QVERIFY(m_widget->placeOf(0, 0).isEmpty());
        show(made(11));
        QCOMPARE(m_widget->placeOf(0, 0), QRect(52, 2, 36, 36)); // 400 / 11 = 36; 4 and 104 left
        QCOMPARE(m_widget->placeOf(10, 10), QRect(412, 362, 36, 36));
    }

    void everyCellHasItsColour()
    {
        for (const int size : {5, 11, 41}) {
            const Content content = made(size);
            show(content);
            const QImage seen = m_widget->grab().toImage();
            for (int row = 1; row < size; ++row) {
                for (int column = 0; column < size; ++column) {
                    if (row == size / 2 && column == size / 2)
                        continue;
                    // Beside the text, and beside the frame of the cell in the middle.
                    const QPoint corner = m_widget->placeOf(column, row).topLeft() + QPoint(1, 1);
                    const QPoint opposite = m_widget->placeOf(column, row).bottomRight();
                    const QColor colour = content.cells[std::size_t(row * size + column)].colour;
                    QVERIFY(seen.pixelColor(corner) == colour ||
                            seen.pixelColor(opposite) == colour);
                }
            }
        }
    }

    void outsideIsHatchedAndSilent()
    {
        show(made(11));
        const std::set<QRgb> hatch{qRgb(200, 200, 200), qRgb(150, 150, 150)};
        for (int column = 0; column < 11; ++column)
            QCOMPARE(coloursIn(m_widget->placeOf(column, 0)), hatch);
    }

    void numbersAreThereWhileTheyCanBeRead()
    {
        for (const int size : {5, 11, 41}) {
            show(made(size));
            const bool isWritten = coloursIn(m_widget->placeOf(1, 2)).size() > 1;
            QCOMPARE(isWritten, m_widget->textSize() > 0);
        }
        QCOMPARE(m_widget->textSize(), 0); // 41 in 400 pixels: 9 each
        show(made(11));
        const int usual = m_widget->textSize();
        QVERIFY(usual >= 7);
        show(made(5));
        QVERIFY(m_widget->textSize() > usual);
        show(made(11, QStringLiteral("-1234.5")));
        QVERIFY(m_widget->textSize() < usual);
    }

    /// No letter touches another cell.
    void numbersStayInTheirCells()
    {
        for (const int width : {150, 200, 300, 400, 700}) {
            m_widget->resize(width, width);
            for (const QString& text : {QStringLiteral("8.8"), QStringLiteral("-888.8")}) {
                show(made(5, text));
                const QRect cell = m_widget->placeOf(1, 1);
                const QImage seen = m_widget->grab().toImage();
                const QColor colour = m_widget->content().cells[5 + 1].colour;
                for (int x = cell.left(); x <= cell.right(); ++x) {
                    QCOMPARE(seen.pixelColor(x, cell.top()), colour);
                    QCOMPARE(seen.pixelColor(x, cell.bottom() - 3), colour); // the frame is next
                }
                for (int y = cell.top(); y < cell.bottom() - 3; ++y) {
                    QCOMPARE(seen.pixelColor(cell.left(), y), colour);
                    QCOMPARE(seen.pixelColor(cell.right() - 1, y), colour);
                }
            }
        }
    }

    void theMiddleIsFramed()
    {
        show(made(11));
        const QRect middle = m_widget->placeOf(5, 5);
        const auto inside = coloursIn(middle);
        QVERIFY(inside.count(qRgb(255, 255, 255)));
        const auto round = coloursIn(middle.adjusted(-4, -4, 4, 4));
        QVERIFY(round.count(qRgb(0, 0, 0)));
        // The cell itself is still seen.
        QCOMPARE(m_widget->grab().toImage().pixelColor(middle.topLeft() + QPoint(6, 6)),
                 QColor(20, 25, 200));
    }

    void paintsOnlyWhatIsOther()
    {
        m_widget->QWidget::show();
        QVERIFY(QTest::qWaitForWindowExposed(m_widget.get()));
        Content content = made(11);
        show(content);
        const testing::PaintCounter paints(*m_widget);
        QVERIFY(testing::comeToRest(paints));
        int before = paints.count;
        show(content);
        QVERIFY(testing::comeToRest(paints));
        QCOMPARE(paints.count, before);
        const std::array<std::function<void()>, 4> changes{
            [&] { content.cells[50].text = QStringLiteral("36.6"); },
            [&] { content.cells[50].colour = Qt::red; },
            [&] { content.longestText = 7; },
            [&] { content = made(9); },
        };
        for (const auto& change : changes) {
            change();
            show(content);
            QTRY_VERIFY(paints.count > before);
            QVERIFY(testing::comeToRest(paints));
            before = paints.count;
        }
    }

private:
    void show(const Content& content) { m_widget->show(content); }

    std::set<QRgb> coloursIn(const QRect& place) const
    {
        const QImage seen = m_widget->grab().toImage();
        std::set<QRgb> colours;
        for (int y = place.top(); y <= place.bottom(); ++y) {
            for (int x = place.left(); x <= place.right(); ++x)
                colours.insert(seen.pixel(x, y));
        }
        return colours;
    }

    std::unique_ptr<MagnifiedPixels> m_widget;
};

int main(int argc, char** argv)
{
    return testing::run<MagnifiedPixelsTest>(argc, argv);
}

#include "magnified_pixels_test.moc"
