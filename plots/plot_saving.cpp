// SPDX-License-Identifier: MIT
#include "plots/plot_saving.h"

#include "config/configuration_record.h"
#include "dialogs/dialogs.h"
#include "files/paths.h"
#include "files/picture_file.h"
#include "files/whole_file.h"
#include "plots/chart.h"
#include "plots/plot_files.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

#include <array>

namespace plots {
namespace {

/// The kinds of files, and how a file dialog calls them; the first is the usual one.
struct KindRow
{
    const char* suffix;
    const char* filter;
    QByteArray (*bytes)(Chart&);
};
const std::array<KindRow, 3> kinds{{
    {"png", "PNG (*.png)",
     [](Chart& chart) {
         return files::encoded(pictureOf(chart), "png");
     }},
    {"pdf", "PDF (*.pdf)", pdfOf},
    {"csv", "CSV (*.csv)",
     [](Chart& chart) {
         return csvOf(chart.plot().table);
     }},
}};

/// By the end of the name, else by the chosen filter.
const KindRow& kindOf(const QString& path, const QString& filter)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    for (const KindRow& row : kinds) {
        if (suffix == QLatin1String(row.suffix))
            return row;
    }
    for (const KindRow& row : kinds) {
        if (filter == QLatin1String(row.filter))
            return row;
    }
    return kinds.front();
}

/// The name in the dialog follows the kind of file.
void followFilter(QFileDialog& dialog, const QString& filter)
{
    const QString suffix = QLatin1String(kindOf({}, filter).suffix);
    const QFileInfo chosen(dialog.selectedFiles().value(0));
    dialog.setDefaultSuffix(suffix);
    dialog.selectFile(
        files::pathIn(chosen.path(), chosen.completeBaseName() + QLatin1Char('.') + suffix));
}

/// The window that stays when the page goes.
QWidget* outermost(QWidget* page)
{
    QWidget* window = page->window();
    while (window->parentWidget())
        window = window->parentWidget()->window();
    return window;
}

} // namespace

void PlotSaving::ask(Chart& chart, const QString& name, QWidget* page)
{
    QWidget* const window = outermost(page);
    auto* where = new QFileDialog(window, tr("保存曲线图"), config::documentsPath());
    where->setAcceptMode(QFileDialog::AcceptSave);
    where->setFileMode(QFileDialog::AnyFile);
    const QString suffix = QLatin1String(kinds.front().suffix);
    where->setDefaultSuffix(suffix);
    QStringList filters;
    for (const KindRow& row : kinds)
        filters.append(QLatin1String(row.filter));
    where->setNameFilters(filters);
    where->selectFile(files::pathIn(config::documentsPath(), name + QLatin1Char('.') + suffix));
    QObject::connect(where, &QFileDialog::filterSelected, where,
                     [where](const QString& filter) { followFilter(*where, filter); });
    QObject::connect(
        where, &QFileDialog::fileSelected, page, [where, &chart, window](const QString& path) {
            const KindRow& kind = kindOf(path, where->selectedNameFilter());
            const files::Outcome outcome =
                files::writeWholeFile(path, kind.bytes(chart), files::Existing::Replace);
            if (outcome.isGood())
                return;
            dialogs::warn(tr("文件“%1”未能写入，原有文件保持不变。\n%2")
                              .arg(QDir::toNativeSeparators(path), outcome.detail),
                          window);
        });
    dialogs::open(where, page);
}

} // namespace plots
