// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/units.h"
#include "files/outcome.h"
#include "overlay/tools.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// Measurements that come back with their photograph.
namespace analysis {

/// What a user has set up on one photograph.
struct Measurements
{
    overlay::Tools tools; ///< finished ones are kept, and which is selected is not
    int startValue = 0;   ///< the colour bar's span, 0 … 255 from the top, start first
    int endValue = 255;
    Unit unit = Unit::Celsius; ///< of the unit selector
};

bool operator==(const Measurements& left, const Measurements& right);

/// As text: {"version": 1, "span": [start, end], "unit": "C", "tools": {a file of tools}}.
QByteArray measurementsToJson(const Measurements& measurements);

/// Nothing for what measurementsToJson() does not make.
std::optional<Measurements> measurementsFromJson(const QByteArray& json);

/// One small file for each photograph in one folder, named after the photograph's bytes, so that it
/// finds its measurements from whatever disk it is opened, and nothing is ever written beside it.
/// GUI thread. Every function looks at the folder anew; several programs may use it side by side.
class KeptMeasurements
{
public:
    static constexpr int mostPhotographs = 10000;

    explicit KeptMeasurements(QString folder = usualFolder(), int most = mostPhotographs);

    /// In the user's data folder; not made before something is kept.
    static QString usualFolder();

    /// What stands for a photograph: hexadecimal digits that depend on each of its bytes. Takes
    /// about two milliseconds.
    static QString keyOf(const uchar* photograph, int bytes);

    /// Nothing for a photograph without any, and where the file is broken or cannot be read.
    std::optional<Measurements> find(const QString& key) const;

    /// In place of what was kept for this photograph, on the disk when this returns; if it fails,
    /// that stays. Where there are then more photographs than there may be, those go that have gone
    /// unchanged for the longest time.
    files::Outcome keep(const QString& key, const Measurements& measurements) const;

private:
    QString pathOf(const QString& key) const;
    void removeOldest(const QString& spared) const;

    QString m_folder;
    int m_most;
};

} // namespace analysis
