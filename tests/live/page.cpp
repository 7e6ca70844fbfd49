// SPDX-License-Identifier: MIT
#include "tests/live/page.h"

#include "config/configuration_record.h"
#include "tests/support/test_run.h"

#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>

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

} // namespace testing
