// SPDX-License-Identifier: MIT
#include "tests/support/test_run.h"

#include <QDateTime>
#include <QFile>
#include <QLocale>

#include <map>

/// What other tests rely on: a locale named from outside is the one that Qt formats by, whether the
/// system has its data or not, and file names keep their letters in it.
class TestRunTest : public QObject
{
    Q_OBJECT

private slots:
    void theNamedLocaleIsTheOneThatFormats()
    {
        struct Form
        {
            QString number;
            QString date;
        };
        const std::map<QByteArray, Form> forms = {
            {"", {QStringLiteral("1,234.5"), QStringLiteral("2026-03-09")}},
            {"ar_EG.UTF-8", {QStringLiteral("١٬٢٣٤٫٥"), QStringLiteral("٢٠٢٦-٠٣-٠٩")}},
            {"de_DE.UTF-8", {QStringLiteral("1.234,5"), QStringLiteral("2026-03-09")}},
        };
        const auto form = forms.find(qgetenv("THERMADESK_TEST_LOCALE"));
        QVERIFY(form != forms.end());
        QCOMPARE(QLocale().toString(1234.5, 'f', 1), form->second.number);
        QCOMPARE(QDate(2026, 3, 9).toString(QStringLiteral("yyyy-MM-dd")), form->second.date);
    }

    void fileNamesKeepTheirLetters()
    {
        const QString path = testing::profile().home() + QStringLiteral("/тест 测试");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(QFile::exists(path));
        QVERIFY(QDir(testing::profile().home()).entryList().contains(QStringLiteral("тест 测试")));
        QCOMPARE(QFile::encodeName(path), path.toUtf8());
    }
};

int main(int argc, char** argv)
{
    return testing::run<TestRunTest>(argc, argv);
}

#include "test_run_test.moc"
