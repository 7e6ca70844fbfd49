#include "tools/commands.h"

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString command = arguments.value(1);
    if (command == QLatin1String("info"))
        return tools::infoCommand(arguments);
    if (command == QLatin1String("export"))
        return tools::exportCommand(arguments);
    return tools::measureCommand(arguments);
}
