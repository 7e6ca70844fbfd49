#include "tools/command_line.h"
#include "tools/commands.h"
#include "tools/messages.h"

#include <QCoreApplication>
#include <QTextCodec>

#include <cstring>

namespace {

using Command = int (*)(const QStringList& arguments);

constexpr struct
{
    const char* name;
    Command run;
} commands[] = {
    {"info", tools::infoCommand},
    {"export", tools::exportCommand},
    {"measure", tools::measureCommand},
    {"report", tools::reportCommand},
};

constexpr const char* help =
    "Usage: thermaphoto COMMAND [options] PATH…\n"
    "Works on the imager's photographs, whole folders at once, without a display.\n"
    "\n"
    "Commands:\n"
    "  info      tell what stands in photographs\n"
    "  export    write temperatures (CSV, TIFF, NumPy) or pictures (PNG)\n"
    "  measure   measure photographs, all with the same tools\n"
    "  report    write a PDF report of each photograph\n"
    "\n"
    "Options:\n"
    "  -h, --help     show this help; thermaphoto COMMAND --help tells more\n"
    "  -v, --version  show the version\n"
    "\n"
    "Ends with 0 when all went well, 1 when some photographs failed (a line on the error\n"
    "output tells why), 2 when the arguments made no sense.\n";

int finish(bool isPrinted)
{
    return isPrinted && tools::flushOutput() ? tools::status::good : tools::status::someFailed;
}

} // namespace

int main(int argc, char** argv)
{
    // File names are UTF-8 whatever the locale says: scheduled jobs run in one that knows ASCII
    // only.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    // What windows and Qt note for developers is not for whoever reads the error output.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const bool draws = argc > 1 && std::strcmp(argv[1], "report") == 0;
    const std::unique_ptr<QCoreApplication> application =
        draws ? tools::drawingApplication(argc, argv)
              : std::make_unique<QCoreApplication>(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString first = arguments.value(1);

    if (first == QLatin1String("--help") || first == QLatin1String("-h"))
        return finish(tools::print(help));
    if (first == QLatin1String("--version") || first == QLatin1String("-v"))
        return finish(tools::print("thermaphoto " THERMADESK_VERSION "\n"));
    for (const auto& command : commands) {
        if (first == QLatin1String(command.name))
            return command.run(arguments);
    }
    tools::printError((first.isEmpty() ? QStringLiteral("no command is named")
                                       : QStringLiteral("there is no command %1").arg(first)) +
                      QStringLiteral(" (see thermaphoto --help)"));
    return tools::status::badUsage;
}
