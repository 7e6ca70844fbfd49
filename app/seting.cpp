#include "app/seting.h"

#include "config/configuration_record.h"
#include "dialogs/dialogs.h"

#include "ui_seting.h"

#include <QDebug>
#include <QFileDialog>
#include <QMessageBox>
#include <QStringList>

namespace {

/// In the order of the combo box's entries.
const QStringList languageCodes{QStringLiteral("CH"), QStringLiteral("EN"), QStringLiteral("RU"),
                                QStringLiteral("KO")};

} // namespace

seting::seting(QWidget* parent) : QWidget(parent), ui(std::make_unique<Ui::seting>())
{
    ui->setupUi(this);
    ui->lineEdit->setReadOnly(true);
    setWindowFlags(Qt::Dialog);
    setWindowModality(Qt::ApplicationModal);

    const int stored = languageCodes.indexOf(config::read().language);
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
    language = languageCodes.value(index, language);
}
