// SPDX-License-Identifier: MIT
#include "analysis/report/report.h"
#include "tests/analysis/pdf_reader.h"
#include "tests/analysis/sample_report.h"
#include "tests/support/folder.h"
#include "tests/support/full_disk.h"
#include "tests/support/test_run.h"

#include <memory>
#include <sys/stat.h>

using analysis::Report;
using testing::fileBytes;

namespace {

QStringList filesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                  QDir::NoDotAndDotDot);
}

} // namespace

/// Where reports are written to, and where they cannot be.
class ReportFileTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void pathsInAnyLanguage()
    {
        const QString path = m_folder->filePath("отчёт 보고서 报告.pdf");
        QVERIFY(analysis::writeReport(testing::sampleReport("CH", 0, 4), path));
        QCOMPARE(testing::pdfInfo(path, "Pages"), QString("2"));
        QCOMPARE(filesIn(m_folder->path()), QStringList("отчёт 보고서 报告.pdf"));
    }

    void anExistingFileIsReplaced()
    {
        const QString path = m_folder->filePath("report.pdf");
        testing::putFile(path, QByteArray(5'000'000, 'x'));
        QVERIFY(analysis::writeReport(testing::sampleReport("CH", 0, 4), path));
        QCOMPARE(testing::pdfInfo(path, "Pages"), QString("2"));
        QCOMPARE(filesIn(m_folder->path()), QStringList("report.pdf"));
    }

    void noSuffixIsAdded()
    {
        QVERIFY(
            analysis::writeReport(testing::sampleReport("CH", 0, 4), m_folder->filePath("report")));
        QCOMPARE(filesIn(m_folder->path()), QStringList("report"));
    }

    void pathsThatCannotBeWritten()
    {
        testing::LogRecorder log;
        const Report report = testing::sampleReport("CH", 0, 4);
        const QString before = QDir::currentPath();
        QDir::setCurrent(m_folder->path());
        QVERIFY(!analysis::writeReport(report, QString()));
        QVERIFY(!analysis::writeReport(report, m_folder->path()));
        QVERIFY(!analysis::writeReport(report, m_folder->filePath("missing/report.pdf")));
        QDir::setCurrent(before);
        QCOMPARE(filesIn(m_folder->path()), QStringList());
        QCOMPARE(log.messages(), QStringList());
    }

    void onlyFilesAreReplaced()
    {
        const QString pipe = m_folder->filePath("pipe.pdf");
        QCOMPARE(mkfifo(qPrintable(pipe), 0600), 0);
        QVERIFY(!analysis::writeReport(testing::sampleReport("CH", 0, 4), pipe));
        QVERIFY(QFileInfo::exists(pipe) && !QFileInfo(pipe).isFile());

        const QString file = m_folder->filePath("file.pdf");
        const QString link = m_folder->filePath("link.pdf");
        testing::putFile(file, "older");
        QVERIFY(QFile::link(file, link));
        QVERIFY(analysis::writeReport(testing::sampleReport("CH", 0, 4), link));
        QVERIFY(QFileInfo(link).isSymLink());
        QCOMPARE(testing::pdfInfo(file, "Pages"), QString("2"));
        QCOMPARE(filesIn(m_folder->path()).size(), 3);
    }

    void aFullDiskLeavesWhatWasThere()
    {
        const Report report = testing::sampleReport("CH", 0, 4);
        const QString path = m_folder->filePath("report.pdf");
        const QByteArray old("an older report");
        testing::putFile(path, old);
        {
            const testing::FullDisk full(20'000);
            QVERIFY(!analysis::writeReport(report, path));
            QVERIFY(!analysis::writeReport(report, m_folder->filePath("new.pdf")));
        }
        QCOMPARE(filesIn(m_folder->path()), QStringList("report.pdf"));
        QCOMPARE(fileBytes(path), old);
        QVERIFY(analysis::writeReport(report, path));
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

int main(int argc, char** argv)
{
    return testing::run<ReportFileTest>(argc, argv);
}

#include "report_file_test.moc"
