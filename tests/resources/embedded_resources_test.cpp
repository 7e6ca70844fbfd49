// SPDX-License-Identifier: MIT
#include "config/language.h"
#include "tests/support/test_run.h"

#include <QColorDialog>
#include <QDirIterator>
#include <QFile>
#include <QIcon>
#include <QImage>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QResource>
#include <QSet>
#include <QTranslator>
#include <QXmlStreamReader>

#include <algorithm>
#include <cstdlib>

namespace {

QStringList textsOf(QString config::Language::*fact)
{
    QStringList texts;
    for (const config::Language& language : config::languages()) {
        if (!(language.*fact).isEmpty())
            texts.append(language.*fact);
    }
    return texts;
}

/// All but Qt's English catalogue, which there is not.
const QStringList catalogues =
    textsOf(&config::Language::catalogue) + textsOf(&config::Language::qtCatalogue).filter(":/");
const QStringList sounds = textsOf(&config::Language::sound).replaceInStrings("qrc:", ":");
const QStringList icons = {
    ":/photo/connect.png", ":/photo/Disconnect.png", ":/photo/setting.png", ":/photo/colse.png",
    ":/photo/doc.png",     ":/photo/camaer.png",     ":/photo/stop.png",    ":/photo/save.png",
    ":/photo/reroad.png",  ":/photo/list1.png",      ":/photo/list2.png",   ":/photo/folder.png",
    ":/photo/Poin.png",    ":/photo/Line.png",       ":/photo/Rect.png",    ":/photo/Ellipse.png",
    ":/photo/Corsor.png",  ":/photo/Delete.png",     ":/photo/Clear.png",   ":/photo/Color.png",
    ":/photo/arro.png",
};

void addRows(const QStringList& paths)
{
    QTest::addColumn<QString>("path");
    for (const QString& path : paths)
        QTest::newRow(qUtf8Printable(path)) << path;
}

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

quint32 littleEndian(const QByteArray& bytes, int offset, int size)
{
    quint32 value = 0;
    for (int i = size - 1; i >= 0; --i)
        value = value << 8 | uchar(bytes[offset + i]);
    return value;
}

/// A translator that is installed while it lives.
class Installed : public QTranslator
{
public:
    explicit Installed(const QString& path) : m_loaded(load(path))
    {
        QCoreApplication::installTranslator(this);
    }
    ~Installed() override { QCoreApplication::removeTranslator(this); }
    Installed(const Installed&) = delete;
    Installed& operator=(const Installed&) = delete;
    bool loaded() const { return m_loaded; }

private:
    bool m_loaded;
};

} // namespace

class EmbeddedResourcesTest : public QObject
{
    Q_OBJECT

private slots:
    void exists_data()
    {
        addRows(catalogues + sounds + icons +
                QStringList{":/photo/colormap_Iron.png", ":/photo/arro@2x.png"});
    }
    void exists();
    void staysMissing_data()
    {
        addRows({":/photo/logo.png", "photo/logo.png", ":/qt_zh_EN.qm", ":/Demo_CH.qm"});
    }
    void staysMissing();
    void theLogoIsKeptInNestedFolders();
    void onlyTheRussianQtCatalogueIsCompressed();
    void loadingTwiceIsHarmless();

    void iconIsSquareAndTransparentAround_data() { addRows(icons); }
    void iconIsSquareAndTransparentAround();
    void iconShowsOnLightAndOnDark_data() { addRows(icons); }
    void iconShowsOnLightAndOnDark();
    void iconsDiffer();
    void folderIconAnswersToItsDoubleSlash();
    void arrowIsSharpOnDenseScreens();
    void paletteStripIsHottestAtTheTop();

    void alarmIsAShortPlainRecording_data() { addRows(sounds); }
    void alarmIsAShortPlainRecording();
    void everyLanguageHasItsOwnAlarm();

