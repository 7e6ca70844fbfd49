// SPDX-License-Identifier: MIT
#include "analysis/windows/analysis_widget.h"
#include "analysis/windows/coordinates_dialog.h"
#include "analysis/windows/photo_window.h"
#include "analysis/windows/picture_dialog.h"
#include "app/device_poll.h"
#include "overlay/my_color_slider.h"
#include "overlay/my_label.h"
#include "simulator/tour/opened_photograph.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QUrl>

#include <algorithm>
#include <cstdio>

namespace tour {
namespace {

constexpr int samples = 5; ///< photographs of SimulatedImager::takeSamplePhotographs()

void changeToTheDisk(Walk& walk)
{
    walk.imager().setCameraPlugged(false);
    walk.imager().setDiskPlugged(true);
    walk.imager().takeSamplePhotographs();
    walk.awaitMode(device_poll::diskMode);
    walk.await("every photograph has its thumbnail", [&] {
        const QList<QPixmap>& thumbnails = browser(walk).thumbnails;
        return thumbnails.size() == samples &&
               std::none_of(thumbnails.begin(), thumbnails.end(),
                            [](const QPixmap& each) { return each.isNull(); });
    });
    walk.shoot("thumbnails");
}

void changeTheView(Walk& walk)
{
    const auto table = [&] {
        return browser(walk).findChild<QTableWidget*>();
    };
    walk.click(find<QPushButton>(browser(walk), "pushButton_3"));
    walk.await("the photographs stand in a table",
               [&] { return table() && table()->isVisible() && table()->rowCount() == samples; });
    walk.shoot("table");
    walk.click(find<QPushButton>(browser(walk), "pushButton_4"));
    walk.await("the table is gone", [&] { return !table(); });
}

void openAPhotograph(Walk& walk)
{
    const QString first = browser(walk).fileNames.value(0);
    QListWidget* list = nullptr;
    for (QListWidget* each : browser(walk).findChildren<QListWidget*>()) {
        if (each->count() > 0 && each->item(0)->text() == first)
            list = each;
    }
    walk.await("the thumbnails are listed", [list] { return list != nullptr; });
    walk.doubleClick(*list->viewport(), list->visualItemRect(list->item(0)));
    walk.await("the photograph is open", [&] {
        return find<QTabWidget>(browser(walk), "tabWidget").currentIndex() == 1 &&
               browser(walk).findChild<Analysis_Widget*>() != nullptr &&
               analysisOf(walk).fileName == first;
    });
    walk.shoot("photograph");
}

void placeTools(Walk& walk)
{
    Analysis_Widget& window = analysisOf(walk);
    auto& label = find<MyLabel>(window, "label");
    // In thousandths of the picture's size.
    const auto place = [&label](QPoint at) {
        return QPoint(label.width() / 2 + label.imageWidth * (at.x() - 500) / 1000,
                      label.height() / 2 + label.imageHeight * (at.y() - 500) / 1000);
    };
    const auto drag = [&](const char* button, QPoint from, QPoint to) {
        walk.click(find<QPushButton>(window, button));
        walk.drag(label, place(from), place(to));
    };
    drag("pushButton_8", {500, 570}, {500, 570});
    drag("pushButton_7", {160, 480}, {860, 720});
    drag("pushButton_6", {230, 100}, {790, 400});
    drag("pushButton_5", {500, 830}, {560, 860});
    walk.click(find<QPushButton>(window, "pushButton_9"));
    walk.await("a tool of each kind stands in the table",
               [&] { return find<QTableWidget>(window, "tableWidget").rowCount() == 4; });
    walk.shoot("tools");
}

/// The circle, which was drawn last and is selected.
void typeCoordinates(Walk& walk)
{
    auto& label = pictureOf(walk);
    QTest::keyClick(analysisOf(walk).focusWidget(), Qt::Key_F2);
    auto& dialog = shownDialog<CoordinatesDialog>(walk);
    auto& radius = find<QSpinBox>(dialog, "number3");
    radius.selectAll();
    QTest::keyClicks(&radius, QStringLiteral("24"));
    walk.await("the picture follows", [&] { return label.circleList.first().radius == 24; });
    walk.shoot("coordinates");
    QTest::keyClick(&radius, Qt::Key_Return);
    walk.await("the dialog is gone",
               [&] { return !walk.window().findChild<CoordinatesDialog*>(); });
}

void chooseForMeasurements(Walk& walk, const char* text)
{
    chooseFrom(walk, openMenuOf(walk, pictureOf(walk)),
               QCoreApplication::translate("MeasurementMenu", text));
}

void workByKeys(Walk& walk)
{
    auto& label = pictureOf(walk);
    auto& table = find<QTableWidget>(analysisOf(walk), "tableWidget");
    const auto press = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(analysisOf(walk).focusWidget(), key, modifiers);
    };
    walk.await("the keys are the program's again",
               [&] { return analysisOf(walk).isActiveWindow(); });
    press(Qt::Key_Escape);
    press(Qt::Key_PageUp);
    walk.await("the rectangle is selected",
               [&] { return label.currentType == QLatin1String("R"); });
    const overlay::RectTool drawn = label.rectList.first();
    press(Qt::Key_Right, Qt::ShiftModifier);
    press(Qt::Key_Down, Qt::AltModifier);
    walk.await("it has moved, and its corner", [&] {
        const overlay::RectTool& moved = label.rectList.first();
        return moved.x1 == drawn.x1 + 10 && moved.y1 == drawn.y1 && moved.y2 == drawn.y2 + 1;
    });
    press(Qt::Key_Delete);
    walk.await("it is gone", [&] { return table.rowCount() == 3; });
    for (int steps = 0; steps < 3; ++steps)
        press(Qt::Key_Z, Qt::ControlModifier);
    walk.await("all is as before",
               [&] { return table.rowCount() == 4 && label.rectList.first() == drawn; });
    table.setFocus();
    openMenuOf(walk, *table.viewport());
    walk.shoot("table-menu");
    QApplication::activePopupWidget()->close();
}

/// Saved in a file, and carried over to the next photograph.
void keepMeasurements(Walk& walk)
{
    const QString path = QFileInfo(walk.pathOf(QStringLiteral("tools.json"))).absoluteFilePath();
    chooseForMeasurements(walk, "保存测量...");
    nameAFile(walk, path);
    walk.await("the measurements are there", [&] { return QFileInfo(path).size() > 0; });
    const auto step = [&](Qt::Key key, int index) {
        walk.await("the window is active", [&] { return analysisOf(walk).isActiveWindow(); });
        QTest::keyClick(analysisOf(walk).focusWidget(), key, Qt::ControlModifier);
        walk.await("the other photograph opens", [&] {
            return analysisOf(walk).fileName == browser(walk).fileNames.value(index) &&
                   analysisOf(walk).isVisible();
        });
    };
    const auto rows = [&] {
        return find<QTableWidget>(analysisOf(walk), "tableWidget").rowCount();
    };
    step(Qt::Key_PageDown, 1);
    chooseForMeasurements(walk, "应用上次的测量");
    walk.await("it is measured in the same way", [&] { return rows() == 4; });
    walk.shoot("next-photograph");
    step(Qt::Key_PageUp, 0);
    chooseForMeasurements(walk, "加载测量...");
    nameAFile(walk, path);
    walk.await("the measurements are back", [&] { return rows() == 4; });
}

void savePicture(Walk& walk)
{
    QMenu& menu = openMenuOf(walk, pictureOf(walk));
    walk.shoot("picture-menu");
    chooseFrom(walk, menu, QCoreApplication::translate("ViewMenu", "保存图片..."));
    auto& how = shownDialog<PictureDialog>(walk);
    walk.click(find<QCheckBox>(how, "values"));
    walk.shoot("save-picture");
    how.accept();
    const QString path = QFileInfo(walk.pathOf(QStringLiteral("saved.png"))).absoluteFilePath();
    nameAFile(walk, path);
    walk.await("the picture is there", [&] { return QFileInfo(path).size() > 0; });
    std::puts(qPrintable(walk.pathOf(QStringLiteral("saved.png"))));
}

void changeTheUnit(Walk& walk)
{
    auto& unit = find<QComboBox>(analysisOf(walk), "comboBox");
    const auto maximum = [&] {
        const auto* cell = find<QTableWidget>(analysisOf(walk), "tableWidget").item(0, 2);
        return cell == nullptr ? QString() : cell->text();
    };
    const QString before = maximum();
    unit.setFocus();
    QTest::keyClick(&unit, Qt::Key_Down);
    walk.await("the table shows degrees Fahrenheit",
               [&] { return unit.currentIndex() == 1 && maximum() != before; });
    walk.shoot("fahrenheit");
    QTest::keyClick(&unit, Qt::Key_Up);
    walk.await("the table shows degrees Celsius again", [&] { return maximum() == before; });
}

void narrowTheSpan(Walk& walk)
{
    auto& bar = find<My_ColorSlider>(analysisOf(walk), "widget");
    const QPoint aside(4, 0); // behind the tip
    const QPoint top = bar.startMarker + aside;
    const QPoint bottom = bar.endMarker + aside;
    walk.drag(bar, top, top + QPoint(0, bar.height() / 3));
    walk.drag(bar, bottom, bottom - QPoint(0, bar.height() / 6));
    walk.await("the span is narrower at both ends",
               [&] { return bar.startValue > 40 && bar.endValue < 235; });
    walk.shoot("span");
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

void writeAReport(Walk& walk)
{
    const QString path = QFileInfo(walk.pathOf(QStringLiteral("report.pdf"))).absoluteFilePath();
    const auto nameTheFile = [&](QDialog& dialog) {
        auto& name = find<QLineEdit>(dialog, "fileNameEdit");
        name.setText(path);
        walk.shoot("report-name");
        QTest::keyClick(&name, Qt::Key_Return);
    };
    const auto takeNotice = [&](QDialog& dialog) {
        walk.shoot("report-written");
        walk.click(*dialog.findChild<QPushButton*>());
    };
    const Viewer viewer;
    walk.answerDialogs([&] { walk.click(find<QPushButton>(analysisOf(walk), "pushButton")); },
                       {nameTheFile, takeNotice});
    walk.await("the report is there and opened",
               [&] { return viewer.opened == path && QFileInfo(path).size() > 0; });
    std::puts(qPrintable(walk.pathOf(QStringLiteral("report.pdf"))));
}

} // namespace

void takeDiskSteps(Walk& walk)
{
    changeToTheDisk(walk);
    changeTheView(walk);
    openAPhotograph(walk);
    placeTools(walk);
    typeCoordinates(walk);
    workByKeys(walk);
    savePicture(walk);
    takeLookingSteps(walk);
    keepMeasurements(walk);
    changeTheUnit(walk);
    narrowTheSpan(walk);
    writeAReport(walk);
    walk.imager().setDiskPlugged(false);
    walk.imager().setCameraPlugged(true);
    walk.awaitMode(device_poll::liveMode);
    walk.shoot("live-again");
}

} // namespace tour

#include "disk_steps.moc"
