// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

#include <memory>

namespace Ui {
class seting;
}

/// The settings dialog: interface language and alarm history folder.
///
/// A folder takes effect at once: it is sent on, and the owner stores it. The language is written
/// to the configuration record by Confirm and read at the next start. The language to be written
/// starts as "CH" and follows only the user's activation of an entry, never the stored language, so
/// Confirm without such an activation writes "CH".
class seting : public QWidget
{
    Q_OBJECT

public:
    explicit seting(QWidget* parent = nullptr);
    ~seting() override;

    /// Shows and remembers a folder; nothing is sent.
    void setFolder(const QString& path);
    /// Connects send_addr(QString) to the owner's slot Get_Addr(QString).
    void setOwner(QObject* windowOwner);

    QString language = QStringLiteral("CH"); ///< what Confirm writes
    QString folder = QStringLiteral("?");    ///< what the path box shows
    QObject* owner = nullptr;                ///< not owned

signals:
    /// The alarm history folder; back-slashes when the user has just chosen it.
    void send_addr(QString str);

protected:
    /// Escape cancels, Return confirms.
    void keyPressEvent(QKeyEvent* event) override;

private slots:
    void on_pushButton_3_clicked();
    void on_pushButton_2_clicked();
    void on_pushButton_clicked();
    void on_comboBox_currentIndexChanged(int index);
    void on_comboBox_activated(int index);

private:
    std::unique_ptr<Ui::seting> ui;
};