    void catalogueLoads_data() { addRows(catalogues); }
    void catalogueLoads();
    void catalogueHoldsWhatItsSourceSays_data();
    void catalogueHoldsWhatItsSourceSays();
    void dialogButtonsSpeakTheLanguage_data();
    void dialogButtonsSpeakTheLanguage();
};

void EmbeddedResourcesTest::exists()
{
    QFETCH(QString, path);
    QVERIFY(!contents(path).isEmpty());
}

void EmbeddedResourcesTest::everyLanguageHasItsOwnAlarm()
{
    QSet<QByteArray> recordings;
    for (const QString& path : sounds)
        recordings.insert(contents(path));
    QCOMPARE(recordings.size(), sounds.size());
}

void EmbeddedResourcesTest::staysMissing()
{
    QFETCH(QString, path);
    QVERIFY(!QFile::exists(path));
}

void EmbeddedResourcesTest::theLogoIsKeptInNestedFolders()
{
    QStringList logos;
    for (QDirIterator i(":/", {"logo.png"}, QDir::Files, QDirIterator::Subdirectories);
         i.hasNext();)
        logos.append(i.next());
    QCOMPARE(logos.size(), 1);
    QVERIFY(logos.first().count('/') >= 3);
    const QImage logo(logos.first());
    QVERIFY(!logo.isNull());
    QCOMPARE(logo.width(), logo.height());
}

void EmbeddedResourcesTest::onlyTheRussianQtCatalogueIsCompressed()
{
    QStringList compressed;
    for (const QString& path : catalogues + sounds + icons) {
        if (QResource(path).compressionAlgorithm() != QResource::NoCompression)
            compressed.append(path);
    }
    QVERIFY2(compressed == QStringList{":/qtbase_ru.qm"}, qPrintable(compressed.join(", ")));
    const QResource russian(compressed.first());
    QCOMPARE(russian.compressionAlgorithm(), QResource::ZlibCompression);
    QVERIFY(russian.size() < russian.uncompressedSize() / 2);
}

void EmbeddedResourcesTest::loadingTwiceIsHarmless()
{
    resources::load();
    resources::load();
    QVERIFY(QFile::exists(icons.first()));
}

void EmbeddedResourcesTest::iconIsSquareAndTransparentAround()
{
    QFETCH(QString, path);
    const QImage icon(path);
    QVERIFY(!icon.isNull());
    QCOMPARE(icon.width(), icon.height());
    QVERIFY(icon.hasAlphaChannel());
    const int last = icon.width() - 1;
    for (const QPoint corner : {QPoint(0, 0), QPoint(last, 0), QPoint(0, last), QPoint(last, last)})
        QCOMPARE(qAlpha(icon.pixel(corner)), 0);
}

// A tenth of the area must differ clearly from the ground, whichever the ground is: white, the dark
// buttons, a dark desktop. Lines alone cover that much.
void EmbeddedResourcesTest::iconShowsOnLightAndOnDark()
{
    QFETCH(QString, path);
    const QImage icon = QImage(path).convertToFormat(QImage::Format_ARGB32);
    for (const int ground : {255, 91, 40}) {
        int clear = 0;
        for (int y = 0; y < icon.height(); ++y) {
            for (int x = 0; x < icon.width(); ++x) {
                const QRgb pixel = icon.pixel(x, y);
                const int alpha = qAlpha(pixel);
                const int shown = (qGray(pixel) * alpha + ground * (255 - alpha)) / 255;
                clear += std::abs(shown - ground) >= 80;
            }
        }
        QVERIFY2(clear >= icon.width() * icon.height() / 10,
                 qPrintable(QString("on gray %1: %2 of %3 pixels")
                                .arg(ground)
                                .arg(clear)
                                .arg(icon.width() * icon.height())));
    }
}

void EmbeddedResourcesTest::iconsDiffer()
{
    QHash<QByteArray, QString> seen;
    for (const QString& path : icons) {
        const QByteArray bytes = contents(path);
        QVERIFY2(!seen.contains(bytes), qPrintable(path + " is " + seen.value(bytes)));
        seen.insert(bytes, path);
    }
}

