// SPDX-License-Identifier: MIT
#include "analysis/windows/viewed_photograph.h"

#include "analysis/windows/analysis_widget.h"

#include "ui_analysis_widget.h"

#include <algorithm>

namespace analysis {

ViewedPhotograph::ViewedPhotograph(Analysis_Widget& window, const Ui::Analysis_Widget& form)
    : m_window(window), m_form(form)
{
    m_soon.setSingleShot(true);
    connect(&m_soon, &QTimer::timeout, this, &ViewedPhotograph::tell);
    connect(form.label, &MyLabel::Point_XY, this, [this](int x, int y) {
        emit pointed(std::clamp(x, 0, format::columns - 1), std::clamp(y, 0, format::rows - 1));
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

void ViewedPhotograph::becomeOther()
{
    m_isOther = true;
    look();
}

void ViewedPhotograph::tell()
{
    overlay::ToolsState now = overlay::stateOf(*m_form.label);
    if (now == m_seen && !m_isOther)
        return;
    m_seen = std::move(now);
    m_isOther = false;
    emit changed();
}

} // namespace analysis
