// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/windows/analysis_widget.h"
#include "analysis/windows/measurement_keeping.h"
#include "analysis/windows/tool_commands.h"
#include "overlay/my_color_slider.h"
#include "overlay/my_label.h"
#include "resources/resources.h"
#include "tests/analysis/photograph_writer.h"
#include "tests/support/folder.h"
#include "tests/support/parts.h"
#include "tests/support/test_run.h"

#include <QComboBox>
#include <QPushButton>
#include <QTableWidget>

#include <memory>

namespace testing {

/// A photograph of one gray value.
inline Shot flat(int gray, int maximum10 = 500, int minimum10 = 200)
{
    Shot shot;
    shot.gray = [gray](int, int) {
        return gray;
    };
    shot.maximum10 = maximum10;
    shot.minimum10 = minimum10;
    return shot;
}

inline overlay::PointTool placedPoint(const QString& name, int x, int y)
{
    overlay::PointTool point;
    point.name = name;
    point.x = x;
    point.y = y;
    return point;
}

/// The analysis window with made-up photographs: what its tests share.
class AnalysisWindowTest : public QObject
{
    Q_OBJECT

protected:
    std::unique_ptr<Analysis_Widget> window;

    template<typename T>
    T& child(const char* name) const
    {
        return *part<T>(window.get(), name);
    }
    MyLabel& label() const { return child<MyLabel>("label"); }
    My_ColorSlider& bar() const { return child<My_ColorSlider>("widget"); }
    QComboBox& unit() const { return child<QComboBox>("comboBox"); }
    QTableWidget& tools() const { return child<QTableWidget>("tableWidget"); }
    void click(const char* button) const { child<QPushButton>(button).click(); }

    QString information(int row) const
    {
        return child<QTableWidget>("tableWidget_2").item(row, 1)->text();
    }
    QStringList toolRow(int row) const
    {
        QStringList texts;
        for (int column = 0; column < tools().columnCount(); ++column)
            texts.append(tools().item(row, column)->text());
        return texts;
    }
    QString readOut() const
    {
        QStringList texts;
        for (const char* name : {"label_2", "label_3", "label_4"})
            texts.append(child<QLabel>(name).text());
        return texts.join(QLatin1Char('|'));
    }

    static QString file(const QString& name, const QByteArray& bytes)
    {
        const QString path = testing::profile().home() + QLatin1Char('/') + name;
        putFile(path, bytes);
        return path;
    }
    /// As the browser opens photographs.
    bool load(const Shot& shot)
    {
        const bool isRead = window->set_Image_addr(
            file(QStringLiteral("shot.bmp"), photographBytes(shot)), shot.model);
        if (isRead)
            window->commands().keeping().bringBack();
        return isRead;
    }
    void show()
    {
        window->resize(1060, 660);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        QCoreApplication::processEvents();
    }
    QRgb shownColour(int x, int y) const
    {
        const QImage picture = label().pixmap(Qt::ReturnByValue).toImage();
        return picture.pixel(x * picture.width() / 240, y * picture.height() / 320);
    }
    /// Where an image position is on the label.
    QPoint at(int x, int y) const
    {
        const QSize picture = label().pixmap(Qt::ReturnByValue).size();
        return {label().width() / 2 - picture.width() / 2 + (2 * x + 1) * picture.width() / 480,
                (2 * y + 1) * picture.height() / 640};
    }
    void drag(const QPoint& from, const QPoint& to)
    {
        QTest::mousePress(&label(), Qt::LeftButton, {}, from);
        QMouseEvent move(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&label(), &move);
        QTest::mouseRelease(&label(), Qt::LeftButton, {}, to);
    }

private slots:
    void initTestCase() { resources::load(); }
    void init()
    {
        testing::profile().reset();
        window = std::make_unique<Analysis_Widget>();
    }
    void cleanup() { window.reset(); }
};

} // namespace testing
