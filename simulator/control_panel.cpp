// SPDX-License-Identifier: MIT
#include "simulator/control_panel.h"

#include "analysis/photograph/layouts.h"

#include "ui_control_panel.h"

#include <QFileInfo>
#include <QScopedValueRollback>
#include <QScreen>

#include <algorithm>
#include <cmath>
#include <vector>

namespace simulator {
namespace {

struct FileLayout
{
    QString title;
    int modelIndex;
    bool raw;
};

/// Only imagers whose sensor stands upright keep a raw image.
std::vector<FileLayout> makeFileLayouts()
{
    std::vector<FileLayout> all;
    for (const auto& layout : analysis::format::layouts) {
        const QString title = QStringLiteral("Model %1").arg(layout.modelIndex);
        if (layout.isTurned) {
            all.push_back({title + QStringLiteral(" (sensor turned)"), layout.modelIndex, false});
            continue;
        }
        all.push_back({title, layout.modelIndex, false});
        all.push_back({title + QStringLiteral(" with raw image"), layout.modelIndex, true});
    }
    return all;
}

const std::vector<FileLayout> fileLayouts = makeFileLayouts();

int indexOfLayout(const PhotographSettings& settings)
{
    for (std::size_t i = 0; i < fileLayouts.size(); ++i) {
        if (fileLayouts[i].modelIndex == settings.modelIndex && fileLayouts[i].raw == settings.raw)
            return int(i);
    }
    return -1;
}

} // namespace

ControlPanel::ControlPanel(SimulatedImager& imager, QWidget* parent)
    : QWidget(parent), m_imager(imager), m_ui(std::make_unique<Ui::ControlPanel>())
{
    m_ui->setupUi(this);
    for (const SceneKind kind :
         {SceneKind::CableJoint, SceneKind::Window, SceneKind::Person, SceneKind::Motor})
        m_ui->sceneCombo->insertItem(int(kind), Scene::title(kind));
    for (const Palette palette : {Palette::Iron, Palette::Rainbow, Palette::WhiteHot})
        m_ui->paletteCombo->insertItem(int(palette), paletteTitle(palette));
    for (const FileLayout& layout : fileLayouts)
        m_ui->layoutCombo->addItem(layout.title);
    m_ui->unitCombo->addItems({QStringLiteral("°C"), QStringLiteral("°F")});
    showSettings();
    followImager();
    passOnChanges();
}

ControlPanel::~ControlPanel() = default;

void ControlPanel::followImager()
{
    connect(&m_imager, &SimulatedImager::changed, this, &ControlPanel::showSettings);
    connect(&m_imager, &SimulatedImager::frameSent, this, &ControlPanel::showReachedHotSpot);

    connect(&m_imager, &SimulatedImager::photographTaken, this, [this](const QString& path) {
        m_ui->storedLabel->setText(QStringLiteral("Stored %1").arg(QFileInfo(path).fileName()));
    });
}

/// A user's change reaches the imager, whose answer then fills the fields; that answer must not
/// come back as another change.
template<typename Value>
auto ControlPanel::user(void (SimulatedImager::*setter)(Value))
{
    return [this, setter](auto value) {
        if (!m_isShowing)
            (m_imager.*setter)(Value(value));
    };
}

void ControlPanel::passOnChanges()
{
    connect(m_ui->cameraBox, &QCheckBox::toggled, this, user(&SimulatedImager::setCameraPlugged));
    connect(m_ui->diskBox, &QCheckBox::toggled, this, user(&SimulatedImager::setDiskPlugged));
    connect(m_ui->errorButton, &QPushButton::clicked, &m_imager,
            &SimulatedImager::reportCameraError);

    const auto indexChanged = QOverload<int>::of(&QComboBox::currentIndexChanged);
    const auto intChanged = QOverload<int>::of(&QSpinBox::valueChanged);
    const auto doubleChanged = QOverload<double>::of(&QDoubleSpinBox::valueChanged);
    connect(m_ui->sceneCombo, indexChanged, this, user(&SimulatedImager::setScene));
    connect(m_ui->hotSpotSlider, &QSlider::valueChanged, this, user(&SimulatedImager::setHotSpot));
    connect(m_ui->hotSpotSpin, doubleChanged, this, user(&SimulatedImager::setHotSpot));
    connect(m_ui->heatButton, &QPushButton::clicked, &m_imager,
            &SimulatedImager::heatPastThreshold);
    connect(m_ui->coolButton, &QPushButton::clicked, &m_imager,
            &SimulatedImager::coolBelowThreshold);
    connect(m_ui->thresholdSpin, doubleChanged, this, user(&SimulatedImager::setThreshold));
    connect(m_ui->frameRateSpin, intChanged, this, user(&SimulatedImager::setFrameRate));

    for (QComboBox* combo : {m_ui->paletteCombo, m_ui->layoutCombo, m_ui->unitCombo})
        connect(combo, indexChanged, this, &ControlPanel::applyPhotographSettings);
    connect(m_ui->emissivitySpin, doubleChanged, this, &ControlPanel::applyPhotographSettings);
    connect(m_ui->machineSpin, intChanged, this, &ControlPanel::applyPhotographSettings);
    connect(m_ui->photographButton, &QPushButton::clicked, this, &ControlPanel::takePhotograph);
}

void ControlPanel::showBeside(QWidget& window)
{
    constexpr int gap = 10;
    constexpr int titleBar = 40; // unknown before the window manager has drawn it; a generous guess
    adjustSize();
    const QRect screen = window.screen()->availableGeometry();
    const QSize room(screen.width() - gap - frameGeometry().width(), screen.height() - titleBar);
    window.resize(window.size().boundedTo(room).expandedTo(window.minimumSizeHint()));
    const QSize left = window.frameGeometry().size();
    const QSize right = frameGeometry().size();
    const int x =
        screen.left() + std::max(0, (screen.width() - left.width() - gap - right.width()) / 2);
    const int y =
        screen.top() + std::max(0, (screen.height() - std::max(left.height(), right.height())) / 2);
    // Moved first, then shown: a window manager takes the place of a new window as that of its
    // frame.
    window.move(x, y);
    move(std::min(x + left.width() + gap, screen.right() + 1 - right.width()), y);
    window.show();
    show();
}

void ControlPanel::showSettings()
{
    const QScopedValueRollback<bool> showing(m_isShowing, true);
    m_ui->cameraBox->setChecked(m_imager.isCameraPlugged());
    m_ui->diskBox->setChecked(m_imager.isDiskPlugged());
    m_ui->errorButton->setEnabled(m_imager.isCameraPlugged());

    m_ui->sceneCombo->setCurrentIndex(int(m_imager.scene()));
    m_ui->hotSpotSlider->setValue(int(std::lround(m_imager.hotSpot())));
    m_ui->hotSpotSpin->setValue(m_imager.hotSpot());
    showReachedHotSpot();

    m_ui->thresholdSpin->setValue(m_imager.threshold());
    m_ui->frameRateSpin->setValue(m_imager.frameRate());

    const PhotographSettings& photographs = m_imager.photographSettings();
    m_ui->paletteCombo->setCurrentIndex(int(photographs.palette));
    m_ui->emissivitySpin->setValue(photographs.emissivity);
    m_ui->layoutCombo->setCurrentIndex(indexOfLayout(photographs));
    m_ui->unitCombo->setCurrentIndex(photographs.fahrenheit ? 1 : 0);
    m_ui->machineSpin->setValue(int(photographs.machineId));
    m_ui->photographButton->setEnabled(m_imager.isDiskPlugged());
}

void ControlPanel::showReachedHotSpot()
{
    m_ui->nowLabel->setText(QStringLiteral("Now %1 °C, alarm from %2 °C")
                                .arg(m_imager.reachedHotSpot(), 0, 'f', 1)
                                .arg(m_imager.threshold(), 0, 'f', 1));
}

void ControlPanel::applyPhotographSettings()
{
    if (m_isShowing)
        return;
    PhotographSettings settings = m_imager.photographSettings();
    settings.palette = Palette(m_ui->paletteCombo->currentIndex());
    settings.emissivity = m_ui->emissivitySpin->value();
    const FileLayout& layout = fileLayouts.at(std::size_t(m_ui->layoutCombo->currentIndex()));
    settings.modelIndex = layout.modelIndex;
    settings.raw = layout.raw;
    settings.fahrenheit = m_ui->unitCombo->currentIndex() == 1;
    settings.machineId = quint32(m_ui->machineSpin->value());
    m_imager.setPhotographSettings(settings);
}

void ControlPanel::takePhotograph()
{
    if (m_imager.takePhotograph().isEmpty())
        m_ui->storedLabel->setText(QStringLiteral("The photograph could not be stored."));
}

} // namespace simulator
