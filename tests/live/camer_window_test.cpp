#include "resources/resources.h"
#include "simulator/simulated_camera.h"
#include "tests/live/page.h"
#include "tests/support/test_run.h"

#include <QCamera>
#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMetaMethod>
#include <QPointer>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include <functional>

using testing::Page;
using testing::PaintCounter;

namespace {

simulator::SimulatedCamera& camera()
{
    return simulator::SimulatedCamera::instance();
}

bool deliver(int luma = 100, int maximumTenths = 362)
{
    return camera().deliver(testing::grayFrame(luma, maximumTenths, 340, 97));
}

/// A window that takes the page in and back, as the main window does.
class Owner : public QWidget
{
    Q_OBJECT

public:
    explicit Owner(Page& page) : m_page(page), m_layout(new QVBoxLayout(this))
    {
        m_layout->addWidget(&page.window());
        page->setOwner(this);
        resize(900, 640);
        show();
    }
    ~Owner() override
    {
        if (m_page->parentWidget() == this)
            m_page->setParent(nullptr); // the page is its test's
    }
    QList<bool> heard;
    QList<bool> subWindow; ///< whether the page was one, each time it came back
    int disconnects = 0;

public slots:
    void fullscr(bool sta)
    {
        heard.append(sta);
        subWindow.append(m_page->windowFlags().testFlag(Qt::SubWindow));
        m_layout->addWidget(&m_page.window());
        m_page->show();
    }
    void Action_Disconnect() { ++disconnects; }

private:
    Page& m_page;
    QVBoxLayout* m_layout;
};

/// Calls `act` with the file dialog once it is up.
void withFileDialog(const std::function<void(QFileDialog*)>& act)
{
    QTimer::singleShot(0, qApp, [act] {
        if (auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget()))
            act(dialog);
        else
            withFileDialog(act);
    });
}

void answerFileDialog(const QString& name)
{
    withFileDialog([name](QFileDialog* dialog) {
        dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(name);
        QVERIFY(QMetaObject::invokeMethod(dialog, "accept"));
    });
}

QPoint inWindow(const Page& page, const QPoint& inPicture)
{
    return page.get<QLabel>("label_17")->mapTo(&page.window(), inPicture);
}

void doubleClick(const Page& page, const QPoint& inPicture)
{
    QTest::mouseDClick(&page.window(), Qt::LeftButton, Qt::NoModifier, inWindow(page, inPicture));
}

} // namespace

class CamerWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        resources::load();
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    }
    void init()
    {
        testing::profile().reset();
        m_folder = testing::makeFolder();
        testing::configure(QStringLiteral("EN"), m_folder);
        camera().plug();
    }
    void cleanup() { camera().unplug(); }

    void signalsAndSlotsInTheirOrder();
    void formTextsAndRoles_data();
    void formTextsAndRoles();
    void startsQuiet();
    void listsAndButtons();
    void tabWidths_data();
    void tabWidths();
    void withoutConfiguration();
    void reachesTheOwner();

    void showsTheFrames();
    void pictureIsScaledSmoothly();
    void pictureIsScaledOncePerFrame();
    void frameRepaintsThePictureAlone();
    void keepsSevenPictures();
    void unusableFramesKeepThePicture();
    void opensOnlyTheImager();
    void opensTheFirstImager();
    void withoutImager();
    void cameraErrorStopsTheCamera();
    void reopensTheCamera();
    void reopeningWithoutImager();
    void reopeningFindsNoImagerAnyMore();

    void doubleClickStrictlyInside_data();
    void doubleClickStrictlyInside();
    void doubleClickOnThePictureItself();
    void doubleClickElsewhere();
    void fullScreenAndBack();
    void escapeWhileEmbedded();

    void closingStopsEverything();
    void afterClosingSlotsDoNothing();
    void endsInAnyOrder_data();
    void endsInAnyOrder();

    void savesAPicture_data();
    void savesAPicture();
    void saveDialogProposesAName();
    void cancelledSaveWritesNothing();
    void savesThePictureOfThePress();
    void withoutPictureNothingIsWritten();
    void savedPictureIsScaledSmoothly();
    void pageMayGoWhileTheDialogIsOpen();

