// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace bench {

/// What a program cost that was started and waited for.
struct ChildProcess
{
    bool succeeded;   ///< it ended by itself with exit status 0
    double processor; ///< seconds, user and system, from its start on
    double elapsed;   ///< seconds from before its start to after its end
    QByteArray output;
};

ChildProcess run(const QString& program, const QStringList& arguments);

/// A Python that has NumPy and PIL; empty when there is none.
QString pythonWithNumpy();

} // namespace bench
