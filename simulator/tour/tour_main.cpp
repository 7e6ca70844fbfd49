// SPDX-License-Identifier: MIT
// Walks through every window in one language and keeps pictures of them:
//     thermadesk-tour --language EN --output FOLDER

#include "app/startup.h"
#include "config/configuration_record.h"
#include "config/language.h"
#include "resources/resources.h"
#include "simulator/tour/walk.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QTemporaryDir>

#include <cstdio>
#include <exception>

namespace {

/// A home folder in which nobody has been: what is remembered there goes with the tour.
void moveInto(const QTemporaryDir& home)
{
    qputenv("HOME", QFile::encodeName(home.path()));
    for (const char* variable :
         {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_DOCUMENTS_DIR"})
        qunsetenv(variable);
    QDir().mkpath(config::documentsPath());
}

int walkThrough(const QString& language, const QString& folder)
{
    tour::Walk walk(language, folder);
    try {
        tour::takeLiveSteps(walk);
        tour::takeDiskSteps(walk);
    } catch (const std::exception& missing) {
        std::fprintf(stderr, "%s: waited in vain until %s\n", qPrintable(language), missing.what());
        return 1;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir home;
    moveInto(home);
    startup::setAttributes();
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); // nobody would answer the system's
    QApplication application(argc, argv);

    QCommandLineParser parser;
    const QCommandLineOption language(QStringLiteral("language"),
                                      QStringLiteral("A code of the configuration."),
                                      QStringLiteral("code"), QStringLiteral("EN"));
    const QCommandLineOption output(QStringLiteral("output"), QStringLiteral("Where pictures go."),
                                    QStringLiteral("folder"), QStringLiteral("."));
    const QCommandLineOption list(QStringLiteral("languages"), QStringLiteral("Names all codes."));
    parser.addOptions({language, output, list});
    parser.addHelpOption();
    parser.process(application);
    if (parser.isSet(list)) {
        for (const config::Language& known : config::languages())
            std::puts(qPrintable(known.code));
        return 0;
    }
    if (!config::findLanguage(parser.value(language)) || !parser.positionalArguments().isEmpty() ||
        !QDir().mkpath(parser.value(output))) {
        std::fputs(qPrintable(parser.helpText()), stderr);
        return 2;
    }

    config::create(parser.value(language));
    startup::useLightPalette();
    resources::load();
    const startup::Translators translators(startup::languageCode());
    return walkThrough(parser.value(language), parser.value(output));
}
