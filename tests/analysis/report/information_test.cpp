// SPDX-License-Identifier: MIT
#include "analysis/report/information.h"
#include "tests/support/test_run.h"

#include <QFileInfo>
#include <QRegularExpression>

/// The texts about a photograph on a computer whose locale writes numbers in digits of its own.
class InformationTest : public QObject
{
    Q_OBJECT

private slots:
    void theLocaleIsAsThisTestNeedsIt()
    {
        QCOMPARE(QLocale::system().toString(2026), QStringLiteral("٢٬٠٢٦"));
    }

    void datesHaveOrdinaryDigits()
    {
        const QString date =
            analysis::createdText(QFileInfo(QCoreApplication::applicationFilePath()));
        static const QRegularExpression form(
            QStringLiteral("^[0-9]{4}/[0-9]{2}/[0-9]{2} [0-9]{2}:[0-9]{2}$"));
        QVERIFY2(form.match(date).hasMatch(), qPrintable(date));
    }

    void numbersHaveOrdinaryDigits()
    {
        QCOMPARE(analysis::kilobytes(307966), QStringLiteral("300.7"));
        analysis::Parameters parameters;
        parameters.emissivity100 = 95;
        parameters.maximum10 = 1234;
        const auto texts =
            analysis::informationTexts({}, {}, 1024, parameters, -1.25, 0, analysis::unchanged);
        QCOMPARE(texts[1], QStringLiteral("1.0 KB"));
        QCOMPARE(texts[3], QStringLiteral("0.95"));
        QCOMPARE(texts[7], QStringLiteral("123.4"));
        QCOMPARE(texts[9], QStringLiteral("-1.3"));
    }
};

int main(int argc, char** argv)
{
    testing::prepareEnvironment();
    qputenv("LC_ALL", "ar_EG.UTF-8");
    const QCoreApplication application(argc, argv);
    InformationTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "information_test.moc"