void EmbeddedResourcesTest::folderIconAnswersToItsDoubleSlash()
{
    QVERIFY(!QPixmap("://photo/folder.png").isNull());
}

void EmbeddedResourcesTest::arrowIsSharpOnDenseScreens()
{
    const QImage plain(":/photo/arro.png");
    const QImage dense(":/photo/arro@2x.png");
    QCOMPARE(dense.size(), 2 * plain.size());
}

void EmbeddedResourcesTest::paletteStripIsHottestAtTheTop()
{
    const QImage strip(":/photo/colormap_Iron.png");
    QCOMPARE(strip.size(), QSize(30, 256));
    int above = 256;
    for (int y = 0; y < strip.height(); ++y) {
        const int gray = qGray(strip.pixel(15, y));
        QVERIFY2(gray <= above, qPrintable(QString("row %1").arg(y)));
        above = gray;
    }
    QVERIFY(qGray(strip.pixel(15, 0)) > 230);
    QVERIFY(qGray(strip.pixel(15, 255)) < 20);
}

// RIFF/WAVE with a 16-byte "fmt " chunk first, as every player reads it.
void EmbeddedResourcesTest::alarmIsAShortPlainRecording()
{
    QFETCH(QString, path);
    const QByteArray wave = contents(path);
    QVERIFY(wave.size() > 44);
    QCOMPARE(wave.left(4), QByteArray("RIFF"));
    QCOMPARE(littleEndian(wave, 4, 4), quint32(wave.size() - 8));
    QCOMPARE(wave.mid(8, 8), QByteArray("WAVEfmt "));
    QCOMPARE(littleEndian(wave, 20, 2), 1u); // PCM
    QCOMPARE(littleEndian(wave, 22, 2), 1u); // mono
    QCOMPARE(littleEndian(wave, 24, 4), 22050u);
    QCOMPARE(littleEndian(wave, 34, 2), 16u);
    QCOMPARE(wave.mid(36, 4), QByteArray("data"));

    const int samples = (wave.size() - 44) / 2;
    QVERIFY(samples >= 22050);
    QVERIFY(samples <= 3 * 22050);
    int peak = 0;
    int firstLoud = -1;
    int lastLoud = 0;
    for (int i = 0; i < samples; ++i) {
        const int level = std::abs(int(qint16(littleEndian(wave, 44 + 2 * i, 2))));
        peak = std::max(peak, level);
        if (level > 1000) {
            firstLoud = firstLoud < 0 ? i : firstLoud;
            lastLoud = i;
        }
    }
    QVERIFY2(peak > 32767 / 2 && peak < 32767, qPrintable(QString::number(peak)));
    QVERIFY(firstLoud >= 0 && firstLoud < 22050 / 20);
    QVERIFY(samples - lastLoud < 22050 / 4);
}

void EmbeddedResourcesTest::catalogueLoads()
{
    QFETCH(QString, path);
    const Installed translator(path);
    QVERIFY(translator.loaded());
}

void EmbeddedResourcesTest::catalogueHoldsWhatItsSourceSays_data()
{
    addRows(textsOf(&config::Language::catalogue));
}

void EmbeddedResourcesTest::catalogueHoldsWhatItsSourceSays()
{
    QFETCH(QString, path);
    const Installed translator(path);
    const QString name = QFileInfo(path).completeBaseName();
    const QByteArray xml = contents(CATALOGUE_SOURCES "/" + name + ".ts");
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
            isPlural = source.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
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

void EmbeddedResourcesTest::dialogButtonsSpeakTheLanguage_data()
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

void EmbeddedResourcesTest::dialogButtonsSpeakTheLanguage()
{
    QFETCH(QString, path);
    QFETCH(QString, ok);
    QFETCH(QString, cancel);
    QFETCH(QString, yes);
    QFETCH(QString, colours);
    const Installed translator(path);
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

int main(int argc, char** argv)
{
    return testing::run<EmbeddedResourcesTest>(argc, argv);
}

#include "embedded_resources_test.moc"
