// SPDX-License-Identifier: MIT
#include "live/saved_picture.h"
#include "tests/support/test_run.h"

#include <QDir>
#include <QFile>
#include <QImageReader>

class SavedPictureTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_picture = QImage(48, 64, QImage::Format_RGB888);
        m_picture.fill(Qt::darkCyan);
    }

    void theSuffixNamesTheFormat_data()
    {
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("written");
        QTest::addColumn<QByteArray>("format");
        const auto row = [](const char* chosen, const char* written, const char* format) {
            QTest::newRow(chosen) << chosen << written << QByteArray(format);
        };
        row("cap.png", "cap.png", "png");
        row("CAP.PNG", "CAP.PNG", "png");
        row("cap.jpg", "cap.jpg", "jpeg");
        row("cap.bmp", "cap.bmp", "bmp");
        row("cap", "cap", "png");
        row("joint v1.2", "joint v1.2", "png");
        row("report.pdf", "report.pdf", "png");
        // Formats that are known and cannot be written: no PNG under their names.
        row("a.gif", "a.gif.png", "png");
        row("A.GIF", "A.GIF.png", "png");
        row("a.svg", "a.svg.png", "png");
        row("a.psd", "a.psd.png", "png");
    }
    void theSuffixNamesTheFormat()
    {
        QFETCH(QString, chosen);
        QFETCH(QString, written);
        QFETCH(QByteArray, format);
        QCOMPARE(live::savePicture(path(chosen), m_picture), path(written));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList({written}));
        QImageReader reader(path(written));
        reader.setDecideFormatFromContent(true);
        QCOMPARE(reader.format(), format);
        QCOMPARE(reader.read().size(), m_picture.size());
    }

    void aNameNobodyHasSeenReplacesNothing()
    {
        for (const char* name : {"a.gif.png", "a.gif-2.png"}) {
            QFile file(path(QLatin1String(name)));
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write("older") == 5);
        }
        QCOMPARE(live::savePicture(path(QStringLiteral("a.gif")), m_picture),
                 path(QStringLiteral("a.gif-3.png")));
        QCOMPARE(QFileInfo(path(QStringLiteral("a.gif.png"))).size(), 5);
        QCOMPARE(QFileInfo(path(QStringLiteral("a.gif-2.png"))).size(), 5);
    }

    void theChosenNameIsReplaced()
    {
        QVERIFY(!live::savePicture(path(QStringLiteral("a.png")), m_picture).isEmpty());
        m_picture.fill(Qt::red);
        QVERIFY(!live::savePicture(path(QStringLiteral("a.png")), m_picture).isEmpty());
        QCOMPARE(QImage(path(QStringLiteral("a.png"))).pixelColor(9, 9), QColor(Qt::red));
    }

    void whatCannotBeWrittenIsNot()
    {
        QCOMPARE(live::savePicture(path(QStringLiteral("a.png")), {}), QString());
        QCOMPARE(live::savePicture(path(QStringLiteral("missing/a.png")), m_picture), QString());
        QCOMPARE(live::savePicture(QString(), m_picture), QString());
        QVERIFY(QDir(m_folder->path()).isEmpty());
    }

private:
    QString path(const QString& name) const { return m_folder->path() + QLatin1Char('/') + name; }

    std::unique_ptr<QTemporaryDir> m_folder;
    QImage m_picture;
};

int main(int argc, char** argv)
{
    return testing::run<SavedPictureTest>(argc, argv);
}

#include "saved_picture_test.moc"