private:
    QString m_folder;
};

void CamerWindowTest::signalsAndSlotsInTheirOrder()
{
    const QMetaObject& meta = camer_window::staticMetaObject;
    const QByteArrayList expected{"fullscr(bool)",
                                  "dis()",
                                  "display_cap(QImage)",
                                  "updat_temp(float,float,float)",
                                  "timeout_warn()",
                                  "timeout_connect()",
                                  "on_pushButton_clicked()",
                                  "on_checkBox_stateChanged(int)",
                                  "on_pushButton_2_clicked()",
                                  "on_checkBox_3_stateChanged(int)",
                                  "on_listWidget_itemClicked(QListWidgetItem*)",
                                  "on_listWidget_2_itemClicked(QListWidgetItem*)",
                                  "on_listWidget_3_currentRowChanged(int)",
                                  "on_checkBox_2_stateChanged(int)",
                                  "on_listWidget_itemDoubleClicked(QListWidgetItem*)"};
    QCOMPARE(meta.methodCount() - meta.methodOffset(), expected.size());
    for (int i = 0; i < expected.size(); ++i) {
        const QMetaMethod method = meta.method(meta.methodOffset() + i);
        QCOMPARE(method.methodSignature(), expected[i]);
        QCOMPARE(method.methodType(), i < 2 ? QMetaMethod::Signal : QMetaMethod::Slot);
    }
    const auto names = [&page = meta](int i) {
        return page.method(page.methodOffset() + i).parameterNames();
    };
    QCOMPARE(names(0), QByteArrayList({"sta"}));
    QCOMPARE(names(2), QByteArrayList({"cap_image"}));
    QCOMPARE(names(3), QByteArrayList({"maxTem", "warn", "fsl"}));
}

void CamerWindowTest::formTextsAndRoles_data()
{
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const char* text) {
        QTest::newRow(name) << QString::fromUtf8(text);
    };
    row("pushButton", "拍照");
    row("label", "报警设置");
    row("checkBox", "启用报警");
    row("checkBox_2", "声音报警");
    row("checkBox_3", "产生报警文件");
    row("label_2", "报警信息");
    row("label_3", "最大温度");
    row("label_4", "报警阈值");
    row("label_5", "发射率");
    row("label_6", "36.9");
    row("label_7", "35.2");
    row("label_8", "0.95");
    row("pushButton_2", "停止当前报警");
    row("label_9", "报警历史");
    row("label_10", "报警历史");
    row("label_11", "最大温度");
    row("label_12", "36.9");
    row("label_13", "报警阈值");
    row("label_14", "35.2");
    row("label_15", "发射率");
    row("label_16", "0.95");
    row("label_17", "");
    row("label_18", "");
}

void CamerWindowTest::formTextsAndRoles()
{
    QFETCH(QString, text);
    const Page page;
    QCOMPARE(page.get<QWidget>(QTest::currentDataTag())->property("text").toString(), text);
}

void CamerWindowTest::startsQuiet()
{
    const Page page;
    QCOMPARE(page->windowTitle(), QStringLiteral("Therma Desk"));
    const auto* const tabs = page.get<QTabWidget>("tabWidget");
    QCOMPARE(tabs->count(), 2);
    QCOMPARE(tabs->currentIndex(), 0);
    QCOMPARE(tabs->widget(0)->objectName(), QStringLiteral("tab"));
    QCOMPARE(tabs->widget(1)->objectName(), QStringLiteral("tab_2"));
    QCOMPARE(tabs->tabText(0), QStringLiteral("图像"));
    QCOMPARE(tabs->tabText(1), QStringLiteral("报警历史"));
    for (const char* box : {"checkBox", "checkBox_2", "checkBox_3"})
        QVERIFY(!page.get<QCheckBox>(box)->isChecked());
    QVERIFY(page.get<QCheckBox>("checkBox")->isEnabled());
    QVERIFY(!page.get<QCheckBox>("checkBox_2")->isEnabled());
    QVERIFY(!page.get<QCheckBox>("checkBox_3")->isEnabled());
    QVERIFY(!page->alarmEnabled && !page->alarmSilenced && !page->alarmFilesEnabled);
    QVERIFY(!page->soundEnabled && !page->blinkPhase && !page->isFull);
    QCOMPARE(page->overCount, 0);
    QCOMPARE(page->historyRow, -1);
    QCOMPARE(page->lastAlarmText, QStringLiteral("36.2,34.0,0.97"));
    QVERIFY(page->recentFrames.isEmpty() && page->historyPixmaps.isEmpty());
    QVERIFY(page->isOpen());
    QCOMPARE(page->languageCode, QStringLiteral("EN"));
    QCOMPARE(page->historyFolder, m_folder);
}

