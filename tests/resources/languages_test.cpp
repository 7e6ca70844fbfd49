// SPDX-License-Identifier: MIT
// What a language of the table still lacks: run this after adding a row.
#include "config/language.h"
#include "tests/support/folder.h"
#include "tests/support/test_run.h"

#include <QFile>
#include <QSet>
#include <QTranslator>
#include <QUrl>

using config::Language;

namespace {

QByteArray soundOf(const Language& language)
{
    return testing::fileBytes(QLatin1Char(':') + QUrl(language.sound).path());
}

} // namespace

class LanguagesTest : public QObject
{
    Q_OBJECT

    static void addRows()
    {
        QTest::addColumn<int>("row");
        for (std::size_t row = 0; row < config::languages().size(); ++row)
            QTest::newRow(qPrintable(config::languages()[row].code)) << int(row);
    }
    static const Language& language()
    {
        QFETCH(int, row);
        return config::languages()[std::size_t(row)];
    }

private slots:
    /// Files of users hold these codes, and the settings show the entries in this order.
    void theFirstFourStayAsTheyAre()
    {
        QStringList rows;
        for (std::size_t row = 0; row < 4; ++row)
            rows.append(config::languages()[row].code + QLatin1Char(' ') +
                        config::languages()[row].title);
        QCOMPARE(rows, QStringList({QStringLiteral("CH 简体中文"), QStringLiteral("EN English"),
                                    QStringLiteral("RU Russian"), QStringLiteral("KO Korean")}));
    }

    void everyRowIsItsOwn()
    {
        QSet<QString> codes;
        QSet<QString> titles;
        for (const Language& language : config::languages()) {
            codes.insert(language.code);
            titles.insert(language.title);
            // A comma would end the field of the configuration record.
            QVERIFY(!language.code.isEmpty() && !language.code.contains(QLatin1Char(',')));
            QVERIFY(!language.title.isEmpty());
        }
        QCOMPARE(codes.size(), int(config::languages().size()));
        QCOMPARE(titles.size(), int(config::languages().size()));
    }

    void aCodeFindsItsRow_data() { addRows(); }
    void aCodeFindsItsRow()
    {
        QCOMPARE(config::findLanguage(language().code), &language());
        QCOMPARE(&config::languageOf(language().code), &language());
        QVERIFY(!config::findLanguage(language().code.toLower()));
    }

    void aCodeThatThereIsNotReadsAsTheFirst()
    {
        for (const char* code : {"", "en", "XX", "EN ", "English"}) {
            QVERIFY(!config::findLanguage(QLatin1String(code)));
            QCOMPARE(&config::languageOf(QLatin1String(code)), &config::languages().front());
        }
    }

    void textsAreTranslated_data() { addRows(); }
    void textsAreTranslated()
    {
        if (&language() == &config::languages().front()) {
            QVERIFY(language().catalogue.isEmpty());
            return;
        }
        QTranslator translator;
        QVERIFY2(translator.load(language().catalogue), "no catalogue: resources/catalogues");
        const QString open = translator.translate("MainWindow", "连接");
        QVERIFY2(!open.isEmpty() && open != QStringLiteral("连接"), "the catalogue is empty");
    }

    void textsOfQtAreTranslated_data() { addRows(); }
    void textsOfQtAreTranslated()
    {
        QTranslator translator;
        const bool loaded = translator.load(language().qtCatalogue, language().qtFolder);
        if (language().code == QLatin1String("EN")) {
            QVERIFY(!loaded); // they are English already
            return;
        }
        QVERIFY2(loaded, "no catalogue: qt_catalogues in resources/CMakeLists.txt");
        QVERIFY(!translator.translate("QPlatformTheme", "Cancel").isEmpty());
    }

    void theAlarmSpeaks_data() { addRows(); }
    void theAlarmSpeaks()
    {
        const QByteArray sound = soundOf(language());
        QVERIFY2(!sound.isEmpty(), "no sound: resources/sounds/record");
        for (const Language& other : config::languages())
            QVERIFY2(&other == &language() || soundOf(other) != sound, "the sound of another");
    }

    void reportsHaveAFont_data() { addRows(); }
    void reportsHaveAFont() { QVERIFY(!language().font.isEmpty()); }
};

int main(int argc, char** argv)
{
    return testing::run<LanguagesTest>(argc, argv);
}

#include "languages_test.moc"
