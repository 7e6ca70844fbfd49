// SPDX-License-Identifier: MIT
#include "analysis/photograph/isotherm.h"
#include "simulator/imager_model.h"
#include "tests/support/test_run.h"

#include <cmath>
#include <limits>
#include <memory>

using namespace analysis;
using Side = Isotherm::Side;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

Isotherm isotherm(Side side, double from, double to, Unit unit = Unit::Celsius)
{
    Isotherm made;
    made.side = side;
    made.from = from;
    made.to = to;
    made.unit = unit;
    return made;
}

/// Which of some readings are covered, as text: "x" or "-" for each.
QString covered(const Isotherm& isotherm)
{
    QString marks;
    for (const double reading : {9.0, 10.0, 15.0, 20.0, 21.0})
        marks += covers(isotherm, reading) ? QLatin1Char('x') : QLatin1Char('-');
    return marks;
}

/// Every pixel's temperature is its own: x + y / 1000.
std::unique_ptr<Temperatures> ramp()
{
    auto temperatures = std::make_unique<Temperatures>();
    for (int x = 0; x < 240; ++x) {
        for (int y = 0; y < 320; ++y)
            (*temperatures)[temperatureIndex(x, y)] = float(x + y / 1000.0);
    }
    return temperatures;
}

cv::Mat grayPicture()
{
    return cv::Mat(320, 240, CV_8UC3, cv::Scalar(70, 71, 72));
}

/// Three numbers for a colour among which distances are as large as they are seen; 2 or so is just
/// noticed (the colour space of the International Commission on Illumination of 1976).
using Seen = std::array<double, 3>;

/// How much red, green and blue of a screen, in linear light, somebody's eyes take for such light.
using Eyes = std::array<std::array<double, 3>, 3>;

