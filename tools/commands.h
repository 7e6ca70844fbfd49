// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QStringList>

#include <memory>

/// The commands of thermaphoto. Each takes all arguments of the program (its own name, then the
/// command's) and returns what the program ends with.
namespace tools {

int infoCommand(const QStringList& arguments);
int exportCommand(const QStringList& arguments);
int measureCommand(const QStringList& arguments);
int profileCommand(const QStringList& arguments);
int histogramCommand(const QStringList& arguments);
int spotsCommand(const QStringList& arguments);
int findCommand(const QStringList& arguments);
int toolsCommand(const QStringList& arguments);

/// Needs a drawingApplication().
int reportCommand(const QStringList& arguments);

/// The application object that has fonts, without a display.
std::unique_ptr<QCoreApplication> drawingApplication(int& argc, char** argv);

} // namespace tools