void CamerWindowTest::listsAndButtons()
{
    const Page page;
    for (const char* name : {"listWidget", "listWidget_2", "listWidget_3"}) {
        const auto* const list = page.get<QListWidget>(name);
        QVERIFY(!list->dragEnabled());
        QCOMPARE(list->movement(), QListView::Static);
        QCOMPARE(list->resizeMode(), QListView::Adjust);
    }
    QVERIFY(page.get<QListWidget>("listWidget")->uniformItemSizes());
    QVERIFY(page.get<QListWidget>("listWidget_2")->uniformItemSizes());
    QCOMPARE(page.get<QListWidget>("listWidget")->iconSize(), QSize(20, 20));
    QCOMPARE(page.get<QListWidget>("listWidget_2")->iconSize(), QSize(30, 30));
    const auto* const pictures = page.get<QListWidget>("listWidget_3");
    QCOMPARE(pictures->viewMode(), QListView::IconMode);
    QCOMPARE(pictures->iconSize(), QSize(70, 70));
    QCOMPARE(pictures->spacing(), 30);
    for (const char* name : {"pushButton", "pushButton_2"})
        QVERIFY(!page.get<QPushButton>(name)->icon().isNull());
    QCOMPARE(page.get<QPushButton>("pushButton")->iconSize(), QSize(20, 20));
    for (const char* name : {"label_17", "label_18"}) {
        QCOMPARE(page.get<QLabel>(name)->sizePolicy().horizontalPolicy(), QSizePolicy::Ignored);
        QCOMPARE(page.get<QLabel>(name)->sizePolicy().verticalPolicy(), QSizePolicy::Ignored);
    }
}

void CamerWindowTest::tabWidths_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("width");
    QTest::newRow("Russian") << QStringLiteral("RU") << 150;
    for (const char* language : {"EN", "CH", "KO", "ru", "XX", ""})
        QTest::newRow(qPrintable(QStringLiteral("'%1'").arg(QLatin1String(language))))
            << QString::fromLatin1(language) << 85;
}

void CamerWindowTest::tabWidths()
{
    QFETCH(QString, language);
    QFETCH(int, width);
    testing::configure(language, m_folder);
    const Page page;
    page->show();
    auto* const tabs = page.get<QTabWidget>("tabWidget");
    // The text between 5 of padding on either side, and a margin of 10 on the right.
    QCOMPARE(tabs->tabBar()->tabRect(0).width(), width + 5 + 5 + 10);
    if (language == QLatin1String("RU"))
        QCOMPARE(tabs->styleSheet(),
                 QStringLiteral("QTabWidget#tabWidget{border-color:rgb(255,0,0);}"
                                "QTabBar::tab {color: rgb(255, 255, 255); border-top-left-radius: "
                                "5px;border-top-right-radius: 5px;padding: 5px;margin-right:10;"
                                "width: 150;}QTabBar::tab:!selected {background-color: #929697;}"
                                "QTabBar::tab:selected {background-color:#303030;}"));
}

void CamerWindowTest::withoutConfiguration()
{
    testing::profile().reset();
    const Page page;
    QCOMPARE(page->languageCode, QString());
    QCOMPARE(page->historyFolder, QString());
    QCOMPARE(page.rows("listWidget"), QStringList());
    for (int i = 0; i < 7; ++i)
        QVERIFY(deliver());
    const QDir::Filters all = QDir::AllEntries | QDir::NoDotAndDotDot;
    const QStringList before = QDir::current().entryList(all);
    page->saveAlarmRecord();
    QCOMPARE(page.rows("listWidget"), QStringList());
    QCOMPARE(QDir::current().entryList(all), before);
}

