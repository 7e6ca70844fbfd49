// SPDX-License-Identifier: MIT
#include "simulator/control_panel.h"
#include "simulator/simulated_camera.h"
#include "tests/support/parts.h"
#include "tests/support/test_run.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QScreen>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>

#include <memory>

using simulator::ControlPanel;
using simulator::SimulatedImager;

class ControlPanelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void showsWhatTheImagerIs();
    void plugsAndPulls();
    void setsTheScene();
    void heatsAndCools();
    void setsTheImager();
    void setsThePhotographs();
    void takesPhotographsWhileTheDiskIsIn();
    void saysThatAPhotographCouldNotBeStored();
    void everyControlExplainsItself();
    void tabGoesFromTopToBottom();
    void standsBesideAWindow_data();
    void standsBesideAWindow();

private:
    template<typename T>
    T& widget(const char* name) const
    {
        return *testing::part<T>(m_panel.get(), name);
    }
    void click(const char* name) const
    {
        QTest::mouseClick(&widget<QAbstractButton>(name), Qt::LeftButton);
    }
    /// The fields that a user can change, in the form's order.
    QList<QWidget*> controls() const;

    std::unique_ptr<SimulatedImager> m_imager;
    std::unique_ptr<ControlPanel> m_panel;
};

void ControlPanelTest::init()
{
    m_imager = std::make_unique<SimulatedImager>();
    m_panel = std::make_unique<ControlPanel>(*m_imager);
    m_panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_panel.get()));
}

void ControlPanelTest::cleanup()
{
    m_panel.reset();
    m_imager.reset();
}

QList<QWidget*> ControlPanelTest::controls() const
{
    QList<QWidget*> found;
    for (QWidget* child : m_panel->findChildren<QWidget*>()) {
        if ((child->focusPolicy() & Qt::TabFocus) == Qt::TabFocus &&
            qobject_cast<QGroupBox*>(child->parentWidget()) != nullptr)
            found.append(child);
    }
    return found;
}

void ControlPanelTest::showsWhatTheImagerIs()
{
    QVERIFY(!widget<QCheckBox>("cameraBox").isChecked());
    m_imager->setCameraPlugged(true);
    QVERIFY(widget<QCheckBox>("cameraBox").isChecked());
    m_imager->setDiskPlugged(true);
    QVERIFY(widget<QCheckBox>("diskBox").isChecked());
    m_imager->setScene(simulator::SceneKind::Person);
    QCOMPARE(widget<QComboBox>("sceneCombo").currentText(), QStringLiteral("Person"));
    QCOMPARE(widget<QDoubleSpinBox>("hotSpotSpin").value(), 36.4);
    QCOMPARE(widget<QSlider>("hotSpotSlider").value(), 36);
    // Showing a value that the slider rounds does not change the imager.
    QCOMPARE(m_imager->hotSpot(), 36.4);
    m_imager->setThreshold(37.5);
    QCOMPARE(widget<QLabel>("nowLabel").text(), QStringLiteral("Now 36.4 °C, alarm from 37.5 °C"));
    QCOMPARE(widget<QDoubleSpinBox>("thresholdSpin").value(), 37.5);
}

void ControlPanelTest::plugsAndPulls()
{
    QVERIFY(!widget<QAbstractButton>("errorButton").isEnabled());
    widget<QCheckBox>("cameraBox").click();
    QVERIFY(m_imager->isCameraPlugged());
    QVERIFY(widget<QAbstractButton>("errorButton").isEnabled());
    click("errorButton");
    QVERIFY(m_imager->isCameraPlugged());
    widget<QCheckBox>("cameraBox").click();
    QVERIFY(!m_imager->isCameraPlugged());
    widget<QCheckBox>("diskBox").click();
    QVERIFY(m_imager->isDiskPlugged());
    widget<QCheckBox>("diskBox").click();
    QVERIFY(!m_imager->isDiskPlugged());
}

void ControlPanelTest::setsTheScene()
{
    widget<QComboBox>("sceneCombo").setCurrentIndex(3);
    QCOMPARE(m_imager->scene(), simulator::SceneKind::Motor);
    widget<QSlider>("hotSpotSlider").setValue(97);
    QCOMPARE(m_imager->hotSpot(), 97.0);
    QCOMPARE(widget<QDoubleSpinBox>("hotSpotSpin").value(), 97.0);
    widget<QDoubleSpinBox>("hotSpotSpin").setValue(41.3);
    QCOMPARE(m_imager->hotSpot(), 41.3);
    QCOMPARE(widget<QSlider>("hotSpotSlider").value(), 41);
    widget<QComboBox>("paletteCombo").setCurrentIndex(2);
    QCOMPARE(m_imager->photographSettings().palette, simulator::Palette::WhiteHot);
}

void ControlPanelTest::heatsAndCools()
{
    m_imager->setThreshold(60);
    click("heatButton");
    QVERIFY(m_imager->hotSpot() > 65);
    click("coolButton");
    QVERIFY(m_imager->hotSpot() < 55);
}

