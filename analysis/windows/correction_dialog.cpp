// SPDX-License-Identifier: MIT
#include "analysis/windows/correction_dialog.h"

#include "analysis/photograph/details.h"
#include "analysis/photograph/looking_texts.h"
#include "analysis/windows/temperature_box.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

namespace analysis {
namespace {

/// The largest that a photograph can store.
constexpr double largestStored = 2.55;

} // namespace

CorrectionDialog::CorrectionDialog(ViewedPhotograph& viewed, QWidget* parent)
    : QDialog(parent), m_viewed(&viewed), m_before(viewed.correction()), m_unit(viewed.unit().unit),
      m_reflected(new TemperatureBox(tr("反射温度:"))), m_result(new QLabel),
      m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel))
{
    setWindowTitle(tr("校正发射率"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    const double photographed = viewed.photograph().parameters.emissivity100 / 100.0;
    Correction correction{photographed, photographed};
    if (m_before)
        correction = *m_before;
    m_stored = emissivityBox("stored", correction.storedEmissivity, largestStored);
    m_emissivity = emissivityBox("emissivity", correction.emissivity, highestEmissivity);
    m_reflected->setObjectName(QStringLiteral("reflected"));
    m_reflected->setUnit(m_unit);
    m_reflected->setValue(inUnit(correction.reflected, m_unit));
    auto* inFile = new QLabel(LookingTexts::emissivity(photographed));
    inFile->setObjectName(QStringLiteral("inFile"));
    m_result->setObjectName(QStringLiteral("result"));
    auto* off = m_buttons->addButton(tr("不校正"), QDialogButtonBox::ResetRole);
    off->setObjectName(QStringLiteral("off"));
    off->setEnabled(m_before.has_value());

    // Reasons are long; the dialog keeps still while somebody types.
    m_result->setWordWrap(true);
    m_result->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_result->setFixedSize(m_result->fontMetrics().averageCharWidth() * 60,
                           m_result->fontMetrics().lineSpacing() * 3);
    auto* form = new QFormLayout(this);
    form->setSizeConstraint(QLayout::SetFixedSize);
    form->addRow(tr("照片中的发射率:"), inFile);
    form->addRow(tr("拍摄时的发射率:"), m_stored);
    form->addRow(tr("实际发射率:"), m_emissivity);
    form->addRow(tr("反射温度:"), m_reflected);
    form->addRow(m_result);
    form->addRow(m_buttons);

    for (QDoubleSpinBox* box : {m_stored, m_emissivity, static_cast<QDoubleSpinBox*>(m_reflected)})
        connect(box, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
                &CorrectionDialog::take);
    connect(off, &QPushButton::clicked, this, [this] {
        m_viewed->setCorrection(std::nullopt);
        accept();
    });
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    takeSample();
    showResult();
    m_emissivity->setFocus();
    m_emissivity->selectAll();
}

QDoubleSpinBox* CorrectionDialog::emissivityBox(const char* name, double value, double most)
{
    auto* box = new QDoubleSpinBox;
    box->setObjectName(QLatin1String(name));
    box->setLocale(QLocale::c()); // the digits of the tables
    box->setRange(0, most);
    box->setSingleStep(0.01);
    box->setValue(value);
    return box;
}

void CorrectionDialog::takeSample()
{
    const overlay::Tools tools = m_viewed->tools();
    const Temperatures& temperatures = m_viewed->photograph().temperatures;
    Area area = wholePicture(temperatures, m_viewed->unit().conversion);
    area.name = tr("整幅图像");
    if (const std::optional<overlay::ToolKind> kind = overlay::selectedKind(tools))
        overlay::visitTool(tools, *kind, tools.selectedIndex, [&](const auto& tool) {
            const Area under = areaOf(tool, temperatures, m_viewed->unit().conversion);
            area = detailsOf(under) ? under : area;
        });
    m_sampled = area.name;
    if (const std::optional<Details> details = detailsOf(area))
        m_sample = details->high;
}

Correction CorrectionDialog::typed() const
{
    return {m_stored->value(), m_emissivity->value(), celsiusOf(m_reflected->value(), m_unit)};
}

void CorrectionDialog::take()
{
    if (m_viewed)
        m_viewed->setCorrection(typed());
    showResult();
}

void CorrectionDialog::showResult()
{
    if (!m_viewed)
        return;
    const QString wrong = problem();
    m_result->setText(wrong.isEmpty() ? result() : wrong);
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(wrong.isEmpty());
}

QString CorrectionDialog::problem() const
{
    return m_viewed->scale() ? LookingTexts::reasonOf(problemOf(typed()), m_unit)
                             : LookingTexts::unknownScale();
}

QString CorrectionDialog::result() const
{
    QStringList lines;
    if (m_sample) {
        const Unit scale = *m_viewed->scale();
        const double stored = double(
            nearestTemperature(m_viewed->photograph().temperatures, m_sample->x, m_sample->y));
        const CorrectedReading reading = Corrector(typed()).corrected(celsiusOf(stored, scale));
        const float after =
            shown(float(inUnit(reading.celsius, scale)), m_viewed->unit().conversion);
        lines.append(reading.problem == ReadingProblem::None
                         ? tr("%1, 最高: %2 → %3 %4")
                               .arg(m_sampled, oneDecimal(m_sample->value),
                                    oneDecimal(double(after)), signOf(m_unit))
                         : tr("%1, 最高: %2")
                               .arg(m_sampled, LookingTexts::reasonOf(reading.problem, m_unit)));
    }
    if (m_viewed->withoutCorrected() > 0)
        lines.append(tr("没有温度的像素: %1").arg(m_viewed->withoutCorrected()));
    return lines.join(QLatin1Char('\n'));
}

void CorrectionDialog::done(int result)
{
    if (result == QDialog::Rejected && m_viewed)
        m_viewed->setCorrection(m_before);
    QDialog::done(result);
}

} // namespace analysis