void CamerWindowTest::reachesTheOwner()
{
    Page page;
    const Owner owner(page);
    emit page->dis();
    QCOMPARE(owner.disconnects, 1);
    emit page->fullscr(false);
    QCOMPARE(owner.heard, QList<bool>({false}));
}

void CamerWindowTest::showsTheFrames()
{
    const Page page;
    page->show();
    QVERIFY(camera().deliver(testing::grayFrame(200, 362, 340, 97)));
    QCOMPARE(page->currentPixmap.size(), QSize(240, 320));
    const auto* const label = page.get<QLabel>("label_17");
    const QPixmap shown = *label->pixmap();
    QCOMPARE(shown.size(), QSize(240, 320).scaled(label->size(), Qt::KeepAspectRatio));
    QCOMPARE(shown.toImage().pixelColor(5, 5), QColor(200, 200, 200));
    QCOMPARE(page.text("label_6"), QStringLiteral("36.2"));
    QCOMPARE(page.text("label_7"), QStringLiteral("34.0"));
    QCOMPARE(page.text("label_8"), QStringLiteral("0.97"));
}

void CamerWindowTest::pictureIsScaledSmoothly()
{
    const Page page;
    page->show();
    QImage stripes(240, 320, QImage::Format_RGB888);
    for (int y = 0; y < stripes.height(); ++y)
        for (int x = 0; x < stripes.width(); ++x)
            stripes.setPixelColor(x, y, x % 2 == 0 ? Qt::black : Qt::white);
    page->display_cap(stripes);
    const QImage shown = page.get<QLabel>("label_17")->pixmap()->toImage();
    QVERIFY(shown.width() != 240);
    int between = 0;
    for (int x = 0; x < shown.width(); ++x) {
        const int gray = shown.pixelColor(x, shown.height() / 2).red();
        between += gray > 60 && gray < 195;
    }
    QVERIFY(between > shown.width() / 10);
}

void CamerWindowTest::pictureIsScaledOncePerFrame()
{
    const Page page;
    page->show();
    QVERIFY(deliver());
    const auto* const label = page.get<QLabel>("label_17");
    const qint64 shown = label->pixmap()->cacheKey();
    page->grab();
    page->repaint();
    QCoreApplication::processEvents();
    QCOMPARE(label->pixmap()->cacheKey(), shown);
    QVERIFY(deliver());
    QVERIFY(label->pixmap()->cacheKey() != shown);
}

void CamerWindowTest::frameRepaintsThePictureAlone()
{
    const Page page;
    const PaintCounter ofPage(&page.window());
    const PaintCounter ofPicture(page.get<QLabel>("label_17"));
    page->show();
    QVERIFY(QTest::qWaitForWindowExposed(&page.window()));
    QVERIFY(deliver());
    QTRY_VERIFY(ofPage.paints > 0 && ofPicture.paints > 0);
    for (int round = 0; round < 50; ++round)
        QCoreApplication::processEvents();
    const int before = ofPage.paints;
    const int beforeOfPicture = ofPicture.paints;
    QVERIFY(deliver());
    QTRY_COMPARE(ofPicture.paints, beforeOfPicture + 1);
    QCOMPARE(ofPage.paints, before);
}

void CamerWindowTest::keepsSevenPictures()
{
    const Page page;
    for (int i = 1; i <= 10; ++i) {
        QVERIFY(deliver(20 * i));
        QCOMPARE(page->recentFrames.size(), qMin(i, 7));
    }
    for (int i = 0; i < 7; ++i)
        QCOMPARE(page->recentFrames[i].pixelColor(0, 0).red(), 20 * (i + 4));
}

void CamerWindowTest::unusableFramesKeepThePicture()
{
    const Page page;
    QVERIFY(deliver(50));
    const qint64 shown = page->currentPixmap.cacheKey();
    camera().deliver(QByteArray());
    camera().deliver(testing::grayFrame(90, 1, 2, 3).left(153605));
    QCOMPARE(page->currentPixmap.cacheKey(), shown);
    QCOMPARE(page.text("label_6"), QStringLiteral("36.2"));
    QCOMPARE(page->recentFrames.size(), 1);
}

