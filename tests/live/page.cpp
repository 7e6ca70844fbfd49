// SPDX-License-Identifier: MIT
#include "tests/live/page.h"

#include "config/configuration_record.h"
#include "resources/resources.h"
#include "tests/support/test_run.h"

#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

namespace testing {

QByteArray grayFrame(int luma, int maximumTenths, int thresholdTenths, int emissivityHundredths)
{
    QByteArray bytes;
    for (int pixel = 0; pixel < 240 * 320; ++pixel) {
        bytes.append(char(luma));
        bytes.append(char(128));
    }
    for (const int word : {maximumTenths, thresholdTenths, emissivityHundredths}) {
        bytes.append(char(word & 0xFF));
        bytes.append(char(word >> 8));
    }
    return bytes;
}

void configure(const QString& language, const QString& alarmFolder)
{
    QFile::remove(config::filePath());
    config::create(language);
    config::replaceAlarmFolder(alarmFolder);
}

QString makeFolder(const QString& name)
{
    QString path = profile().home() + QLatin1Char('/') + name;
    QDir(path).removeRecursively();
    QDir().mkpath(path);
    return path;
}

QString Page::text(const char* label) const
{
    return get<QLabel>(label)->text();
}

QString Page::style(const char* label) const
{
    return get<QLabel>(label)->styleSheet();
}

QStringList Page::rows(const char* list) const
{
    const auto* const widget = get<QListWidget>(list);
    QStringList rows;
    for (int row = 0; row < widget->count(); ++row)
        rows.append(widget->item(row)->text());
    return rows;
}

void Page::check(const char* box, bool checked) const
{
    get<QCheckBox>(box)->setChecked(checked);
}

void Page::frame(float maximum, float threshold, float emissivity, int luma) const
{
    QImage picture(240, 320, QImage::Format_RGB888);
    picture.fill(QColor(luma, luma, luma));
    m_window->display_cap(picture);
    m_window->updat_temp(maximum, threshold, emissivity);
}

void Page::frames(int count, float maximum, float threshold) const
{
    for (int i = 0; i < count; ++i)
        frame(maximum, threshold);
}

void Page::enableAlarm() const
{
    check("checkBox");
    check("checkBox_3");
}

void Page::pressStop() const
{
    QTest::mouseClick(get<QPushButton>("pushButton_2"), Qt::LeftButton);
}

void Page::openRecord(const QString& name) const
{
    auto* const list = get<QListWidget>("listWidget_2");
    const QList<QListWidgetItem*> items = list->findItems(name, Qt::MatchExactly);
    QCOMPARE(items.size(), 1);
    emit list->itemClicked(items.first());
}

QStringList Page::readings() const
{
    return {text("label_12"), text("label_14"), text("label_16")};
}

QColor Page::shownRecordColour() const
{
    const QPixmap* const pixmap = get<QLabel>("label_18")->pixmap();
    if (!pixmap || pixmap->isNull())
        return Qt::black;
    return pixmap->toImage().pixelColor(pixmap->rect().center());
}

void PageTest::initTestCase()
{
    resources::load();
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void PageTest::init()
{
    profile().reset();
    m_folder = makeFolder();
    configure(QStringLiteral("EN"), m_folder);
}

void PageTest::putRecord(const QString& name, const QByteArray& text,
                         const QMap<QString, QColor>& pictures) const
{
    QDir(m_folder).mkpath(name);
    putFile(path(name + QStringLiteral(".ini")), text);
    for (auto it = pictures.begin(); it != pictures.end(); ++it) {
        QImage picture(240, 320, QImage::Format_RGB888);
        picture.fill(it.value());
        QVERIFY(picture.save(path(name + QLatin1Char('/') + it.key()), "png"));
    }
}

} // namespace testing
