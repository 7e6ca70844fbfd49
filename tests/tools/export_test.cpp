// SPDX-License-Identifier: MIT
#include "tests/support/test_run.h"
#include "tests/tools/exported.h"

#include <QtEndian>

#include <cmath>

using testing::columns;
using testing::Ended;
using testing::Exported;
using testing::grayAt;
using testing::option;
using testing::rows;
using testing::Shot;
using testing::slope;
using testing::stored;

namespace {

std::vector<float> floatsAt(const QByteArray& bytes, int offset)
{
    std::vector<float> values(columns * rows);
    if (bytes.size() >= offset + columns * rows * 4)
        qFromLittleEndian<float>(bytes.constData() + offset, columns * rows, values.data());
    return values;
}

constexpr int npyHeader = 128;

int u16(const QByteArray& bytes, int offset)
{
    return qFromLittleEndian<quint16>(bytes.constData() + offset);
}

int u32(const QByteArray& bytes, int offset)
{
    return int(qFromLittleEndian<quint32>(bytes.constData() + offset));
}

/// The value, or the place of the values, of a tag in the first directory of a TIFF file.
int tiffTag(const QByteArray& tiff, int tag)
{
    const int directory = u32(tiff, 4);
    for (int i = 0; i < u16(tiff, directory); ++i) {
        const int entry = directory + 2 + 12 * i;
        constexpr int shortType = 3;
        if (u16(tiff, entry) == tag)
            return u16(tiff, entry + 2) == shortType ? u16(tiff, entry + 8) : u32(tiff, entry + 8);
    }
    return -1;
}

} // namespace

/// Temperatures and pictures as files for other programs.
class ExportTest : public QObject
{
    Q_OBJECT

private slots:
    void asSeen_data();
    void asSeen();
    void units_data();
    void units();
    void npyHeaderIsNumPys();
    void tiffTags();
    void tiffReadByOthers();
    void png_data();
    void png();
};

void ExportTest::asSeen_data()
{
    QTest::addColumn<int>("model");
    QTest::newRow("layout 0") << 0;
    QTest::newRow("layout 1") << 1;
}

/// All number formats hold the same matrix: row after row from the top, each from left to right.
void ExportTest::asSeen()
{
    QFETCH(int, model);
    const QByteArray photograph = photographBytes(slope(model));
    const Exported npy(photograph, QStringLiteral("npy"));
    const Exported tiff(photograph, QStringLiteral("tiff"));
    const Exported csv(photograph, QStringLiteral("csv"));
    QCOMPARE(npy.ended.status, 0);
    QCOMPARE(npy.ended.output + npy.ended.errors, QByteArray());
    QCOMPARE(npy.file.size(), npyHeader + columns * rows * 4);
    const std::vector<float> fromNpy = floatsAt(npy.file, npyHeader);
    const std::vector<float> fromTiff = floatsAt(tiff.file, tiffTag(tiff.file, 273));
    const QList<QByteArray> lines = csv.file.split('\n');
    QCOMPARE(lines.size(), rows + 1);
    QCOMPARE(lines.last(), QByteArray());
    for (int y = 0; y < rows; ++y) {
        const QList<QByteArray> cells = lines[y].split(',');
        QCOMPARE(cells.size(), columns);
        for (int x = 0; x < columns; ++x) {
            const float expected = 10.0F * stored(grayAt(x, y)) / 10.0F;
            QVERIFY(std::abs(double(expected) - 20 - 0.1 * grayAt(x, y)) < 1e-5);
            const auto place = std::size_t(y * columns + x);
            QVERIFY(fromNpy[place] == expected);
            QVERIFY(fromTiff[place] == expected);
            QVERIFY(cells[x].toFloat() == expected);
        }
    }
}

void ExportTest::units_data()
{
    QTest::addColumn<int>("fileUnit");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<float>("scale");
    QTest::addColumn<float>("offset");
    QTest::addColumn<bool>("raw");
    QTest::newRow("C file as it is") << 0 << "file" << 10.0F << 0.0F << false;
    QTest::newRow("C file in C") << 0 << "C" << 10.0F << 0.0F << false;
    QTest::newRow("C file in F") << 0 << "F" << 5.556F << 32.0F << false;
    QTest::newRow("F file as it is") << 1 << "file" << 10.0F << 0.0F << false;
    QTest::newRow("F file in C") << 1 << "C" << 18.0F << -17.78F << false;
    QTest::newRow("F file in F") << 1 << "F" << 10.0F << 0.0F << false;
    // A raw image is in °C; the photograph that carries it opens in its own unit all the same.
    QTest::newRow("raw, C file as it is") << 0 << "file" << 10.0F << 0.0F << true;
    QTest::newRow("raw, F file as it is") << 1 << "file" << 5.556F << 32.0F << true;
    QTest::newRow("raw, F file in C") << 1 << "C" << 10.0F << 0.0F << true;
    QTest::newRow("raw, F file in F") << 1 << "F" << 5.556F << 32.0F << true;
}