void CamerWindowTest::opensOnlyTheImager()
{
    const simulator::CameraIdentity imager = simulator::imagerIdentity();
    camera().unplug();
    camera().plug({imager.deviceName, QStringLiteral("uvc camera")});
    camera().plug({imager.deviceName.toUpper(), imager.description});
    const Page page;
    QVERIFY(!page->camera);
    QVERIFY(!deliver());
}

void CamerWindowTest::opensTheFirstImager()
{
    const simulator::CameraIdentity imager = simulator::imagerIdentity();
    camera().plug({imager.deviceName + QStringLiteral("second"), imager.description});
    const Page page;
    QVERIFY(camera().isRunning());
    camera().unplug({imager.deviceName + QStringLiteral("second"), imager.description});
    QVERIFY(deliver());
}

void CamerWindowTest::withoutImager()
{
    camera().unplug();
    const Page page;
    page->show();
    QVERIFY(!page->camera);
    page->timeout_connect();
    QVERIFY(!page->cameraRunning);
    QVERIFY(!page.get<QLabel>("label_17")->pixmap());
    page->close();
}

void CamerWindowTest::cameraErrorStopsTheCamera()
{
    const Page page;
    QCOMPARE(page->healthTimer->interval(), 300);
    QTRY_VERIFY(page->cameraRunning); // the health poll runs by itself
    QVERIFY(deliver(70));
    camera().reportError();
    QTRY_VERIFY(!page->cameraRunning);
    QVERIFY(!deliver(80));
    QCOMPARE(page->currentPixmap.toImage().pixelColor(0, 0), QColor(70, 70, 70));
    QVERIFY(page->isOpen());
}

void CamerWindowTest::reopensTheCamera()
{
    camera().plug({QStringLiteral("webcam"), QStringLiteral("A webcam")});
    const Page page;
    camera().unplug(simulator::imagerIdentity());
    QTRY_VERIFY(!page->cameraRunning);
    camera().plug();
    const testing::LogRecorder log;
    page->reopenCamera();
    QVERIFY(log.contains(QStringLiteral("可用相机: A webcam")));
    QVERIFY(log.contains(QStringLiteral("可用相机: UVC Camera")));
    QVERIFY(deliver());
    page->timeout_connect();
    QVERIFY(page->cameraRunning);
}

void CamerWindowTest::reopeningWithoutImager()
{
    camera().unplug();
    const Page page;
    page->reopenCamera();
    QVERIFY(!page->camera);

    camera().plug();
    page->reopenCamera();
    camera().unplug();
    page->reopenCamera();
    QVERIFY(page->camera);
    QVERIFY(!deliver());
}

/// The camera there was goes on, whatever it calls itself now.
void CamerWindowTest::reopeningFindsNoImagerAnyMore()
{
    const Page page;
    QVERIFY(deliver());
    camera().plug({simulator::imagerIdentity().deviceName, QStringLiteral("Another camera")});
    page->reopenCamera();
    QVERIFY(deliver());
}

void CamerWindowTest::doubleClickStrictlyInside_data()
{
    // Corners of the picture label: which border a point lies on, and how far inside.
    QTest::addColumn<bool>("right");
    QTest::addColumn<bool>("bottom");
    QTest::addColumn<QPoint>("inside");
    QTest::addColumn<bool>("toggles");
    QTest::newRow("left border") << false << false << QPoint(0, 10) << false;
    QTest::newRow("top border") << false << false << QPoint(10, 0) << false;
    QTest::newRow("right of it") << true << false << QPoint(0, 10) << false;
    QTest::newRow("below it") << false << true << QPoint(10, 0) << false;
    QTest::newRow("first pixel inside") << false << false << QPoint(1, 1) << true;
    QTest::newRow("last pixel inside") << true << true << QPoint(1, 1) << true;
}

