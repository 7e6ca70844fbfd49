// SPDX-License-Identifier: MIT
#include "files/table_text.h"
#include "tests/support/test_run.h"

class TableTextTest : public QObject
{
    Q_OBJECT

private slots:
    void aRowOnEachLine()
    {
        const QString text =
            files::tabSeparated({QStringList({"Name", "Type", "High", "Low", "Average"}),
                                 QStringList({"P0", "点", "1.0", "-0.0", "2.5"})});
        QCOMPARE(text, QStringLiteral("Name\tType\tHigh\tLow\tAverage\nP0\t点\t1.0\t-0.0\t2.5\n"));
    }

    void aTextStaysInItsCell()
    {
        QCOMPARE(files::tabSeparated({QStringList({"a\tb", "c\nd", "e\r\nf", "", " g"})}),
                 QStringLiteral("a b\tc d\te f\t\tg\n"));
    }

    void aTableForDocuments()
    {
        const QString html = files::htmlTable(
            {QStringList({"a", "b", "c", "d", "e"}), QStringList({"<b>", "&", "\"", "x", "点"})},
            true);
        QCOMPARE(html,
                 QStringLiteral("<meta charset=\"utf-8\"><table border=\"1\">\n"
                                "<tr><th>a</th><th>b</th><th>c</th><th>d</th><th>e</th></tr>\n"
                                "<tr><td>&lt;b&gt;</td><td>&amp;</td><td>&quot;</td><td>x</td>"
                                "<td>点</td></tr>\n</table>\n"));
    }

    void rowsWithoutCaptions()
    {
        const QString html = files::htmlTable({QStringList({"a", "b", "c", "d", "e"})}, false);
        QVERIFY(!html.contains(QStringLiteral("<th>")));
        QCOMPARE(html.count(QStringLiteral("<td>")), 5);
        QCOMPARE(files::htmlTable({}, true).count(QStringLiteral("<tr>")), 0);
        QCOMPARE(files::tabSeparated({}), QString());
    }
};

int main(int argc, char** argv)
{
    return testing::run<TableTextTest>(argc, argv);
}

#include "table_text_test.moc"