double linear(int channel)
{
    const double value = channel / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

Seen seen(QRgb colour, const Eyes& eyes)
{
    const std::array<double, 3> light{linear(qRed(colour)), linear(qGreen(colour)),
                                      linear(qBlue(colour))};
    std::array<double, 3> taken{};
    for (std::size_t i = 0; i < 3; ++i)
        taken[i] = std::clamp(eyes[i][0] * light[0] + eyes[i][1] * light[1] + eyes[i][2] * light[2],
                              0.0, 1.0);
    const auto root = [](double part) {
        return part > 216.0 / 24389 ? std::cbrt(part) : part * 841 / 108 + 4.0 / 29;
    };
    const double x =
        root((0.4124564 * taken[0] + 0.3575761 * taken[1] + 0.1804375 * taken[2]) / 0.95047);
    const double y = root(0.2126729 * taken[0] + 0.7151522 * taken[1] + 0.0721750 * taken[2]);
    const double z =
        root((0.0193339 * taken[0] + 0.1191920 * taken[1] + 0.9503041 * taken[2]) / 1.08883);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

double distance(const Seen& a, const Seen& b)
{
    return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

} // namespace

Q_DECLARE_METATYPE(Eyes)

class IsothermTest : public QObject
{
    Q_OBJECT

private slots:
    void sides_data()
    {
        QTest::addColumn<int>("side");
        QTest::addColumn<QString>("marks");
        QTest::newRow("above 10") << int(Side::Above) << QStringLiteral("--xxx");
        QTest::newRow("below 20") << int(Side::Below) << QStringLiteral("xxx--");
        QTest::newRow("inside 10, 20") << int(Side::Inside) << QStringLiteral("-xxx-");
        QTest::newRow("outside 10, 20") << int(Side::Outside) << QStringLiteral("x---x");
    }
    void sides()
    {
        QFETCH(int, side);
        QFETCH(QString, marks);
        const Isotherm limits = isotherm(Side(side), 10, 20);
        QCOMPARE(covered(limits), marks);
        QCOMPARE(problemOf(limits), IsothermProblem::None);
        for (const double reading : {std::nan(""), -std::nan("")})
            QVERIFY(!covers(limits, reading));
    }

    void readingsWithoutBounds()
    {
        QVERIFY(covers(isotherm(Side::Above, 10, 0), infinity));
        QVERIFY(covers(isotherm(Side::Below, 0, 10), -infinity));
        QVERIFY(covers(isotherm(Side::Above, -infinity, 0), -1000));
    }

    void wrongLimitsCoverNothing()
    {
        const double none = std::nan("");
        for (const Side side : {Side::Inside, Side::Outside}) {
            QCOMPARE(problemOf(isotherm(side, 20, 10)), IsothermProblem::Crossed);
            QCOMPARE(problemOf(isotherm(side, 10, 10)), IsothermProblem::None);
            QCOMPARE(problemOf(isotherm(side, none, 10)), IsothermProblem::NotANumber);
            QCOMPARE(problemOf(isotherm(side, 10, none)), IsothermProblem::NotANumber);
            QCOMPARE(covered(isotherm(side, 20, 10)), QStringLiteral("-----"));
            QCOMPARE(covered(isotherm(side, none, 10)), QStringLiteral("-----"));
            QCOMPARE(covered(isotherm(side, 10, none)), QStringLiteral("-----"));
        }
        QCOMPARE(covered(isotherm(Side::Above, none, 20)), QStringLiteral("-----"));
        QCOMPARE(covered(isotherm(Side::Below, 10, none)), QStringLiteral("-----"));
        // A limit that the side does not have is no problem of it.
        QCOMPARE(problemOf(isotherm(Side::Above, 10, none)), IsothermProblem::None);
        QCOMPARE(problemOf(isotherm(Side::Below, none, 20)), IsothermProblem::None);
        QCOMPARE(problemOf(isotherm(Side::Above, 20, 10)), IsothermProblem::None);
    }

    void exactlyThePixelsOfTheSideAreColoured()
    {
        cv::Mat picture = grayPicture();
        const int painted = paint(isotherm(Side::Inside, 100.2495, 101.0505), *ramp(),
                                  {Unit::Celsius, unchanged}, picture);
        int found = 0;
        for (int y = 0; y < 320; ++y) {
            for (int x = 0; x < 240; ++x) {
                const bool expected = (x == 100 && y >= 250) || (x == 101 && y <= 50);
                const auto pixel = picture.at<cv::Vec3b>(y, x);
                QCOMPARE(pixel, expected ? cv::Vec3b(85, 187, 255) : cv::Vec3b(70, 71, 72));
                found += expected;
            }
        }
        QCOMPARE(painted, 70 + 51);
        QCOMPARE(found, painted);
    }

    // As they are shown: with the instrument's own constants, which are a little off.
    void limitsAreReadingsAsShown()
    {
        const auto temperatures = std::make_unique<Temperatures>();
        temperatures->fill(100.0F); // shown as 211.986
        cv::Mat picture = grayPicture();
        const ShownUnit fahrenheit{Unit::Fahrenheit, toFahrenheit};
        QCOMPARE(paint(isotherm(Side::Above, 211.99, 0, Unit::Fahrenheit), *temperatures,
                       fahrenheit, picture),
                 0);
        QCOMPARE(paint(isotherm(Side::Above, 211.9, 0, Unit::Fahrenheit), *temperatures, fahrenheit,
                       picture),
                 76800);
    }

    // The unit may be switched while an isotherm is shown.
    void limitsFollowTheUnit()
    {
        const auto temperatures = ramp();
        cv::Mat celsius = grayPicture();
        cv::Mat fahrenheit = grayPicture();
        const Isotherm limits = isotherm(Side::Inside, 50.5, 120.5);
        QCOMPARE(paint(limits, *temperatures, {Unit::Celsius, unchanged}, celsius), 70 * 320);
        QCOMPARE(paint(limits, *temperatures, {Unit::Fahrenheit, toFahrenheit}, fahrenheit),
                 70 * 320);
        QCOMPARE(cv::norm(celsius, fahrenheit), 0.0);
        const Isotherm same = inUnit(limits, Unit::Fahrenheit);
        QCOMPARE(same.from, 122.9);
        QCOMPARE(same.to, 248.9);
        QVERIFY(inUnit(same, Unit::Celsius).unit == Unit::Celsius);
        QCOMPARE(inUnit(same, Unit::Celsius).to, 120.5);
    }

    void pixelsWithoutATemperatureKeepTheirColour()
    {
        const auto temperatures = std::make_unique<Temperatures>();
        temperatures->fill(std::numeric_limits<float>::quiet_NaN());
        (*temperatures)[0] = 5.0F;
        cv::Mat picture = grayPicture();
        QCOMPARE(paint(isotherm(Side::Outside, 10, 20), *temperatures, {}, picture), 1);
    }

    void anotherColour()
    {
        Isotherm red = isotherm(Side::Above, -10, 0);
        red.colour = Qt::red;
        cv::Mat picture = grayPicture();
        QCOMPARE(paint(red, *ramp(), {}, picture), 76800);
        QCOMPARE(picture.at<cv::Vec3b>(319, 239), cv::Vec3b(255, 0, 0));
    }

    void otherPicturesStayAsTheyAre()
    {
        for (cv::Mat picture : {cv::Mat(), cv::Mat(cv::Mat::zeros(320, 240, CV_8UC1)),
                                cv::Mat(cv::Mat::zeros(240, 320, CV_8UC3))}) {
            QCOMPARE(paint(isotherm(Side::Above, -10, 0), *ramp(), {}, picture), 0);
            QVERIFY(picture.empty() || cv::countNonZero(picture.reshape(1)) == 0);
        }
    }

    // The matrices are those of a published model of such eyes, complete for each kind.
    void itsColourIsSeenByAllEyes_data()
    {
        QTest::addColumn<Eyes>("eyes");
        QTest::newRow("three kinds of cones") << Eyes{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
        QTest::newRow("without those for red") << Eyes{{{0.152286, 1.052583, -0.204868},
                                                        {0.114503, 0.786281, 0.099216},
                                                        {-0.003882, -0.048116, 1.051998}}};
        QTest::newRow("without those for green") << Eyes{{{0.367322, 0.860646, -0.227968},
                                                          {0.280085, 0.672501, 0.047413},
                                                          {-0.011820, 0.042940, 0.968881}}};
        QTest::newRow("without those for blue") << Eyes{{{1.255528, -0.076749, -0.178779},
                                                         {-0.078411, 0.930809, 0.147602},
                                                         {0.004733, 0.691367, 0.303900}}};
    }
    void itsColourIsSeenByAllEyes()
    {
        QFETCH(Eyes, eyes);
        const Seen own = seen(isothermColour, eyes);
        for (const simulator::Palette palette :
             {simulator::Palette::Iron, simulator::Palette::WhiteHot}) {
            for (const quint16 entry : simulator::paletteTable(palette)) {
                const QRgb colour =
                    qRgb((entry >> 8) & 0xF8, (entry >> 3) & 0xFC, (entry << 3) & 0xFF);
                QVERIFY2(distance(own, seen(colour, eyes)) > 30,
                         qPrintable(QStringLiteral("%1 looks like it: %2")
                                        .arg(QColor(colour).name())
                                        .arg(distance(own, seen(colour, eyes)))));
            }
        }
    }
};

int main(int argc, char** argv)
{
    return testing::run<IsothermTest>(argc, argv);
}

#include "isotherm_test.moc"
