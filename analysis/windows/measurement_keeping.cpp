// SPDX-License-Identifier: MIT
#include "analysis/windows/measurement_keeping.h"

#include "analysis/windows/analysis_widget.h"
#include "analysis/windows/outcome_text.h"
#include "analysis/windows/tool_commands.h"
#include "config/choices.h"
#include "dialogs/dialogs.h"
#include "overlay/colour_bar_scale.h"

#include "ui_analysis_widget.h"

#include <QAction>
#include <QEvent>
#include <QMessageBox>

namespace analysis {

MeasurementKeeping::MeasurementKeeping(ToolCommands& commands, const Ui::Analysis_Widget& form)
    : m_commands(commands), m_form(form),
      m_choice(commands.add({ToolCommands::Group::Keeping, tr("随照片保存测量"), [this] {
                                 choose();
                             }}))
{
    m_choice->setCheckable(true);
    m_choice->setChecked(config::keepMeasurements());
    connect(&commands, &ToolCommands::changed, this, &MeasurementKeeping::keep);
    connect(form.comboBox, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &MeasurementKeeping::keep);
    form.widget->installEventFilter(this); // the colour bar has no signals
}

/// Whatever closes the photograph, even in the middle of a gesture. There is no window left for a
/// message.
MeasurementKeeping::~MeasurementKeeping()
{
    store();
}

bool MeasurementKeeping::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease)
        keep();
    return QObject::eventFilter(watched, event);
}

/// What is on the photograph already is kept from now on.
void MeasurementKeeping::choose()
{
    if (!config::setKeepMeasurements(m_choice->isChecked())) {
        m_choice->setChecked(!m_choice->isChecked());
        warn(tr("此选择未能保存。"));
        return;
    }
    m_key = presentKey();
    keep();
}

void MeasurementKeeping::bringBack()
{
    m_key.clear(); // nothing is kept of what happens here
    if (config::keepMeasurements()) {
        const QString key = presentKey();
        if (const std::optional<Measurements> kept = m_store.find(key))
            show(*kept);
        m_key = key;
    }
    m_known = now();
}

/// Empty without a photograph.
QString MeasurementKeeping::presentKey() const
{
    const Analysis_Widget& window = m_commands.window();
    return window.readCount > 0
               ? KeptMeasurements::keyOf(window.fileBuffer.bytes(), window.readCount)
               : QString();
}

Measurements MeasurementKeeping::now() const
{
    Measurements measurements;
    measurements.tools = m_commands.state().tools;
    measurements.tools.currentType = overlay::Tools().currentType;
    measurements.tools.selectedIndex = overlay::Tools().selectedIndex;
    measurements.startValue = overlay::paletteStep(m_form.widget->startValue);
    measurements.endValue = overlay::paletteStep(m_form.widget->endValue);
    measurements.unit = unitAt(m_form.comboBox->currentIndex()).value_or(Unit::Celsius);
    return measurements;
}

void MeasurementKeeping::show(const Measurements& measurements)
{
    m_form.widget->startValue = measurements.startValue;
    m_form.widget->endValue = measurements.endValue;
    m_form.widget->update();
    m_form.comboBox->setCurrentIndex(int(measurements.unit));
    m_commands.restart({measurements.tools, m_commands.state().colour});
}

void MeasurementKeeping::keep()
{
    const files::Outcome outcome = store();
    if (!outcome.isGood())
        warn(tr("测量未能与照片一起保存。\n%1").arg(outcomeText(outcome)));
}

/// While another photograph is being read into the window, its unit changes with the tools still
/// those of the one before.
files::Outcome MeasurementKeeping::store()
{
    if (m_key.isEmpty() || !config::keepMeasurements())
        return {};
    const Measurements measurements = now();
    if (measurements == m_known || m_key != presentKey())
        return {};
    const files::Outcome outcome = m_store.keep(m_key, measurements);
    if (outcome.isGood())
        m_known = measurements;
    return outcome;
}

/// One message at a time: a disk that is full fails at every change.
void MeasurementKeeping::warn(const QString& text)
{
    if (m_warning)
        return;
    Analysis_Widget& window = m_commands.window();
    m_warning = dialogs::warn(text, window.window(), &window);
}

} // namespace analysis
