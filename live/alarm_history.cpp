// SPDX-License-Identifier: MIT
#include "live/alarm_history.h"

#include "config/configuration_record.h"
#include "files/picture_file.h"
#include "live/alarm_records.h"

#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QSet>

namespace live {
namespace {

/// Of all pictures of a record together, a quarter of a gigabyte in memory; the alarm's own have
/// half a million. What comes behind them is not shown.
constexpr qint64 mostPixels = 64'000'000;

QIcon folderIcon(int size)
{
    const QPixmap folder(QStringLiteral("://photo/folder.png"));
    return folder.isNull()
               ? QIcon()
               : QIcon(folder.scaled(size, size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

void configure(QListWidget* list, int iconSize)
{
    list->setDragEnabled(false);
    list->setMovement(QListView::Static);
    list->setResizeMode(QListView::Adjust);
    list->setIconSize({iconSize, iconSize});
}

/// Makes the list show `names` with the fewest changes, so that what the user has selected stays
/// selected and nothing jumps when a record comes in.
void showNames(QListWidget* list, const QStringList& names, const QSet<QString>& known,
               const QIcon& icon)
{
    int row = 0;
    for (const QString& name : names) {
        while (row < list->count() && !known.contains(list->item(row)->text()))
            delete list->takeItem(row);
        if (row == list->count() || list->item(row)->text() != name)
            list->insertItem(row, new QListWidgetItem(icon, name));
        ++row;
    }
    while (list->count() > row)
        delete list->takeItem(row);
}

QDateTime timeOfChange(const QString& folder)
{
    return QFileInfo(folder).lastModified();
}

} // namespace

void showScaled(QLabel& label, const QPixmap& picture)
{
    if (picture.isNull() || label.size().isEmpty())
        label.clear();
    else
        label.setPixmap(
            picture.scaled(label.size(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

AlarmHistory::AlarmHistory(HistoryState& state, const View& view)
    : m_state(state), m_view(view), m_smallIcon(folderIcon(20)), m_largeIcon(folderIcon(30))
{
    configure(m_view.shortcuts, 20);
    configure(m_view.records, 30);
    configure(m_view.pictures, 70);
    m_view.pictures->setViewMode(QListView::IconMode);
    m_view.pictures->setSpacing(30);
    for (QListWidget* list : {m_view.shortcuts, m_view.records}) {
        list->setUniformItemSizes(true);
        list->installEventFilter(this);
    }
}

QString AlarmHistory::folder() const
{
    return config::usedFolder(m_state.historyFolder);
}

void AlarmHistory::refresh()
{
    // The time first: what comes in while the folder is read is then not overlooked.
    m_listed = timeOfChange(folder());
    const QStringList names = recordNames(folder());
    const QSet<QString> known(names.begin(), names.end());
    showNames(m_view.shortcuts, names, known, m_smallIcon);
    showNames(m_view.records, names, known, m_largeIcon);
}

void AlarmHistory::save(const QList<QImage>& pictures, const QString& text)
{
    const bool current = m_listed.isValid() && timeOfChange(folder()) == m_listed;
    const QString name = writeRecord(folder(), QDateTime::currentDateTime(), pictures, text);
    m_listed = {};
    if (name.isEmpty())
        return;
    if (!current) {
        refresh();
        return;
    }
    m_listed = timeOfChange(folder());
    m_view.shortcuts->addItem(new QListWidgetItem(m_smallIcon, name));
    m_view.records->addItem(new QListWidgetItem(m_largeIcon, name));
}

void AlarmHistory::open(const QString& name)
{
    const RecordReadings readings = recordReadings(folder(), name);
    m_view.maximum->setText(readings.maximum);
    m_view.threshold->setText(readings.threshold);
    m_view.emissivity->setText(readings.emissivity);

    m_state.historyPixmaps.clear();
    m_view.pictures->clear();
    qint64 room = mostPixels;
    for (const QString& path : recordPicturePaths(folder(), name)) {
        const QPixmap picture = room > 0 ? files::pictureInFile(path) : QPixmap();
        room -= qint64(picture.width()) * picture.height();
        m_state.historyPixmaps.append(picture);
        m_view.pictures->addItem(new QListWidgetItem(QIcon(picture), QFileInfo(path).fileName()));
    }
    m_view.pictures->setCurrentRow(0);
    if (m_state.historyPixmaps.isEmpty())
        showPicture(-1);
}

void AlarmHistory::showPicture(int row)
{
    m_state.historyRow = row;
    show(m_state.historyPixmaps.value(qMax(row, 0)));
}

void AlarmHistory::fitPicture()
{
    if (m_state.historyRow != -1)
        show(m_state.historyPixmaps.value(m_state.historyRow));
}

void AlarmHistory::show(const QPixmap& picture)
{
    const QSize size = m_view.picture->size();
    if (picture.cacheKey() == m_shownKey && size == m_shownSize)
        return;
    m_shownKey = picture.cacheKey();
    m_shownSize = size;
    showScaled(*m_view.picture, picture);
}

bool AlarmHistory::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    auto& list = *static_cast<QListWidget*>(watched);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        if (!list.currentItem())
            return false;
        if (&list == m_view.records)
            emit list.itemClicked(list.currentItem());
        else
            emit list.itemDoubleClicked(list.currentItem());
        return true;
    }
    const QListWidgetItem* const before = list.currentItem();
    watched->event(event);
    if (list.currentItem() && list.currentItem() != before)
        emit list.itemClicked(list.currentItem());
    return true;
}

} // namespace live