void ControlPanelTest::setsTheImager()
{
    widget<QDoubleSpinBox>("thresholdSpin").setValue(88.8);
    QCOMPARE(m_imager->threshold(), 88.8);
    widget<QDoubleSpinBox>("emissivitySpin").setValue(0.61);
    QCOMPARE(m_imager->photographSettings().emissivity, 0.61);
    widget<QSpinBox>("frameRateSpin").setValue(0);
    QCOMPARE(m_imager->frameRate(), 0);
    QCOMPARE(widget<QSpinBox>("frameRateSpin").text(), QStringLiteral("Paused"));
}

void ControlPanelTest::setsThePhotographs()
{
    auto& layout = widget<QComboBox>("layoutCombo");
    layout.setCurrentIndex(1);
    QCOMPARE(m_imager->photographSettings().modelIndex, 0);
    QVERIFY(m_imager->photographSettings().raw);
    layout.setCurrentIndex(2);
    QCOMPARE(m_imager->photographSettings().modelIndex, 1);
    QVERIFY(!m_imager->photographSettings().raw);
    widget<QComboBox>("unitCombo").setCurrentIndex(1);
    QVERIFY(m_imager->photographSettings().fahrenheit);
    widget<QSpinBox>("machineSpin").setValue(7);
    QCOMPARE(m_imager->photographSettings().machineId, 7U);
    QCOMPARE(layout.currentIndex(), 2);
}

void ControlPanelTest::takesPhotographsWhileTheDiskIsIn()
{
    QVERIFY(!widget<QAbstractButton>("photographButton").isEnabled());
    m_imager->setDiskPlugged(true);
    click("photographButton");
    const QStringList files =
        QDir(m_imager->disk().root() + QStringLiteral("DCIM_100")).entryList(QDir::Files);
    QCOMPARE(files.size(), 1);
    QCOMPARE(widget<QLabel>("storedLabel").text(), QStringLiteral("Stored ") + files.first());
    m_imager->setDiskPlugged(false);
    QVERIFY(!widget<QAbstractButton>("photographButton").isEnabled());
}

void ControlPanelTest::saysThatAPhotographCouldNotBeStored()
{
    m_imager->setDiskPlugged(true);
    const QString folder = m_imager->disk().root() + QStringLiteral("DCIM_100");
    QDir(folder).removeRecursively();
    QFile inItsPlace(folder);
    QVERIFY(inItsPlace.open(QIODevice::WriteOnly));
    click("photographButton");
    QCOMPARE(widget<QLabel>("storedLabel").text(),
             QStringLiteral("The photograph could not be stored."));
}

void ControlPanelTest::everyControlExplainsItself()
{
    QCOMPARE(controls().size(), 16);
    for (const QWidget* control : controls()) {
        QVERIFY2(!control->toolTip().isEmpty(), qPrintable(control->objectName()));
        QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
    }
}

void ControlPanelTest::tabGoesFromTopToBottom()
{
    m_imager->setCameraPlugged(true);
    m_imager->setDiskPlugged(true);
    m_panel->activateWindow();
    auto& first = widget<QCheckBox>("cameraBox");
    first.setFocus();
    QTRY_VERIFY(first.hasFocus());
    QPoint last(-1, -1);
    for (int i = 0; i < controls().size(); ++i) {
        QWidget* current = m_panel->focusWidget();
        const QPoint place = current->mapTo(m_panel.get(), QPoint(0, current->height() / 2));
        QVERIFY2(place.y() > last.y() + 4 || place.x() > last.x(),
                 qPrintable(current->objectName()));
        last = place;
        QTest::keyClick(current, Qt::Key_Tab);
    }
    QCOMPARE(m_panel->focusWidget(), &first);
}

void ControlPanelTest::standsBesideAWindow_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("minimumWidth");
    QTest::addColumn<bool>("hasRoom");
    QTest::newRow("room for both") << 200 << 100 << true;
    QTest::newRow("as wide as the screen") << 800 << 100 << true;
    QTest::newRow("too wide at its smallest") << 800 << 700 << false;
}

void ControlPanelTest::standsBesideAWindow()
{
    QFETCH(int, width);
    QFETCH(int, minimumWidth);
    QFETCH(bool, hasRoom);
    QWidget window;
    const QRect screen = window.screen()->availableGeometry();
    QCOMPARE(screen.width(), 800);
    auto* content = new QWidget(&window);
    content->setMinimumWidth(minimumWidth);
    (new QVBoxLayout(&window))->addWidget(content);
    window.resize(width, 300);
    m_panel->showBeside(window);
    QVERIFY(window.isVisible() && m_panel->isVisible());
    QVERIFY(window.frameGeometry().left() >= screen.left());
    QVERIFY(m_panel->frameGeometry().right() <= screen.right());
    QCOMPARE(!window.frameGeometry().intersects(m_panel->frameGeometry()), hasRoom);
}

int main(int argc, char** argv)
{
    return testing::run<ControlPanelTest>(argc, argv);
}

#include "control_panel_test.moc"
