// SPDX-License-Identifier: MIT
#include "analysis/windows/thumbnails.h"

#include "files/picture_file.h"

#include <QElapsedTimer>
#include <QPainter>
#include <QPainterPath>

namespace analysis {
namespace {

constexpr int cornerRadius = 15;
/// More than the largest screens show at once; about 24 MB.
constexpr int mostKept = 256;
/// Reading goes on for so long, in milliseconds, before other events have their turn.
constexpr int readingTime = 12;

const QPixmap& unread()
{
    static const QPixmap grey = [] {
        QPixmap plain(Thumbnails::size);
        plain.fill(QColor(238, 238, 238));
        return Thumbnails::rounded(plain, Thumbnails::size, cornerRadius);
    }();
    return grey;
}

} // namespace

QPixmap Thumbnails::rounded(const QPixmap& picture, const QSize& shape, int radius)
{
    if (picture.isNull())
        return picture;
    const QPixmap scaled = picture.scaled(shape, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QPixmap rounded(shape);
    rounded.fill(Qt::transparent);
    QPainter painter(&rounded);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    QPainterPath outline;
    outline.addRoundedRect(QRect(QPoint(), shape), radius, radius, Qt::AbsoluteSize);
    painter.setClipPath(outline);
    painter.drawPixmap(0, 0, scaled);
    return rounded;
}

Thumbnails::Thumbnails(QList<QPixmap>& pictures, std::function<bool(int index)> isInView)
    : m_pictures(pictures), m_isInView(std::move(isInView))
{
    connect(&m_reading, &QTimer::timeout, this, &Thumbnails::readRequested);
}

void Thumbnails::begin(const QStringList& paths)
{
    m_paths = paths;
    m_pictures.clear();
    for (int i = 0; i < paths.size(); ++i)
        m_pictures.append(QPixmap());
    m_isRead.fill(false, paths.size());
    m_kept.clear();
    forgetRequests();
}

void Thumbnails::forgetRequests()
{
    m_requested.clear();
}

QIcon Thumbnails::shown(int index)
{
    if (m_isRead.at(index))
        return QIcon(m_pictures.at(index));
    m_requested.append(index);
    if (!m_reading.isActive())
        m_reading.start(0);
    return QIcon(unread());
}

/// Wanted is what was painted, but the user may have scrolled on since.
void Thumbnails::readRequested()
{
    QElapsedTimer time;
    time.start();
    while (!m_requested.isEmpty() && !time.hasExpired(readingTime)) {
        const int index = m_requested.takeFirst();
        if (!m_isRead.at(index) && m_isInView(index))
            read(index);
    }
    if (m_requested.isEmpty())
        m_reading.stop();
}

void Thumbnails::read(int index)
{
    m_pictures[index] = rounded(files::pictureInFile(m_paths.at(index)), size, cornerRadius);
    m_isRead[index] = true;
    m_kept.enqueue(index);
    if (m_kept.size() > mostKept) {
        const int oldest = m_kept.dequeue();
        m_pictures[oldest] = QPixmap();
        m_isRead[oldest] = false;
    }
    emit changed(index);
}

} // namespace analysis
