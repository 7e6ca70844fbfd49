// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/file_buffer.h"
#include "analysis/photograph/photograph.h"
#include "analysis/photograph/units.h"
#include "overlay/tools.h"

#include <QImage>
#include <QPixmap>
#include <QWidget>

#include <opencv2/core.hpp>

#include <memory>

class QTableWidgetItem;

namespace analysis {
struct Report;
class ToolCommands;
} // namespace analysis

namespace Ui {
class Analysis_Widget;
}

/// The window in which one photograph is examined: the picture in false colour with measurement
/// tools, the colour bar, a table about the file and one about the tools.
///
/// The picture is rendered in paintEvent, because the colour bar has no signals: whatever repaints
/// the bar repaints the window beneath it. What is shown already is not set again, so the window
/// comes to rest.
///
/// The members are what the report and the tests read. GUI thread only.
class Analysis_Widget : public QWidget
{
    Q_OBJECT

public:
    explicit Analysis_Widget(QWidget* parent = nullptr);
    ~Analysis_Widget() override;

    /// Reads and shows a photograph; may be called again for another one. `modelIndex` picks the
    /// file's layout (see layouts.h). False for a photograph of an imager that is not
    /// supported: then nothing but what precedes the machine ID in the file is replaced, and no
    /// message is shown. A short or missing file is not noticed; what it lacks is taken from the
    /// photograph before, or zero.
    bool set_Image_addr(const QString& imagePath, int modelIndex);

    /// What keyboard and context menus do here.
    analysis::ToolCommands& commands() { return *m_commands; }

    /// The picture is coloured anew when it is next painted, which is soon.
    void mapAnew();

    /// falseColourImage as it is to be shown now, whether the window is painted or not.
    const QImage& render();

    int displayUnitState = -1; ///< 0 since the first load; steers the unit conversion
    int currentTool = 0;       ///< an overlay::ToolMode, 0 for none yet
    int selectedRow = 0;       ///< what Set_Select was given last
    QString path;
    QString fileName;
    QString created; ///< "yyyy/MM/dd HH:mm"
    analysis::Conversion conversion;
    int readCount = 0; ///< bytes of the file; −1 when it could not be read
    cv::Mat grayMatrix;
    cv::Mat falseColourMatrix; ///< three channels, red first, once rendered
    QImage grayImage;          ///< views of the matrices, living no longer than these
    QImage falseColourImage;
    analysis::Photograph photograph;
    QPixmap colourStrip;            ///< 30 × 256, as handed to the colour bar
    analysis::Palette colourLookup; ///< the palette cut down to the colour bar's span
    analysis::FileBuffer fileBuffer;
    QString configurationField; ///< the language code of the configuration record

public slots:
    void updat_XY_Temp(int x, int y);
    void updat_Tool_Temp();
    /// Focuses a button by number and selects its tool. Hides QWidget::setFocus().
    void setFocus(int bt_focus);
    void Set_Select(int row);
    void on_comboBox_currentIndexChanged(int index);
    void on_pushButton_9_clicked();
    void on_pushButton_8_clicked();
    void on_pushButton_7_clicked();
    void on_pushButton_6_clicked();
    void on_pushButton_5_clicked();
    void on_pushButton_4_clicked();
    void on_pushButton_3_clicked();
    void on_pushButton_2_clicked();
    /// Asks for a file, writes the PDF report into it, says so and opens it. Nothing is said when
    /// the file cannot be written.
    void on_pushButton_clicked();
    void on_tableWidget_itemClicked(QTableWidgetItem* item);
    void on_tableWidget_2_itemEntered(QTableWidgetItem* item);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void selectTool(overlay::ToolMode mode);
    void takePalette();
    void fillInformation();
    void showScale();
    void showGrayImage();
    analysis::Report report();

    const std::unique_ptr<Ui::Analysis_Widget> ui;
    std::unique_ptr<analysis::ToolCommands> m_commands;
    bool m_mapped = false; ///< falseColourMatrix is of the current gray image and palette
    QSize m_shownSize;     ///< the label's size for which falseColourImage was scaled and set
};
