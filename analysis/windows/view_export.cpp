// SPDX-License-Identifier: MIT
#include "analysis/windows/view_export.h"

#include "analysis/windows/outcome_text.h"
#include "analysis/windows/picture_dialog.h"
#include "config/configuration_record.h"
#include "dialogs/dialogs.h"
#include "files/paths.h"
#include "files/picture_file.h"
#include "files/whole_file.h"

#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>

#include <array>
#include <functional>
#include <memory>

using namespace analysis;

namespace {

/// The formats of temperatures, and how a file dialog calls them.
struct FormatRow
{
    ExportFormat format;
    const char* filter;
};
constexpr std::array<FormatRow, 3> temperatureFormats{{
    {ExportFormat::Csv, "CSV (*.csv)"},
    {ExportFormat::Tiff, "TIFF (*.tiff)"},
    {ExportFormat::Npy, "NumPy (*.npy)"},
}};

/// By the end of the name, else by the chosen filter.
ExportFormat formatOf(const QString& path, const QString& filter)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    for (const FormatRow& row : temperatureFormats) {
        if (suffix == suffixOf(row.format))
            return row.format;
    }
    for (const FormatRow& row : temperatureFormats) {
        if (filter == QLatin1String(row.filter))
            return row.format;
    }
    return ExportFormat::Csv;
}

/// Suggests the file's name, in the documents folder.
QFileDialog* saveDialog(const QString& title, const QString& name, QWidget* window)
{
    auto* dialog = new QFileDialog(window, title, config::documentsPath());
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setDefaultSuffix(QFileInfo(name).suffix());
    dialog->selectFile(files::pathIn(config::documentsPath(), name));
    return dialog;
}

/// The name in the dialog follows the kind of file.
void followFilter(QFileDialog& dialog, const QString& filter)
{
    const QString suffix = suffixOf(formatOf({}, filter));
    const QFileInfo chosen(dialog.selectedFiles().value(0));
    dialog.setDefaultSuffix(suffix);
    dialog.selectFile(
        files::pathIn(chosen.path(), chosen.completeBaseName() + QLatin1Char('.') + suffix));
}

} // namespace

void ViewExport::copyPicture(const ShownPicture& shown, const overlay::Geometry& geometry)
{
    const QImage picture = pictureWithTools(shown, geometry);
    if (!picture.isNull())
        QGuiApplication::clipboard()->setImage(picture);
}

void ViewExport::copyTable(const files::TextRows& rows, bool header)
{
    auto* data = new QMimeData;
    data->setText(files::tabSeparated(rows));
    data->setHtml(files::htmlTable(rows, header));
    QGuiApplication::clipboard()->setMimeData(data);
}

void ViewExport::savePicture(const ShownPicture& shown, const QString& photograph, QWidget* page)
{
    QWidget* window = page->window();
    auto* how = new PictureDialog(shown, window);
    QObject::connect(how, &QDialog::accepted, page, [how, photograph, page, window] {
        const QImage picture = how->picture();
        auto* where =
            saveDialog(tr("保存图片"), exportName(photograph, suffixOf(ExportFormat::Png)), window);
        where->setNameFilter(QStringLiteral("PNG (*.png)"));
        QObject::connect(where, &QFileDialog::fileSelected, window,
                         [picture, window](const QString& path) {
                             write(path, files::encoded(picture, "png"), window);
                         });
        dialogs::open(where, page);
    });
    dialogs::open(how, page);
}

void ViewExport::saveTemperatures(const Photograph& shown, const ShownUnit& unit,
                                  const QString& photograph, QWidget* page,
                                  const std::optional<Correction>& correction)
{
    QWidget* window = page->window();
    const QString suffix = suffixOf(temperatureFormats.front().format);
    auto* where = saveDialog(
        correction ? tr("保存校正后的温度") : tr("保存温度"),
        exportName(photograph, correction ? QStringLiteral("corrected.") + suffix : suffix),
        window);
    QStringList filters;
    for (const FormatRow& row : temperatureFormats)
        filters.append(QLatin1String(row.filter));
    where->setNameFilters(filters);
    QObject::connect(where, &QFileDialog::filterSelected, where,
                     [where](const QString& filter) { followFilter(*where, filter); });
    const auto kept = std::make_shared<const Photograph>(shown);
    QObject::connect(where, &QFileDialog::fileSelected, window,
                     [where, kept, unit, correction, window](const QString& path) {
                         const ExportFormat format = formatOf(path, where->selectedNameFilter());
                         write(path, temperatureFile(*kept, unit, format, {}, correction), window);
                     });
    dialogs::open(where, page);
}

void ViewExport::saveTable(const QByteArray& csv, const QString& title, const QString& name,
                           QWidget* window, const QWidget* page)
{
    auto* where = saveDialog(title, name, window);
    where->setNameFilter(QStringLiteral("CSV (*.csv)"));
    QObject::connect(where, &QFileDialog::fileSelected, window,
                     [csv, window](const QString& path) { write(path, csv, window); });
    dialogs::open(where, page);
}

void ViewExport::write(const QString& path, const QByteArray& bytes, QWidget* window)
{
    const files::Outcome outcome = files::writeWholeFile(path, bytes, files::Existing::Replace);
    if (outcome.isGood())
        return;
    dialogs::warn(tr("文件“%1”未能写入，原有文件保持不变。\n%2")
                      .arg(QDir::toNativeSeparators(path), outcomeText(outcome)),
                  window);
}
