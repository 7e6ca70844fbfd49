// SPDX-License-Identifier: MIT
// From the button of the settings to a whole record in the folder that was chosen there.
#include "app/main_window.h"
#include "app/seting.h"
#include "config/configuration_record.h"
#include "live/alarm_records.h"
#include "live/camer_window.h"
#include "simulator/simulated_camera.h"
#include "tests/live/page.h"
#include "tests/support/dialogs.h"
#include "tests/support/parts.h"
#include "tests/support/test_run.h"

#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

class AlarmFolderTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void aRecordLiesInTheChosenFolder()
    {
        testing::profile().reset();
        config::create(QStringLiteral("EN"));
        const QString folder = testing::makeFolder(QStringLiteral("alarms of today"));
        const QString asKept = QString(folder).replace(QLatin1Char('/'), QLatin1Char('\\'));
        auto& camera = simulator::SimulatedCamera::instance();
        camera.plug();
        MainWindow window;
        window.Action_camer();
        window.Action_chose();
        choose(folder);
        // Shown, sent and stored with back-slashes …
        QCOMPARE(config::read().alarmFolder, asKept);
        QCOMPARE(page(window).historyFolder, asKept);
        for (const char* box : {"checkBox", "checkBox_3"})
            window.findChild<QCheckBox*>(QLatin1String(box))->setChecked(true);
        for (int i = 0; i < 8; ++i)
            QVERIFY(camera.deliver(testing::grayFrame(100, 500, 400, 95)));
        // … and used.
        verifyOneRecord(folder, window);

        window.Action_Disconnect();
        window.Action_camer(); // reads the folder from the configuration
        verifyOneRecord(folder, window);
        QString proposed;
        const testing::Answer<QFileDialog> save([&proposed](QFileDialog& dialog) {
            proposed = dialog.selectedFiles().value(0);
            dialog.reject();
        });
        window.findChild<camer_window*>()->on_pushButton_clicked();
        QCOMPARE(proposed, folder + QStringLiteral("/cap.png"));
        camera.unplug();
    }

private:
    static camer_window& page(const MainWindow& window)
    {
        return *window.findChild<camer_window*>();
    }

    static void choose(const QString& folder)
    {
        seting* dialog = nullptr;
        for (QWidget* const widget : QApplication::topLevelWidgets()) {
            if (auto* const settings = qobject_cast<seting*>(widget))
                dialog = settings;
        }
        QVERIFY(dialog);
        const testing::Answer<QFileDialog> answer(
            [&folder](QFileDialog& chooser) { testing::choose(chooser, folder); });
        QTest::mouseClick(testing::part<QPushButton>(dialog, "pushButton"), Qt::LeftButton);
        QVERIFY(answer.wasAsked());
        dialog->close();
    }

    static void verifyOneRecord(const QString& folder, const MainWindow& window)
    {
        const QStringList names = live::recordNames(folder);
        QCOMPARE(names.size(), 1);
        QCOMPARE(live::recordPicturePaths(folder, names[0]).size(), live::recordPictures);
        QCOMPARE(live::recordReadings(folder, names[0]).maximum, QStringLiteral("50.0"));
        const auto* const list = testing::part<QListWidget>(&page(window), "listWidget_2");
        QCOMPARE(list->count(), 1);
        emit const_cast<QListWidget*>(list)->itemClicked(list->item(0));
        QCOMPARE(page(window).historyPixmaps.size(), live::recordPictures);
    }
};

int main(int argc, char** argv)
{
    return testing::run<AlarmFolderTest>(argc, argv);
}

#include "alarm_folder_test.moc"