void CamerWindowTest::doubleClickStrictlyInside()
{
    QFETCH(bool, right);
    QFETCH(bool, bottom);
    QFETCH(QPoint, inside);
    QFETCH(bool, toggles);
    Page page;
    const Owner owner(page);
    const QSize size = page.get<QLabel>("label_17")->size();
    doubleClick(page, QPoint(right ? size.width() - inside.x() : inside.x(),
                             bottom ? size.height() - inside.y() : inside.y()));
    QCOMPARE(page->isFull, toggles);
}

void CamerWindowTest::doubleClickOnThePictureItself()
{
    Page page;
    const Owner owner(page);
    auto* const label = page.get<QLabel>("label_17");
    QTest::mouseDClick(label, Qt::LeftButton, Qt::NoModifier, QPoint(0, 30));
    QVERIFY(!page->isFull);
    QTest::mouseDClick(label, Qt::LeftButton, Qt::NoModifier, QPoint(30, 30));
    QVERIFY(page->isFull);
}

void CamerWindowTest::doubleClickElsewhere()
{
    Page page;
    const Owner owner(page);
    QTest::mouseDClick(page.get<QLabel>("label_2"), Qt::LeftButton);
    QVERIFY(!page->isFull);
    // Where the picture would be, but the history is in front.
    page.get<QTabWidget>("tabWidget")->setCurrentIndex(1);
    doubleClick(page, page.get<QLabel>("label_17")->rect().center());
    QVERIFY(!page->isFull);
}

void CamerWindowTest::fullScreenAndBack()
{
    Page page;
    const Owner owner(page);
    for (int round = 1; round <= 2; ++round) {
        QVERIFY(deliver());
        doubleClick(page, {30, 30});
        QVERIFY(page->isFull && page->isFullScreen() && page->isVisible());
        QCOMPARE(page->parentWidget(), nullptr);
        QCOMPARE(owner.heard.size(), 2 * round - 2);
        QVERIFY(deliver());

        doubleClick(page, {30, 30});
        QVERIFY(!page->isFull && !page->isFullScreen());
        QCOMPARE(page->parentWidget(), &owner);
        QVERIFY(page->isVisible());
        QCOMPARE(owner.heard.size(), 2 * round - 1);

        doubleClick(page, {30, 30});
        const testing::LogRecorder log;
        QTest::keyClick(&page.window(), Qt::Key_Escape);
        QVERIFY(log.contains(QStringLiteral("您按下了ESC")));
        QVERIFY(!page->isFull);
        QCOMPARE(page->parentWidget(), &owner);
        QCOMPARE(owner.heard.size(), 2 * round);
    }
    QVERIFY(!owner.heard.contains(true));
    QCOMPARE(owner.subWindow, QList<bool>({true, true, true, true}));
}

void CamerWindowTest::escapeWhileEmbedded()
{
    Page page;
    const Owner owner(page);
    const testing::LogRecorder log;
    QTest::keyClick(&page.window(), Qt::Key_A);
    QVERIFY(!log.contains(QStringLiteral("您按下了ESC")));
    QTest::keyClick(&page.window(), Qt::Key_Escape);
    QVERIFY(log.contains(QStringLiteral("您按下了ESC")));
    QCOMPARE(owner.heard, QList<bool>());
    QCOMPARE(page->parentWidget(), &owner);
}

void CamerWindowTest::closingStopsEverything()
{
    const Page page;
    page->show();
    page.check("checkBox");
    page->updat_temp(50, 40, 1);
    QVERIFY(page->warnTimer->isActive());
    QVERIFY(page->close());
    QVERIFY(!page->isOpen());
    QVERIFY(!page->warnTimer->isActive());
    QVERIFY(!page->healthTimer->isActive());
    QVERIFY(!camera().isRunning());
    QVERIFY(!deliver());
    page->close();
    QCloseEvent again;
    QCoreApplication::sendEvent(&page.window(), &again);
    QVERIFY(!page->isOpen());
}

