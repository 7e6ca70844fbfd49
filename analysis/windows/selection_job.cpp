// SPDX-License-Identifier: MIT
#include "analysis/windows/selection_job.h"

#include "analysis/windows/outcome_text.h"
#include "dialogs/dialogs.h"

#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>

using analysis::outcomeText;
using analysis::SelectionFailure;

namespace {

/// What is over sooner, in milliseconds, shows no progress.
constexpr int patience = 300;
constexpr int nameWidth = 400;
/// So many failures stand in the message itself; more fill its details.
constexpr int shownFailures = 8;

} // namespace

SelectionJob::SelectionJob(const analysis::SelectionOrder& order, QWidget* window)
    : QProgressDialog(window), m_export(order), m_name(new QLabel), m_bar(new QProgressBar)
{
    m_name->setTextFormat(Qt::PlainText);
    m_name->setMinimumWidth(nameWidth);
    setLabel(m_name);
    m_bar->setRange(0, order.names.size());
    m_bar->setFormat(QStringLiteral("%v / %m"));
    m_bar->setAlignment(Qt::AlignCenter);
    setBar(m_bar);
    setWindowTitle(tr("正在写入文件"));
    setCancelButtonText(tr("取消"));
    setWindowModality(Qt::WindowModal);
    setMinimumDuration(patience);
    showNextName();
    connect(this, &QProgressDialog::canceled, this, &SelectionJob::finish);
    connect(this, &QDialog::rejected, this, &SelectionJob::finish);
    connect(&m_steps, &QTimer::timeout, this, &SelectionJob::step);
    m_steps.start(0);
}

/// The bar is set past the dialog, whose own setValue() would handle events in the middle of this.
void SelectionJob::step()
{
    m_export.step();
    m_bar->setValue(m_export.done());
    if (m_export.isDone())
        finish();
    else
        showNextName();
}

void SelectionJob::showNextName()
{
    m_name->setText(
        m_name->fontMetrics().elidedText(m_export.nextName(), Qt::ElideMiddle, nameWidth));
}

void SelectionJob::finish()
{
    if (!m_steps.isActive())
        return; // closing the dialog both cancels and rejects
    m_steps.stop();
    hide();
    deleteLater();
    const QStringList failures = failureTexts();
    auto* box =
        new QMessageBox(failures.isEmpty() ? QMessageBox::Information : QMessageBox::Warning,
                        tr("提示"), summary(), QMessageBox::Ok, parentWidget());
    box->setTextFormat(Qt::PlainText);
    if (failures.size() > shownFailures)
        box->setDetailedText(failures.join(QLatin1Char('\n')));
    dialogs::open(box);
}

QString SelectionJob::summary() const
{
    QStringList lines;
    const QString folder = QDir::toNativeSeparators(m_export.order().target);
    if (m_export.written() > 0)
        lines.append(
            tr("已在文件夹“%1”中写入 %n 个文件。", nullptr, m_export.written()).arg(folder));
    else
        lines.append(tr("没有写入任何文件。"));
    if (!m_export.isDone()) {
        const int left = m_export.order().names.size() - m_export.done();
        lines.append(tr("操作已取消，还有 %n 张照片未处理。", nullptr, left));
    }
    const QStringList failures = failureTexts();
    if (!failures.isEmpty()) {
        lines.append(tr("%n 张照片未能处理：", nullptr, failures.size()));
        lines.append(failures.mid(0, shownFailures));
    }
    if (failures.size() > shownFailures)
        lines.append(tr("另有 %n 张，见详细信息。", nullptr, failures.size() - shownFailures));
    return lines.join(QLatin1Char('\n'));
}

QStringList SelectionJob::failureTexts() const
{
    QStringList texts;
    for (const SelectionFailure& failure : m_export.failures())
        texts.append(tr("%1：%2").arg(failure.name, outcomeText(failure.outcome)));
    return texts;
}
