// SPDX-License-Identifier: MIT
#pragma once

#include "tests/analysis/photograph_writer.h"
#include "tests/tools/thermaphoto.h"

/// A photograph whose temperatures are known by heart, measured.
namespace testing {

/// x tenths above 20 °C, the same in every row: 20.0 °C on the left, 43.9 °C on the right.
inline QByteArray acrossBytes(int unit = 0)
{
    Shot shot;
    shot.gray = [](int x, int) {
        return x;
    };
    shot.maximum10 = 440;
    shot.minimum10 = 200;
    shot.grayMaximum = 240;
    shot.grayMinimum = 0;
    shot.unit = unit;
    return photographBytes(shot);
}

/// One without a gray span has no temperatures.
inline QByteArray withoutReadings()
{
    Shot shot;
    shot.grayMinimum = shot.grayMaximum = 100;
    shot.gray = [](int, int) {
        return 100;
    };
    return photographBytes(shot);
}

/// The folder with the photograph "a.bmp" and "tools.json", in which the program runs.
class Across : public Folder
{
public:
    explicit Across(const QByteArray& tools, const QByteArray& photograph = acrossBytes())
    {
        write(QStringLiteral("a.bmp"), photograph);
        write(QStringLiteral("tools.json"), tools);
    }

    /// Words separated by blanks.
    Ended run(const QString& arguments) const
    {
        return thermaphoto(arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts), path());
    }
};

} // namespace testing
