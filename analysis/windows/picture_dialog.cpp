// SPDX-License-Identifier: MIT
#include "analysis/windows/picture_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

using analysis::PictureOptions;

PictureDialog::PictureDialog(const analysis::ShownPicture& shown, QWidget* parent)
    : QDialog(parent), m_shown(shown), m_scale(new QComboBox),
      m_colourBar(new QCheckBox(tr("色标和温度"))), m_values(new QCheckBox(tr("测量值"))),
      m_size(new QLabel)
{
    setWindowTitle(tr("保存图片"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    const PictureOptions usual;
    for (int scale = 1; scale <= PictureOptions::largestScale; ++scale)
        m_scale->addItem(tr("%1 倍").arg(scale));
    m_scale->setCurrentIndex(usual.scale - 1);
    m_scale->setObjectName(QStringLiteral("scale"));
    m_colourBar->setChecked(usual.hasColourBar);
    m_colourBar->setObjectName(QStringLiteral("colourBar"));
    m_values->setChecked(usual.hasValues);
    m_values->setObjectName(QStringLiteral("values"));
    m_values->setEnabled(!shown.measured.empty());
    m_size->setObjectName(QStringLiteral("size"));

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    buttons->addButton(tr("保存..."), QDialogButtonBox::AcceptRole);
    auto* form = new QFormLayout(this);
    form->setSizeConstraint(QLayout::SetFixedSize);
    form->addRow(tr("放大:"), m_scale);
    form->addRow(m_colourBar);
    form->addRow(m_values);
    form->addRow(tr("大小:"), m_size);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_scale, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &PictureDialog::showSize);
    connect(m_colourBar, &QCheckBox::toggled, this, &PictureDialog::showSize);
    connect(m_values, &QCheckBox::toggled, this, &PictureDialog::showSize);
    showSize();
}

PictureOptions PictureDialog::options() const
{
    PictureOptions options;
    options.scale = m_scale->currentIndex() + 1;
    options.hasColourBar = m_colourBar->isChecked();
    options.hasValues = m_values->isChecked();
    return options;
}

QImage PictureDialog::picture() const
{
    return exportedPicture(m_shown, options());
}

void PictureDialog::showSize()
{
    const QSize size = exportedSize(m_shown, options());
    m_size->setText(tr("%1 × %2 像素").arg(size.width()).arg(size.height()));
}
