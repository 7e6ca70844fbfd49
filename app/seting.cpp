// SPDX-License-Identifier: MIT
#include "app/seting.h"

#include "config/configuration_record.h"
#include "config/language.h"
#include "dialogs/dialogs.h"

#include "ui_seting.h"

#include <QDebug>
#include <QFileDialog>
#include <QKeyEvent>
#include <QMessageBox>

namespace {

QString buttonSheet(int radius, const QString& size)
{
    return QStringLiteral("QPushButton{color: rgb(255, 255, 255);background-color: rgb(91, 91, 91);"
                          "border: 1px solid rgb(91, 91, 91);border-radius: %1px;%2}"
                          "QPushButton:hover{background-color: rgb(140, 140, 140);}"
                          "QPushButton:pressed{background-color: rgb(108, 108, 108);}"
                          "QPushButton:focus{border-color: rgb(20, 20, 20);}")
        .arg(radius)
        .arg(size);
}

} // namespace

seting::seting(QWidget* parent) : QWidget(parent), ui(std::make_unique<Ui::seting>())
{
    ui->setupUi(this);
    ui->lineEdit->setReadOnly(true);
    ui->pushButton->setStyleSheet(buttonSheet(6, QStringLiteral("padding: 4px 12px;")));
    for (QPushButton* button : {ui->pushButton_2, ui->pushButton_3})
        button->setStyleSheet(buttonSheet(8, QStringLiteral("padding: 6px 20px;min-width: 64px;")));
    setWindowFlags(Qt::Dialog);
    setWindowModality(Qt::ApplicationModal);

    for (const config::Language& known : config::languages())
        ui->comboBox->addItem(known.title, known.code);
    const int stored = ui->comboBox->findData(config::read().language);
    if (stored >= 0)
        ui->comboBox->setCurrentIndex(stored);
    setFolder(config::read().alarmFolder);
}

seting::~seting() = default;

void seting::setFolder(const QString& path)
{
    folder = path;
    ui->lineEdit->setText(path);
}

void seting::setOwner(QObject* windowOwner)
{
    owner = windowOwner;
    connect(this, SIGNAL(send_addr(QString)), owner, SLOT(Get_Addr(QString)));
}

void seting::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        ui->pushButton_3->click();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        ui->pushButton_2->click();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void seting::on_pushButton_3_clicked()
{
    close();
}

void seting::on_pushButton_2_clicked()
{
    emit send_addr(folder);
    const QString written = config::replaceLanguage(language);
    if (!written.isEmpty())
        qDebug().noquote() << QStringLiteral("写入了") << written;
    close();
    const dialogs::Waiting waiting(this);
    QMessageBox::information(this, tr("提示"), tr("改动将在应用重启后生效!"), QMessageBox::Ok);
}

void seting::on_pushButton_clicked()
{
    const dialogs::Waiting waiting(this);
    QString chosen = QFileDialog::getExistingDirectory(this, tr("选择一个目录"), config::filePath(),
                                                       QFileDialog::ShowDirsOnly);
    if (!chosen.isEmpty())
        setFolder(chosen.replace(QLatin1Char('/'), QLatin1Char('\\')));
    // Also when the choice was cancelled: the owner then gets the folder it has.
    emit send_addr(folder);
}

void seting::on_comboBox_currentIndexChanged(int /*index*/) {}

void seting::on_comboBox_activated(int index)
{
    if (index >= 0 && index < ui->comboBox->count())
        language = ui->comboBox->itemData(index).toString();
}
