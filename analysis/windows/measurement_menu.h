// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/tools.h"

#include <QCoreApplication>
#include <QString>

namespace analysis {

class ToolCommands;

/// All tools of a photograph on their way to a file, to the clipboard and to other photographs, and
/// back: these entries of the context menus.
///
/// Nothing here waits for the user: dialogs belong to the window around the analysis window and end
/// with it. Files are complete or absent; a message tells what could not be done, and then nothing
/// has changed. GUI thread only.
class MeasurementMenu
{
    Q_DECLARE_TR_FUNCTIONS(MeasurementMenu)

public:
    static void addTo(ToolCommands& commands);

    /// Keeps the tools of a photograph that is closed, until the program ends or another one with
    /// tools is closed: for "apply the last measurements".
    static void remember(const overlay::Tools& tools);

private:
    static void save(ToolCommands& commands);
    static void load(ToolCommands& commands);
    static void read(ToolCommands& commands, const QString& path);
    static void applyLast(ToolCommands& commands);
    static void copy(const ToolCommands& commands);
    static void paste(ToolCommands& commands);
    static QString parse(const QByteArray& json, overlay::Tools& tools);
};

} // namespace analysis