void ExportTest::units()
{
    QFETCH(int, fileUnit);
    QFETCH(QString, unit);
    QFETCH(float, scale);
    QFETCH(float, offset);
    QFETCH(bool, raw);
    Shot shot = slope(0, fileUnit);
    if (raw)
        shot.raw = [](int row, int column) {
            return 4700 + row + column;
        };
    const Exported npy(photographBytes(shot), QStringLiteral("npy"), {option("unit", unit)});
    const std::vector<float> values = floatsAt(npy.file, npyHeader);
    for (const auto& [x, y] : {std::pair{0, 0}, {239, 0}, {17, 200}, {239, 319}}) {
        const int sixteenths = 4700 + 4 * y / 5 + 4 * x / 5;
        const float temperature = raw ? float(sixteenths * 0.0625 - 273.15) : stored(grayAt(x, y));
        const float expected = 10.0F * temperature / scale + offset;
        QVERIFY(values[std::size_t(y * columns + x)] == expected);
    }
    const bool isFahrenheit = scale == 5.556F || (fileUnit == 1 && scale == 10.0F && !raw);
    const Exported tiff(photographBytes(shot), QStringLiteral("tiff"), {option("unit", unit)});
    QVERIFY(tiff.file.contains(isFahrenheit ? "unit=F" : "unit=C"));
}

void ExportTest::npyHeaderIsNumPys()
{
    const Exported npy(photographBytes(slope()), QStringLiteral("npy"));
    QCOMPARE(npy.file.left(8), QByteArray("\x93NUMPY\x01\x00", 8));
    QCOMPARE(u16(npy.file, 8), npyHeader - 10);
    const QByteArray description = npy.file.mid(10, npyHeader - 10);
    QCOMPARE(description.trimmed(),
             QByteArray("{'descr': '<f4', 'fortran_order': False, 'shape': (320, 240), }"));
    QVERIFY(description.endsWith('\n'));
}

void ExportTest::tiffTags()
{
    Shot shot = slope();
    shot.emissivity100 = 7;
    const Exported exported(photographBytes(shot), QStringLiteral("tiff"),
                            {option("unit", QStringLiteral("F"))});
    const QByteArray& tiff = exported.file;
    QVERIFY(tiff.startsWith(QByteArray("II*\0", 4)));
    QCOMPARE(tiffTag(tiff, 256), columns);
    QCOMPARE(tiffTag(tiff, 257), rows);
    QCOMPARE(tiffTag(tiff, 258), 32); // bits
    QCOMPARE(tiffTag(tiff, 259), 1);  // not compressed
    QCOMPARE(tiffTag(tiff, 262), 1);  // the least is black
    QCOMPARE(tiffTag(tiff, 277), 1);  // samples
    QCOMPARE(tiffTag(tiff, 339), 3);  // floating point
    QCOMPARE(QByteArray(tiff.constData() + tiffTag(tiff, 270)),
             QByteArray("unit=F emissivity=0.07"));
}

/// ImageMagick, in the build whose pixels are floating point, reads the same matrix.
void ExportTest::tiffReadByOthers()
{
    const Exported tiff(photographBytes(slope()), QStringLiteral("tiff"));
    const Ended converted =
        testing::shell(QStringLiteral("convert-im6.q16hdri a.tiff -depth 32 "
                                      "-define quantum:format=floating-point gray:a.gray"),
                       tiff.path());
    QCOMPARE(converted.errors, QByteArray());
    QCOMPARE(converted.status, 0);
    const QByteArray gray = tiff.read(QStringLiteral("a.gray"));
    QCOMPARE(gray.size(), columns * rows * 4);
    const std::vector<float> values = floatsAt(gray, 0);
    for (int i = 0; i < columns * rows; ++i) {
        const float expected = stored(grayAt(i % columns, i / columns));
        QVERIFY(std::abs(values[std::size_t(i)] - expected) < 1e-4F);
    }
}

void ExportTest::png_data()
{
    QTest::addColumn<QStringList>("option");
    QTest::addColumn<int>("hottest"); ///< palette entry for gray 255, 100 and 0
    QTest::addColumn<int>("middle");
    QTest::addColumn<int>("coldest");
    const auto span = [](const char* value) {
        return QStringList{option("span", QLatin1String(value))};
    };
    QTest::newRow("by itself") << QStringList() << 255 << 100 << 0;
    QTest::newRow("whole") << span("0:255") << 255 << 100 << 0;
    QTest::newRow("narrowed") << span("55:205") << 200 << 100 << 50;
    QTest::newRow("above the middle") << span("0:55") << 255 << 200 << 200;
    QTest::newRow("crossed") << span("205:55") << 50 << 50 << 200;
}

void ExportTest::png()
{
    QFETCH(QStringList, option);
    QFETCH(int, hottest);
    QFETCH(int, middle);
    QFETCH(int, coldest);
    Shot shot;
    shot.gray = [](int x, int y) {
        return y == 0 ? 255 : x == 239 ? 100 : 0;
    };
    // Every channel tells the entry.
    shot.palette = [](int v) {
        return (v >> 3) << 11 | (255 - v) >> 2 << 5 | (v ^ 0xA0) >> 3;
    };
    const Exported exported(photographBytes(shot), QStringLiteral("png"), option);
    QCOMPARE(exported.ended.status, 0);
    QImage image;
    QVERIFY(image.loadFromData(exported.file, "png"));
    QCOMPARE(image.size(), QSize(columns, rows));
    const auto colour = [](int v) {
        return qRgb(v & 0xF8, (255 - v) & 0xFC, (v ^ 0xA0) & 0xF8);
    };
    QCOMPARE(image.pixel(0, 0), colour(hottest));
    QCOMPARE(image.pixel(239, 0), colour(hottest));
    QCOMPARE(image.pixel(239, 319), colour(middle));
    QCOMPARE(image.pixel(0, 319), colour(coldest));
}

int main(int argc, char** argv)
{
    return testing::run<ExportTest>(argc, argv);
}

#include "export_test.moc"
