// SPDX-License-Identifier: MIT
#include "analysis/windows/viewed_photograph.h"

#include "analysis/photograph/looking_texts.h"
#include "analysis/windows/analysis_widget.h"

#include "ui_analysis_widget.h"

#include <algorithm>
#include <utility>

namespace analysis {

ViewedPhotograph::ViewedPhotograph(Analysis_Widget& window, const Ui::Analysis_Widget& form)
    : m_window(window), m_form(form)
{
    m_soon.setSingleShot(true);
    connect(&m_soon, &QTimer::timeout, this, &ViewedPhotograph::tell);
    connect(form.label, &MyLabel::Point_XY, this, [this](int x, int y) {
        m_pointedAt = {std::clamp(x, 0, format::columns - 1), std::clamp(y, 0, format::rows - 1)};
        emit pointed(m_pointedAt.x(), m_pointedAt.y());
        look();
    });
    connect(form.label, &MyLabel::updat_Tool, this, &ViewedPhotograph::look);
    connect(form.label, &MyLabel::Set_Select, this, &ViewedPhotograph::look);
    connect(form.comboBox, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &ViewedPhotograph::becomeOther);
}

QString ViewedPhotograph::name() const
{
    return m_window.fileName;
}

const Photograph& ViewedPhotograph::photograph() const
{
    return m_window.photograph;
}

ShownUnit ViewedPhotograph::unit() const
{
    return {unitAt(m_form.comboBox->currentIndex()).value_or(Unit::Celsius), m_window.conversion};
}

overlay::Tools ViewedPhotograph::tools() const
{
    return overlay::stateOf(*m_form.label).tools;
}

std::optional<Unit> ViewedPhotograph::scale() const
{
    return storedUnit(photograph().parameters.unit, hasRawImage(m_window.readCount));
}

void ViewedPhotograph::setCorrection(const std::optional<Correction>& correction)
{
    if (correction == m_correction)
        return;
    m_correction = correction;
    correctAnew();
    becomeOther();
}

void ViewedPhotograph::correctAnew()
{
    m_corrected = {};
    if (m_correction && scale())
        m_corrected = correctedTemperatures(photograph().temperatures, *scale(), *m_correction);
    if (!m_corrected.temperatures)
        m_correction.reset();
}

QString ViewedPhotograph::correctionName() const
{
    return m_correction ? LookingTexts::nameOf(*m_correction, unit().unit) : QString();
}

int ViewedPhotograph::withoutCorrected() const
{
    return m_corrected.belowSurroundings + m_corrected.outsideTable;
}

void ViewedPhotograph::setIsotherm(const std::optional<Isotherm>& isotherm)
{
    if (isotherm == m_isotherm)
        return;
    m_isotherm = isotherm;
    m_window.mapAnew();
    becomeOther();
}

void ViewedPhotograph::paintIsotherm(cv::Mat& colours) const
{
    if (m_isotherm)
        paint(*m_isotherm, photograph().temperatures, unit(), colours);
}

/// A copy, because the window's picture is painted over when its colours change.
QImage ViewedPhotograph::colours() const
{
    return m_window.render().copy();
}

void ViewedPhotograph::mark(const QObject& owner, const std::vector<PictureMark>& marks)
{
    if (!m_marks && !marks.empty())
        m_marks = new PictureMarks(*m_form.label);
    if (m_marks)
        m_marks->show(owner, marks);
}

/// Later, because the label says where the mouse is before a drag has changed the tool.
void ViewedPhotograph::look()
{
    m_soon.start(0);
}

/// Another photograph begins as it is stored. The same one, read again, may be other.
void ViewedPhotograph::takePhotograph()
{
    if (m_path != m_window.path) {
        m_path = m_window.path;
        m_correction.reset();
        m_isotherm.reset();
    }
    correctAnew();
    becomeOther();
}

/// What is coloured by readings is coloured anew: they may be other.
void ViewedPhotograph::becomeOther()
{
    if (m_isotherm)
        m_window.mapAnew();
    m_isOther = true;
    look();
}

void ViewedPhotograph::recolour()
{
    m_isRecoloured = true;
    look();
}

void ViewedPhotograph::tell()
{
    if (std::exchange(m_isRecoloured, false))
        emit recoloured();
    overlay::ToolsState now = overlay::stateOf(*m_form.label);
    if (now == m_seen && !m_isOther)
        return;
    m_seen = std::move(now);
    m_isOther = false;
    emit changed();
}

} // namespace analysis
