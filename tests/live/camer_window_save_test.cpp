// SPDX-License-Identifier: MIT
// Pictures that are taken of the live page.
#include "tests/live/camera.h"
#include "tests/support/dialogs.h"
#include "tests/support/test_run.h"

#include <QDir>
#include <QFileDialog>
#include <QImageReader>
#include <QPointer>
#include <QPushButton>

using testing::Answer;
using testing::deliver;
using testing::Page;

class CamerWindowSaveTest : public testing::CameraPageTest
{
    Q_OBJECT

private slots:
    void savesAPicture_data();
    void savesAPicture();
    void saveDialogProposesAName();
    void cancelledSaveWritesNothing();
    void savesThePictureOfThePress();
    void withoutPictureNothingIsWritten();
    void savedPictureIsScaledSmoothly();
    void pageMayGoWhileTheDialogIsOpen();
};

void CamerWindowSaveTest::savesAPicture_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("written");
    QTest::addColumn<QByteArray>("format");
    QTest::newRow("as proposed") << "cap.png"
                                 << "cap.png" << QByteArray("png");
    QTest::newRow("no suffix") << "shot"
                               << "shot.png" << QByteArray("png");
    QTest::newRow("another format") << "shot.jpg"
                                    << "shot.jpg" << QByteArray("jpeg");
    QTest::newRow("capitals") << "SHOT.PNG"
                              << "SHOT.PNG" << QByteArray("png");
    QTest::newRow("no picture format") << "joint v1.2"
                                       << "joint v1.2" << QByteArray("png");
    QTest::newRow("a format nobody writes") << "a.gif"
                                            << "a.gif.png" << QByteArray("png");
    // On Windows there is no such name.
    if (!testing::onWindows())
        QTest::newRow("begins with a colon") << ":a.gif"
                                             << ":a.gif.png" << QByteArray("png");
    QTest::newRow("Korean") << QStringLiteral("사진") << QStringLiteral("사진.png")
                            << QByteArray("png");
}

void CamerWindowSaveTest::savesAPicture()
{
    QFETCH(QString, typed);
    QFETCH(QString, written);
    QFETCH(QByteArray, format);
    const Page page;
    QVERIFY(deliver(100));
    const Answer<QFileDialog> answer([&](QFileDialog& dialog) { testing::choose(dialog, typed); });
    QTest::mouseClick(page.get<QPushButton>("pushButton"), Qt::LeftButton);
    QCOMPARE(QDir(m_folder).entryList(QDir::Files), QStringList({written}));
    QImageReader reader(m_folder + QLatin1Char('/') + written);
    reader.setDecideFormatFromContent(true);
    QCOMPARE(reader.format(), format);
    const QImage picture = reader.read();
    QCOMPARE(picture.size(), QSize(480, 640));
    QCOMPARE(picture.pixelColor(240, 320), QColor(100, 100, 100));
}

void CamerWindowSaveTest::saveDialogProposesAName()
{
    const Page page;
    QVERIFY(deliver());
    const Answer<QFileDialog> answer([&](QFileDialog& dialog) {
        QCOMPARE(dialog.windowTitle(), QStringLiteral("保存的文件"));
        QCOMPARE(dialog.nameFilters(), QStringList({QStringLiteral("Items files(*.png)")}));
        QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptSave);
        QCOMPARE(dialog.selectedFiles(), QStringList({m_folder + QStringLiteral("/cap.png")}));
        dialog.reject();
    });
    QTest::mouseClick(page.get<QPushButton>("pushButton"), Qt::LeftButton);
    QVERIFY(answer.wasAsked());
}

void CamerWindowSaveTest::cancelledSaveWritesNothing()
{
    const Page page;
    QVERIFY(deliver());
    const Answer<QFileDialog> answer([](QFileDialog& dialog) { dialog.reject(); });
    QTest::mouseClick(page.get<QPushButton>("pushButton"), Qt::LeftButton);
    QVERIFY(QDir(m_folder).isEmpty());
}

void CamerWindowSaveTest::savesThePictureOfThePress()
{
    const Page page;
    QVERIFY(deliver(40));
    const Answer<QFileDialog> answer([](QFileDialog& dialog) {
        QVERIFY(deliver(220)); // the live picture goes on behind the dialog
        QVERIFY(QMetaObject::invokeMethod(&dialog, "accept"));
    });
    QTest::mouseClick(page.get<QPushButton>("pushButton"), Qt::LeftButton);
    QCOMPARE(QImage(m_folder + QStringLiteral("/cap.png")).pixelColor(9, 9), QColor(40, 40, 40));
    QCOMPARE(page->currentPixmap.toImage().pixelColor(0, 0), QColor(220, 220, 220));
}

void CamerWindowSaveTest::withoutPictureNothingIsWritten()
{
    const Page page;
    const testing::LogRecorder log;
    const Answer<QFileDialog> answer(
        [](QFileDialog& dialog) { QVERIFY(QMetaObject::invokeMethod(&dialog, "accept")); });
    QTest::mouseClick(page.get<QPushButton>("pushButton"), Qt::LeftButton);
    QVERIFY(answer.wasAsked());
    QVERIFY(QDir(m_folder).isEmpty());
    QVERIFY(!log.contains(QStringLiteral("null")));
}

void CamerWindowSaveTest::savedPictureIsScaledSmoothly()
{
    const Page page;
    QImage stripes(240, 320, QImage::Format_RGB888);
    for (int y = 0; y < stripes.height(); ++y) {
        for (int x = 0; x < stripes.width(); ++x)
            stripes.setPixelColor(x, y, x % 2 == 0 ? Qt::black : Qt::white);
    }
    page->display_cap(stripes);
    const Answer<QFileDialog> answer(
        [](QFileDialog& dialog) { testing::choose(dialog, QStringLiteral("cap.png")); });
    QTest::mouseClick(page.get<QPushButton>("pushButton"), Qt::LeftButton);
    const QImage saved(m_folder + QStringLiteral("/cap.png"));
    QCOMPARE(saved.size(), QSize(480, 640));
    int between = 0;
    for (int x = 0; x < saved.width(); ++x) {
        const int gray = saved.pixelColor(x, 320).red();
        between += gray > 30 && gray < 225;
    }
    QVERIFY(between > saved.width() / 4);
}

void CamerWindowSaveTest::pageMayGoWhileTheDialogIsOpen()
{
    Page page;
    const QPointer<camer_window> window = &page.window();
    page->show();
    QVERIFY(deliver());
    const Answer<QFileDialog> answer([&page](QFileDialog&) { page.end(); });
    QTest::mouseClick(page.get<QPushButton>("pushButton"), Qt::LeftButton);
    QVERIFY(QDir(m_folder).isEmpty());
    QVERIFY(!deliver());
    QTRY_VERIFY(!window);
}

int main(int argc, char** argv)
{
    return testing::run<CamerWindowSaveTest>(argc, argv);
}

#include "camer_window_save_test.moc"
