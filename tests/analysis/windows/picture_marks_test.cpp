// SPDX-License-Identifier: MIT
#include "analysis/windows/picture_marks.h"
#include "tests/analysis/windows/tool_keys_test.h"
#include "tests/support/paint_counter.h"

#include <memory>

using analysis::PictureMark;
using analysis::PictureMarks;

/// Marks of other windows on top of the picture.
class PictureMarksTest : public testing::ToolKeysTest
{
    Q_OBJECT

private slots:
    void nothingIsThereWithoutMarks()
    {
        begin();
        QVERIFY(!label().findChild<QWidget*>());
        const QImage before = seen();
        PictureMarks marks(label());
        QVERIFY(!marks.isVisible());
        QCOMPARE(seen(), before);
    }

    /// A ring of eight widget pixels round the middle of the pixel, wherever it is.
    void ringsOnePixel()
    {
        begin();
        PictureMarks marks(label());
        const QObject owner;
        for (const QPoint& pixel : {QPoint(100, 200), QPoint(0, 0), QPoint(239, 319)}) {
            const QImage before = seen();
            marks.show(owner, {{QRect(pixel, QSize(1, 1)), Qt::red}});
            QVERIFY(marks.isVisible());
            const QPoint middle = at(pixel.x(), pixel.y());
            const QRect changed = difference(before, seen());
            QVERIFY2(!changed.isEmpty(), "nothing was drawn");
            QVERIFY(QRect(middle - QPoint(11, 11), QSize(23, 23)).contains(changed));
            const QRect whole(middle - QPoint(8, 8), QSize(17, 17));
            QVERIFY(changed.contains(whole & label().rect()));
            QCOMPARE(seen().pixel(middle), before.pixel(middle));
            marks.show(owner, {});
            QVERIFY(!marks.isVisible());
            QCOMPARE(seen(), before);
        }
    }

    void framesAPart()
    {
        begin();
        PictureMarks marks(label());
        const QObject owner;
        const QImage before = seen();
        marks.show(owner, {{QRect(50, 60, 11, 21), Qt::green}});
        const QRect changed = difference(before, seen());
        const QRect part(at(50, 60), at(60, 80));
        QVERIFY(changed.contains(part));
        QVERIFY(part.adjusted(-6, -6, 6, 6).contains(changed));
        QCOMPARE(seen().pixel(part.center()), before.pixel(part.center()));
    }

    /// Beside the ring, and on its other side where the picture ends.
    void captionsStayInside()
    {
        begin();
        PictureMarks marks(label());
        const QObject owner;
        for (const QPoint& pixel : {QPoint(100, 200), QPoint(239, 0), QPoint(239, 319)}) {
            marks.show(owner, {{QRect(pixel, QSize(1, 1)), Qt::red}});
            const QImage ring = seen();
            marks.show(owner, {{QRect(pixel, QSize(1, 1)), Qt::red, QStringLiteral("a caption")}});
            const QRect changed = difference(ring, seen());
            QVERIFY2(changed.width() > 40, qPrintable(QString::number(changed.width())));
            const int middle = at(pixel.x(), pixel.y()).x();
            QCOMPARE(changed.left() > middle, pixel.x() == 100);
        }
    }

    void ownersDoNotDisturbEachOther()
    {
        begin();
        PictureMarks marks(label());
        const auto first = std::make_unique<QObject>();
        auto second = std::make_unique<QObject>();
        marks.show(*first, {{QRect(50, 50, 1, 1), Qt::red}});
        const QImage one = seen();
        marks.show(*second, {{QRect(150, 150, 1, 1), Qt::red}});
        QVERIFY(seen() != one);
        second.reset();
        QCOMPARE(seen(), one);
        marks.show(*first, {{QRect(51, 50, 1, 1), Qt::red}});
        QVERIFY(seen() != one);
        QVERIFY(marks.isVisible());
    }

    void followsTheLabel()
    {
        begin();
        PictureMarks marks(label());
        const QObject owner;
        marks.show(owner, {{QRect(200, 300, 1, 1), Qt::red}});
        window->resize(1300, 800);
        QTRY_COMPARE(marks.size(), label().size());
        QCoreApplication::processEvents();
        const QImage with = seen();
        marks.show(owner, {});
        QVERIFY(difference(with, seen()).contains(at(200, 300)));
    }

    /// The mouse is the label's, tools and report do not see the marks, and nothing keeps painting.
    void lieOnTopOnly()
    {
        begin();
        PictureMarks marks(label());
        const QObject owner;
        marks.show(owner, {{QRect(50, 60, 1, 1), Qt::red}});
        click("pushButton_8");
        QCOMPARE(label().childAt(at(50, 60)), nullptr);
        const QPixmap drawn = label().overlay;
        marks.show(owner, {{QRect(55, 60, 1, 1), Qt::red}});
        QCoreApplication::processEvents();
        QCOMPARE(label().overlay.toImage(), drawn.toImage());
        const testing::PaintCounter paints(label());
        QVERIFY(testing::comeToRest(paints));
        const int before = paints.count;
        marks.show(owner, {{QRect(55, 60, 1, 1), Qt::red}});
        QVERIFY(testing::comeToRest(paints));
        QCOMPARE(paints.count, before);
    }

private:
    QImage seen() { return label().grab().toImage(); }

    /// The smallest rectangle with all pixels in which two pictures differ.
    static QRect difference(const QImage& before, const QImage& after)
    {
        QRect changed;
        for (int y = 0; y < before.height(); ++y) {
            for (int x = 0; x < before.width(); ++x) {
                if (before.pixel(x, y) != after.pixel(x, y))
                    changed |= QRect(x, y, 1, 1);
            }
        }
        return changed;
    }
};

int main(int argc, char** argv)
{
    return testing::run<PictureMarksTest>(argc, argv);
}

#include "picture_marks_test.moc"
