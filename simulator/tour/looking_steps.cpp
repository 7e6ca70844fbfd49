// SPDX-License-Identifier: MIT
#include "analysis/windows/correction_dialog.h"
#include "analysis/windows/details_window.h"
#include "analysis/windows/histogram_window.h"
#include "analysis/windows/isotherm_dialog.h"
#include "analysis/windows/large_picture.h"
#include "analysis/windows/magnifier.h"
#include "analysis/windows/picture_dialog.h"
#include "analysis/windows/picture_view.h"
#include "analysis/windows/profile_window.h"
#include "analysis/windows/spots_window.h"
#include "plots/plot_view.h"
#include "simulator/tour/opened_photograph.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QWheelEvent>

#include <stdexcept>

namespace tour {
namespace {

/// A window beside the picture, as soon as it is on the screen.
template<typename Window>
Window& shownBeside(Walk& walk)
{
    const auto find = [&] {
        return analysisOf(walk).findChild<Window*>();
    };
    walk.await("a window opens beside the picture",
               [&] { return find() && find()->isActiveWindow(); });
    return *find();
}

template<typename Window>
void close(Walk& walk)
{
    QTest::keyClick(analysisOf(walk).findChild<Window*>(), Qt::Key_Escape);
    walk.await("the window beside the picture is gone", [&] {
        return !analysisOf(walk).findChild<Window*>() && analysisOf(walk).isActiveWindow();
    });
}

/// Presses a key where the keys of the picture's window go.
void press(Walk& walk, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    walk.await("the keys are the program's again",
               [&] { return analysisOf(walk).isActiveWindow(); });
    QTest::keyClick(analysisOf(walk).focusWidget(), key, modifiers);
}

void magnify(Walk& walk)
{
    press(walk, Qt::Key_F8);
    auto& magnifier = shownBeside<analysis::Magnifier>(walk);
    MyLabel& picture = pictureOf(walk);
    const auto& readOut = find<QLabel>(magnifier, "readOut");
    const QString before = readOut.text();
    // The edge of the hot joint.
    QTest::mouseMove(&picture, {picture.width() / 2 + picture.imageWidth / 18,
                                picture.height() / 2 + picture.imageHeight / 15});
    walk.await("it is where the mouse is", [&] { return readOut.text() != before; });
    walk.click(find<QCheckBox>(magnifier, "frozen"));
    walk.shoot("magnifier");
    close<analysis::Magnifier>(walk);
}

/// Opens a window beside the picture from the picture's context menu.
template<typename Window>
Window& chosenBeside(Walk& walk, const char* context, const char* entry)
{
    chooseFrom(walk, openMenuOf(walk, pictureOf(walk)),
               QCoreApplication::translate(context, entry));
    return shownBeside<Window>(walk);
}

void plotProfile(Walk& walk)
{
    auto& profile =
        chosenBeside<analysis::ProfileWindow>(walk, "analysis::ProfileWindow", "温度曲线...");
    auto& plot = *profile.findChild<plots::PlotView*>();
    walk.await("the line has its curve", [&] { return !plot.plot().curves.empty(); });
    plot.setCursor(plots::Place{0, int(plot.plot().curves[0].points.size()) / 3});
    walk.shoot("profile");
    close<analysis::ProfileWindow>(walk);
}

void plotHistogram(Walk& walk)
{
    auto& histogram =
        chosenBeside<analysis::HistogramWindow>(walk, "analysis::HistogramWindow", "直方图...");
    find<QComboBox>(histogram, "area").setCurrentIndex(1); // the whole picture
    find<QCheckBox>(histogram, "logarithmic").setChecked(true);
    walk.shoot("histogram");
    close<analysis::HistogramWindow>(walk);
}

/// Of the rectangle, compared with the line.
void lookAtDetails(Walk& walk)
{
    auto& table = find<QTableWidget>(analysisOf(walk), "tableWidget");
    walk.doubleClick(*table.viewport(), table.visualItemRect(table.item(2, 0)));
    auto& details = shownBeside<analysis::DetailsWindow>(walk);
    walk.await("it tells of the rectangle", [&] {
        return find<QLabel>(details, "subject").text().startsWith(QLatin1String("R0"));
    });
    find<QComboBox>(details, "other").setCurrentText(QStringLiteral("L0"));
    walk.shoot("details");
    close<analysis::DetailsWindow>(walk);
}

void listSpots(Walk& walk)
{
    press(walk, Qt::Key_I, Qt::ControlModifier | Qt::ShiftModifier);
    auto& spots = shownBeside<analysis::SpotsWindow>(walk);
    find<QComboBox>(spots, "area").setCurrentIndex(0);
    auto& table = find<QTableWidget>(spots, "spots");
    walk.await("there are some", [&] { return table.rowCount() > 1; });
    table.setCurrentCell(0, 0);
    walk.shoot("spots");
    close<analysis::SpotsWindow>(walk);
}

/// By Ctrl with the wheel over the hot joint.
void enlarge(Walk& walk)
{
    MyLabel& picture = pictureOf(walk);
    const QPoint place(picture.width() / 2 + picture.imageWidth / 18,
                       picture.height() / 2 + picture.imageHeight / 15);
    const auto turn = [&] {
        QWheelEvent event(place, picture.mapToGlobal(place), {}, {0, 120}, Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&picture, &event);
    };
    turn();
    auto& large = shownBeside<analysis::LargePicture>(walk);
    const analysis::PictureZoom& zoom = large.view().zoom();
    while (zoom.factor() < 6)
        turn();
    QWidget& seen = *large.view().viewport();
    QTest::mouseMove(&seen, seen.rect().center());
    walk.await("the pixel is read",
               [&] { return !find<QLabel>(large, "readOut").text().isEmpty(); });
    walk.shoot("large-picture");
    close<analysis::LargePicture>(walk);
}

template<typename Dialog>
Dialog& chosenDialog(Walk& walk, const char* entry)
{
    chooseFrom(walk, openMenuOf(walk, pictureOf(walk)),
               QCoreApplication::translate("LookingMenu", entry));
    return shownDialog<Dialog>(walk);
}

template<typename Dialog>
void awaitEndOf(Walk& walk)
{
    walk.await("the dialog is gone", [&] { return !walk.window().findChild<Dialog*>(); });
}

/// Opens such a dialog once more, to switch off what it has switched on.
template<typename Dialog>
void switchOff(Walk& walk, const char* entry)
{
    walk.click(find<QPushButton>(chosenDialog<Dialog>(walk, entry), "off"));
    awaitEndOf<Dialog>(walk);
}

void colourAndCorrect(Walk& walk)
{
    constexpr const char* isothermEntry = "等温线...";
    constexpr const char* correctionEntry = "校正发射率...";
    auto& isotherm = chosenDialog<analysis::IsothermDialog>(walk, isothermEntry);
    find<QComboBox>(isotherm, "fromSource").setFocus();
    walk.shoot("isotherm");
    isotherm.accept();
    awaitEndOf<analysis::IsothermDialog>(walk);

    auto& correction = chosenDialog<analysis::CorrectionDialog>(walk, correctionEntry);
    find<QDoubleSpinBox>(correction, "emissivity").setValue(0.6);
    walk.shoot("correction");
    find<QDoubleSpinBox>(correction, "stored").setValue(0);
    walk.shoot("correction-refused");
    find<QDoubleSpinBox>(correction, "stored").setValue(0.95);
    correction.accept();
    awaitEndOf<analysis::CorrectionDialog>(walk);

    openMenuOf(walk, pictureOf(walk));
    walk.shoot("corrected-menu");
    QApplication::activePopupWidget()->close();
    chooseFrom(walk, openMenuOf(walk, pictureOf(walk)),
               QCoreApplication::translate("ViewMenu", "保存图片..."));
    auto& picture = shownDialog<PictureDialog>(walk);
    walk.click(find<QCheckBox>(picture, "values"));
    const QString path = walk.pathOf(QStringLiteral("saved-corrected.png"));
    if (!picture.picture().save(path))
        throw std::runtime_error(qPrintable(path));
    picture.reject();
    awaitEndOf<PictureDialog>(walk);

    switchOff<analysis::IsothermDialog>(walk, isothermEntry);
    switchOff<analysis::CorrectionDialog>(walk, correctionEntry);
}

} // namespace

void takeLookingSteps(Walk& walk)
{
    plotProfile(walk);
    plotHistogram(walk);
    lookAtDetails(walk);
    listSpots(walk);
    magnify(walk);
    enlarge(walk);
    colourAndCorrect(walk);
}

} // namespace tour