void CamerWindowTest::afterClosingSlotsDoNothing()
{
    const Page page;
    page->show();
    page.get<QListWidget>("listWidget_2")->addItem(QStringLiteral("20240101120000"));
    QListWidgetItem* const item = page.get<QListWidget>("listWidget_2")->item(0);
    QVERIFY(page->close());
    page.frames(8, 50);
    page->timeout_warn();
    page->timeout_connect();
    page->on_pushButton_clicked();
    page->on_pushButton_2_clicked();
    page->on_checkBox_stateChanged(Qt::Checked);
    page->on_checkBox_2_stateChanged(Qt::Checked);
    page->on_checkBox_3_stateChanged(Qt::Checked);
    page->on_listWidget_itemClicked(item);
    page->on_listWidget_itemDoubleClicked(item);
    page->on_listWidget_2_itemClicked(item);
    page->on_listWidget_3_currentRowChanged(0);
    page->saveAlarmRecord();
    page->reopenCamera();
    page->setAlarmFolder(QStringLiteral("elsewhere"));
    page->refreshHistory();
    QTest::keyClick(&page.window(), Qt::Key_Escape);
    QTest::mouseDClick(&page.window(), Qt::LeftButton, Qt::NoModifier, {100, 100});
    page->grab();
    QVERIFY(page->currentPixmap.isNull());
    QVERIFY(!page->alarmEnabled && !page->soundEnabled && !page->alarmFilesEnabled);
    QVERIFY(!page->isFull && !page->alarmSilenced);
    QCOMPARE(page->historyRow, -1);
    QVERIFY(!camera().isRunning());
}

void CamerWindowTest::endsInAnyOrder_data()
{
    QTest::addColumn<QString>("events");
    for (const char* events :
         {"close frame delete", "delete frame", "full delete frame", "full close frame delete",
          "unplug close delete", "unplug delete", "full unplug health back delete",
          "full unplug health close delete", "error health close plug delete",
          "unplug plug reopen frame delete", "close reopen frame delete",
          "close close frame delete", "unplug reopen close delete", "alarm close delete",
          "alarm delete", "alarm full delete"})
        QTest::newRow(events) << QString::fromLatin1(events);
}

void CamerWindowTest::endsInAnyOrder()
{
    QFETCH(QString, events);
    Page page;
    QWidget parent;
    page->setParent(&parent);
    parent.show();
    QVERIFY(deliver());
    const QHash<QString, std::function<void()>> actions{{QStringLiteral("close"),
                                                         [&] {
                                                             page->close();
                                                         }},
                                                        {QStringLiteral("delete"),
                                                         [&] {
                                                             page.destroy();
                                                         }},
                                                        {QStringLiteral("frame"),
                                                         [&] {
                                                             deliver();
                                                         }},
                                                        {QStringLiteral("full"),
                                                         [&] {
                                                             page->toggleFullScreen(false);
                                                         }},
                                                        {QStringLiteral("back"),
                                                         [&] {
                                                             page->toggleFullScreen(true);
                                                         }},
                                                        {QStringLiteral("unplug"),
                                                         [&] {
                                                             camera().unplug();
                                                         }},
                                                        {QStringLiteral("plug"),
                                                         [&] {
                                                             camera().plug();
                                                         }},
                                                        {QStringLiteral("error"),
                                                         [&] {
                                                             camera().reportError();
                                                         }},
                                                        {QStringLiteral("health"),
                                                         [&] {
                                                             page->timeout_connect();
                                                         }},
                                                        {QStringLiteral("reopen"),
                                                         [&] {
                                                             page->reopenCamera();
                                                         }},
                                                        {QStringLiteral("alarm"), [&] {
                                                             page.check("checkBox");
                                                             page.check("checkBox_2");
                                                             page->updat_temp(50, 40, 1);
                                                             page->timeout_warn();
                                                         }}};
    for (const QString& event : events.split(QLatin1Char(' '))) {
        QVERIFY(actions.contains(event));
        actions[event]();
        QCoreApplication::processEvents();
    }
    QVERIFY(!camera().isRunning());
    QVERIFY(!deliver());
}

void CamerWindowTest::savesAPicture_data()
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

