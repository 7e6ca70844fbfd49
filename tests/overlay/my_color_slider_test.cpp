// SPDX-License-Identifier: MIT
#include "tests/overlay/shown_bar.h"
#include "tests/support/paint_counter.h"
#include "tests/support/test_run.h"

#include <QLayout>
#include <QMetaMethod>

#include <algorithm>
#include <limits>
#include <memory>

using testing::grayStrip;
using testing::stripOf;

namespace {

/// The eleven temperatures, top first.
QList<QLabel*> scaleOf(const My_ColorSlider& bar)
{
    QList<QLabel*> labels;
    for (QLabel* label : bar.findChildren<QLabel*>()) {
        if (label->objectName().startsWith(QLatin1String("scaleLabel")))
            labels.append(label);
    }
    std::sort(labels.begin(), labels.end(),
              [](const QLabel* a, const QLabel* b) { return a->y() < b->y(); });
    return labels;
}

QStringList textsOf(const My_ColorSlider& bar)
{
    QStringList texts;
    for (const QLabel* label : scaleOf(bar))
        texts.append(label->text());
    return texts;
}

} // namespace

class MyColorSliderTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_shown = std::make_unique<testing::ShownBar>();
        bar = &m_shown->bar;
    }
    void cleanup() { m_shown.reset(); }

    void startsWithTheWholeSpan()
    {
        const My_ColorSlider fresh;
        QCOMPARE(fresh.startValue, 0);
        QCOMPARE(fresh.endValue, 255);
        QCOMPARE(fresh.dragMarker, -1);
        QVERIFY(!fresh.dragging);
        QCOMPARE(fresh.startMarker, QPoint(-1, -1));
        QCOMPARE(fresh.endMarker, QPoint(-1, -1));
        QCOMPARE(textsOf(fresh).count(QStringLiteral("00.0")), 11);
        for (const char* layout : {"verticalLayout", "verticalLayout_2", "verticalLayout_3"})
            QVERIFY(fresh.findChild<QLayout*>(QString::fromLatin1(layout)));
    }

    /// Ticks and spacers, too: whoever looks a part of the form up by its name finds a plain label.
    void everyLabelOfTheFormIsThere()
    {
        QStringList missing;
        for (int number = 2; number <= 67; ++number) {
            const QString name = QStringLiteral("label_%1").arg(number);
            const QLabel* label = bar->findChild<QLabel*>(name);
            if (!label || label->metaObject() != &QLabel::staticMetaObject ||
                !label->text().isEmpty())
                missing.append(name);
        }
        QCOMPARE(missing, QStringList());
    }

    void tellsNothing()
    {
        const QMetaObject& meta = My_ColorSlider::staticMetaObject;
        QCOMPARE(meta.methodCount(), meta.methodOffset());
    }

    // Scale

    void temperaturesStandTopFirst()
    {
        bar->topTemperature = 50.0F;
        bar->bottomTemperature = 20.0F;
        bar->updateScale();
        QCOMPARE(textsOf(*bar), QStringList({"50.0", "47.0", "44.0", "41.0", "38.0", "35.0", "32.0",
                                             "29.0", "26.0", "23.0", "20.0"}));
    }

    void temperaturesOfAllKinds()
    {
        bar->topTemperature = 1234.56F;
        bar->bottomTemperature = -0.04F;
        bar->updateScale();
        QCOMPARE(textsOf(*bar).first(), QStringLiteral("1234.6"));
        QCOMPARE(textsOf(*bar).last(), QStringLiteral("-0.0"));
        bar->topTemperature = bar->bottomTemperature = std::numeric_limits<float>::infinity();
        bar->updateScale();
        QCOMPARE(textsOf(*bar).last(), QStringLiteral("inf"));
        QCOMPARE(textsOf(*bar).first(), QStringLiteral("nan"));
    }

    /// Each temperature stands at the height of its share of the strip, and has room for long ones.
    void temperaturesStandBesideTheirColours()
    {
        for (const int height : {240, 333, 620, 690}) {
            bar->resize(bar->minimumSizeHint().width(), height);
            testing::comeToRest(testing::PaintCounter(*bar));
            const QList<QLabel*> labels = scaleOf(*bar);
            QCOMPARE(labels.size(), 11);
            for (int k = 0; k <= 10; ++k) {
                const QRect place = labels.at(k)->geometry();
                const double centre = place.y() + place.height() / 2.0;
                QVERIFY(std::abs(centre - (10 + k * (height - 20) / 10.0)) <= 1.5);
                QVERIFY(place.width() >=
                        labels.at(k)->fontMetrics().horizontalAdvance(QStringLiteral("-1234.5")));
                QVERIFY(place.x() > bar->startMarker.x() + 15);
                QVERIFY(bar->rect().contains(place));
            }
            QCOMPARE(stripOf(*bar).y(), 10);
            QCOMPARE(stripOf(*bar).height(), height - 20);
        }
    }

    // Strip

    void theStripIsScaledToTheBar()
    {
        bar->setPalettePixmap(grayStrip());
        QCOMPARE(bar->paletteStrip.size(), QSize(30, 256));
        QCOMPARE(stripOf(*bar).pixmap()->size(), QSize(72, 620)); // 30 × 620 / 256 = 72.65
        bar->resize(60, 620);
        QCOMPARE(stripOf(*bar).pixmap()->size(), QSize(60, 512));
        bar->resize(120, 620);
        const QImage image = bar->grab().toImage();
        const double ratio = bar->devicePixelRatioF();
        const auto grayAt = [&](int y) {
            return qGray(image.pixel(int(15 * ratio), int(y * ratio)));
        };
        // the whole palette over the whole travel: hottest at 10, coldest at h − 10
        QVERIFY(grayAt(11) > 250);
        QVERIFY(grayAt(608) < 5);
        QVERIFY(std::abs(grayAt(310) - 128) <= 3);
    }

    void withoutAStripNothingIsShownAndNothingSaid()
    {
        testing::LogRecorder log;
        bar->setPalettePixmap(QPixmap());
        bar->resize(100, 400);
        bar->repaint();
        QCOMPARE(log.messages(), QStringList());
    }

    void theSameStripAgainPaintsNothing()
    {
        bar->setPalettePixmap(grayStrip());
        testing::PaintCounter paints(*bar);
        QVERIFY(testing::comeToRest(paints));
        paints.count = 0;
        for (int i = 0; i < 3; ++i)
            bar->setPalettePixmap(grayStrip());
        QVERIFY(testing::comeToRest(paints));
        QCOMPARE(paints.count, 0);
        QPixmap other = grayStrip();
        other.fill(Qt::red);
        bar->setPalettePixmap(other);
        QVERIFY(testing::comeToRest(paints));
        QVERIFY(paints.count > 0);
    }

    void screenReadersHearTheTemperatures()
    {
        const QString before = bar->accessibleName();
        QVERIFY(!before.isEmpty());
        bar->topTemperature = 50.04F;
        bar->bottomTemperature = -20.5F;
        bar->updateScale();
        QVERIFY(bar->accessibleName().startsWith(before));
        QVERIFY(bar->accessibleName().contains(QStringLiteral("50.0")));
        QVERIFY(bar->accessibleName().contains(QStringLiteral("-20.5")));
    }

    void keyboardFocusChangesNothing()
    {
        bar->setFocus();
        for (const int key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Space})
            QTest::keyClick(bar, Qt::Key(key));
        QCOMPARE(bar->startValue, 0);
        QCOMPARE(bar->endValue, 255);
    }

private:
    std::unique_ptr<testing::ShownBar> m_shown;
    My_ColorSlider* bar = nullptr; ///< the shown one
};

int main(int argc, char** argv)
{
    return testing::run<MyColorSliderTest>(argc, argv);
}

#include "my_color_slider_test.moc"
