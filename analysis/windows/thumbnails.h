// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QList>
#include <QObject>
#include <QPixmap>
#include <QQueue>
#include <QStringList>
#include <QTimer>
#include <QVector>

#include <functional>

namespace analysis {

/// The thumbnails of any number of photographs. A picture is read only when it has been asked for
/// and is still in view, between events, and only the most recent few hundred are kept. A picture
/// that cannot be read has an empty thumbnail. GUI thread only.
class Thumbnails : public QObject
{
    Q_OBJECT

public:
    /// The shape of a photograph, and small enough that the name finds room below it in an item of
    /// a list, also within the wider padding of the one under the mouse.
    static constexpr QSize size{132, 176};

    /// Scaled to `shape`, its proportions not kept, with corners of this radius, in pixels. A null
    /// picture comes back as it is.
    static QPixmap rounded(const QPixmap& picture, const QSize& shape, int radius);

    /// Keeps the thumbnails in `pictures`, which must outlive it: one for each photograph, null
    /// until it is read and again when it is not kept. `isInView` tells whether the user can see
    /// the photograph of an index right now.
    Thumbnails(QList<QPixmap>& pictures, std::function<bool(int index)> isInView);

    /// Forgets all thumbnails and begins with those of other photographs.
    void begin(const QStringList& paths);
    /// Forgets what was asked for but not read yet: the view is another one.
    void forgetRequests();

    /// The thumbnail as a view shows it: grey of the same size until the picture has been read,
    /// which this asks for.
    QIcon shown(int index);

signals:
    void changed(int index); ///< shown() gives another picture now

private:
    void readRequested();
    void read(int index);

    QList<QPixmap>& m_pictures;
    const std::function<bool(int)> m_isInView;
    QStringList m_paths;
    QVector<bool> m_isRead;
    QVector<int> m_requested; ///< indices asked for since the last reading
    QQueue<int> m_kept;       ///< indices that were read, oldest first
    QTimer m_reading;         ///< runs while thumbnails are wanted
};

} // namespace analysis