void CamerWindowTest::savesAPicture()
{
    QFETCH(QString, typed);
    QFETCH(QString, written);
    QFETCH(QByteArray, format);
    const Page page;
    QVERIFY(deliver(100));
    answerFileDialog(typed);
    QTest::mouseClick(page.get<QPushButton>("pushButton"), Qt::LeftButton);
    QCOMPARE(QDir(m_folder).entryList(QDir::Files), QStringList({written}));
    QImageReader reader(m_folder + QLatin1Char('/') + written);
    reader.setDecideFormatFromContent(true);
    QCOMPARE(reader.format(), format);
    const QImage picture = reader.read();
    QCOMPARE(picture.size(), QSize(480, 640));
    QCOMPARE(picture.pixelColor(240, 320), QColor(100, 100, 100));
}

void CamerWindowTest::saveDialogProposesAName()
{
    const Page page;
    QVERIFY(deliver());
    bool seen = false;
    withFileDialog([&](QFileDialog* dialog) {
        seen = true;
        QCOMPARE(dialog->windowTitle(), QStringLiteral("保存的文件"));
        QCOMPARE(dialog->nameFilters(), QStringList({QStringLiteral("Items files(*.png)")}));
        QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptSave);
        QCOMPARE(dialog->selectedFiles(), QStringList({m_folder + QStringLiteral("/cap.png")}));
        dialog->reject();
    });
    QTest::mouseClick(page.get<QPushButton>("pushButton"), Qt::LeftButton);
    QVERIFY(seen);
}

void CamerWindowTest::cancelledSaveWritesNothing()
{
    const Page page;
    QVERIFY(deliver());
    withFileDialog([](QFileDialog* dialog) { dialog->reject(); });
    QTest::mouseClick(page.get<QPushButton>("pushButton"), Qt::LeftButton);
    QVERIFY(QDir(m_folder).isEmpty());
}

void CamerWindowTest::savesThePictureOfThePress()
{
    const Page page;
    QVERIFY(deliver(40));
    withFileDialog([](QFileDialog* dialog) {
        QVERIFY(deliver(220)); // the live picture goes on behind the dialog
        QVERIFY(QMetaObject::invokeMethod(dialog, "accept"));
    });
    QTest::mouseClick(page.get<QPushButton>("pushButton"), Qt::LeftButton);
    QCOMPARE(QImage(m_folder + QStringLiteral("/cap.png")).pixelColor(9, 9), QColor(40, 40, 40));
    QCOMPARE(page->currentPixmap.toImage().pixelColor(0, 0), QColor(220, 220, 220));
}

void CamerWindowTest::withoutPictureNothingIsWritten()
{
    const Page page;
    const testing::LogRecorder log;
    bool asked = false;
    withFileDialog([&asked](QFileDialog* dialog) {
        asked = true;
        QVERIFY(QMetaObject::invokeMethod(dialog, "accept"));
    });
    QTest::mouseClick(page.get<QPushButton>("pushButton"), Qt::LeftButton);
    QVERIFY(asked);
    QVERIFY(QDir(m_folder).isEmpty());
    QVERIFY(!log.contains(QStringLiteral("null")));
}

void CamerWindowTest::savedPictureIsScaledSmoothly()
{
    const Page page;
    QImage stripes(240, 320, QImage::Format_RGB888);
    for (int y = 0; y < stripes.height(); ++y)
        for (int x = 0; x < stripes.width(); ++x)
            stripes.setPixelColor(x, y, x % 2 == 0 ? Qt::black : Qt::white);
    page->display_cap(stripes);
    answerFileDialog(QStringLiteral("cap.png"));
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

void CamerWindowTest::pageMayGoWhileTheDialogIsOpen()
{
    Page page;
    const QPointer<camer_window> window = &page.window();
    page->show();
    QVERIFY(deliver());
    withFileDialog([&page](QFileDialog*) { page.end(); });
    QTest::mouseClick(page.get<QPushButton>("pushButton"), Qt::LeftButton);
    QVERIFY(QDir(m_folder).isEmpty());
    QVERIFY(!deliver());
    QTRY_VERIFY(!window);
}

int main(int argc, char** argv)
{
    return testing::run<CamerWindowTest>(argc, argv);
}

#include "camer_window_test.moc"
