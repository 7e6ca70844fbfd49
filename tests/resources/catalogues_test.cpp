// SPDX-License-Identifier: MIT
#include "tests/resources/embedded_files.h"
#include "tests/support/test_run.h"
#include "tests/support/translation.h"

#include <QColorDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSet>
#include <QXmlStreamReader>

using testing::addRows;
using testing::catalogues;

/// The texts of the languages, ours and Qt's.
class CataloguesTest : public QObject
{
    Q_OBJECT

private slots:
    void catalogueLoads_data() { addRows(catalogues); }
    void catalogueLoads()
    {
        QFETCH(QString, path);
        const testing::Translation translator(path);
        QVERIFY(translator.isLoaded());
    }

    void catalogueHoldsWhatItsSourceSays_data()
    {
        addRows(testing::textsOf(&config::Language::catalogue));
    }
    void catalogueHoldsWhatItsSourceSays()
    {
        QFETCH(QString, path);
        const testing::Translation translator(path);
        const QString name = QFileInfo(path).completeBaseName();
        const QByteArray xml = testing::fileBytes(CATALOGUE_SOURCES "/" + name + ".ts");
        QXmlStreamReader source(xml);
        QByteArray context;
        QByteArray text;
        QByteArray comment;
        bool isPlural = false;
        int checked = 0;
        while (!source.atEnd()) {
            source.readNext();
            if (!source.isStartElement())
                continue;
            if (source.name() == QLatin1String("message")) {
                isPlural =
                    source.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
            } else if (source.name() == QLatin1String("name")) {
                context = source.readElementText().toUtf8();
            } else if (source.name() == QLatin1String("source")) {
                text = source.readElementText().toUtf8();
                comment.clear();
            } else if (source.name() == QLatin1String("comment")) {
                comment = source.readElementText().toUtf8();
            } else if (source.name() == QLatin1String("translation")) {
                const auto translated = [&](int n) {
                    return translator.translate(context.constData(), text.constData(),
                                                comment.constData(), n);
                };
                ++checked;
                if (!isPlural) {
                    QCOMPARE(translated(-1), source.readElementText());
                    continue;
                }
                // Which form belongs to which number is the language's affair; each must be used.
                QSet<QString> used;
                for (int n = 0; n <= 100; ++n)
                    used.insert(translated(n));
                QSet<QString> forms;
                while (source.readNextStartElement())
                    forms.insert(source.readElementText());
                QCOMPARE(used, forms);
            }
        }
        QVERIFY2(!source.hasError(), qPrintable(source.errorString()));
        QCOMPARE(checked, xml.count("<translation"));
    }

    void dialogButtonsSpeakTheLanguage_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("ok");
        QTest::addColumn<QString>("cancel");
        QTest::addColumn<QString>("yes");
        QTest::addColumn<QString>("colours");
        QTest::newRow("CH") << ":/qt_zh_CN.qm"
                            << "确定"
                            << "取消"
                            << "是(&Y)"
                            << "基本颜色(&B)";
        QTest::newRow("RU") << ":/qtbase_ru.qm"
                            << "OK"
                            << "Отмена"
                            << "&Да"
                            << "&Основные цвета";
        QTest::newRow("KO") << ":/qtbase_ko.qm"
                            << "확인"
                            << "취소"
                            << "예(&Y)"
                            << "기본 색상(&B)";
    }
    void dialogButtonsSpeakTheLanguage()
    {
        QFETCH(QString, path);
        QFETCH(QString, ok);
        QFETCH(QString, cancel);
        QFETCH(QString, yes);
        QFETCH(QString, colours);
        const testing::Translation translator(path);
        const QMessageBox box(QMessageBox::Question, "", "",
                              QMessageBox::Ok | QMessageBox::Cancel | QMessageBox::Yes);
        QCOMPARE(box.button(QMessageBox::Ok)->text(), ok);
        QCOMPARE(box.button(QMessageBox::Cancel)->text(), cancel);
        QCOMPARE(box.button(QMessageBox::Yes)->text(), yes);

        QColorDialog dialog;
        QStringList texts;
        for (const QLabel* label : dialog.findChildren<QLabel*>())
            texts.append(label->text());
        QVERIFY2(texts.contains(colours), qPrintable(texts.join(", ")));
    }
};

int main(int argc, char** argv)
{
    return testing::run<CataloguesTest>(argc, argv);
}

#include "catalogues_test.moc"
