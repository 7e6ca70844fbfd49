// SPDX-License-Identifier: MIT
#include "analysis/windows/browser_menu.h"

#include "analysis/windows/selection_job.h"
#include "config/configuration_record.h"
#include "dialogs/dialogs.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QUrl>

using analysis::SelectionOrder;
using analysis::SelectionTask;

BrowserMenu::BrowserMenu(QString folder, QStringList names, int modelIndex, QWidget* browser)
    : QMenu(browser), m_folder(std::move(folder)), m_names(std::move(names)),
      m_modelIndex(modelIndex)
{
    setAttribute(Qt::WA_DeleteOnClose);
    // The second tab shows one photograph.
    QAction* open = addAction(tr("打开"), this, [this] { emit openRequested(m_names.first()); });
    open->setEnabled(m_names.size() == 1);
    setDefaultAction(open);
    addSeparator();
    addTask(tr("导出温度 (CSV)..."), SelectionTask::Csv);
    addTask(tr("导出温度 (TIFF)..."), SelectionTask::Tiff);
    addTask(tr("导出图片 (PNG)..."), SelectionTask::Png);
    addTask(tr("导出报告 (PDF)..."), SelectionTask::Report);
    addSeparator();
    addTask(tr("复制到文件夹..."), SelectionTask::Copy);
    addAction(tr("在文件管理器中显示"), this, &BrowserMenu::showFolder)
        ->setEnabled(!m_folder.isEmpty());
}

void BrowserMenu::addTask(const QString& text, SelectionTask task)
{
    addAction(text, this, [this, task] { askForFolder(task); })->setEnabled(!m_names.isEmpty());
}

/// The dialog belongs to the window around the browser and nobody waits for it, so the browser can
/// go at any time. A folder for its photographs is of no use then.
void BrowserMenu::askForFolder(SelectionTask task)
{
    SelectionOrder order;
    order.task = task;
    order.folder = m_folder;
    order.names = m_names;
    order.modelIndex = m_modelIndex;
    order.language = config::read().language;

    QWidget* window = parentWidget()->window();
    auto* dialog = new QFileDialog(window, tr("选择一个目录"), config::documentsPath());
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    connect(dialog, &QFileDialog::fileSelected, window, [order, window](const QString& folder) {
        SelectionOrder complete = order;
        complete.target = folder;
        new SelectionJob(complete, window); // deletes itself
    });
    dialogs::open(dialog, parentWidget());
}

void BrowserMenu::showFolder()
{
    if (QDir(m_folder).exists() && QDesktopServices::openUrl(QUrl::fromLocalFile(m_folder)))
        return;
    QWidget* window = parentWidget()->window();
    dialogs::warn(tr("无法打开文件夹“%1”。").arg(QDir::toNativeSeparators(m_folder)), window);
}
