// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/windows/imager_folder.h"
#include "analysis/windows/thumbnails.h"

#include <QWidget>

#include <memory>

class QAbstractItemView;
class QListWidgetItem;
class QTableWidgetItem;

namespace Ui {
class photo_window;
}

/// The browser of the imager's disk: drives, the photographs of the chosen one as thumbnails or as
/// a table, and on the second tab the photograph opened last.
///
/// However many photographs there are, a picture is read only when it comes into view, between
/// events, and only the most recent few hundred thumbnails are kept. Whatever the disk does
/// meanwhile, at worst a thumbnail stays empty. GUI thread only.
class photo_window : public QWidget, public analysis::ImagerFolder
{
    Q_OBJECT

public:
    /// `owner` is told of a photograph under the mouse through its slot
    /// Photo_itemEntered(QListWidgetItem*); it is not owned and may be null.
    explicit photo_window(QObject* owner, QWidget* parent = nullptr);
    ~photo_window() override;

    /// Size and corner radius are in pixels; the picture's shape is not kept. A null picture comes
    /// back as it is.
    static QPixmap roundedThumbnail(const QPixmap& picture, const QSize& size, int radius);

    int driveIndex = 0;        ///< row of the drive in use
    QList<QPixmap> thumbnails; ///< of the photographs; null until shown, or when it cannot be read

    /// Fills the drive list. Returns the drives' roots, each ending in "/".
    QStringList listDrives();
    /// Takes the photograph folder of the drive in use. False when this window was ended while it
    /// waited for the user's answer.
    bool findImageFolder();
    /// Lists the photographs of `imageFolder` and shows their thumbnails.
    void get_image_information();
    /// Which folder of the drive at `root`, and which file layout, given the names of its
    /// sub-folders. Asks the user when both kinds seem to be there. False as above.
    bool chooseFolder(const QString& root, const QStringList& folderNames);
    bool eventFilter(QObject* watched, QEvent* event) override;

public slots:
    void on_pushButton_3_clicked();
    void on_pushButton_4_clicked();
    void table_item_doubleclicked(QTableWidgetItem* item);
    void list_item_doubleclicked(QListWidgetItem* item);
    void on_listWidget_currentRowChanged(int currentRow);
    void on_pushButton_clicked();

private:
    void widenTabs();
    void showView(QAbstractItemView* view, int pictureColumn);
    void open(const QString& name);
    void step(int count);
    QStringList chosenNames() const;
    void showMenu(const QPoint& place);
    bool isInView(int index) const;

    const std::unique_ptr<Ui::photo_window> ui;
    QObject* const m_owner;
    bool m_hasWideCaptions = false;
    QAbstractItemView* m_view = nullptr; ///< the list or table shown, a child
    int m_pictureColumn = 0;             ///< of m_view
    analysis::Thumbnails m_thumbnails;
    QString m_asked; ///< the path of the photograph asked for last, whether or not it opened
};
