#pragma once

#include <QStringList>

/// The commands of thermaphoto. Each takes all arguments of the program (its own name, then the
/// command's) and returns what the program ends with.
namespace tools {

int infoCommand(const QStringList& arguments);
int exportCommand(const QStringList& arguments);
int measureCommand(const QStringList& arguments);

} // namespace tools
