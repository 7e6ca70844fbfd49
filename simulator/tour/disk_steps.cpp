// SPDX-License-Identifier: MIT
#include "analysis/windows/analysis_widget.h"
#include "analysis/windows/photo_window.h"
#include "app/device_poll.h"
#include "overlay/my_color_slider.h"
#include "overlay/my_label.h"
#include "simulator/tour/walk.h"

#include <QComboBox>
#include <QDesktopServices>
#include <QFileInfo>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QUrl>

#include <algorithm>
#include <cstdio>

namespace tour {
namespace {

constexpr int samples = 5; ///< photographs of SimulatedImager::takeSamplePhotographs()

photo_window& browser(Walk& walk)
{
    return *walk.window().browser();
}

Analysis_Widget& analysisOf(Walk& walk)
{
    return *browser(walk).findChild<Analysis_Widget*>();
}

bool changeToTheDisk(Walk& walk)
{
    walk.imager().setCameraPlugged(false);
    walk.imager().setDiskPlugged(true);
    walk.imager().takeSamplePhotographs();
    return walk.awaitMode(device_poll::diskMode,
                          QStringLiteral("USB-disk mode starts by itself")) &&
           walk.await(QStringLiteral("every photograph has its thumbnail"),
                      [&] {
                          const QList<QPixmap>& thumbnails = browser(walk).thumbnails;
                          return thumbnails.size() == samples &&
                                 std::none_of(thumbnails.begin(), thumbnails.end(),
                                              [](const QPixmap& each) { return each.isNull(); });
                      }) &&
           walk.shoot(QStringLiteral("thumbnails"));
}

bool changeTheView(Walk& walk)
{
    return walk.click(&find<QPushButton>(browser(walk), "pushButton_3")) &&
           walk.await(QStringLiteral("the photographs stand in a table"),
                      [&] {
                          const auto* table = browser(walk).findChild<QTableWidget*>();
                          return table != nullptr && table->isVisible() &&
                                 table->rowCount() == samples;
                      }) &&
           walk.shoot(QStringLiteral("table")) &&
           walk.click(&find<QPushButton>(browser(walk), "pushButton_4")) &&
           walk.await(QStringLiteral("the table is gone"),
                      [&] { return browser(walk).findChild<QTableWidget*>() == nullptr; });
}

bool openAPhotograph(Walk& walk)
{
    const QString first = browser(walk).fileNames.value(0);
    QListWidget* list = nullptr;
    for (QListWidget* each : browser(walk).findChildren<QListWidget*>())
        if (each->count() > 0 && each->item(0)->text() == first)
            list = each;
    if (!walk.await(QStringLiteral("the thumbnails are listed"),
                    [list] { return list != nullptr; }))
        return false;
    const QRect thumbnail = list->visualItemRect(list->item(0));
    return walk.clickItem(list->viewport(), thumbnail) &&
           walk.doubleClickItem(list->viewport(), thumbnail) &&
           walk.await(QStringLiteral("the photograph is open"),
                      [&] {
                          return find<QTabWidget>(browser(walk), "tabWidget").currentIndex() == 1 &&
                                 browser(walk).findChild<Analysis_Widget*>() != nullptr &&
                                 analysisOf(walk).fileName == first;
                      }) &&
           walk.shoot(QStringLiteral("photograph"));
}

/// A point of the photograph, in thousandths of the label's size.
QPoint placeOn(const MyLabel& label, int x, int y)
{
    return {label.width() / 2 + label.imageWidth * (x - 500) / 1000,
            label.height() / 2 + label.imageHeight * (y - 500) / 1000};
}

bool placeTools(Walk& walk)
{
    Analysis_Widget& window = analysisOf(walk);
    MyLabel& label = find<MyLabel>(window, "label");
    const auto drag = [&](const char* button, QPoint from, QPoint to) {
        return walk.click(&find<QPushButton>(window, button)) &&
               walk.drag(&label, placeOn(label, from.x(), from.y()),
                         placeOn(label, to.x(), to.y()));
    };
    return drag("pushButton_8", {500, 570}, {500, 570}) &&
           drag("pushButton_7", {160, 480}, {860, 720}) &&
           drag("pushButton_6", {230, 100}, {790, 400}) &&
           drag("pushButton_5", {500, 830}, {560, 860}) &&
           walk.click(&find<QPushButton>(window, "pushButton_9")) &&
           walk.await(QStringLiteral("a tool of each kind stands in the table"),
                      [&] { return find<QTableWidget>(window, "tableWidget").rowCount() == 4; }) &&
           walk.shoot(QStringLiteral("tools"));
}

bool changeTheUnit(Walk& walk)
{
    Analysis_Widget& window = analysisOf(walk);
    QComboBox& unit = find<QComboBox>(window, "comboBox");
    const auto maximum = [&] {
        const QTableWidgetItem* cell = find<QTableWidget>(window, "tableWidget").item(0, 2);
        return cell == nullptr ? QString() : cell->text();
    };
    const QString before = maximum();
    unit.setFocus();
    return walk.press(&unit, Qt::Key_Down) &&
           walk.await(QStringLiteral("the table shows degrees Fahrenheit"),
                      [&] { return unit.currentIndex() == 1 && maximum() != before; }) &&
           walk.shoot(QStringLiteral("fahrenheit")) && walk.press(&unit, Qt::Key_Up) &&
           walk.await(QStringLiteral("the table shows degrees Celsius again"),
                      [&] { return maximum() == before; });
}

bool narrowTheSpan(Walk& walk)
{
    Analysis_Widget& window = analysisOf(walk);
    My_ColorSlider& bar = find<My_ColorSlider>(window, "widget");
    const QPoint aside(4, 0); // behind the tip
    const QPoint top = bar.startMarker + aside;
    const QPoint bottom = bar.endMarker + aside;
    return walk.drag(&bar, top, top + QPoint(0, bar.height() / 3)) &&
           walk.drag(&bar, bottom, bottom - QPoint(0, bar.height() / 6)) &&
           walk.await(QStringLiteral("the span is narrower at both ends"),
                      [&] { return bar.startValue > 40 && bar.endValue < 235; }) &&
           walk.shoot(QStringLiteral("span"));
}

/// Takes the place of the desktop's viewer.
class Viewer : public QObject
{
    Q_OBJECT

public:
    Viewer() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open"); }
    ~Viewer() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
    QString opened;

public slots:
    void open(const QUrl& url) { opened = url.toLocalFile(); }
};

bool writeAReport(Walk& walk)
{
    const QString path = QFileInfo(walk.pathOf(QStringLiteral("report.pdf"))).absoluteFilePath();
    const auto nameTheFile = [&](QDialog& dialog) {
        auto& name = find<QLineEdit>(dialog, "fileNameEdit");
        name.setText(path);
        return walk.shoot(QStringLiteral("report-name")) && walk.press(&name, Qt::Key_Return);
    };
    const auto takeNotice = [&](QDialog& dialog) {
        return walk.shoot(QStringLiteral("report-written")) &&
               walk.click(dialog.findChild<QPushButton*>());
    };
    const Viewer viewer;
    if (!walk.answerDialogs(
            QStringLiteral("the report is named and its completion told"),
            [&] { return walk.click(&find<QPushButton>(analysisOf(walk), "pushButton")); },
            {nameTheFile, takeNotice}))
        return false;
    if (!walk.await(QStringLiteral("the report is there and opened"),
                    [&] { return viewer.opened == path && QFileInfo(path).size() > 0; }))
        return false;
    std::puts(qPrintable(walk.pathOf(QStringLiteral("report.pdf"))));
    return true;
}

bool changeBackToTheCamera(Walk& walk)
{
    walk.imager().setDiskPlugged(false);
    walk.imager().setCameraPlugged(true);
    return walk.awaitMode(device_poll::liveMode, QStringLiteral("live mode follows the disk")) &&
           walk.shoot(QStringLiteral("live-again"));
}

} // namespace

std::vector<Step> diskSteps()
{
    return {{"change to the disk", changeToTheDisk},
            {"change the view", changeTheView},
            {"open a photograph", openAPhotograph},
            {"place a tool of each kind", placeTools},
            {"change the unit", changeTheUnit},
            {"narrow the colour bar's span", narrowTheSpan},
            {"write a report", writeAReport},
            {"change back to the camera", changeBackToTheCamera}};
}

} // namespace tour

#include "disk_steps.moc"
