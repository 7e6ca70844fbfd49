#pragma once

#include <QString>
#include <QWidget>

/// The page of USB-disk mode. So far it only knows the photographs' folder.
class photo_window : public QWidget
{
    Q_OBJECT

public:
    /// The owner is told of the photograph under the mouse; it does not become the parent.
    explicit photo_window(QObject* owner, QWidget* parent = nullptr);

    QString imageFolder; ///< the folder whose photographs are listed
};
