#include "tests/support/test_run.h"

#include <QFile>
#include <QImage>

class EmbeddedResourcesTest : public QObject
{
    Q_OBJECT

private slots:
    void exists_data();
    void exists();
};

void EmbeddedResourcesTest::exists_data()
{
    QTest::addColumn<QString>("path");
    for (const char* path : {":/Demo_EN.qm", ":/Demo_RU.qm", ":/Demo_KO.qm", ":/qtbase_ru.qm",
                             ":/qtbase_ko.qm", ":/qt_zh_CN.qm"})
        QTest::newRow(path) << QString::fromLatin1(path);
}

void EmbeddedResourcesTest::exists()
{
    QFETCH(QString, path);
    QVERIFY(QFile::exists(path));
}

int main(int argc, char** argv)
{
    return testing::run<EmbeddedResourcesTest>(argc, argv);
}

#include "embedded_resources_test.moc"
