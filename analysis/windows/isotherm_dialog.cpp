// SPDX-License-Identifier: MIT
#include "analysis/windows/isotherm_dialog.h"

#include "analysis/photograph/details.h"
#include "analysis/photograph/looking_texts.h"
#include "analysis/photograph/tool_statistics.h"
#include "analysis/windows/temperature_box.h"
#include "dialogs/dialogs.h"

#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QShowEvent>

#include <algorithm>

namespace analysis {
namespace {

using Side = Isotherm::Side;

/// In the order of the values.
constexpr std::array<const char*, 4> sideCaptions{
    QT_TRANSLATE_NOOP("analysis::IsothermDialog", "高于下限"),
    QT_TRANSLATE_NOOP("analysis::IsothermDialog", "低于上限"),
    QT_TRANSLATE_NOOP("analysis::IsothermDialog", "两限之间"),
    QT_TRANSLATE_NOOP("analysis::IsothermDialog", "两限之外")};

} // namespace

IsothermDialog::IsothermDialog(ViewedPhotograph& viewed, QWidget* parent)
    : QDialog(parent), m_viewed(&viewed), m_before(viewed.isotherm()), m_unit(viewed.unit().unit),
      m_picture(wholePicture(viewed.photograph().temperatures, viewed.unit().conversion)),
      m_isotherm(m_before ? inUnit(*m_before, m_unit) : usual()), m_side(new QComboBox),
      m_from(limitLine("from", tr("下限:"), m_isotherm.from)),
      m_to(limitLine("to", tr("上限:"), m_isotherm.to)), m_colour(new QPushButton),
      m_result(new QLabel),
      m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel))
{
    setWindowTitle(tr("等温线"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_side->setObjectName(QStringLiteral("side"));
    for (const char* caption : sideCaptions)
        m_side->addItem(tr(caption));
    m_side->setCurrentIndex(int(m_isotherm.side));
    m_colour->setObjectName(QStringLiteral("colour"));
    m_result->setObjectName(QStringLiteral("result"));
    auto* off = m_buttons->addButton(tr("不着色"), QDialogButtonBox::ResetRole);
    off->setObjectName(QStringLiteral("off"));
    off->setEnabled(m_before.has_value());

    auto* grid = new QGridLayout(this);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    const auto row = [grid](QLabel* caption, QWidget* field, QWidget* beside = nullptr) {
        caption->setBuddy(field);
        const int next = grid->rowCount();
        grid->addWidget(caption, next, 0);
        grid->addWidget(field, next, 1, 1, beside ? 1 : 2);
        if (beside)
            grid->addWidget(beside, next, 2);
    };
    row(new QLabel(tr("着色:")), m_side);
    row(m_from.caption, m_from.box, m_from.source);
    row(m_to.caption, m_to.box, m_to.source);
    row(new QLabel(tr("颜色:")), m_colour);
    grid->addWidget(m_result, grid->rowCount(), 0, 1, 3);
    grid->addWidget(m_buttons, grid->rowCount(), 0, 1, 3);

    connect(m_side, qOverload<int>(&QComboBox::currentIndexChanged), this, &IsothermDialog::take);
    connect(m_colour, &QPushButton::clicked, this, &IsothermDialog::chooseColour);
    connect(off, &QPushButton::clicked, this, [this] {
        m_viewed->setIsotherm(std::nullopt);
        accept();
    });
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

/// The hotter half of what there is.
Isotherm IsothermDialog::usual() const
{
    Isotherm isotherm;
    isotherm.unit = m_unit;
    if (const std::optional<Details> details = detailsOf(m_picture)) {
        isotherm.from = (details->low.value + details->high.value) / 2;
        isotherm.to = details->high.value;
    }
    return isotherm;
}

IsothermDialog::LimitLine IsothermDialog::limitLine(const char* name, const QString& caption,
                                                    double value)
{
    const LimitLine line{new QLabel(caption), new TemperatureBox(caption), new QComboBox};
    line.box->setObjectName(QLatin1String(name));
    line.box->setUnit(m_unit);
    line.box->setValue(value);
    line.source->setObjectName(QLatin1String(name) + QStringLiteral("Source"));
    line.source->setAccessibleName(tr("取自工具"));
    fillSources(*line.source);
    connect(line.box, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
            &IsothermDialog::take);
    connect(line.source, qOverload<int>(&QComboBox::activated), this, [line](int index) {
        if (index > 0)
            line.box->setValue(line.source->itemData(index).toDouble());
        line.source->setCurrentIndex(0); // it says what can be done, not what was done
    });
    return line;
}

void IsothermDialog::fillSources(QComboBox& sources) const
{
    sources.addItem(tr("取自工具"));
    const ToolCells captions = toolCaptions();
    for (const Area& area : areasOf(m_viewed->tools(), m_viewed->photograph().temperatures,
                                    m_viewed->unit().conversion)) {
        const std::optional<Details> details = detailsOf(area);
        if (!details)
            continue;
        const auto add = [&](const QString& caption, double value) {
            sources.addItem(
                QStringLiteral("%1 - %2: %3").arg(area.name, caption, oneDecimal(value)), value);
        };
        add(captions[2], details->high.value);
        if (details->pixels == 1)
            continue;
        add(captions[3], details->low.value);
        add(captions[4], details->mean);
    }
}

/// Not waited for: the photograph, and with it this dialog, can go meanwhile.
void IsothermDialog::chooseColour()
{
    auto* dialog = new QColorDialog(m_isotherm.colour, this);
    dialog->setWindowTitle(tr("等温线的颜色"));
    connect(dialog, &QColorDialog::colorSelected, this, [this](const QColor& colour) {
        m_isotherm.colour = colour;
        take();
    });
    dialogs::open(dialog);
}

void IsothermDialog::take()
{
    m_isotherm.side = Side(m_side->currentIndex());
    m_isotherm.from = m_from.box->value();
    m_isotherm.to = m_to.box->value();
    if (m_viewed)
        m_viewed->setIsotherm(m_isotherm);
    showResult();
}

void IsothermDialog::showResult()
{
    const auto enable = [](const LimitLine& line, bool isEnabled) {
        line.box->setEnabled(isEnabled);
        line.source->setEnabled(isEnabled && line.source->count() > 1);
    };
    enable(m_from, hasFrom(m_isotherm.side));
    enable(m_to, hasTo(m_isotherm.side));

    QPixmap swatch(48, 16);
    swatch.fill(m_isotherm.colour);
    m_colour->setIcon(swatch);
    m_colour->setIconSize(swatch.size());
    m_colour->setAccessibleName(tr("颜色: %1").arg(m_isotherm.colour.name()));

    const IsothermProblem problem = problemOf(m_isotherm);
    const auto coloured =
        std::count_if(m_picture.readings.begin(), m_picture.readings.end(),
                      [this](const Reading& pixel) { return covers(m_isotherm, pixel.value); });
    const double share = double(coloured) / double(m_picture.readings.size());
    m_result->setText(problem == IsothermProblem::None
                          ? tr("着色像素: %1 (%2 %)").arg(coloured).arg(oneDecimal(100 * share))
                          : LookingTexts::reasonOf(problem));
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(problem == IsothermProblem::None);
}

void IsothermDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (!event->spontaneous())
        take();
}

void IsothermDialog::done(int result)
{
    if (result == QDialog::Rejected && m_viewed)
        m_viewed->setIsotherm(m_before);
    QDialog::done(result);
}

} // namespace analysis
