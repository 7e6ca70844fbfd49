// SPDX-License-Identifier: MIT
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
    {"info", tools::infoCommand},           {"export", tools::exportCommand},
    {"measure", tools::measureCommand},     {"profile", tools::profileCommand},
    {"histogram", tools::histogramCommand}, {"spots", tools::spotsCommand},
    {"find", tools::findCommand},           {"report", tools::reportCommand},
    {"tools", tools::toolsCommand},
};

constexpr const char* help =
    "Usage: thermaphoto COMMAND [options] PATH…\n"
    "       thermaphoto help [COMMAND]\n"
    "Works on the imager's photographs, whole folders at once, without a display.\n"
    "\n"
    "Commands:\n"
    "  info       tell what stands in photographs\n"
    "  export     write temperatures (CSV, TIFF, NumPy) or pictures (PNG)\n"
    "  measure    measure photographs, all with the same tools\n"
    "  profile    print the temperatures along lines\n"
    "  histogram  count how many pixels have which temperature\n"
    "  spots      print the hottest and the coldest spots\n"
    "  find       print the names of photographs that are hot or cold somewhere\n"
    "  report     write a PDF report of each photograph\n"
    "  tools      check, print, convert, combine and transform files of tools\n"
    "  help       show this help, or all options of a command\n"
    "\n"
    "Options:\n"
    "  -h, --help     show this help; behind a command, all its options\n"
    "  -v, --version  show the version\n"
    "\n"
    "Ends with 0 when all went well, 1 when some photographs or files failed (a line on the\n"
    "error output tells why), 2 when the arguments made no sense, 3 when a photograph passed a\n"
    "limit. find ends as programs do that search: 0 found, 1 not found, 2 something failed.\n";

int say(const char* text)
{
    const bool isPrinted = tools::print(text) && tools::flushOutput();
    return isPrinted ? tools::status::good : tools::status::someFailed;
}

int run(const QString& name, const QStringList& arguments)
{
    for (const auto& command : commands) {
        if (name == QLatin1String(command.name))
            return command.run(arguments);
    }
    tools::printError((name.isEmpty() ? QStringLiteral("no command is named")
                                      : QStringLiteral("there is no command %1").arg(name)) +
                      QStringLiteral(" (see thermaphoto --help)"));
    return tools::status::badUsage;
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

    const QString topic = arguments.value(2);
    if (first == QLatin1String("--version") || first == QLatin1String("-v"))
        return say("thermaphoto " THERMADESK_VERSION "\n");
    if (first == QLatin1String("help") && !topic.isEmpty())
        return run(topic, {arguments.first(), topic, QStringLiteral("--help")});
    if (QStringList{QStringLiteral("--help"), QStringLiteral("-h"), QStringLiteral("help")}
            .contains(first))
        return say(help);
    return run(first, arguments);
}
