// SPDX-License-Identifier: MIT
#include "analysis/windows/reading_set.h"

#include "analysis/windows/viewed_photograph.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>

namespace analysis {

ReadingSet::ReadingSet(const ViewedPhotograph& viewed, QWidget* parent)
    : QWidget(parent), m_viewed(viewed), m_name(new QLabel),
      m_box(new QCheckBox(tr("校正后的读数")))
{
    m_name->setObjectName(QStringLiteral("set"));
    m_box->setObjectName(QStringLiteral("corrected"));
    m_box->setFocusPolicy(Qt::NoFocus); // the keys stay the picture's
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_name, 1);
    layout->addWidget(m_box);
    connect(m_box, &QCheckBox::toggled, this, [this] {
        refresh();
        emit chosen();
    });
    refresh();
}

bool ReadingSet::isCorrected() const
{
    return m_corrected && m_box->isChecked();
}

void ReadingSet::refresh()
{
    m_corrected = m_viewed.corrected();
    m_name->setText(isCorrected() ? m_viewed.correctionName() : tr("存储的读数"));
    setVisible(m_corrected != nullptr);
}

ReadingTexts ReadingSet::texts() const
{
    return {isCorrected() ? *m_corrected : m_viewed.photograph().temperatures, m_viewed.unit(),
            isCorrected() ? m_name->text() : QString()};
}

} // namespace analysis
