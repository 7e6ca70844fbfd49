// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QIcon>
#include <QList>
#include <QObject>
#include <QPixmap>
#include <QString>
#include <QStringList>

class QLabel;
class QListWidget;

namespace live {

/// Which record is open, and which of its pictures is shown.
struct HistoryState
{
    QString historyFolder;         ///< as configured; config::usedFolder() says where that is
    QList<QPixmap> historyPixmaps; ///< pictures of the record being viewed, in list order
    int historyRow = -1;           ///< row shown in the history picture, -1 for none
};

/// The history of alarm records in the widgets of a page: two lists of the records, the pictures of
/// the one that is open, the picture chosen among them, and its read-outs.
///
/// A row of either list of records that is reached by keyboard, and Return, count as clicks on it.
///
/// GUI thread only. Device and file problems are not reported: the widgets show what there is.
class AlarmHistory : public QObject
{
public:
    /// The widgets; they outlive the history.
    struct View
    {
        QListWidget* shortcuts; ///< records beside the live picture, icons of 20 × 20
        QListWidget* records;   ///< records in the history, icons of 30 × 30
        QListWidget* pictures;
        QLabel* picture;
        QLabel* maximum;
        QLabel* threshold;
        QLabel* emissivity;
    };

    AlarmHistory(HistoryState& state, const View& view);

    /// Brings both lists up to date with the disk. Selections stay where they can; nothing is
    /// opened.
    void refresh();
    /// Writes a record of this moment and lists it, at the end and without reading the folder again
    /// when nobody else has changed it. What cannot be written is not listed.
    void save(const QList<QImage>& pictures, const QString& text);
    /// Shows a record's read-outs and pictures, and the first of these.
    void open(const QString& name);
    /// Shows a picture of the open record, the first for a negative row.
    void showPicture(int row);
    /// Fits the picture to its label again. Sets nothing that is shown already.
    void fitPicture();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void show(const QPixmap& picture);
    QString folder() const;

    HistoryState& m_state;
    View m_view;
    QIcon m_smallIcon;
    QIcon m_largeIcon;
    QDateTime m_listed;    ///< the folder's time of change when its records were listed
    qint64 m_shownKey = 0; ///< what is shown: the picture's cache key …
    QSize m_shownSize;     ///< … scaled to this size
};

/// Shows a picture as large as its label allows, in its own proportions; no picture clears it.
void showScaled(QLabel& label, const QPixmap& picture);

} // namespace live
