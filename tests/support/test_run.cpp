// SPDX-License-Identifier: MIT
#include "tests/support/test_run.h"

#include "config/choices.h"
#include "config/configuration_record.h"

#include <QDir>
#include <QTextCodec>

#include <algorithm>

#ifdef __SANITIZE_ADDRESS__
/// Read by the leak checker. Qt's offscreen platform never frees its screen.
// NOLINTNEXTLINE(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_suppressions();
// NOLINTNEXTLINE(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libqoffscreen.so\n";
}
#endif

namespace testing {
namespace {

QStringList& recordedMessages()
{
    static QStringList messages;
    return messages;
}

void record(QtMsgType, const QMessageLogContext&, const QString& message)
{
    recordedMessages().append(message);
}

} // namespace

Profile::Profile()
{
    qputenv("HOME", m_home.path().toUtf8());
    for (const char* variable :
         {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_DOCUMENTS_DIR"})
        qunsetenv(variable);
    qputenv("XDG_RUNTIME_DIR", m_home.path().toUtf8());
}

void Profile::reset()
{
    // Windows takes no hint from HOME unless its documents folder is set to %HOME%\Documents, as
    // packaging/windows/wine-prefix does: better no test than one that empties a user's folder.
    if (config::documentsPath() != home() + QStringLiteral("/Documents"))
        qFatal(
            "The documents folder lies outside the throw-away home folder: refusing to empty it");
    QDir documents(config::documentsPath());
    documents.removeRecursively();
    documents.mkpath(QStringLiteral("."));
    QDir(home() + QStringLiteral("/.local/share/thermadesk")).removeRecursively();
    if (qEnvironmentVariableIsSet("THERMADESK_TEST_KEEPING"))
        config::setKeepMeasurements(true);
}

Profile& profile()
{
    static Profile instance;
    return instance;
}

void prepareEnvironment()
{
    profile();
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Qt has every locale's data. Where the system lacks it, file names would be taken for ASCII.
    const QByteArray locale = qgetenv("THERMADESK_TEST_LOCALE");
    qputenv("LC_ALL", locale.isEmpty() ? QByteArrayLiteral("C.UTF-8") : locale);
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
}

LogRecorder::LogRecorder()
{
    recordedMessages().clear();
    m_previous = qInstallMessageHandler(record);
}

LogRecorder::~LogRecorder()
{
    qInstallMessageHandler(m_previous);
}

QStringList LogRecorder::messages() const
{
    return recordedMessages();
}

bool LogRecorder::contains(const QString& text) const
{
    const QStringList& messages = recordedMessages();
    return std::any_of(messages.begin(), messages.end(),
                       [&text](const QString& message) { return message.contains(text); });
}

} // namespace testing
