// SPDX-License-Identifier: MIT
#include "analysis/photograph/reading_texts.h"
#include "tests/support/test_run.h"

#include <QRect>

#include <limits>
#include <memory>

using namespace analysis;

class ReadingTextsTest : public QObject
{
    Q_OBJECT

private slots:
    void writesAMatrix()
    {
        const auto temperatures = std::make_unique<Temperatures>();
        for (int x = 0; x < 240; ++x) {
            for (int y = 0; y < 320; ++y)
                (*temperatures)[std::size_t(x * 320 + y)] = float(x) + float(y) / 10;
        }
        QCOMPARE(ReadingTexts(*temperatures, {}).matrix({18, 1, 5, 5}),
                 QStringLiteral("y \\ x (°C)\t18\t19\t20\t21\t22\n"
                                "1\t18.1\t19.1\t20.1\t21.1\t22.1\n"
                                "2\t18.2\t19.2\t20.2\t21.2\t22.2\n"
                                "3\t18.3\t19.3\t20.3\t21.3\t22.3\n"
                                "4\t18.4\t19.4\t20.4\t21.4\t22.4\n"
                                "5\t18.5\t19.5\t20.5\t21.5\t22.5\n"));
        // 1.8 × 238 + 32 is 460.4, and so on.
        const ShownUnit fahrenheit{Unit::Fahrenheit, {10.0F / 1.8F, 32.0F}};
        QCOMPARE(ReadingTexts(*temperatures, fahrenheit).matrix({237, 0, 3, 3}),
                 QStringLiteral("y \\ x (°F)\t237\t238\t239\n"
                                "0\t458.6\t460.4\t462.2\n"
                                "1\t458.8\t460.6\t462.4\n"
                                "2\t459.0\t460.8\t462.6\n"));
    }

    void readsOut()
    {
        const auto temperatures = std::make_unique<Temperatures>();
        (*temperatures)[7 * 320 + 9] = -0.04F;
        const ReadingTexts texts(*temperatures, {});
        QCOMPARE(texts.at(7, 9), QStringLiteral("-0.0"));
        QCOMPARE(texts.readOut({7, 9}), QStringLiteral("X: 7  Y: 9  -0.0°C"));
        const ShownUnit other{Unit::Fahrenheit, {5.0F, 1.0F}};
        QCOMPARE(ReadingTexts(*temperatures, other).readOut({7, 9}),
                 QStringLiteral("X: 7  Y: 9  0.9°F"));
    }

    /// The stored set as the window has always written it; a corrected one has no reading there.
    void writesWhatIsNoNumber()
    {
        const auto temperatures = std::make_unique<Temperatures>();
        (*temperatures)[3] = std::numeric_limits<float>::quiet_NaN();
        (*temperatures)[4] = -std::numeric_limits<float>::infinity();
        QCOMPARE(ReadingTexts(*temperatures, {}).at(0, 3), QStringLiteral("nan"));
        QCOMPARE(ReadingTexts(*temperatures, {}).at(0, 4), QStringLiteral("-inf"));
        const ReadingTexts corrected(*temperatures, {}, QStringLiteral("corrected"));
        QCOMPARE(corrected.at(0, 2), QStringLiteral("0.0"));
        QCOMPARE(corrected.at(0, 3), QStringLiteral("–"));
        QCOMPARE(corrected.matrix({0, 2, 1, 2}),
                 QStringLiteral("y \\ x (°C; corrected)\t0\n2\t0.0\n3\t–\n"));
    }

    void knowsItsLongestText()
    {
        const auto temperatures = std::make_unique<Temperatures>();
        const auto longest = [&] {
            return ReadingTexts(*temperatures, {}).longest();
        };
        QCOMPARE(longest(), 4);
        (*temperatures)[100] = 99.94F;
        QCOMPARE(longest(), 4);
        (*temperatures)[100] = 99.96F; // "100.0"
        QCOMPARE(longest(), 5);
        (*temperatures)[200] = -123.4F;
        QCOMPARE(longest(), 6);
        (*temperatures)[300] = std::numeric_limits<float>::infinity();
        QCOMPARE(longest(), 6);
    }
};

int main(int argc, char** argv)
{
    return testing::run<ReadingTextsTest>(argc, argv);
}

#include "reading_texts_test.moc"
