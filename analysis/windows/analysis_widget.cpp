// SPDX-License-Identifier: MIT
#include "analysis/windows/analysis_widget.h"

#include "analysis/photograph/false_colour.h"
#include "analysis/photograph/tool_statistics.h"
#include "analysis/report/information.h"
#include "analysis/report/report.h"
#include "analysis/report/report_overlay.h"
#include "analysis/windows/analysis_tables.h"
#include "analysis/windows/tool_commands.h"
#include "analysis/windows/viewed_photograph.h"
#include "config/configuration_record.h"
#include "dialogs/dialogs.h"
#include "files/paths.h"
#include "windows/ui_analysis_widget.h"

#include <QColorDialog>
#include <QDebug>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QTableWidget>
#include <QToolTip>
#include <QUrl>

using namespace analysis;
using overlay::ToolMode;

namespace {

const QString loadTag = QStringLiteral("---------Anlyxix-set_Image_addr");

QPixmap fitted(const QImage& image, const QSize& size)
{
    return QPixmap::fromImage(image.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

} // namespace

Analysis_Widget::Analysis_Widget(QWidget* parent)
    : QWidget(parent), grayMatrix(cv::Mat::zeros(format::rows, format::columns, CV_8UC1)),
      falseColourMatrix(cv::Mat::zeros(format::rows, format::columns, CV_8UC1)), colourLookup{},
      ui(std::make_unique<Ui::Analysis_Widget>())
{
    ui->setupUi(this);
    // What repaints the colour bar must go on repainting this window, which lies beneath.
    ui->scrollArea->viewport()->setAutoFillBackground(false);
    ui->content->setAutoFillBackground(false);
    ui->label->setOwner(this);
    configurationField = config::read().language;
    prepareInformationTable(*ui->tableWidget_2);
    prepareToolTable(*ui->tableWidget);
    m_commands = std::make_unique<ToolCommands>(*this, *ui);
}

Analysis_Widget::~Analysis_Widget() = default;

bool Analysis_Widget::set_Image_addr(const QString& imagePath, int modelIndex)
{
    displayUnitState = 0;
    const QFileInfo file(imagePath);
    fileName = file.fileName();
    created = createdText(file);
    path = imagePath;
    qDebug().noquote() << path << loadTag;

    readCount = fileBuffer.read(path);
    qDebug().noquote() << QStringLiteral("输出实际读取的字节数:") << readCount << loadTag;

    readPicture(fileBuffer.bytes(), modelIndex, photograph);
    takePalette();
    const Parameters& parameters = photograph.parameters;
    qDebug().noquote() << QStringLiteral("单位:") << parameters.unit;
    // A change of the selector refills both tables, still with the temperatures of the photograph
    // before.
    if (unitAt(parameters.unit))
        ui->comboBox->setCurrentIndex(parameters.unit);

    const bool supported = readMeasurements(fileBuffer.bytes(), readCount, modelIndex, photograph);
    qDebug().noquote() << QStringLiteral("Max温度:") << parameters.maximum10;
    qDebug().noquote() << QStringLiteral("机器ID:") << parameters.machineId
                       << QStringLiteral("--------Analysis_Widget::set_Image_addr");
    if (!supported)
        return false;

    const overlay::Spots& spots = photograph;
    static_cast<overlay::Spots&>(*ui->label) = spots;
    if (format::layoutOf(modelIndex).hasFirmware)
        qDebug().noquote() << QStringLiteral("版本号:") << parameters.firmware10 / 10.0;
    qDebug().noquote() << QStringLiteral("中心灰度:")
                       << nearestTemperature(photograph.temperatures, 120, 160);
    qDebug().noquote() << QStringLiteral("最大灰度") << parameters.grayMaximum
                       << QStringLiteral("最小灰度") << parameters.grayMinimum;

    fillInformation();
    showScale();
    showGrayImage();
    m_commands->viewed().takePhotograph();
    return true;
}

/// The colour bar counts palette steps from the top, the palette from the bottom.
void Analysis_Widget::takePalette()
{
    auto entry = ui->widget->paletteTable.rbegin();
    for (const Rgb& colour : photograph.palette)
        *entry++ = {colour.red, colour.green, colour.blue};
    colourStrip = QPixmap::fromImage(analysis::colourStrip(photograph.palette));
    m_mapped = false;
    ui->widget->update(); // and with it what lies beneath: this window, which renders
}

void Analysis_Widget::showGrayImage()
{
    grayMatrix = cv::Mat(format::rows, format::columns, CV_8UC1, photograph.gray.data());
    grayImage = QImage(photograph.gray.data(), format::columns, format::rows, format::columns,
                       QImage::Format_Grayscale8);
    ui->label->setPixmap(fitted(grayImage, ui->label->size()));
    m_mapped = false;
}

void Analysis_Widget::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    render();
}

void Analysis_Widget::mapAnew()
{
    m_mapped = false;
    update();
}

/// The gray picture is not shown first: the false-colour picture would replace it before anyone
/// could see it.
const QImage& Analysis_Widget::render()
{
    const Palette lookup =
        lookupFor(photograph.palette, ui->widget->startValue, ui->widget->endValue);
    if (!m_mapped || lookup != colourLookup) {
        colourLookup = lookup;
        ui->widget->setPalettePixmap(colourStrip);
        mapColours(grayMatrix, colourLookup, falseColourMatrix);
        m_commands->viewed().paintIsotherm(falseColourMatrix);
        falseColourImage =
            QImage(falseColourMatrix.data, falseColourMatrix.cols, falseColourMatrix.rows,
                   int(falseColourMatrix.step), QImage::Format_RGB888);
        m_mapped = true;
        m_shownSize = QSize();
        m_commands->viewed().recolour();
    }
    if (m_shownSize != ui->label->size()) {
        ui->label->setPixmap(fitted(falseColourImage, ui->label->size()));
        m_shownSize = ui->label->size();
    }
    return falseColourImage;
}

void Analysis_Widget::fillInformation()
{
    showInformation(*ui->tableWidget_2,
                    informationTexts(fileName, created, readCount, photograph.parameters,
                                     photograph.mean, ui->comboBox->currentIndex(), conversion));
}

void Analysis_Widget::showScale()
{
    ui->widget->topTemperature = shownTenths(photograph.parameters.maximum10, conversion);
    ui->widget->bottomTemperature = shownTenths(photograph.parameters.minimum10, conversion);
    ui->widget->updateScale();
}

void Analysis_Widget::updat_XY_Temp(int x, int y)
{
    ui->label_2->setText(QStringLiteral("X: %1").arg(x));
    ui->label_3->setText(QStringLiteral("Y: %1").arg(y));
    const std::optional<Unit> unit = unitAt(ui->comboBox->currentIndex());
    if (!unit)
        return;
    const float temperature = shown(nearestTemperature(photograph.temperatures, x, y), conversion);
    ui->label_4->setText(oneDecimal(double(temperature)) + signOf(*unit));
}

void Analysis_Widget::updat_Tool_Temp()
{
    showTools(*ui->tableWidget, toolRows(*ui->label, photograph.temperatures, conversion));
    Set_Select(selectedRow);
}

void Analysis_Widget::on_comboBox_currentIndexChanged(int index)
{
    conversion = conversionFor(index, displayUnitState, photograph.parameters.unit,
                               hasRawImage(readCount), conversion);
    qDebug() << displayUnitState;
    fillInformation();
    updat_Tool_Temp();
    showScale();
}

void Analysis_Widget::selectTool(overlay::ToolMode mode)
{
    currentTool = int(mode);
    ui->label->setToolMode(currentTool);
}

/// The buttons are counted from the first tool on; the first five choose a tool.
void Analysis_Widget::setFocus(int bt_focus)
{
    const std::array<QWidget*, 9> buttons{ui->pushButton_9, ui->pushButton_8, ui->pushButton_7,
                                          ui->pushButton_6, ui->pushButton_5, ui->pushButton_4,
                                          ui->pushButton_3, ui->pushButton_2, ui->pushButton};
    constexpr int image = -1;
    constexpr int lastTool = int(ToolMode::Circle);
    constexpr int deletion = 7;
    if (bt_focus == image)
        ui->label->setFocus(Qt::OtherFocusReason);
    if (bt_focus < 1 || bt_focus > int(buttons.size()))
        return;
    buttons[std::size_t(bt_focus) - 1]->setFocus(Qt::OtherFocusReason);
    if (bt_focus <= lastTool)
        selectTool(ToolMode(bt_focus));
    if (bt_focus == deletion)
        ui->pushButton_9->setFocus(Qt::OtherFocusReason);
}

/// One row past the end is let through; the table then keeps its selection.
void Analysis_Widget::Set_Select(int row)
{
    selectedRow = row;
    if (row <= ui->tableWidget->rowCount())
        ui->tableWidget->selectRow(row);
}

void Analysis_Widget::on_pushButton_9_clicked()
{
    selectTool(ToolMode::Select);
    ui->pushButton_9->setFocus(Qt::OtherFocusReason);
}

void Analysis_Widget::on_pushButton_8_clicked()
{
    selectTool(ToolMode::Point);
}

void Analysis_Widget::on_pushButton_7_clicked()
{
    selectTool(ToolMode::Line);
}

void Analysis_Widget::on_pushButton_6_clicked()
{
    selectTool(ToolMode::Rect);
}

void Analysis_Widget::on_pushButton_5_clicked()
{
    selectTool(ToolMode::Circle);
}

void Analysis_Widget::on_pushButton_4_clicked()
{
    const QString title = tr("颜色选择");
    const dialogs::Waiting waiting(this);
    QColorDialog dialog(Qt::white, this);
    dialog.setWindowTitle(title);
    dialog.exec();
    const QColor colour = dialog.selectedColor();

    qDebug().noquote() << title << colour;
    if (colour.isValid()) {
        ui->label->toolColor = colour;
        qDebug().noquote() << QStringLiteral("rgb== ") << colour.red() << colour.green()
                           << colour.blue();
        qDebug().noquote() << QStringLiteral("m_winColor== ") << colour.name();
    }
    setFocus(currentTool);
}

/// The label says nothing of a deletion. Its selection stays where it is, on the tool that moved
/// up, which a second click deletes: the table marks that one.
void Analysis_Widget::on_pushButton_3_clicked()
{
    ui->label->deleteSelected();
    selectedRow = rowOfSelection(*ui->label);
    updat_Tool_Temp();
    if (ui->label->currentType.startsWith(QLatin1Char('n'))) {
        ui->label->setFocus(Qt::OtherFocusReason);
        on_pushButton_9_clicked();
    } else {
        ui->pushButton_9->setFocus(Qt::OtherFocusReason);
    }
}

void Analysis_Widget::on_pushButton_2_clicked()
{
    ui->label->clearTools();
    setFocus(currentTool);
}

void Analysis_Widget::on_pushButton_clicked()
{
    const dialogs::Waiting waiting(this);
    QFileDialog dialog(this, tr("保存的文件"), config::documentsPath(), tr("Items files(*.pdf)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString file = dialog.selectedFiles().value(0);
    if (!writeReport(report(), file))
        return;
    QMessageBox::information(this, tr("提示"), tr("导出文件成功!"), QMessageBox::Ok);
    QDesktopServices::openUrl(QUrl::fromLocalFile(file));
}

/// What the window shows now, whether it is painted or not.
Report Analysis_Widget::report()
{
    Report report;
    report.information = shownInformation(*ui->tableWidget_2);
    report.picture = render();
    report.overlay = reportOverlay(*ui->label, *ui->label, falseColourImage.size());
    report.colourStrip = colourStrip.toImage();
    report.maximum10 = photograph.parameters.maximum10;
    report.minimum10 = photograph.parameters.minimum10;
    report.conversion = conversion;
    report.unitIndex = ui->comboBox->currentIndex();
    report.tools = shownTools(*ui->tableWidget);
    report.language = configurationField;
    return report;
}

void Analysis_Widget::on_tableWidget_itemClicked(QTableWidgetItem* item)
{
    const QString kind = ui->tableWidget->item(item->row(), 0)->text().left(1);
    int index = 0;
    for (int row = 0; row < item->row(); ++row) {
        if (ui->tableWidget->item(row, 0)->text().startsWith(kind))
            ++index;
    }
    ui->label->currentType = kind;
    ui->label->selectedIndex = index;
}

void Analysis_Widget::on_tableWidget_2_itemEntered(QTableWidgetItem* item)
{
    if (item->row() == int(InformationRow::FileName) && item->column() == 1)
        QToolTip::showText(QCursor::pos(), files::toolTipOf(item->text()));
    else
        QToolTip::hideText();
}
