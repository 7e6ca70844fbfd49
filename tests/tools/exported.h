// SPDX-License-Identifier: MIT
#pragma once

#include "tests/analysis/photograph_writer.h"
#include "tests/tools/thermaphoto.h"

/// Photographs with known temperatures, exported.
namespace testing {

constexpr int columns = 240;
constexpr int rows = 320;

/// A gray value of the sloping photograph: no two neighbours alike, and not symmetric in any way.
inline int grayAt(int x, int y)
{
    return (3 * x + 7 * y) % 241;
}

/// 20.0 at gray 0, 44.0 at gray 240.
inline Shot slope(int model = 0, int unit = 0)
{
    Shot shot;
    shot.model = model;
    shot.gray = grayAt;
    shot.maximum10 = 440;
    shot.minimum10 = 200;
    shot.grayMaximum = 240;
    shot.grayMinimum = 0;
    shot.unit = unit;
    return shot;
}

/// The temperature that the imager means by a gray value of it, to the last bit.
inline float stored(int gray)
{
    const float ratio = (240.0F - float(gray)) / 240.0F;
    return float(44.0 - double(ratio) * 24.0);
}

inline QString option(const char* name, const QString& value)
{
    return QStringLiteral("--%1=%2").arg(QLatin1String(name), value);
}

/// One photograph "a.bmp" exported into the same folder.
class Exported : public Folder
{
public:
    Exported(const QByteArray& photograph, const QString& format, const QStringList& options = {})
    {
        write(QStringLiteral("a.bmp"), photograph);
        ended = thermaphoto(QStringList{QStringLiteral("export"), option("format", format),
                                        QStringLiteral("a.bmp")} +
                                options,
                            path());
        file = read(QStringLiteral("a.") + format);
    }

    QList<QByteArray> cells(int row, char separator = ',') const
    {
        return file.split('\n').value(row).split(separator);
    }

    Ended ended;
    QByteArray file;
};

} // namespace testing
