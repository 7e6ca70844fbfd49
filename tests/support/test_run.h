// SPDX-License-Identifier: MIT
#pragma once

#include "resources/resources.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QtTest>

/// How every test program starts: with no display and no audio device, the C locale unless
/// THERMADESK_TEST_LOCALE names another ("ar_EG.UTF-8", with digits of its own), and a home folder
/// of its own, so that no test meets a user's files or another test's.
namespace testing {

/// A throw-away home folder. While it lives, the documents location lies inside it.
class Profile
{
public:
    Profile();
    /// The home folder, without a trailing slash.
    QString home() const { return m_home.path(); }
    /// Back to a fresh profile: documents folder there and empty, nothing kept of photographs; with
    /// THERMADESK_TEST_KEEPING set, the user has chosen to keep measurements with photographs.
    void reset();

private:
    QTemporaryDir m_home;
};

/// True on Windows: where some file names, and links, do not exist.
inline bool onWindows()
{
    return QSysInfo::kernelType() == QLatin1String("winnt");
}

/// True when THERMADESK_LONG_RUN is set, as in .ci/nightly: random cases are tried in great
/// numbers.
inline bool isLongRun()
{
    return qEnvironmentVariableIsSet("THERMADESK_LONG_RUN");
}

/// The profile of this test program.
Profile& profile();

/// Sets what must be set before the application object exists.
void prepareEnvironment();

/// Runs all test functions of T; what main() returns.
template<typename T>
int run(int argc, char** argv)
{
    prepareEnvironment();
    QApplication application(argc, argv);
    resources::load();
    profile().reset();
    T test;
    return QTest::qExec(&test, argc, argv);
}

/// What was logged while the recorder lived, without quotes, oldest first. Nothing reaches the
/// terminal meanwhile.
class LogRecorder
{
public:
    LogRecorder();
    ~LogRecorder();
    LogRecorder(const LogRecorder&) = delete;
    LogRecorder& operator=(const LogRecorder&) = delete;
    QStringList messages() const;
    bool contains(const QString& text) const;

private:
    QtMessageHandler m_previous;
};

} // namespace testing
