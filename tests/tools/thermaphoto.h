// SPDX-License-Identifier: MIT
#pragma once

#include "simulator/photograph.h"
#include "tests/support/folder.h"

#include <QJsonArray>
#include <QProcess>

#include <vector>

/// The program under test and the files it works on.
namespace testing {

struct Ended
{
    int status = -1; ///< −1: it crashed or was ended by a signal
    QByteArray output;
    QByteArray errors;

    QList<QByteArray> errorLines() const;
    QJsonArray json() const;
};

/// A process environment as of a scheduled job: no display, nothing that speaks to Qt, and a locale
/// that knows ASCII only.
QProcessEnvironment bareEnvironment();

/// Starts the program in a folder and waits for its end.
Ended thermaphoto(const QStringList& arguments, const QString& folder = {});

/// Starts a shell command in which "$thermaphoto" is the program.
Ended shell(const QString& command, const QString& folder);

/// One photograph of every kind the imager makes, with the name of its kind.
struct Sample
{
    const char* name;
    simulator::PhotographSettings settings;

    QByteArray bytes() const;
};
const std::vector<Sample>& samples();

} // namespace testing
